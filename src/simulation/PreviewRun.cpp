#include "simulation/PreviewRun.h"

#include "simulation/PageSolves.h"
#include "simulation/ResultCheck.h"
#include "simulation/SetupFault.h"
#include "simulation/SiteSetup.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace TVR {

namespace {

/// A mesh of so many cells is run within a few hundredths of a second.
constexpr int quickCells = 800;
/// By how much each mesh is finer than the one before: the coarser ones cost little beside it.
constexpr int refinement = 8;
/// What is seen on a map of a plume is coarser.
constexpr Tolerances draftTolerances{.relativeGroundwater = 1e-3,
                                     .relativeHeat = 1e-3,
                                     .absoluteGroundwater = 10,
                                     .absoluteHeat = 1e-2};

} // namespace

std::vector<int> draftMeshes(int cells, bool hasPeriods) {
  std::vector<int> meshes;
  if (hasPeriods && cells <= 2 * quickCells)
    meshes.push_back(cells);
  while (cells > 2 * quickCells) {
    cells = std::max(cells / refinement, quickCells);
    meshes.insert(meshes.begin(), cells);
  }
  return meshes;
}

/// Makes a simulation the one that a stop ends, for the life of the object.
class PreviewRun::Current {
public:
  Current(PreviewRun& run, Simulation& simulation) : run_(run) {
    const std::lock_guard lock(run_.mutex_);
    run_.simulation_ = &simulation;
    if (run_.stopped_)
      simulation.stop();
  }
  ~Current() {
    const std::lock_guard lock(run_.mutex_);
    run_.simulation_ = nullptr;
  }
  Current(const Current&) = delete;
  Current& operator=(const Current&) = delete;

private:
  PreviewRun& run_;
};

PreviewRun::PreviewRun(SiteInput site, OutputTimes outputTimes)
    : site_(std::move(site)), outputTimes_(std::move(outputTimes)) {}

void PreviewRun::stop() {
  const std::lock_guard lock(mutex_);
  stopped_ = true;
  if (simulation_)
    simulation_->stop();
}

bool PreviewRun::isStopped() const {
  const std::lock_guard lock(mutex_);
  return stopped_;
}

SiteSetup PreviewRun::setUp(const SiteInput& site) const {
  return makeSite(site, outputTimes_, planSite(site, outputTimes_));
}

/// The site with `fewer` cells instead of `cells`, as far as its wells and its dispersivity allow,
/// and solved as loosely as suffices for a draft.
SiteInput PreviewRun::draftOf(int fewer, int cells) const {
  SiteInput site = site_;
  site.cells.most = std::min(site.cells.most, fewer);
  site.cells.largest *= std::sqrt(static_cast<double>(cells) / fewer);
  Tolerances& own = site.tolerances;
  own.relativeGroundwater = std::max(own.relativeGroundwater, draftTolerances.relativeGroundwater);
  own.relativeHeat = std::max(own.relativeHeat, draftTolerances.relativeHeat);
  own.absoluteGroundwater = std::max(own.absoluteGroundwater, draftTolerances.absoluteGroundwater);
  own.absoluteHeat = std::max(own.absoluteHeat, draftTolerances.absoluteHeat);
  return site;
}

QString PreviewRun::run(const std::function<void(const PreviewStage&)>& take) {
  if (isStopped())
    return {};
  try {
    requireTimes(outputTimes_);
    const SiteSetup whole = setUp(site_);
    const int cells = whole.mesh->nx * whole.mesh->ny;
    for (const int fewer : draftMeshes(cells, site_.hasPeriods())) {
      // A draft may fail by its large cells: what counts is the run itself.
      simulate(setUp(draftOf(fewer, cells)), false, take);
      if (isStopped())
        return {};
    }
    return simulate(whole, true, take);
  } catch (...) {
    return setupFault().toHtmlEscaped();
  }
}

QString PreviewRun::faultOf(const SiteSetup& setup, const Simulation& simulation) const {
  const auto nameOf = [this](int row) { return site_.wells[row].name; };
  return temperatureFault(setup.input, simulation, wellHistories(simulation.wells(), nameOf));
}

QString PreviewRun::simulate(const SiteSetup& setup, bool isRefined,
                             const std::function<void(const PreviewStage&)>& take) {
  Simulation simulation(setup.input);
  QObject::connect(
      &simulation, &Simulation::finished, &simulation, [&] { simulation.done(true); },
      Qt::DirectConnection);
  {
    const Current current(*this, simulation);
    startOnPage(simulation, setup);
  }
  if (isStopped())
    return {};
  if (const QString error = simulation.errorText(); !error.isEmpty())
    return error;
  // A draft may err by more than what is let pass of a run, and at its first steps it does.
  if (const QString fault = isRefined ? faultOf(setup, simulation) : QString(); !fault.isEmpty())
    return fault.toHtmlEscaped();
  std::vector<double> drawdowns(setup.mesh->elements.size());
  std::vector<double> temperatures(drawdowns.size());
  simulation.getDrawdowns(drawdowns);
  simulation.getTemperatures(temperatures);
  take({*setup.mesh, setup.frame, drawdowns, temperatures, isRefined});
  return {};
}

} // namespace TVR
