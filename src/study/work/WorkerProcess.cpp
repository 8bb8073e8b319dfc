#include "study/work/WorkerProcess.h"

namespace TVR::Study {

namespace {

constexpr int patience = 2000; ///< with a worker that has nothing left to do [ms]
constexpr char unreadable[] = "the worker gave an answer that can't be read";

} // namespace

WorkerProcess::WorkerProcess(const QString& program, const WorkerTask& task, Events events)
    : events_(std::move(events)) {
  QObject::connect(&process_, &QProcess::readyReadStandardOutput, [this] { readAnswers(); });
  QObject::connect(&process_, qOverload<int, QProcess::ExitStatus>(&QProcess::finished),
                   [this] { takeEnd(); });
  QObject::connect(&process_, &QProcess::errorOccurred, [this](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart)
      takeEnd();
  });
  process_.setStandardErrorFile(QProcess::nullDevice());
  process_.start(program, {"worker"});
  process_.write(toLine(task) + '\n');
}

WorkerProcess::~WorkerProcess() {
  process_.disconnect();
  process_.closeWriteChannel();
  if (!runs_.empty() || !process_.waitForFinished(patience))
    process_.kill();
  process_.waitForFinished();
}

void WorkerProcess::takeEnd() {
  hasEnded_ = true;
  readAnswers();
  events_.ended();
}

void WorkerProcess::give(const WorkerRun& run) {
  if (runs_.empty())
    clock_.start();
  runs_.push_back(run);
  process_.write(toLine(run) + '\n');
}

bool WorkerProcess::takeReady() {
  isReady_ = process_.readLine().trimmed() == readyLine();
  if (!isReady_)
    kill(unreadable);
  clock_.start();
  return isReady_;
}

void WorkerProcess::readAnswers() {
  if (!isReady_ && (!process_.canReadLine() || !takeReady()))
    return;
  // What a worker says after it was told to end would be taken for the answer of another run.
  while (reason_.isEmpty() && process_.canReadLine() && !runs_.empty()) {
    if (!events_.answered(*this, process_.readLine().trimmed())) {
      kill(unreadable);
      return;
    }
    runs_.pop_front();
    clock_.start();
  }
  events_.answeredAll();
}

void WorkerProcess::kill(const QString& reason) {
  reason_ = reason;
  process_.kill();
}

QString WorkerProcess::reason() const {
  if (!reason_.isEmpty())
    return reason_;
  if (process_.error() == QProcess::FailedToStart)
    return QStringLiteral("the worker could not be started: %1").arg(process_.errorString());
  return process_.exitStatus() == QProcess::CrashExit
             ? QStringLiteral("the worker was killed by signal %1").arg(process_.exitCode())
             : QStringLiteral("the worker ended with exit code %1").arg(process_.exitCode());
}

} // namespace TVR::Study
