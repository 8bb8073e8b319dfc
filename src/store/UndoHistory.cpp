#include "store/UndoHistory.h"

#include "design/ParameterId.h"
#include "project/ParameterTable.h"
#include "project/ProjectChange.h"
#include "project/ProjectReader.h"
#include "project/ProjectSize.h"
#include "project/UserWork.h"
#include "store/Manager.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace TVR::Data {

using namespace Parameter;

namespace {

/// Whether the user sees a parameter change: not whether wizards are done, nor what is not undone.
bool shows(int id) {
  constexpr int unseen[] = {GeneralWizardDone, WellWizardDone,       EnergyWizardDone,
                            GraphicWizardDone, SimulationWizardDone, SimulationUpToDate,
                            GuiLanguage};
  return std::find(std::begin(unseen), std::end(unseen), id) == std::end(unseen);
}

bool isSeenChange(const Project& before, const Project& after) {
  return !isSameWork(before, after, shows);
}

/// Whether that which was written is another one, and not only what followed from it.
bool isWrittenValueSeen(const JournalEntry& entry) {
  const int id = entry.what;
  if (id < 0)
    return id != MadeTable && isSeenChange(entry.before, entry.after);
  return shows(id) && !isSameEntry(id, entry.before.values.value(id), entry.after.values.value(id));
}

bool areWellsMovedOnly(Project before, const Project& after) {
  before.wells.positions = after.wells.positions;
  before.wells.givenPlaces = after.wells.givenPlaces;
  return before.wells == after.wells;
}

/// A label as it stands within a sentence: nouns of German keep their capitals, and so do
/// abbreviations.
QString withinSentence(QString label, const QString& language) {
  if (language != "de" && label.size() > 1 && label[1].isLower())
    label[0] = label[0].toLower();
  return label;
}

} // namespace

void UndoHistory::Change::add(const Change& next) {
  after = withChange(after, next.before, next.after);
}

void UndoHistory::OpenStep::add(const JournalEntry& entry) {
  if (isWrittenValueSeen(entry)) {
    hasSeveral = hasSeveral || (what && *what != entry.what);
    what = what.value_or(entry.what);
  }
  isSeen = isSeen || (entry.what != MadeTable && isSeenChange(entry.before, entry.after));
  if (!change)
    change = Change{entry.before, entry.before};
  change->after = entry.after;
}

void UndoHistory::OpenStep::leaveOut(const JournalEntry& entry) {
  if (!change)
    return;
  change->before = withChange(change->before, entry.before, entry.after);
  change->after = entry.after;
}

UndoHistory::UndoHistory(Manager& store, qint64 limit, QObject* parent)
    : QObject(parent), store_(store), limit_(limit) {
  store_.addJournal(this);
  clear();
}

UndoHistory::~UndoHistory() {
  store_.removeJournal(this);
}

QString UndoHistory::undoName() const {
  return canUndo() ? nameOf(steps_[position_ - 1]) : QString();
}

QString UndoHistory::redoName() const {
  return canRedo() ? nameOf(steps_[position_]) : QString();
}

QString UndoHistory::nameOf(const Step& step) const {
  if (!step.name.text.isEmpty())
    return step.name.text;
  if (step.what == ChangedWells)
    return areWellsMovedOnly(step.change.before, step.change.after) ? tr("Move wells")
                                                                    : tr("Change wells");
  if (step.what == ChangedPeriods)
    return tr("Change demand periods");
  const QString label = ParameterName::label(step.what);
  return label.isEmpty() ? tr("Change project")
                         : tr("Change %1").arg(withinSentence(label, store_.text(GuiLanguage)));
}

void UndoHistory::undo() {
  if (canUndo())
    move(--position_, &Change::after, &Change::before);
}

void UndoHistory::redo() {
  if (!canRedo())
    return;
  const std::size_t index = position_++;
  move(index, &Change::before, &Change::after);
  if (index == 0)
    takeHead();
}

/// The step then leads between the projects that there were: what the program has written meanwhile
/// comes back with it.
void UndoHistory::move(std::size_t index, Project Change::*from, Project Change::*to) {
  Change& change = steps_[index].change;
  Project project = withChange(store_.project(), change.*from, change.*to);
  change.*from = store_.project();
  change.*to = project;
  measure(index);
  const QVariant language = store_.stored(GuiLanguage);
  if (language.isValid())
    project.values.insert(GuiLanguage, language);
  markResults(project);
  actionGoesOn_ = false;
  isApplying_ = true;
  store_.setProject(project);
  isApplying_ = false;
  emit changed();
}

