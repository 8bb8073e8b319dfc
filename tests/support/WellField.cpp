#include "support/WellField.h"

#include "simulator/mesh/MeshGeneration.h"
#include "simulator/solvers/FVCvodeSolver.h"
#include "support/GravelSite.h"
#include "support/WholeMatrixSolver.h"

#include <cmath>
#include <numbers>

namespace {

std::vector<Well> wellsOf(const WellField& field) {
  std::vector<Well> wells;
  for (int id = 0; id < field.wells; ++id) {
    const int row = id % field.rows;
    const int column = id / field.rows;
    const double sign = (row + column) % 2 == 0 ? -1.0 : 1.0;
    wells.emplace_back(id, field.distance * (column + 0.6 * row), field.distance * 0.8 * row,
                       sign * field.rate, -4.0);
    for (int period = 0; field.periods > 1 && period < field.periods; ++period) {
      const double share = std::cos(2.0 * std::numbers::pi * period / field.periods);
      wells.back().setRate(period, sign * field.rate * share);
      wells.back().setTemperatureChange(period, sign > 0.0 ? -4.0 : 4.0);
    }
  }
  return wells;
}

HeatRun outcomeOf(std::unique_ptr<FVGeothermSite> site) {
  const FVCvodeSolver& solver = *site->heatSolver();
  const long failures = solver.convergenceFailures();
  const long steps = solver.steps();
  return {std::move(site), steps, failures};
}

} // namespace

std::unique_ptr<FVGeothermSite> WellField::site(LinearSolver solver) const {
  std::vector<Well> list = wellsOf(*this);
  std::vector<Well*> pointers;
  for (Well& well : list)
    pointers.push_back(&well);
  auto mesh =
      makeWellDiscretisation(thickness, 300.0, 150.0, pointers, 0.3, 20.0, 1.2, cells, false);
  return gravelSite(std::move(mesh), pointers, exchange, years * year, closedLoop, solver);
}

void WellField::advance(FVGeothermSite& site, int step) const {
  advanceTo(site, (step + 1) * year / periods, step % periods, waterTolerance, heatTolerance);
}

HeatRun runStructured(const WellField& field) {
  auto site = field.site();
  for (int step = 0; step < field.outputTimes(); ++step)
    field.advance(*site, step);
  return outcomeOf(std::move(site));
}

HeatRun runWholeMatrix(const WellField& field) {
  auto site = field.site();
  // An advance to the start only makes the integrator.
  site->solveHeat(0.0, false, field.heatTolerance, field.heatTolerance);
  WholeMatrixSolver solver(site->heat, site->heat.sourceElements);
  for (int step = 0; step < field.outputTimes(); ++step)
    field.advance(*site, step);
  return outcomeOf(std::move(site));
}
