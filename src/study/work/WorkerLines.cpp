#include "study/work/WorkerLines.h"

#include "study/plan/JsonNumbers.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace TVR::Study {

QByteArray toLine(const WorkerTask& task) {
  return compactJson({{"base", task.base}, {"layout", toJson(task.layout)}});
}

QByteArray toLine(const WorkerRun& run) {
  return compactJson({{"run", QString::fromLatin1(run.name)}, {"values", jsonOf(run.values)}});
}

QByteArray readyLine() {
  return compactJson({{"ready", true}});
}

QByteArray faultLine(const QString& reason) {
  return compactJson({{"fault", reason}});
}

std::optional<WorkerTask> taskFromLine(const QByteArray& line) {
  const QJsonObject json = QJsonDocument::fromJson(line).object();
  const auto layout = layoutFromJson(json["layout"].toObject());
  if (!layout || !json["base"].isString())
    return {};
  return WorkerTask{json["base"].toString(), *layout};
}

std::optional<WorkerRun> runFromLine(const QByteArray& line) {
  const QJsonObject json = QJsonDocument::fromJson(line).object();
  if (!json["run"].isString() || !json["values"].isArray())
    return {};
  return WorkerRun{json["run"].toString().toLatin1(), numbersFrom(json["values"])};
}

std::optional<QString> faultFromLine(const QByteArray& line) {
  const QJsonObject json = QJsonDocument::fromJson(line).object();
  if (!json["fault"].isString())
    return {};
  return json["fault"].toString();
}

} // namespace TVR::Study
