#include "study/answers/AnswerTables.h"

#include "disk/FileReplacement.h"
#include "study/answers/AnswerSummary.h"
#include "study/plan/Plan.h"
#include "study/work/CsvCells.h"
#include "study/work/Results.h"
#include "study/work/StudyFolder.h"
#include "study/work/StudySetup.h"

#include <QFile>
#include <QJsonDocument>

#include <algorithm>
#include <cmath>

namespace TVR::Study {

namespace {

/// Whether a series holds the number already.
bool isInSeries(const Scalar& scalar, const ResultLayout& layout) {
  if (scalar.isMeshBand || !scalar.well || !scalar.time)
    return false;
  const double time = layout.times[*scalar.time];
  return std::any_of(layout.seriesTimes.begin(), layout.seriesTimes.end(),
                     [time](double other) { return std::abs(other - time) <= 1e-9 * time; });
}

/// The quantity with its level.
QString nameWithLevel(const Scalar& scalar, const ResultLayout& layout) {
  const QString name = nameOf(scalar);
  if (!scalar.level)
    return name;
  return QStringLiteral("%1 %2 K").arg(name).arg(layout.levels[*scalar.level]);
}

/// The cells of an answer that are the same for all runs.
struct AnswerCells {
  QString before; ///< well, time and quantity
  QString after;  ///< unit
};

AnswerCells cellsOf(const QString& well, const QString& time, const QString& quantity,
                    const QString& unit) {
  return {',' + csvCell(well) + ',' + time + ',' + quantity + ',', ',' + unit + '\n'};
}

void writeAnswer(QIODevice& device, const Record& record, const AnswerCells& cells, double value) {
  if (std::isfinite(value))
    device.write(
        (QString::fromLatin1(record.run) + cells.before + csvCell(value) + cells.after).toUtf8());
}

bool writeTable(const QString& fileName, const ResultLayout& layout, const Results& results) {
  QFile table(fileName);
  if (!table.open(QIODevice::WriteOnly))
    return false;
  writeAnswerHead(table);
  results.eachRecord([&](const Record& record) { writeAnswers(table, record, layout); });
  table.close();
  return table.error() == QFile::NoError;
}

bool writeFile(const QString& fileName, const QByteArray& content) {
  QFile file(fileName);
  return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush();
}

} // namespace

void writeAnswerHead(QIODevice& device) {
  device.write("run,well,time [a],quantity,value,unit\n");
}

void writeAnswers(QIODevice& device, const Record& record, const ResultLayout& layout) {
  if (record.hasFailed())
    return;
  const auto wellName = [&](std::size_t well) { return layout.wells[static_cast<int>(well)]; };
  const std::vector<Scalar> scalars = layout.scalars();
  for (std::size_t i = 0; i < scalars.size(); ++i) {
    const Scalar& scalar = scalars[i];
    if (!isInSeries(scalar, layout))
      writeAnswer(device, record,
                  cellsOf(scalar.well ? wellName(*scalar.well) : QString(),
                          scalar.time ? csvCell(layout.times[*scalar.time]) : QString(),
                          nameWithLevel(scalar, layout), unitOf(scalar)),
                  record.scalars[i]);
  }
  const std::vector<Series> series = layout.series();
  for (std::size_t i = 0; i < series.size(); ++i)
    for (std::size_t time = 0; time < layout.seriesTimes.size(); ++time)
      writeAnswer(device, record,
                  cellsOf(wellName(series[i].well), csvCell(layout.seriesTimes[time]),
                          nameOf(series[i].quantity), unitOf(series[i].quantity)),
                  record.series[i][time]);
}

QString writeAnswerFiles(const StudyFolder& folder, const StudySetup& setup, const Results& results,
                         const QString& json) {
  const QStringList names = folder.answers();
  const AnswerSummary summary = summaryOf(results, setup);
  const QByteArray text = QJsonDocument(toJson(summary, setup)).toJson();
  FileReplacement replacement(names);
  if (!replacement.isPossible())
    return folder.path();
  if (!writeTable(replacement.aside(0), setup.layout, results))
    return names[0];
  if (!writeDatabase(replacement.aside(1), results, setup, summary))
    return names[1];
  if (!writeFile(replacement.aside(2), text) || !replacement.commit())
    return names[2];
  return json.isEmpty() || replaceFile(json, text) ? QString() : json;
}

} // namespace TVR::Study
