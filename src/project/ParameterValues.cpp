#include "project/ParameterValues.h"

#include <QPointF>

#include <cstring>

namespace TVR {

bool isSameNumber(double one, double other) {
  return std::memcmp(&one, &other, sizeof one) == 0;
}

bool isSameValue(const QVariant& one, const QVariant& other) {
  if (one.userType() != other.userType())
    return false;
  switch (one.userType()) {
  case QMetaType::Double:
    return isSameNumber(one.toDouble(), other.toDouble());
  case QMetaType::QPointF:
    return isSameNumber(one.toPointF().x(), other.toPointF().x()) &&
           isSameNumber(one.toPointF().y(), other.toPointF().y());
  default:
    return one == other;
  }
}

} // namespace TVR
