#include "study/work/RunInput.h"

#include "disk/FileContent.h"
#include "inspection/FileInspection.h"
#include "inspection/SiteReport.h"
#include "simulation/SiteWriteBack.h"
#include "store/Manager.h"
#include "study/plan/RunFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryFile>

#include <utility>

namespace TVR::Study {

namespace {

using Data::Manager;

bool readIntoStore(const QString& fileName) {
  QMap<QString, int> pageItems; // of a page that nobody looks at
  return Manager::instance()->read(fileName, pageItems);
}

} // namespace

RunInput::RunInput(const QString& base, std::vector<StudyKey> keys)
    : base_(base), keys_(std::move(keys)), content_(contentOf(base)) {}

QStringList RunInput::read(const std::vector<double>& values) {
  isMachineAtFault_ = false;
  const QString fault = isProjectFile(base_) ? readProject(values) : readBatchFile(values);
  if (!fault.isEmpty())
    return {fault};
  Manager& store = *Manager::instance();
  makeTables(store); // a check sees what a run would
  const SiteReport report = siteReport(base_, store);
  warnings_ = report.warnings;
  return report.errors;
}

QString RunInput::readBatchFile(const std::vector<double>& values) {
  const QString fault = readFileOfRun(runFile(content_, keys_, values));
  isMachineAtFault_ = !fault.isEmpty();
  return fault;
}

/// By way of a file, which is gone afterwards. Each run has a name of its own: the class that reads
/// it keeps what it has read by name.
QString RunInput::readFileOfRun(const QByteArray& content) {
  const QString directory = QDir::tempPath();
  if (directory.isEmpty())
    return QStringLiteral("the file of a run can't be written: there is no directory for temporary "
                          "files (TMPDIR)");
  QTemporaryFile file(QStringLiteral("%1/tevrane-run-%2-%3-XXXXXX.tbat")
                          .arg(directory)
                          .arg(QCoreApplication::applicationPid())
                          .arg(++files_));
  if (!file.open() || file.write(content) != content.size() || !file.flush())
    return QStringLiteral("the file of a run can't be written to %1: %2")
        .arg(directory, file.errorString());
  file.close();
  return readIntoStore(file.fileName()) ? QString()
                                        : QStringLiteral("the file of a run can't be read");
}

QString RunInput::readProject(const std::vector<double>& values) {
  Manager& store = *Manager::instance();
  if (!project_) {
    if (!readIntoStore(base_))
      return QStringLiteral("is no project file that can be read: expected well-formed XML");
    makeTables(store);
    project_ = store.project();
  }
  store.setProject(*project_);
  for (std::size_t i = 0; i < keys_.size(); ++i) {
    const double value = keys_[i].inStore(values[i]);
    if (const auto& cell = keys_[i].cell)
      store.setCells(cell->table, {{cell->row, cell->column, value}});
    else
      store.setValue(keys_[i].parameter, value);
  }
  return {};
}

} // namespace TVR::Study
