#include "plugin/ProjectDocument.h"

#include "design/ParameterId.h"
#include "keeping/UserWork.h"
#include "messages/UserMessages.h"
#include "simulation/SimulationRun.h"
#include "store/Manager.h"

#include <utility>

namespace TVR {

ProjectDocument::ProjectDocument(Data::Manager& store, SimulationRun& run,
                                 DocumentCommands commands, QObject* parent)
    : QObject(parent), store_(store), run_(run), commands_(std::move(commands)) {}

ProjectDocument::~ProjectDocument() {
  watch(false);
}

void ProjectDocument::watch(bool watches) {
  if (watches == isWatching_)
    return;
  isWatching_ = watches;
  if (isWatching_) {
    store_.setJournal(this);
    run_.addObserver(this);
    settle(fileName_);
  } else {
    store_.setJournal(nullptr);
    run_.removeObserver(this);
  }
}

void ProjectDocument::settle(const QString& fileName) {
  fileName_ = fileName;
  if (!isWatching_)
    return;
  kept_ = store_.project();
  areValuesModified_ = false;
  isPageModified_ = false;
  tellChanges();
}

void ProjectDocument::opened(const QString& fileName) {
  settle(fileName);
}

void ProjectDocument::saved(const QString& fileName) {
  isSaved_ = true;
  settle(fileName);
}

QString ProjectDocument::title() const {
  return store_.value(Parameter::ProjectName).toString();
}

void ProjectDocument::record(const Data::JournalEntry& entry) {
  areValuesModified_ = !isSameWork(kept_, entry.after);
  tellChanges();
}

void ProjectDocument::pageModified() {
  isPageModified_ = isWatching_;
  tellChanges();
}

void ProjectDocument::tellChanges() {
  const Face face{title(), fileName(), isModified()};
  if (face == shown_)
    return;
  shown_ = face;
  emit changed();
}

bool ProjectDocument::saveChanges() {
  isSaved_ = false;
  // A batch file has no room for a page and for most of the values.
  if (fileName_.endsWith(".tvr"))
    commands_.save(fileName_);
  else
    commands_.saveAs();
  return isSaved_;
}

bool ProjectDocument::mayBeLeft() {
  if (!isModified())
    return true;
  const QString text =
      title().isEmpty()
          ? tr("The project has changes that are not saved. Do you want to save them?")
          : tr("The project \"%1\" has changes that are not saved. Do you want to save them?")
                .arg(title());
  switch (userDecidesOnChanges(programTitle, text)) {
  case Unsaved::Save:
    return saveChanges();
  case Unsaved::Discard:
    return true;
  case Unsaved::Keep:
    break;
  }
  return false;
}

} // namespace TVR
