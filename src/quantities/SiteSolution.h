#pragma once

#include "simulation/SiteSetup.h"

#include <QString>

#include <stdexcept>
#include <vector>

namespace TVR::Quantities {

/// A site whose simulation did not reach its end. The text is for the user.
class SolutionError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// What stands at the last output time of a run.
struct SiteSolution {
  int cells;
  std::vector<double> temperatureChanges; ///< of each cell [K]
  std::vector<double> levelChanges;       ///< of the water in each cell [m], below 0 where it sinks
  std::vector<Well> wells;                ///< with their histories
};

/// Runs a site from its start to its last output time on the calling thread. It is left as it was.
/// Throws SolutionError.
SiteSolution solveSite(const SiteSetup& site);

} // namespace TVR::Quantities
