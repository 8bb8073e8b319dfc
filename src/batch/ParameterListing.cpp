#include "batch/ParameterListing.h"

#include "data/Manager.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

namespace TVR::Batch {

namespace {

QString shown(const QVariant& value) {
  return value.type() == QVariant::List ? value.toStringList().join(", ") : value.toString();
}

QString withoutTrailingBlanks(QString line) {
  while (line.endsWith(' '))
    line.chop(1);
  return line;
}

/// A value of a file is a text in the store; as a number it is one here.
QJsonValue asJson(const QVariant& value) {
  if (value.type() == QVariant::String) {
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (isNumber)
      return number;
  }
  return QJsonValue::fromVariant(value);
}

} // namespace

QString parameterTableText(const Data::Manager& store) {
  QStringList lines{
      QStringLiteral("%1  %2  %3  %4").arg("id", 3).arg("key", -46).arg("value", -24).arg("unit")};
  for (const ParameterRow& row : parameterTable())
    lines.append(withoutTrailingBlanks(QStringLiteral("%1  %2  %3  %4")
                                           .arg(row.id, 3)
                                           .arg(row.key, -46)
                                           .arg(shown(store.value(row.id)), -24)
                                           .arg(QString::fromUtf8(row.unit))));
  return lines.join('\n');
}

QString parameterJson(const Data::Manager& store) {
  QJsonArray rows;
  for (const ParameterRow& row : parameterTable())
    rows.append(QJsonObject{{"id", row.id},
                            {"key", QString::fromLatin1(row.key)},
                            {"value", asJson(store.value(row.id))},
                            {"unit", QString::fromUtf8(row.unit)}});
  return QString::fromUtf8(QJsonDocument(rows).toJson()).trimmed();
}

} // namespace TVR::Batch
