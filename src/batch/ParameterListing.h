#pragma once

#include <QString>

namespace TVR::Data {
class Manager;
}

namespace TVR::Batch {

/// All parameters of the store, one a line or one JSON object each: id, key, value as it takes
/// effect, and unit.
QString parameterTableText(const Data::Manager& store);
QString parameterJson(const Data::Manager& store);

} // namespace TVR::Batch
