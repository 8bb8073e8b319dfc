#include "study/engines/Parallel.h"

#include "disk/FileReplacement.h"
#include "terminal/ChildProcess.h"
#include "terminal/StopSignals.h"

#include <QDir>
#include <QEventLoop>
#include <QStandardPaths>

#include <algorithm>

namespace TVR::Study {

namespace {

QString commandFile(const ShardJob& job) {
  return job.engineFolder() + "/parallel.txt";
}

/// Another program of that name comes with moreutils.
bool isGnuParallel(const QString& program) {
  ChildProcess process;
  process.start(program, {"--version"});
  process.closeWriteChannel();
  process.waitForFinished(-1);
  return process.readAllStandardOutput().startsWith("GNU parallel");
}

/// Waits for the end of a program, which a signal brings about.
void runToEnd(const QString& program, const QStringList& arguments) {
  ChildProcess process;
  process.setProcessChannelMode(QProcess::ForwardedChannels);
  process.setStandardInputFile(QProcess::nullDevice());
  QEventLoop loop;
  QObject::connect(&process, &QProcess::stateChanged, &loop, [&loop](QProcess::ProcessState state) {
    if (state == QProcess::NotRunning)
      loop.quit();
  });
  const StopSignals::Handler onSignal(
      [&process] { QMetaObject::invokeMethod(&process, "terminate", Qt::QueuedConnection); });
  process.start(program, arguments);
  if (process.state() != QProcess::NotRunning)
    loop.exec();
}

} // namespace

QByteArray parallelCommands(const ShardJob& job, const std::vector<std::size_t>& numbers) {
  QByteArray lines;
  for (const std::size_t number : numbers)
    lines += job.command(QString::number(number)).toUtf8() + '\n';
  return lines;
}

QStringList parallelArguments(const ShardJob& job, const QString& hosts) {
  QStringList arguments{"--arg-file", commandFile(job), "--joblog",
                        job.engineFolder() + "/parallel.log"};
  if (job.workers > 1) // a job takes so many cores
    arguments << "--jobs" << QStringLiteral("%1%").arg(std::max(1, 100 / job.workers));
  if (hosts.startsWith('@'))
    arguments << "--sshloginfile" << hosts.mid(1);
  else if (!hosts.isEmpty())
    arguments << "--sshlogin" << hosts;
  return arguments;
}

QString runInParallel(const ShardJob& job, const std::vector<std::size_t>& numbers,
                      const QString& hosts) {
  const QString file = commandFile(job);
  if (job.command({}).contains('\n'))
    return QStringLiteral("GNU parallel takes no paths with line breaks");
  if (!QDir().mkpath(job.engineFolder()) || !replaceFile(file, parallelCommands(job, numbers)))
    return QStringLiteral("%1 can't be written").arg(file);
  const QString parallel = QStandardPaths::findExecutable("parallel");
  if (parallel.isEmpty() || !isGnuParallel(parallel))
    return QStringLiteral("GNU parallel is not found on this machine; the commands stand in %1")
        .arg(file);
  runToEnd(parallel, parallelArguments(job, hosts));
  return {};
}

} // namespace TVR::Study
