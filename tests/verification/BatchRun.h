#pragma once

#include "support/BatchProject.h"

#include <cstddef>
#include <vector>

namespace Verification {

/// Temperatures of wells over time, as a table of the headless driver has them.
class WellTable {
public:
  /// Runs the driver on a batch file and reads the table that it leaves. Throws std::runtime_error
  /// if there is none.
  explicit WellTable(const BatchProject& project);

  /// Temperature [deg C] of a well, in the order of the file, at time t [s] within the run; between
  /// two lines of the table by a straight line.
  double temperature(std::size_t well, double t) const;

private:
  std::vector<double> times_;
  /// By line of the table.
  std::vector<std::vector<double>> temperatures_;
};

} // namespace Verification
