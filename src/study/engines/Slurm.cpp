#include "study/engines/Slurm.h"

#include "disk/FileReplacement.h"
#include "terminal/ChildProcess.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

namespace TVR::Study {

namespace {

/// A name that needs no quotes in a script.
QString jobName(const QString& study) {
  static const QRegularExpression unusual("[^A-Za-z0-9_.-]");
  return "tevrane-" + QFileInfo(study).completeBaseName().replace(unusual, "_");
}

} // namespace

QByteArray slurmScript(const ShardJob& job, const std::vector<std::size_t>& numbers) {
  return QStringLiteral("#!/bin/sh\n"
                        "# A task for each shard of a study that misses runs. Partition, account\n"
                        "# and time limit are Slurm's defaults, or those of SBATCH_PARTITION,\n"
                        "# SBATCH_ACCOUNT and SBATCH_TIMELIMIT. By hand, in the folder of the\n"
                        "# study: sbatch engine/slurm.sh\n"
                        "#SBATCH --job-name=%1\n"
                        "#SBATCH --array=%2\n"
                        "#SBATCH --ntasks=1\n"
                        "#SBATCH --cpus-per-task=%3\n"
                        "#SBATCH --no-requeue\n"
                        "#SBATCH --output=engine/slurm-%A-%a.log\n")
             .arg(jobName(job.study), rangesOf(numbers))
             .arg(job.workers)
             .toUtf8() +
         "exec " + job.command("\"$SLURM_ARRAY_TASK_ID\"").toUtf8() + '\n';
}

SlurmAnswer submitToSlurm(const ShardJob& job, const std::vector<std::size_t>& numbers) {
  const QString script = job.engineFolder() + "/slurm.sh";
  if (!QDir().mkpath(job.engineFolder()) || !replaceFile(script, slurmScript(job, numbers)))
    return {QStringLiteral("%1 can't be written").arg(script), {}};
  const QString sbatch = QStandardPaths::findExecutable("sbatch");
  if (sbatch.isEmpty())
    return {QStringLiteral("no program sbatch is found on this machine; on one of the cluster, in "
                           "the folder %1: sbatch engine/slurm.sh")
                .arg(job.folder),
            {}};
  ChildProcess process;
  process.setWorkingDirectory(job.folder);
  process.start(sbatch, {"--parsable", script});
  process.waitForFinished(-1);
  // "number", or "number;cluster"
  const QString id =
      QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed().section(';', 0, 0);
  if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0 && !id.isEmpty())
    return {{}, id};
  return {QStringLiteral("sbatch did not take %1: %2")
              .arg(script, QString::fromLocal8Bit(process.readAllStandardError()).simplified()),
          {}};
}

} // namespace TVR::Study
