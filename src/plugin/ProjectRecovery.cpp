#include "plugin/ProjectRecovery.h"

#include "files/BatchFile.h"
#include "gui/RecoveryDialog.h"
#include "keeping/FileProject.h"
#include "messages/UserMessages.h"
#include "project/ParameterKeys.h"
#include "project/ProjectReader.h"
#include "store/DefaultValues.h"

#include <QFileInfo>

namespace TVR {

namespace {

/// A project in which nothing was entered, as a file would hold it.
Project emptyProject() {
  Project project;
  if (const auto values = Data::defaultValues(ParameterKeys()))
    project.values = *values;
  const int wells = ProjectView(project).wells().count();
  project.wells.resizePositions(wells, {});
  for (int row = 0; row < wells; ++row)
    project.wells.givenPlaces.insert(row);
  return project;
}

GUI::UnsavedProject describe(const AutosaveFolder& leftover) {
  GUI::UnsavedProject shown;
  shown.keptAt = QFileInfo(leftover.projectFile()).lastModified();
  if (const auto& note = leftover.note()) {
    shown.title = note->title;
    shown.file = note->file;
    shown.keptAt = note->time;
  }
  const std::optional<Project> kept = projectOf(leftover.projectFile());
  shown.isWhole = kept.has_value();
  shown.isCompared = !Data::BatchFile::isBatchFile(shown.file);
  std::optional<Project> saved;
  if (shown.isCompared)
    saved = shown.file.isEmpty() ? emptyProject() : projectOf(shown.file);
  if (!shown.file.isEmpty() && (saved || !shown.isCompared))
    shown.savedAt = QFileInfo(shown.file).lastModified();
  if (kept && saved)
    shown.differences = ProjectDifferences::between(*saved, *kept);
  return shown;
}

} // namespace

ProjectRecovery::ProjectRecovery(Recover recover, QObject* parent)
    : QObject(parent), recover_(std::move(recover)) {}

ProjectRecovery::~ProjectRecovery() {
  withdraw();
}

void ProjectRecovery::withdraw() {
  delete dialog_;
  leftovers_.clear();
}

void ProjectRecovery::offer(QWidget* window) {
  if (dialog_)
    return;
  leftovers_ = AutosaveFolder::leftovers(AutosaveFolder::usualPlace());
  if (leftovers_.empty())
    return;
  QList<GUI::UnsavedProject> projects;
  for (const auto& leftover : leftovers_)
    projects.append(describe(*leftover));
  dialog_ = new GUI::RecoveryDialog(projects, window);
  dialog_->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog_, &GUI::RecoveryDialog::recoveryWanted, this, &ProjectRecovery::recover);
  connect(dialog_, &GUI::RecoveryDialog::discardWanted, this, &ProjectRecovery::discard);
  connect(dialog_, &QDialog::finished, this, [this] { leftovers_.clear(); });
  dialog_->open();
}

void ProjectRecovery::recover(int row) {
  const std::size_t index = row;
  if (index >= leftovers_.size())
    return;
  const Outcome outcome = recover_(*leftovers_[index]);
  if (outcome == Outcome::Kept)
    removeRow(row);
  // Another one would take the place of this one: the rest is offered by the next program.
  if (outcome != Outcome::Refused && dialog_)
    dialog_->accept();
}

void ProjectRecovery::discard(int row) {
  const std::size_t index = row;
  if (index < leftovers_.size() &&
      userSaysYes(Severity::Warning, programTitle,
                  tr("Discard what was saved automatically? It cannot be brought back.")))
    removeRow(row);
}

void ProjectRecovery::removeRow(int row) {
  leftovers_[row]->clear();
  leftovers_.erase(leftovers_.begin() + row);
  if (dialog_)
    dialog_->removeProject(row);
}

} // namespace TVR
