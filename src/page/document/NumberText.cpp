#include "page/document/NumberText.h"

#include <QLocale>

#include <cmath>

namespace TVR::Page {

QString shiftedText(double value, int places) {
  if (!std::isfinite(value))
    return numberText(value);
  QString digits = QString::number(std::fabs(value), 'f', QLocale::FloatingPointShortest);
  int point = digits.indexOf('.');
  if (point < 0)
    point = digits.size();
  else
    digits.remove(point, 1);
  // At least one digit on each side that the point can move to.
  const QString padding(std::abs(places), '0');
  digits = padding + digits + padding;
  point += padding.size() + places;

  int first = 0;
  while (first < point - 1 && digits[first] == '0')
    ++first;
  int last = digits.size();
  while (last > point && digits[last - 1] == '0')
    --last;
  const QString whole = (value < 0 ? "-" : "") + digits.mid(first, point - first);
  return last == point ? whole : whole + '.' + digits.mid(point, last - point);
}

double shiftedNumber(const QString& text, int places, double fallback) {
  bool isNumber = false;
  const bool hasExponent = text.contains('e', Qt::CaseInsensitive);
  double value = (hasExponent ? text : text + "e" + QString::number(-places)).toDouble(&isNumber);
  if (hasExponent)
    value *= std::pow(10.0, -places);
  return isNumber && std::isfinite(value) ? value : fallback;
}

QString numberText(double value) {
  return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

} // namespace TVR::Page
