#pragma once

#include <QMap>
#include <QVariant>

namespace TVR {

/// Values of parameters by Parameter::Id, as they are stored: numbers, truth values, points, or the
/// texts that a file held. A parameter that is not there has no value.
using ParameterValues = QMap<int, QVariant>;

/// Whether two numbers are the same to the last bit, so that what is no number equals itself.
bool isSameNumber(double one, double other);

/// Whether two values are of one type and exactly alike, which the comparison of variants does not
/// tell: to it "1", 1 and true are the same, and points are so roughly.
bool isSameValue(const QVariant& one, const QVariant& other);

} // namespace TVR
