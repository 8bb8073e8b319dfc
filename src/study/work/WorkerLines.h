#pragma once

#include "study/plan/ResultLayout.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

// What is said to a worker: first its task, then a line for each run. It answers each run with a
// record, in their order; see Record.h. All lines are JSON, without the end of the line.

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
/// None if the line is something else.
std::optional<WorkerTask> taskFromLine(const QByteArray& line);
std::optional<WorkerRun> runFromLine(const QByteArray& line);

} // namespace TVR::Study
