#include "batch/ParameterListing.h"

#include "files/BatchFile.h"
#include "messages/PrintableText.h"
#include "project/ParameterTable.h"
#include "store/Manager.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <cmath>

namespace TVR::Batch {

namespace {

QString shown(const QVariant& value) {
  return printable(value.type() == QVariant::List ? value.toStringList().join(", ")
                                                  : value.toString());
}

/// The bounds of a range; empty if it has none.
QString bounds(const ParameterRange& range, RangeVerdict verdict) {
  return std::isfinite(range.least) ? boundsText(range, verdict, {}) : QString();
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

/// How forms and tables show a parameter: `factor` times the value.
QJsonObject asShown(const ParameterRow& row) {
  return {{"unit", QString::fromUtf8(row.shown.unit)},
          {"factor", row.has(ReadsAsShown) ? 1 : row.toShown(1)},
          {"decimals", row.shown.decimals}};
}

/// The sections and keys that batch files have for a parameter.
QJsonArray placesInBatchFile(int id) {
  QJsonArray places;
  for (const Data::BatchFile::Key& key : Data::BatchFile::keys())
    if (key.id == id && *key.name != '\0' && *key.name != '#')
      places.append(QJsonObject{{"section", key.section}, {"key", key.name}});
  return places;
}

} // namespace

QString parameterTableText(const Data::Manager& store) {
  const auto line = [](const auto& id, const QString& key, const QString& value,
                       const QString& unit, const QString& possible, const QString& usual) {
    return withoutTrailingBlanks(QStringLiteral("%1  %2  %3  %4  %5  %6")
                                     .arg(id, 3)
                                     .arg(key, -46)
                                     .arg(value, -24)
                                     .arg(unit, -9)
                                     .arg(possible, -20)
                                     .arg(usual));
  };
  QStringList lines{line("id", "key", "value", "unit", "possible", "usual")};
  for (const ParameterRow& row : parameterTable())
    lines.append(line(
        row.id, row.key, shown(store.value(row.id)), QString::fromUtf8(row.unitOfValue()),
        bounds(row.range, RangeVerdict::Impossible), bounds(row.range, RangeVerdict::Unusual)));
  return lines.join('\n');
}

QJsonArray parameterRows(const Data::Manager& store) {
  QJsonArray rows;
  for (const ParameterRow& row : parameterTable()) {
    QJsonObject object{{"id", row.id},
                       {"key", QString::fromLatin1(row.key)},
                       {"value", asJson(store.value(row.id))},
                       {"unit", QString::fromUtf8(row.unitOfValue())}};
    if (const QJsonArray places = placesInBatchFile(row.id); !places.isEmpty())
      object["batch_file"] = places;
    if (row.kind == ParameterKind::Number || row.kind == ParameterKind::Count)
      object["shown"] = asShown(row);
    if (std::isfinite(row.range.least)) {
      object["possible"] = QJsonArray{row.range.least, row.range.most};
      object["usual"] = QJsonArray{row.range.usualLeast, row.range.usualMost};
    }
    rows.append(object);
  }
  return rows;
}

QString parameterJson(const Data::Manager& store) {
  return QString::fromUtf8(QJsonDocument(parameterRows(store)).toJson()).trimmed();
}

} // namespace TVR::Batch
