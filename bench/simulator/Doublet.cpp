#include "Doublet.h"

#include "simulator/MeshGeneration.h"

#include <cmath>
#include <numbers>
#include <vector>

namespace {

std::vector<Well> wellsOf(const Doublet& doublet) {
  constexpr double rate = 0.0035; // [m3/s]
  std::vector<Well> wells{Well(0, 0.0, 0.0, -rate), Well(1, 55.0, 35.0, rate, -4.0)};
  for (int period = 0; doublet.periods > 1 && period < doublet.periods; ++period) {
    const double share = std::cos(2.0 * std::numbers::pi * period / doublet.periods);
    wells[0].setRate(period, -rate * share);
    wells[1].setRate(period, rate * share);
    wells[0].setTemperatureChange(period, 4.0);
    wells[1].setTemperatureChange(period, -4.0);
  }
  return wells;
}

std::vector<Well*> pointersTo(std::vector<Well>& wells) {
  return {&wells[0], &wells[1]};
}

} // namespace

// The largest width of a cell is sought that gives the count.
std::unique_ptr<FVMesh> Doublet::mesh() const {
  std::vector<Well> wells = wellsOf(*this);
  const auto meshOf = [&](double largest) {
    return makeWellDiscretisation(12.0, 600.0, 200.0, pointersTo(wells), 0.5, largest, 2.0,
                                  100 * cells, false);
  };
  double tooFine = 0.5;
  double tooWide = 50.0;
  while (tooWide - tooFine > 1e-3 * tooFine) {
    const double width = 0.5 * (tooFine + tooWide);
    const bool isFine = static_cast<int>(meshOf(width)->elements.size()) > cells;
    (isFine ? tooFine : tooWide) = width;
  }
  return meshOf(tooWide);
}

std::unique_ptr<FVGeothermSite> Doublet::site(LinearSolver solver) const {
  const FVMaterial aquifer("aquifer", 0.2, 2650.0, 840.0, 2.0, 3.3e-10, 1e-7);
  const FVMaterial rock("rock", 0.2, 2650.0, 840.0, 2.2, 1e-12, 1e-7);
  std::vector<Well> wells = wellsOf(*this);
  return std::make_unique<FVGeothermSite>(mesh(), aquifer, -25.0, pointersTo(wells), 11.0, 1000.0,
                                          4187.0, 1.3e-3, 0.0, 0.0, exchange, rock,
                                          std::sqrt(years * year / 2650.0), closedLoop, solver);
}

void Doublet::advance(FVGeothermSite& site, int step) const {
  const double t = (step + 1) * year / periods;
  site.setDemandStep(step % periods);
  site.solveGroundwater(t, waterTolerance, waterTolerance);
  site.solveHeat(t, true, heatTolerance, heatTolerance);
}
