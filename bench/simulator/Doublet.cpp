#include "Doublet.h"

#include "simulator/mesh/MeshGeneration.h"
#include "support/GravelSite.h"

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
  std::vector<Well> wells = wellsOf(*this);
  return gravelSite(mesh(), pointersTo(wells), exchange, years * year, closedLoop, solver);
}

void Doublet::advance(FVGeothermSite& site, int step) const {
  advanceTo(site, (step + 1) * year / periods, step % periods, waterTolerance, heatTolerance);
}
