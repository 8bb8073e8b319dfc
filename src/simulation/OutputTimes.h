#pragma once

#include <vector>

namespace TVR {

/// Output steps of a year where the year is resolved, unless the demand plot asks for more.
inline constexpr int usualCycleLength = 12;

/// What the times of a run's results depend on.
struct OutputTimeInput {
  double simulationTime;         ///< length of the run [s]
  std::vector<double> durations; ///< demand periods of a year [s]; none or one: constant demand
  int cycleLength;               ///< output steps of a year where the year is resolved
  double dispersivity;           ///< longitudinal dispersivity [m]; above 0 resolves the year

  bool operator==(const OutputTimeInput&) const = default;
};

/// Times at which a run hands over its state, ascending [s], and the demand period (row of the
/// demand table) that holds in the interval that ends at each of them. Both lists have one length.
struct OutputTimes {
  std::vector<double> times;
  std::vector<int> demandSteps;
};

/// Without demand periods one time a year, at least one in all; with them, or with dispersion, the
/// year is divided evenly and times are pulled onto the ends of the demand periods. A run of no
/// length gives no times; a period whose duration is not above 0 is left out. A simulated time that
/// is no whole number of years may be missed: the last time then lies before it, or behind it.
OutputTimes outputTimes(const OutputTimeInput& input);

/// Whole years of a run, rounded, at least 1.
int simulatedYears(double simulationTime);

} // namespace TVR
