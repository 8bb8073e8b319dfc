#pragma once

#include "study/work/Record.h"
#include "study/work/WorkerProcess.h"

#include <QEventLoop>
#include <QSet>

#include <deque>
#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <vector>

namespace TVR::Study {

/// How a crew works.
struct CrewSettings {
  QString program; ///< of the workers
  WorkerTask task;
  int workers = 1;
  double timeLimit = 600; ///< of a run [s]
};

/// Where a crew takes its runs from, and where their records go.
struct CrewWork {
  std::function<std::optional<WorkerRun>()> next; ///< none when all have been taken
  /// Each run once; `line` is the record's own. False ends the work.
  std::function<bool(const Record&, const QByteArray& line)> done;
};

/// Some workers that compute runs at the same time. A run that fails, takes too long or takes its
/// worker with it is tried once more, and then done with its reason; the other runs of that worker
/// are given to another one. The work ends where a machine is at fault: workers that do not get
/// ready, or say so.
class Crew {
public:
  Crew(CrewSettings settings, CrewWork work);

  /// Returns when all runs are done, or with the reason why the work ended before.
  QString run();
  /// Ends the work; any thread.
  void stop();

private:
  void startWorker();
  std::optional<WorkerRun> nextRun();
  void feed(WorkerProcess& worker);
  void feedAll();
  bool take(WorkerProcess& worker, const QByteArray& line);
  bool isFirstFailure(const WorkerRun& run);
  void hand(const Record& record, const QByteArray& line);
  void replaceEnded();
  void takeEnd(const WorkerProcess& worker);
  void killLateOnes();
  void end(const QString& reason);

  const CrewSettings settings_;
  const CrewWork work_;
  std::list<std::unique_ptr<WorkerProcess>> workers_;
  std::deque<WorkerRun> again_; ///< runs that were given in vain
  QSet<QByteArray> failed_;     ///< names of the runs that have failed once
  int fruitless_ = 0;           ///< workers in a row that were never ready
  QString reason_;              ///< why the work ends; empty as long as it goes on
  QEventLoop loop_;
};

} // namespace TVR::Study
