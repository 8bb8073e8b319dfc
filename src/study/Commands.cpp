#include "study/Commands.h"

#include "disk/FileContent.h"
#include "disk/FileReplacement.h"
#include "study/CalibrationCommands.h"
#include "study/CommandFiles.h"
#include "study/answers/AnswerTables.h"
#include "study/engines/Parallel.h"
#include "study/engines/ShardStates.h"
#include "study/engines/Slurm.h"
#include "study/page/PageFiles.h"
#include "study/work/Collection.h"
#include "study/work/Results.h"
#include "study/work/StudyRun.h"
#include "study/work/StudySetup.h"
#include "study/work/TrialRuns.h"
#include "study/work/Worker.h"
#include "terminal/ExitCodes.h"
#include "terminal/StopSignals.h"
#include "terminal/Template.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace TVR::Study {

namespace {

/// "40 s", "12 min" or "3.5 h".
QString durationText(double seconds) {
  if (seconds < 100)
    return QStringLiteral("%1 s").arg(seconds, 0, 'f', 0);
  if (seconds < 6000)
    return QStringLiteral("%1 min").arg(seconds / 60, 0, 'f', 0);
  return QStringLiteral("%1 h").arg(seconds / 3600, 0, 'f', 1);
}

/// A command about a study.
class StudyCommand {
public:
  explicit StudyCommand(const Options& options)
      : options_(options),
        folder_(options.folder.isEmpty() ? StudyFolder::usualPath(options.file) : options.folder) {}

  int run() {
    if (!setUp())
      return InputError;
    if (options_.command == "check")
      return answer(setup_.layout.meshBands ? "ok, each run on three meshes" : "ok");
    if (const QString fault = faultOfFiles(options_, setup_.file, folder_); !fault.isEmpty())
      return refuse({fault});
    if (const int code = readsOnly() ? Success : prepareFolder())
      return code;
    if (const QStringList faults = unwritableFiles(options_); !faults.isEmpty())
      return refuse(faults);
    if (options_.command == "plan")
      return plan();
    if (options_.command == "status")
      return status();
    if (options_.command == "page")
      return drawPage();
    if (options_.command == "submit")
      return submit();
    return options_.command == "collect" ? collectFolders() : compute();
  }

private:
  void say(const QString& text) const {
    if (options_.talk != Talk::Quiet)
      printLine(text);
  }
  void warn(const QString& text) const {
    if (options_.talk != Talk::Quiet)
      printMessage(options_.file, "warning: " + text);
  }
  int answer(const QString& text) const {
    printLine(options_.file + ": " + text);
    return Success;
  }
  int fail(const QString& text) const {
    printMessage(options_.file, text);
    return RunFailed;
  }
  int refuse(const QStringList& faults) const {
    for (const QString& fault : faults)
      printMessage(options_.file, fault);
    return InputError;
  }

  bool setUp() {
    Findings findings;
    setup_ = setUpStudy(options_.file, findings);
    for (const QString& line : findings.errors)
      printMessage(options_.file, line);
    for (const QString& line : findings.warnings)
      warn(line);
    return findings.errors.isEmpty();
  }

  /// Computes a few runs to see how long one takes.
  int plan() const {
    if (!options_.table.isEmpty() && !replaceFile(options_.table, sampleTable(setup_.plan)))
      return fail(QStringLiteral("%1 can't be written").arg(options_.table));
    const TrialRuns trial = tryRuns(setup_);
    if (trial.failed > 0)
      warn(QStringLiteral("%1 of %2 trial runs failed: %3")
               .arg(trial.failed)
               .arg(trial.runs)
               .arg(trial.reasons.join("; ")));
    const std::size_t runs = setup_.plan.runs.size();
    const QString size = QStringLiteral("%1 runs in %2 parts").arg(runs).arg(setup_.plan.parts());
    if (trial.failed == trial.runs)
      return answer(size);
    return answer(
        QStringLiteral("%1, about %2 s each%3: %4 with %5 workers")
            .arg(size)
            .arg(trial.seconds, 0, 'f', 2)
            .arg(setup_.layout.meshBands ? QStringLiteral(" on three meshes") : QString())
            .arg(durationText(trial.seconds * static_cast<double>(runs) / options_.workers))
            .arg(options_.workers));
  }

