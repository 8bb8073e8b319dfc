#pragma once

#include "study/plan/ResultLayout.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

// What is said to a worker: first its task, then a line for each run. It says that it is ready, and
// answers each run with a record, in their order; see Record.h. Where its machine is at fault it
// says so instead, and ends. All lines are JSON, without the end of the line.

namespace TVR::Study {

/// What all runs of a worker have in common.
struct WorkerTask {
  QString base; ///< complete path
  ResultLayout layout;
};

/// A run that a worker is to compute.
struct WorkerRun {
  QByteArray name;
  std::vector<double> values;
};

QByteArray toLine(const WorkerTask& task);
QByteArray toLine(const WorkerRun& run);
/// What a worker says when it has taken its task.
QByteArray readyLine();
/// What it says when its machine is at fault.
QByteArray faultLine(const QString& reason);
/// Each is none if the line is something else.
std::optional<WorkerTask> taskFromLine(const QByteArray& line);
std::optional<WorkerRun> runFromLine(const QByteArray& line);
std::optional<QString> faultFromLine(const QByteArray& line);

} // namespace TVR::Study
