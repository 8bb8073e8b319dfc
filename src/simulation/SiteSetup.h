#pragma once

#include "project/RunFrame.h"
#include "simulation/OutputTimes.h"
#include "simulation/Simulation.h"
#include "simulator/mesh/FVMesh.h"
#include "simulator/mesh/Well.h"

#include <memory>
#include <stdexcept>
#include <vector>

namespace TVR {

namespace Data {
class Manager;
}

/// A project that can't be simulated. The text is for the user.
class SetupError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// Error tolerances of a run, as the store holds them.
struct Tolerances {
  double relativeGroundwater; ///< [-]
  double relativeHeat;        ///< [-]
  double absoluteGroundwater; ///< [Pa]
  double absoluteHeat;        ///< [K]
};

/// The project data of a run, turned into a model: wells in model coordinates, in which the
/// regional flow runs along +x, mesh and materials.
struct SiteSetup {
  RunFrame frame; ///< all but the length of a cycle is set
  std::vector<std::unique_ptr<Well>> wells;
  std::unique_ptr<FVMesh> mesh;
  /// Looks into `mesh` and `wells`.
  SimulationInput input;
  Tolerances tolerances;
};

/// Reads the store and makes the model of a run over the given times. Writes back what the user
/// sees of it: the distances, the cell sizes and the number of cells, and clears the extent of the
/// last results. Throws SetupError if no well has a rate, and std::range_error for a site that
/// can't be meshed.
SiteSetup makeSiteSetup(Data::Manager& store, const OutputTimes& outputTimes);

/// What the output times of the project depend on.
OutputTimeInput outputTimeInput(Data::Manager& store, int cycleLength);

} // namespace TVR
