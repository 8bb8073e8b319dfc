#include "batch/JobQueue.h"

#include "batch/OutputNames.h"
#include "disk/FileNames.h"
#include "terminal/ChildProcess.h"
#include "terminal/Console.h"
#include "terminal/ExitCodes.h"
#include "terminal/StopSignals.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

namespace TVR::Batch {

namespace {

/// Runs files, each in a process of its own.
class JobQueue {
public:
  explicit JobQueue(const Options& options) : options_(options), jobs_(options.files.size()) {}

  int run() {
    const QString clash = clashOf(options_.files, tableNames());
    if (!options_.checkOnly && !clash.isEmpty()) {
      printMessage({}, clash);
      return InputError;
    }
    const StopSignals::Handler onSignal(
        [this] { QMetaObject::invokeMethod(&loop_, "quit", Qt::QueuedConnection); });
    for (int i = 0; i < options_.jobs; ++i)
      startNext();
    if (shown_ < jobs_.size())
      loop_.exec();
    if (StopSignals::received() == 0)
      return exitCode_;
    stop();
    return stopped();
  }

private:
  struct Job {
    std::unique_ptr<ChildProcess> process;
    bool isOver = false;
  };

  QStringList tableNames() const {
    QStringList names;
    for (const QString& file : options_.files)
      names << tableNameOf(file);
    return names;
  }

  void stop() {
    jobs_.resize(started_);
    for (Job& job : jobs_)
      job.process->terminate();
    while (shown_ < jobs_.size())
      loop_.exec();
  }

  int stopped() const {
    printMessage({}, QStringLiteral("%1; %2 of %3 files are done")
                         .arg(StopSignals::name())
                         .arg(done_)
                         .arg(options_.files.size()));
    return StopSignals::exitCode();
  }

  void endIfAllAreShown() {
    if (shown_ == jobs_.size())
      loop_.quit();
  }

  QStringList arguments(const QString& file) const {
    QStringList result{"--language", options_.language};
    if (options_.checkOnly)
      result << "--check";
    if (options_.convergence)
      result << "--convergence";
    if (options_.solver == LinearSolver::Reference)
      result << "--solver"
             << "reference";
    if (options_.talk == Talk::Quiet)
      result << "--quiet";
    else if (options_.talk == Talk::Verbose)
      result << "--verbose";
    return result << "--" << file;
  }

  void startNext() {
    if (started_ == jobs_.size())
      return;
    Job& job = jobs_[started_];
    job.process = std::make_unique<ChildProcess>();
    const auto end = [this, &job] {
      job.isOver = true;
      showFinished();
      startNext();
      endIfAllAreShown();
    };
    QObject::connect(job.process.get(), qOverload<int, QProcess::ExitStatus>(&QProcess::finished),
                     end);
    QObject::connect(job.process.get(), &QProcess::errorOccurred,
                     [end](QProcess::ProcessError error) {
                       if (error == QProcess::FailedToStart)
                         end();
                     });
    const QString file = options_.files[static_cast<int>(started_++)];
    job.process->start(QCoreApplication::applicationFilePath(), arguments(file));
  }

  /// Passes on what the processes said, as far as all earlier files are done.
  void showFinished() {
    for (; shown_ < jobs_.size() && jobs_[shown_].isOver; ++shown_) {
      QProcess& process = *jobs_[shown_].process;
      if (wasStopped(process))
        continue;
      ++done_;
      pass(process.readAllStandardError(), stderr);
      pass(process.readAllStandardOutput(), stdout);
      int code = process.exitCode();
      if (process.exitStatus() != QProcess::NormalExit ||
          process.error() == QProcess::FailedToStart) {
        printMessage(options_.files[static_cast<int>(shown_)],
                     "the process ended unexpectedly: " + process.errorString());
        code = RunFailed;
      }
      exitCode_ = std::max(exitCode_, code);
    }
  }

  /// One line tells of all that are told to stop.
  static bool wasStopped(const QProcess& process) {
    return StopSignals::received() != 0 && (process.exitStatus() == QProcess::CrashExit ||
                                            process.exitCode() == StopSignals::childExitCode);
  }

  static void pass(const QByteArray& output, std::FILE* stream) {
    std::fwrite(output.constData(), 1, static_cast<std::size_t>(output.size()), stream);
    std::fflush(stream);
  }

  const Options& options_;
  std::vector<Job> jobs_;
  std::size_t started_ = 0;
  std::size_t shown_ = 0;
  std::size_t done_ = 0;
  int exitCode_ = Success;
  QEventLoop loop_;
};

} // namespace

int runJobs(const Options& options) {
  return JobQueue(options).run();
}

} // namespace TVR::Batch
