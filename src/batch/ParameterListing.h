#pragma once

#include <QJsonArray>
#include <QString>

namespace TVR::Data {
class Manager;
}

namespace TVR::Batch {

/// All parameters of the store, one a line or one JSON object each: id, key, value as it takes
/// effect, unit, and the possible and the usual range of those that have one; as JSON also where
/// batch files have it, a number with the unit, factor and digits in which forms and tables show
/// it.
QString parameterTableText(const Data::Manager& store);
QString parameterJson(const Data::Manager& store);
QJsonArray parameterRows(const Data::Manager& store);

} // namespace TVR::Batch