  int status() const {
    for (const QString& path : QStringList{folder_.path()} + options_.more) {
      const StudyFolder folder(path);
      const Results results(folder, setup_.plan, setup_.layout);
      printLine(QStringLiteral("%1: %2 of %3 runs, %4 failed")
                    .arg(path)
                    .arg(results.size())
                    .arg(setup_.plan.runs.size())
                    .arg(results.failed()));
      if (const int others = otherParts(folder))
        printLine(
            QStringLiteral("%1: parts of other runs or other answers: %2").arg(path).arg(others));
    }
    if (options_.submit.shards > 0)
      showOpenShards();
    return Success;
  }

  /// Says of which shards runs are missing, wherever they were computed.
  void showOpenShards() const {
    const QStringList folders = QStringList{folder_.path()} + options_.more;
    for (const ShardState& state : shardStates(folders, setup_, options_.submit.shards))
      if (state.missing > 0)
        printLine(QStringLiteral("shard %1 of %2: %3 of %4 runs")
                      .arg(state.number)
                      .arg(options_.submit.shards)
                      .arg(state.runs - state.missing)
                      .arg(state.runs));
  }

  /// Draws what is there, however little it is.
  int drawPage() const {
    const Results results(folder_, setup_.plan, setup_.layout);
    if (results.size() == 0)
      return fail(QStringLiteral("%1 has no results; run the study first").arg(folder_.path()));
    if (results.size() == results.failed())
      return fail(
          QStringLiteral("all runs in %1 failed: there is nothing to draw").arg(folder_.path()));
    const QStringList faults = writePages(setup_, folder_, results,
                                          {options_.pages, options_.shapefile, options_.language});
    for (const QString& fault : faults)
      printMessage(options_.file, fault);
    return faults.isEmpty() ? Success : RunFailed;
  }

  /// How many parts a folder holds that this study has no use for.
  int otherParts(const StudyFolder& folder) const {
    QSet<QString> own;
    const QByteArray layoutId = idOf(setup_.layout);
    for (std::size_t part = 0; part < setup_.plan.parts(); ++part)
      own.insert(folder.part(partName(setup_.plan, part, layoutId)));
    const QStringList files = folder.parts();
    return static_cast<int>(std::count_if(
        files.begin(), files.end(), [&own](const QString& file) { return !own.contains(file); }));
  }

  /// Whether the command leaves the folder of the study as it is.
  bool readsOnly() const {
    return QStringList{"plan", "status", "page"}.contains(options_.command);
  }

  /// The base is kept with the results: whoever edits it later does not change half of the runs.
  int prepareFolder() const {
    if (const QString reason = folder_.make(); !reason.isEmpty())
      return refuse(
          {QStringLiteral("the folder %1 can't be made: %2").arg(folder_.path(), reason)});
    const QString kept = folder_.base(setup_.file.base);
    if (!QFile::exists(kept) && !replaceFile(kept, contentOf(setup_.file.base)))
      return fail(QStringLiteral("%1 can't be written").arg(kept));
    return Success;
  }

  int compute() {
    const QString reason =
        runStudy(setup_, {folder_.path(), options_.shard, options_.workers, options_.failed},
                 [this](const RunProgress& progress) { show(progress); });
    if (StopSignals::received() != 0)
      return stopped();
    if (!reason.isEmpty())
      return fail(reason);
    if (options_.shard.count > 1) // the table is for who collects: it is read from all shards
      return judge(progress_.failed, progress_.runs);
    const Results results(folder_, setup_.plan, setup_.layout);
    return finish(results);
  }

