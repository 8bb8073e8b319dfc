#pragma once

#include "simulator/models/FVGeothermSite.h"

#include <cmath>
#include <memory>
#include <utility>
#include <vector>

/// A site in gravel with a slanting regional flow: what the benchmarks and the tests of solvers put
/// their own wells and meshes into. `exchange`: 0 for none, 2 with the rock on both sides; `time`:
/// that is simulated [s].
inline std::unique_ptr<FVGeothermSite> gravelSite(std::unique_ptr<FVMesh> mesh,
                                                  const std::vector<Well*>& wells, double exchange,
                                                  double time, bool closedLoop,
                                                  LinearSolver solver) {
  const FVMaterial aquifer("aquifer", 0.2, 2650.0, 840.0, 2.0, 3.3e-10, 1e-7);
  const FVMaterial rock("rock", 0.2, 2650.0, 840.0, 2.2, 1e-12, 1e-7);
  return std::make_unique<FVGeothermSite>(std::move(mesh), aquifer, -25.0, wells, 11.0, 1000.0,
                                          4187.0, 1.3e-3, 0.0, 0.0, exchange, rock,
                                          std::sqrt(time / 2650.0), closedLoop, solver);
}

/// Advances both models to a time [s] at the end of a demand period.
inline void advanceTo(FVGeothermSite& site, double time, int period, double waterTolerance,
                      double heatTolerance) {
  site.setDemandStep(period);
  site.solveGroundwater(time, waterTolerance, waterTolerance);
  site.solveHeat(time, true, heatTolerance, heatTolerance);
}