/// The first step, once it is done, is undone with what has come before it.
void UndoHistory::takeHead() {
  if (!head_)
    return;
  Project& before = steps_.front().change.before;
  before = withChange(before, head_->after, head_->before);
  head_.reset();
  measure(0);
}

void UndoHistory::markResults(Project& project) const {
  if (resultsOf_ && isSameWork(project, *resultsOf_))
    project.values.insert(SimulationUpToDate, resultsOf_->values.value(SimulationUpToDate));
  else if (ProjectView(project).flag(SimulationUpToDate))
    project.values.insert(SimulationUpToDate, false);
}

void UndoHistory::resultsMade() {
  resultsOf_ = store_.project();
}

void UndoHistory::clear() {
  steps_.clear();
  position_ = 0;
  head_.reset();
  actionGoesOn_ = false;
  resultsOf_.reset();
  if (store_.flag(SimulationUpToDate))
    resultsMade();
  emit changed();
}

qint64 UndoHistory::bytes() const {
  if (steps_.empty())
    return 0;
  return std::accumulate(steps_.begin(), steps_.end(),
                         bytesBeside(steps_.front().change.before, Project()),
                         [](qint64 sum, const Step& step) { return sum + step.bytes; });
}

void UndoHistory::record(const JournalEntry& entry) {
  const bool isOtherProject = entry.what == ChangedProject && !openStep_ && !isApplying_;
  isOtherProject ? clear() : note(entry);
}

void UndoHistory::note(const JournalEntry& entry) {
  if (isApplying_)
    return;
  if (resultsOf_ && entry.isOfProgram)
    resultsOf_ = withChange(*resultsOf_, entry.before, entry.after);
  if (openStep_ && entry.isOfProgram)
    openStep_->leaveOut(entry);
  else if (openStep_)
    openStep_->add(entry);
  else if (!entry.isOfProgram)
    take({{}, entry.what, {entry.before, entry.after}});
}

void UndoHistory::beginStep(const StepName& name) {
  OpenStep step;
  step.name = name;
  openStep_ = std::move(step);
}

void UndoHistory::endStep() {
  const std::optional<OpenStep> step = std::exchange(openStep_, std::nullopt);
  if (!step || !step->change)
    return;
  StepName name = step->name;
  if (name.isForSeveral && !step->hasSeveral && step->what)
    name.text.clear();
  take({name, step->isSeen ? step->what.value_or(ChangedProject) : MadeTable, *step->change});
}

void UndoHistory::take(Step step) {
  const Change& change = step.change;
  if (step.what == MadeTable || !isSeenChange(change.before, change.after))
    goWithStepBefore(change);
  else if (goesOn(step.name))
    goOn(change);
  else
    push(std::move(step));
}

bool UndoHistory::goesOn(const StepName& name) const {
  return actionGoesOn_ && name.goesOn && !canRedo() && steps_.back().name.text == name.text;
}

/// An action that comes back to where it began is none.
void UndoHistory::goOn(const Change& change) {
  Change& whole = steps_.back().change;
  whole.add(change);
  if (isSeenChange(whole.before, whole.after)) {
    measure(steps_.size() - 1);
    return;
  }
  const Change unseen = std::move(whole);
  steps_.pop_back();
  position_ = steps_.size();
  actionGoesOn_ = false;
  goWithStepBefore(unseen);
  emit changed();
}

void UndoHistory::goWithStepBefore(const Change& change) {
  if (position_ > 0) {
    steps_[position_ - 1].change.add(change);
    measure(position_ - 1);
  } else if (head_) {
    head_->add(change);
  } else {
    head_ = change;
  }
}

void UndoHistory::push(Step step) {
  actionGoesOn_ = step.name.goesOn;
  steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(position_), steps_.end());
  steps_.push_back(std::move(step));
  measure(steps_.size() - 1);
  if (steps_.size() == 1)
    takeHead();
  while (steps_.size() > 1 && bytes() > limit_) {
    steps_.pop_front();
    measure(0);
  }
  position_ = steps_.size();
  emit changed();
}

/// The step behind shares with this one.
void UndoHistory::measure(std::size_t index) {
  const std::size_t end = std::min(index + 2, steps_.size());
  for (; index < end; ++index) {
    const Change& change = steps_[index].change;
    steps_[index].bytes = bytesBeside(change.after, change.before);
    if (index > 0)
      steps_[index].bytes += bytesBeside(change.before, steps_[index - 1].change.after);
  }
}

} // namespace TVR::Data
