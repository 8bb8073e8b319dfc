#pragma once

#include "study/work/WorkerLines.h"
#include "terminal/ChildProcess.h"

#include <QElapsedTimer>

#include <deque>
#include <functional>

namespace TVR::Study {

/// A worker in a process of its own, and the runs that it has been given and not answered yet.
class WorkerProcess {
public:
  /// What is called when something has come.
  struct Events {
    /// The first of its runs, with this line; false if that is no answer.
    std::function<bool(WorkerProcess&, const QByteArray&)> answered;
    std::function<void()> answeredAll; ///< that had come
    std::function<void()> ended;       ///< a process, however
  };

  /// `program` is started with the word "worker".
  WorkerProcess(const QString& program, const WorkerTask& task, Events events);
  /// Lets a worker end by itself that has nothing left to do, and kills any other.
  ~WorkerProcess();

  void give(const WorkerRun& run);
  /// The runs that were given and not answered; the first one is under way.
  const std::deque<WorkerRun>& runs() const { return runs_; }
  /// How long the first of them has been under way [ms].
  qint64 elapsed() const { return runs_.empty() ? 0 : clock_.elapsed(); }
  bool hasEnded() const { return hasEnded_; }
  /// Whether it has taken its task: what it does from there on it does with a run.
  bool isReady() const { return isReady_; }
  /// Ends the process at once; its runs stay unanswered.
  void kill(const QString& reason);
  /// Why the process has ended, for a user.
  QString reason() const;

private:
  void readAnswers();
  bool takeReady();
  void takeEnd();

  const Events events_;
  ChildProcess process_;
  std::deque<WorkerRun> runs_;
  QElapsedTimer clock_; ///< since the first of the runs is under way
  bool isReady_ = false;
  bool hasEnded_ = false;
  QString reason_; ///< of a kill
};

} // namespace TVR::Study
