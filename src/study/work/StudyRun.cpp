#include "study/work/StudyRun.h"

#include "disk/FileReplacement.h"
#include "study/work/Crew.h"
#include "study/work/Results.h"
#include "study/work/RunTable.h"
#include "study/work/StudySetup.h"
#include "terminal/StopSignals.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace TVR::Study {

QString runStudy(const StudySetup& setup, const RunSettings& settings,
                 const std::function<void(const RunProgress&)>& progress) {
  const StudyFolder folder(settings.folder);
  RecordKeeper keeper(folder, setup.plan, setup.layout, settings.shard);
  switch (keeper.open(settings.failed)) {
  case Journal::Opening::InUse:
    return QStringLiteral("another process computes this shard in %1").arg(folder.path());
  case Journal::Opening::Failed:
    return QStringLiteral("results can't be written to %1").arg(folder.path());
  case Journal::Opening::Done:
    break;
  }
  RunProgress state{keeper.runs(), keeper.runs() - keeper.missing().size(), 0};
  progress(state);
  std::size_t taken = 0;
  const CrewWork work{[&]() -> std::optional<WorkerRun> {
                        if (taken == keeper.missing().size())
                          return {};
                        const PlannedRun& run = setup.plan.runs[keeper.missing()[taken++]];
                        return WorkerRun{run.name, run.values};
                      },
                      [&](const Record& record, const QByteArray& line) {
                        const bool isKept = keeper.keep(record, line);
                        ++state.done;
                        state.failed += record.hasFailed() ? 1 : 0;
                        progress(state);
                        return isKept;
                      }};
  const QString base = QFileInfo(folder.base(setup.file.base)).absoluteFilePath();
  Crew crew({QCoreApplication::applicationFilePath(),
             {base, setup.layout},
             settings.workers,
             setup.file.timeLimit},
            work);
  const StopSignals::Handler onSignal([&crew] { crew.stop(); });
  return crew.run();
}

bool writeRunTable(const StudyFolder& folder, const StudySetup& setup, const Results& results) {
  FileReplacement replacement({folder.table()});
  if (!replacement.isPossible())
    return false;
  QFile table(replacement.aside(0));
  if (!table.open(QIODevice::WriteOnly))
    return false;
  writeTableHead(table, setup.layout);
  results.eachRecord([&](const Record& record) { writeTableRow(table, record, setup.layout); });
  table.close();
  return table.error() == QFile::NoError && replacement.commit();
}

} // namespace TVR::Study
