#pragma once

#include <QString>

namespace TVR::Data {
class Manager;
}

namespace TVR::Batch {

/// All parameters of the store, one a line or one JSON object each: id, key, value as it takes
/// effect, unit, and the possible and the usual range of those that have one.
QString parameterTableText(const Data::Manager& store);
QString parameterJson(const Data::Manager& store);

} // namespace TVR::Batch