  ShardJob shardJob() const {
    const SubmitSettings& settings = options_.submit;
    return {settings.program.isEmpty() ? QCoreApplication::applicationFilePath() : settings.program,
            QFileInfo(options_.file).absoluteFilePath(),
            QFileInfo(folder_.path()).absoluteFilePath(),
            settings.shards > 0 ? settings.shards : usualShards(setup_.plan.parts()),
            options_.workers,
            options_.failed == FailedRuns::AreRetried};
  }

  /// Has the shards that miss runs computed elsewhere. Slurm is not waited for.
  int submit() const {
    const ShardJob job = shardJob();
    const auto open =
        openShards(shardStates({folder_.path()}, setup_, job.shards, options_.failed));
    if (open.empty())
      return collectFolders();
    const QString shards = QStringLiteral("%1 of %2 shards").arg(open.size()).arg(job.shards);
    if (options_.submit.toSlurm) {
      const SlurmAnswer slurm = submitToSlurm(job, open);
      return slurm.fault.isEmpty() ? answer(QStringLiteral("job %1, %2").arg(slurm.job, shards))
                                   : fail(slurm.fault);
    }
    say(shards);
    const QString reason = runInParallel(job, open, options_.submit.hosts);
    if (StopSignals::received() != 0)
      return stopped();
    return reason.isEmpty() ? collectFolders() : fail(reason);
  }

  int stopped() const {
    printMessage(options_.file, StopSignals::name());
    return StopSignals::exitCode();
  }

  int collectFolders() const {
    for (const QString& path : options_.more)
      if (const QString reason = collect(StudyFolder(path), folder_, setup_); !reason.isEmpty())
        return fail(reason);
    const Results results(folder_, setup_.plan, setup_.layout);
    const std::size_t missing = setup_.plan.runs.size() - results.size();
    if (missing == 0)
      return finish(results);
    if (const int code = writeTable(results))
      return code;
    return fail(
        QStringLiteral("%1 of %2 runs are missing").arg(missing).arg(setup_.plan.runs.size()));
  }

  int writeTable(const Results& results) const {
    if (!writeRunTable(folder_, setup_, results))
      return fail(QStringLiteral("%1 can't be written").arg(folder_.table()));
    say("table: " + folder_.table());
    return Success;
  }

  /// Writes all that a study answers whose runs are all there.
  int finish(const Results& results) const {
    if (const int code = writeTable(results))
      return code;
    const QString fault = writeAnswerFiles(folder_, setup_, results, options_.json);
    if (!fault.isEmpty())
      return fail(QStringLiteral("%1 can't be written").arg(fault));
    say(QStringLiteral("answers: answers.csv, results.sqlite and summary.json in %1")
            .arg(folder_.path()));
    return judge(results.failed(), results.size());
  }

  int judge(std::size_t failed, std::size_t runs) const {
    return failed == 0 ? Success
                       : fail(QStringLiteral("%1 of %2 runs failed").arg(failed).arg(runs));
  }

  void show(const RunProgress& progress) {
    progress_ = progress;
    const std::size_t tenth = progress.runs == 0 ? 10 : 10 * progress.done / progress.runs;
    if (options_.talk == Talk::Quiet || tenth == shownTenth_)
      return;
    shownTenth_ = tenth;
    printMessage(options_.file, QStringLiteral("%1 of %2 runs, %3 failed")
                                    .arg(progress.done)
                                    .arg(progress.runs)
                                    .arg(progress.failed));
  }

  const Options& options_;
  const StudyFolder folder_;
  StudySetup setup_;
  RunProgress progress_; ///< of the runs that are computed here
  std::size_t shownTenth_ = 0;
};

} // namespace

int runCommand(const Options& options) {
  if (options.command == "worker")
    return runWorker();
  if (options.command == "template")
    return writeTemplate(options.file, ":/study/doublet_template.tstudy");
  if (options.command == "pest")
    return writeCalibration(options);
  if (options.command == "observe")
    return observe(options);
  return StudyCommand(options).run();
}

} // namespace TVR::Study
