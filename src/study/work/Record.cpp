#include "study/work/Record.h"

#include "study/plan/JsonNumbers.h"
#include "study/plan/ResultLayout.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace TVR::Study {

namespace {

bool fits(const Record& record, const ResultLayout& layout) {
  if (record.run.isEmpty() || record.repeats < 1 ||
      record.values.size() != static_cast<std::size_t>(layout.keys.size()))
    return false;
  if (record.hasFailed())
    return true;
  return record.scalars.size() == layout.scalars().size() &&
         record.series.size() == layout.series().size() &&
         std::all_of(record.series.begin(), record.series.end(), [&](const auto& series) {
           return series.size() == layout.seriesTimes.size();
         });
}

} // namespace

QByteArray toLine(const Record& record, bool withMaps) {
  QJsonObject json{{"run", QString::fromLatin1(record.run)},
                   {"repeats", record.repeats},
                   {"values", jsonOf(record.values)}};
  if (record.hasFailed()) {
    json["failed"] = record.failure;
  } else {
    json["scalars"] = jsonOf(record.scalars);
    QJsonArray series;
    for (const std::vector<double>& one : record.series)
      series.append(jsonOf(one));
    json["series"] = series;
    if (withMaps)
      json["maps"] = QString::fromLatin1(record.maps.toBase64());
  }
  return compactJson(json);
}

std::optional<Record> recordFromLine(const QByteArray& line, const ResultLayout& layout) {
  const QJsonObject json = QJsonDocument::fromJson(line).object();
  Record record;
  record.run = json["run"].toString().toLatin1();
  record.repeats = json["repeats"].toInt();
  record.values = numbersFrom(json["values"]);
  record.failure = json["failed"].toString();
  record.scalars = numbersFrom(json["scalars"]);
  for (const QJsonValue& series : json["series"].toArray())
    record.series.push_back(numbersFrom(series));
  record.maps = QByteArray::fromBase64(json["maps"].toString().toLatin1());
  return fits(record, layout) ? std::optional(record) : std::nullopt;
}

} // namespace TVR::Study
