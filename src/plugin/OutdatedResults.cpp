#include "plugin/OutdatedResults.h"

#include "design/ParameterId.h"
#include "keeping/ProjectDifferences.h"
#include "plugin/ProjectDocument.h"
#include "project/ProjectReader.h"
#include "simulation/SimulationRun.h"
#include "store/Manager.h"
#include "store/UserStep.h"

namespace TVR {

using Parameter::SimulationUpToDate;

OutdatedResults::OutdatedResults(Data::Manager& store, SimulationRun& run,
                                 const ProjectDocument& document, QObject* parent)
    : QObject(parent), store_(store), run_(run) {
  update_.setSingleShot(true);
  update_.setInterval(0);
  connect(&update_, &QTimer::timeout, this, &OutdatedResults::update);
  connect(&document, &ProjectDocument::projectOpened, this, &OutdatedResults::opened);
}

OutdatedResults::~OutdatedResults() {
  watch(false);
}

void OutdatedResults::watch(bool watches) {
  if (watches == isWatching_)
    return;
  isWatching_ = watches;
  if (watches) {
    store_.addJournal(this);
    run_.addObserver(this);
    opened();
  } else {
    store_.removeJournal(this);
    run_.removeObserver(this);
    update_.stop();
  }
}

void OutdatedResults::record(const Data::JournalEntry& entry) {
  update_.start();
  if (entry.what >= 0 && !entry.isOfProgram && inputOf(entry.before) != inputOf(entry.after))
    edited_.insert(entry.what);
}

void OutdatedResults::opened() {
  if (isWatching_)
    begin(store_.flag(SimulationUpToDate));
}

void OutdatedResults::begin(bool areUpToDate) {
  simulated_.reset();
  if (areUpToDate)
    simulated_ = {store_.project(), inputOf(store_.project())};
  edited_.clear();
  update_.start();
}

/// The name of a well changes no result.
OutdatedResults::Input OutdatedResults::inputOf(const Project& project) const {
  const ProjectView view(project);
  Input input{readSite(view), outputTimeInput(view, run_.cycleLength())};
  for (SiteWell& well : input.site.wells)
    well.name.clear();
  return input;
}

void OutdatedResults::update() {
  const bool isSame = simulated_ && simulated_->input == inputOf(store_.project());
  areThere_ = store_.resultFrame() && !isSame;
  noteInProject();
  emit changed();
}

/// As no rule runs for it, no simulation begins.
void OutdatedResults::noteInProject() {
  if (!store_.resultFrame() || !simulated_ || store_.flag(SimulationUpToDate) != areThere_)
    return;
  const Data::ProgramWork work(store_);
  store_.setStored(SimulationUpToDate, !areThere_);
}

QStringList OutdatedResults::changes() const {
  if (!simulated_)
    return {};
  QList<Difference> differences = ProjectDifferences::between(
      simulated_->project, store_.project(), [this](int id) { return edited_.contains(id); });
  if (differences.isEmpty()) // as rules may leave something behind when a value is put back
    differences = ProjectDifferences::between(simulated_->project, store_.project());
  QStringList changes;
  for (const auto& [what, before, after] : differences)
    changes << (before.isEmpty()
                    ? tr("%1: %2", "what was changed, and its new value").arg(what, after)
                    : tr("%1: %2 → %3", "what was changed, its old and new value")
                          .arg(what, before, after));
  return changes;
}

} // namespace TVR
