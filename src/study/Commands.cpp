#include "study/Commands.h"

#include "disk/FileReplacement.h"
#include "study/work/Results.h"
#include "study/work/StudyRun.h"
#include "study/work/StudySetup.h"
#include "study/work/Worker.h"
#include "terminal/ExitCodes.h"
#include "terminal/StopSignals.h"

#include <QFile>

namespace TVR::Study {

namespace {

QByteArray contentOf(const QString& fileName) {
  QFile file(fileName);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class StudyCommand {
public:
  explicit StudyCommand(const Options& options)
      : options_(options),
        folder_(options.folder.isEmpty() ? StudyFolder::usualPath(options.file) : options.folder) {}

  int run() {
    if (!setUp())
      return InputError;
    if (options_.command == "check") {
      say(options_.file + ": ok");
      return Success;
    }
    if (const int code = prepareFolder())
      return code;
    const QString reason = runStudy(setup_, {folder_.path(), options_.shard, options_.workers},
                                    [this](const RunProgress& progress) { show(progress); });
    if (StopSignals::received() != 0) {
      printMessage(options_.file, StopSignals::name());
      return StopSignals::exitCode();
    }
    if (!reason.isEmpty())
      return fail(reason);
    return finish();
  }

private:
  void say(const QString& text) const {
    if (options_.talk != Talk::Quiet)
      printLine(text);
  }
  int fail(const QString& text) const {
    printMessage(options_.file, text);
    return RunFailed;
  }

  bool setUp() {
    Findings findings;
    setup_ = setUpStudy(options_.file, {}, findings);
    for (const QString& line : findings.errors)
      printMessage(options_.file, line);
    if (options_.talk != Talk::Quiet)
      for (const QString& line : findings.warnings)
        printMessage(options_.file, "warning: " + line);
    return findings.errors.isEmpty();
  }

  /// The base is kept with the results: whoever edits it later does not change half of the runs.
  int prepareFolder() const {
    if (!folder_.make())
      return fail(QStringLiteral("the folder %1 can't be made").arg(folder_.path()));
    const QString kept = folder_.base(setup_.file.base);
    const QByteArray content = contentOf(setup_.file.base);
    if (!QFile::exists(kept) && !replaceFile(kept, content))
      return fail(QStringLiteral("%1 can't be written").arg(kept));
    if (contentOf(kept) == content)
      return Success;
    printMessage(options_.file,
                 QStringLiteral("expected the base that the results in %1 come from, which is kept "
                                "there; --folder takes another folder")
                     .arg(folder_.path()));
    return InputError;
  }

  void show(const RunProgress& progress) {
    const std::size_t tenth = progress.runs == 0 ? 10 : 10 * progress.done / progress.runs;
    if (options_.talk == Talk::Quiet || tenth == shownTenth_)
      return;
    shownTenth_ = tenth;
    printMessage(options_.file, QStringLiteral("%1 of %2 runs, %3 failed")
                                    .arg(progress.done)
                                    .arg(progress.runs)
                                    .arg(progress.failed));
  }

  /// Only who finds all runs writes the table: of several shards the last one.
  int finish() const {
    const Results results(folder_, setup_.plan, setup_.layout);
    if (results.size() == setup_.plan.runs.size()) {
      if (!writeRunTable(folder_, setup_, results))
        return fail(QStringLiteral("%1 can't be written").arg(folder_.table()));
      say("table: " + folder_.table());
    }
    return results.failed() == 0 ? Success
                                 : fail(QStringLiteral("%1 of %2 runs failed")
                                            .arg(results.failed())
                                            .arg(results.size()));
  }

  const Options& options_;
  const StudyFolder folder_;
  StudySetup setup_;
  std::size_t shownTenth_ = 0;
};

} // namespace

int runCommand(const Options& options) {
  if (options.command == "worker")
    return runWorker();
  return StudyCommand(options).run();
}

} // namespace TVR::Study
