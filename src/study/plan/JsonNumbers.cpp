#include "study/plan/JsonNumbers.h"

#include <QJsonDocument>

#include <cmath>
#include <limits>

namespace TVR::Study {

QJsonArray jsonOf(const std::vector<double>& numbers) {
  QJsonArray array;
  for (const double number : numbers)
    array.append(std::isfinite(number) ? QJsonValue(number) : QJsonValue());
  return array;
}

std::vector<double> numbersFrom(const QJsonValue& json) {
  std::vector<double> numbers;
  for (const QJsonValue& number : json.toArray())
    numbers.push_back(number.toDouble(std::numeric_limits<double>::quiet_NaN()));
  return numbers;
}

QByteArray compactJson(const QJsonObject& object) {
  return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

} // namespace TVR::Study
