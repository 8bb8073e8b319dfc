#include "study/work/RunInput.h"

#include "inspection/FileInspection.h"
#include "inspection/SiteReport.h"
#include "simulation/SiteWriteBack.h"
#include "store/Manager.h"
#include "study/plan/RunFile.h"

#include <QFile>

#include <utility>

namespace TVR::Study {

namespace {

using Data::Manager;

QByteArray contentOf(const QString& fileName) {
  QFile file(fileName);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool readIntoStore(const QString& fileName) {
  QMap<QString, int> pageItems; // of a page that nobody looks at
  return Manager::instance()->read(fileName, pageItems);
}

} // namespace

RunInput::RunInput(const QString& base, std::vector<StudyKey> keys)
    : base_(base), keys_(std::move(keys)), content_(contentOf(base)) {}

QStringList RunInput::read(const std::vector<double>& values) {
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
  // Each run has a file of its own: the class that reads it keeps what it has read by name.
  QFile file(directory_.filePath(QStringLiteral("run%1.tbat").arg(++files_)));
  const QByteArray content = runFile(content_, keys_, values);
  const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
  file.close();
  const bool isRead = isWritten && readIntoStore(file.fileName());
  file.remove();
  return isRead ? QString() : QStringLiteral("the file of the run can't be written");
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
