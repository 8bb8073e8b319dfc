#pragma once

#include "simulation/OutputTimes.h"
#include "simulation/Simulation.h"
#include "simulation/SiteInput.h"
#include "simulator/mesh/FVMesh.h"
#include "simulator/mesh/Well.h"

#include <memory>
#include <optional>
#include <stdexcept>
#include <vector>

namespace TVR {

/// A project that can't be simulated. The text is for the user.
class SetupError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// What a run uses where the project holds something else, or nothing.
struct UsedSite {
  /// Between the nearest wells that work against each other [m]; none if no two do.
  std::optional<double> wellDistance;
  /// The lengths of the design for the flow that the wells really have; none if it is not above
  /// the mean flow.
  std::optional<DesignLengths> lengths;
  /// As a number, where it is above 0.
  std::optional<double> dispersivity;
  double cellWidth; ///< of the cell of a well [m]
};

/// The first stage of a set-up: the wells in model coordinates, in which the regional flow runs
/// along +x, and what the mesh is made for.
struct SitePlan {
  std::vector<std::unique_ptr<Well>> wells;
  DesignLengths extents; ///< of the model
  UsedSite used;
};

/// The model of a run.
struct SiteSetup {
  RunFrame frame; ///< all but the length of a cycle is set
  std::vector<std::unique_ptr<Well>> wells;
  std::unique_ptr<FVMesh> mesh;
  /// Looks into `mesh` and `wells`.
  SimulationInput input;
  Tolerances tolerances;
  bool hasPeriods; ///< the rates of the wells change within a year
};

/// Throws SetupError if no well has a rate.
SitePlan planSite(const SiteInput& site, const OutputTimes& outputTimes);

/// Throws std::range_error for a site that can't be meshed.
SiteSetup makeSite(const SiteInput& site, const OutputTimes& outputTimes, SitePlan plan);

} // namespace TVR
