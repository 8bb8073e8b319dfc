#include "study/work/SiteRun.h"

#include "quantities/MeshRefinement.h"
#include "simulation/SimulationRun.h"
#include "simulation/SolverMessages.h"
#include "simulator/solvers/SolverErrors.h"
#include "store/Manager.h"
#include "study/work/MeshBands.h"
#include "study/work/RunWatch.h"

#include <algorithm>
#include <exception>

namespace TVR::Study {

namespace {

std::vector<StudyKey> keysOf(const ResultLayout& layout) {
  std::vector<StudyKey> keys;
  for (const QString& name : layout.keys)
    if (const auto key = studyKey(name))
      keys.push_back(*key);
  return keys;
}

/// What bands want of a run on another mesh.
ResultLayout scalarsOf(ResultLayout layout) {
  layout.meshBands = false;
  layout.seriesTimes.clear();
  layout.raster = {};
  return layout;
}

} // namespace

SiteRun::SiteRun(const QString& base, const ResultLayout& layout)
    : layout_(layout), input_(base, keysOf(layout)) {}

Record SiteRun::compute(const QByteArray& name, const std::vector<double>& values) {
  Solution solution;
  Record& record = solution.record;
  const QStringList faults = input_.read(values);
  if (faults.isEmpty())
    solution = solve(layout_, nullptr);
  else
    record.failure = faults.first();
  if (layout_.meshBands && !record.hasFailed())
    addMeshBands(solution);
  record.run = name;
  record.values = values;
  return record;
}

/// Where another mesh has no results the bands stay unknown: the run itself has not failed.
void SiteRun::addMeshBands(Solution& own) {
  const ResultLayout layout = scalarsOf(layout_);
  const Solution coarse = solve(layout, Quantities::coarsened);
  const Solution fine = solve(layout, Quantities::refined);
  if (coarse.record.hasFailed() || fine.record.hasFailed())
    return;
  const std::vector<double> bands =
      meshBands(layout.scalars(), {{{coarse.cells, coarse.record.scalars},
                                    {own.cells, own.record.scalars},
                                    {fine.cells, fine.record.scalars}}});
  std::copy_backward(bands.begin(), bands.end(), own.record.scalars.end());
}

SiteRun::Solution SiteRun::solve(const ResultLayout& layout, MeshChange mesh) {
  Data::Manager& store = *Data::Manager::instance();
  SimulationRun run(store, [] { return QString(); });
  RunWatch watch(layout, run);
  run.addObserver(&watch);
  Record failed;
  try {
    run.run({.isInteractive = false, .wantsTable = false, .otherMesh = mesh});
    return {watch.record(), watch.cells()};
  } catch (const CvodeError& error) {
    const Simulation* simulation = run.simulation();
    failed.failure = solverMessage(error.what(), simulation && simulation->groundwaterDone());
  } catch (const std::exception& error) {
    failed.failure = error.what();
  } catch (const char* error) {
    failed.failure = error;
  }
  failed.failure = failed.failure.simplified();
  return {failed, watch.cells()};
}

} // namespace TVR::Study
