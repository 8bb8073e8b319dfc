#include "plugin/ProjectHistory.h"

#include "plugin/MainWindowParts.h"
#include "plugin/ProjectDocument.h"
#include "plugin/ResultGraphic.h"
#include "plugin/RunWatch.h"
#include "plugin/WizardCommands.h"
#include "store/Manager.h"
#include "store/UndoHistory.h"
#include "store/UserStep.h"

namespace TVR {

ProjectHistory::ProjectHistory(Data::Manager& store, const RunWatch& run,
                               const ProjectDocument& document, ResultGraphic& graphic,
                               MainWindowParts& parts, WizardCommands& wizards, QObject* parent)
    : QObject(parent), store_(store), run_(run), graphic_(graphic), parts_(parts),
      wizards_(wizards) {
  connect(&run, &RunWatch::changed, this, &ProjectHistory::runChanged);
  connect(&document, &ProjectDocument::projectOpened, this, &ProjectHistory::clear);
}

ProjectHistory::~ProjectHistory() = default;

void ProjectHistory::watch(bool watches) {
  if (watches == (history_ != nullptr))
    return;
  history_ = watches ? std::make_unique<Data::UndoHistory>(store_) : nullptr;
  if (history_)
    connect(history_.get(), &Data::UndoHistory::changed, this, &ProjectHistory::changed);
  emit changed();
}

void ProjectHistory::endAction() {
  if (history_)
    history_->endAction();
}

void ProjectHistory::clear() {
  if (history_)
    history_->clear();
}

void ProjectHistory::runChanged() {
  if (history_ && run_.isRunning())
    history_->resultsMade();
  emit changed();
}

QString ProjectHistory::undoName() const {
  return history_ && !run_.isRunning() ? history_->undoName() : QString();
}

QString ProjectHistory::redoName() const {
  return history_ && !run_.isRunning() ? history_->redoName() : QString();
}

void ProjectHistory::undo() {
  move(&Data::UndoHistory::undo);
}

void ProjectHistory::redo() {
  move(&Data::UndoHistory::redo);
}

void ProjectHistory::move(void (Data::UndoHistory::*step)()) {
  if (!history_ || run_.isRunning())
    return;
  const Project before = store_.project();
  (history_.get()->*step)();
  const Data::ProgramWork work(store_); // what the views ask for is no step
  wizards_.showProject();
  graphic_.showChangesSince(before);
  parts_.refreshPanel();
}

} // namespace TVR
