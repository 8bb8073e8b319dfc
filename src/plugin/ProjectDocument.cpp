#include "plugin/ProjectDocument.h"

#include "design/ParameterId.h"
#include "files/BatchFile.h"
#include "host/ApplicationInterface.h"
#include "messages/UserMessages.h"
#include "plugin/AppInterface.h"
#include "plugin/RunQuestions.h"
#include "project/ProjectLimits.h"
#include "project/UserWork.h"
#include "simulation/SimulationRun.h"
#include "store/Manager.h"

#include <QFileInfo>
#include <QMainWindow>

#include <utility>

namespace TVR {

namespace {

constexpr int statusDuration = 10000; // [ms]

/// Beside a batch file, which has no room for a page and for most of the values.
QString projectFileBeside(const QString& batchFile) {
  const QFileInfo file(batchFile);
  return file.path() + '/' + file.completeBaseName() + ".tvr";
}

} // namespace

ProjectDocument::ProjectDocument(Data::Manager& store, SimulationRun& run,
                                 DocumentCommands commands, QObject* parent)
    : QObject(parent), store_(store), run_(run), commands_(std::move(commands)),
      autosave_({[this] {
                   return AutosaveNote{fileName_, title(), {}};
                 },
                 [this](const QString& file) { return writeAutosave(file); }}),
      recovery_([this](const AutosaveFolder& leftover) { return recover(leftover); }, nullptr) {
  connect(&autosave_, &Autosave::failed, this, &ProjectDocument::tellFailure);
}

ProjectDocument::~ProjectDocument() {
  watch(false);
}

void ProjectDocument::watch(bool watches) {
  if (watches == isWatching_)
    return;
  isWatching_ = watches;
  if (isWatching_) {
    store_.addJournal(this);
    run_.addObserver(this);
    settle(fileName_);
  } else {
    store_.removeJournal(this);
    run_.removeObserver(this);
    if (isModified() && !isGivenUp_)
      autosave_.keepNow();
    autosave_.letGo();
    recovery_.withdraw();
  }
}

void ProjectDocument::settle(const QString& fileName, bool isPageModified) {
  fileName_ = fileName;
  if (!isWatching_)
    return;
  kept_ = store_.project();
  areValuesModified_ = false;
  isPageModified_ = isPageModified;
  isGivenUp_ = false;
  noteChange();
}

void ProjectDocument::opened(const QString& fileName) {
  settle(fileName);
  emit projectOpened();
}

void ProjectDocument::saved(const QString& fileName) {
  isSaved_ = true;
  settle(fileName, isPageModified_ && Data::BatchFile::isBatchFile(fileName));
}

QString ProjectDocument::title() const {
  return store_.value(Parameter::ProjectName).toString();
}

void ProjectDocument::record(const Data::JournalEntry& entry) {
  if (isSameWork(entry.before, entry.after))
    return;
  areValuesModified_ = !kept_ || !isSameWork(*kept_, entry.after);
  isGivenUp_ = false;
  noteChange();
}

void ProjectDocument::pageModified() {
  isGivenUp_ = false;
  notePage();
}

void ProjectDocument::notePage() {
  if (!isWatching_)
    return;
  isPageModified_ = true;
  noteChange();
}

void ProjectDocument::noteChange() {
  if (isModified() && !isGivenUp_)
    autosave_.noteChange();
  else
    autosave_.forget();
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
  if (fileName_.isEmpty())
    commands_.saveAs({});
  else if (Data::BatchFile::isBatchFile(fileName_))
    commands_.saveAs(projectFileBeside(fileName_));
  else
    commands_.save(fileName_);
  return isSaved_;
}

bool ProjectDocument::mayBeLeft() {
  if (!isModified() || isGivenUp_)
    return true;
  const QString text =
      title().isEmpty()
          ? tr("The project has changes that are not saved. Do you want to save them?")
          : tr("The project \"%1\" has changes that are not saved. Do you want to save them?")
                .arg(title());
  switch (userDecidesOnChanges(programTitle, text)) {
  case Unsaved::Save:
    return saveChanges() && mayBeLeft(); // a batch file leaves the page unsaved
  case Unsaved::Discard:
    isGivenUp_ = true;
    autosave_.forget();
    return true;
  case Unsaved::Keep:
    break;
  }
  return false;
}

/// What no file could hold would be told in a box; saving does that when it is asked for.
bool ProjectDocument::writeAutosave(const QString& file) const {
  const int wells = store_.count(Parameter::NumberOfWells);
  const int periods = static_cast<int>(store_.periods().size());
  return ProjectLimits::excess(wells, periods).isEmpty() && commands_.write(file);
}

void ProjectDocument::tellFailure(const QString& directory) const {
  if (BrenvikApp::ApplicationInterface* const host = AppInterface::instance())
    host->showStatusMessage(tr("The project cannot be saved automatically in %1.").arg(directory),
                            statusDuration);
}

void ProjectDocument::offerRecovery() {
  BrenvikApp::ApplicationInterface* const host = AppInterface::instance();
  if (isWatching_ && host)
    recovery_.offer(host->mainWindow());
}

ProjectRecovery::Outcome ProjectDocument::recover(const AutosaveFolder& leftover) {
  using Outcome = ProjectRecovery::Outcome;
  const QString file = leftover.note() ? leftover.note()->file : QString();
  if (isUnderWay(run_) || !mayBeLeft() || !commands_.open(leftover.projectFile(), file))
    return Outcome::Refused;
  settle(file);
  kept_.reset();
  areValuesModified_ = true;
  noteChange();
  return autosave_.keepNow() ? Outcome::Kept : Outcome::Opened;
}

} // namespace TVR
