#include "batch/JobReport.h"

#include "batch/ParameterListing.h"
#include "disk/FileReplacement.h"
#include "messages/PrintableText.h"
#include "simulation/RunObserver.h"
#include "store/Manager.h"
#include "store/ValueOrigins.h"
#include "terminal/ExitCodes.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace TVR::Batch {

namespace {

QString statusOf(int exitCode) {
  switch (exitCode) {
  case Success:
    return "ok";
  case RunFailed:
    return "failed";
  case InputError:
    return "refused";
  default:
    return "stopped";
  }
}

QString nameOf(Data::ValueOrigin origin) {
  switch (origin) {
  case Data::ValueOrigin::ReferenceDatabase:
    return "default";
  case Data::ValueOrigin::Rule:
    return "computed";
  case Data::ValueOrigin::File:
    return "file";
  default:
    return "program"; // nobody types, and no settings are read, without a window
  }
}

QJsonArray asArray(const std::vector<double>& numbers) {
  QJsonArray array;
  std::copy(numbers.begin(), numbers.end(), std::back_inserter(array));
  return array;
}

QJsonObject asObject(const WellHistory& well) {
  return {{"name", printable(well.name)},
          {"time", asArray(well.times)},
          {"temperature", asArray(well.temperatures)}};
}

} // namespace

JobReport::JobReport(const QString& fileName)
    : object_{{"schema", schemaVersion},
              {"program", QJsonObject{{"name", "tevrane-batch"}, {"version", TEVRANE_VERSION}}},
              {"file", fileName}} {}

void JobReport::addParameters(const Data::Manager& store, const Data::ValueOrigins& origins) {
  QJsonArray parameters;
  for (const QJsonValue row : parameterRows(store)) {
    QJsonObject parameter = row.toObject();
    parameter["origin"] = nameOf(origins.of(parameter["id"].toInt()));
    parameters.append(parameter);
  }
  object_["parameters"] = parameters;
  const WellReader reader = store.wells();
  QJsonArray wells;
  for (int row = 0; row < reader.count(); ++row)
    wells.append(QJsonObject{{"name", printable(reader.name(row))},
                             {"x", reader.place(row).x()},
                             {"y", reader.place(row).y()},
                             {"rate", reader.rate(row)},
                             {"temperature_change", reader.temperatureChange(row)}});
  object_["wells"] = wells;
}

void JobReport::addResults(const RunSummary& summary, double cpuSeconds, const QStringList& files) {
  object_["solver"] = QJsonObject{{"cells", summary.cells},
                                  {"output_times", summary.outputTimes},
                                  {"groundwater_steps", int(summary.groundwaterSteps)},
                                  {"heat_steps", int(summary.heatSteps)},
                                  {"cpu_seconds", cpuSeconds}};
  QJsonArray wells;
  for (const WellHistory& well : summary.histories)
    wells.append(asObject(well));
  object_["results"] = QJsonObject{
      {"units", QJsonObject{{"time", "s"}, {"temperature", "°C"}}},
      {"wells", wells},
      {"table", summary.tableFile},
      {"files", QJsonArray::fromStringList(files)},
  };
}

bool JobReport::write(const QString& fileName, int exitCode) const {
  QJsonObject object = object_;
  object["status"] = statusOf(exitCode);
  object["exit_code"] = exitCode;
  object["errors"] = QJsonArray::fromStringList(errors_);
  object["warnings"] = QJsonArray::fromStringList(warnings_);
  return replaceFile(fileName, QJsonDocument(object).toJson());
}

} // namespace TVR::Batch
