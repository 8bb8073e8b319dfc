#include "project/ParameterRange.h"

#include <cmath>

namespace TVR {

namespace {

QString number(double value) {
  return QString::number(value, 'g', 6);
}

} // namespace

RangeVerdict judge(const ParameterRange& range, double value) {
  if (!std::isfinite(value) || value < range.least || value > range.most)
    return RangeVerdict::Impossible;
  const bool isUsual = value >= range.usualLeast && value <= range.usualMost;
  return isUsual ? RangeVerdict::Usual : RangeVerdict::Unusual;
}

QString boundsText(const ParameterRange& range, RangeVerdict verdict, const QString& unit) {
  const bool outer = verdict == RangeVerdict::Impossible;
  const double least = outer ? range.least : range.usualLeast;
  const double most = outer ? range.most : range.usualMost;
  const QString behind = unit.isEmpty() || unit == "-" ? QString() : ' ' + unit;
  if (std::isinf(least) && std::isinf(most))
    return "a number" + (behind.isEmpty() ? behind : " of" + behind);
  return QStringLiteral("%1 to %2%3").arg(number(least), number(most), behind);
}

QString rangeRemark(const ParameterRange& range, double value, const QString& unit,
                    const QString& shown) {
  const RangeVerdict verdict = judge(range, value);
  const QString bounds = boundsText(range, verdict, unit);
  switch (verdict) {
  case RangeVerdict::Usual:
    return {};
  case RangeVerdict::Unusual:
    return QStringLiteral("usual is %1, found \"%2\"").arg(bounds, shown);
  case RangeVerdict::Impossible:
    return QStringLiteral("expected %1, found \"%2\"").arg(bounds, shown);
  }
  return {};
}

} // namespace TVR
