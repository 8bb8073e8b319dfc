#pragma once

#include "simulation/Simulation.h"
#include "simulation/WellTemperatureTable.h"

#include <stdexcept>
#include <vector>

namespace TVR {

/// A run whose temperatures can't be. The text is for the user.
class ResultError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// How far a temperature may lie outside the range of what flows in [K]: more than any usual
/// tolerance of the integrator leaves behind, and less than a plan for wells may be wrong by.
inline constexpr double temperatureTolerance = 0.1;

/// What is wrong with the temperatures of a run; empty if nothing. No place of an aquifer can be
/// warmer or colder than its water at the start and all that has been injected since, which in a
/// closed loop follows from the recorded temperatures. `wells` and `histories` belong together;
/// `cells` are the temperatures of all cells at the end [deg C].
QString temperatureFault(const SimulationInput& input, const std::vector<Well*>& wells,
                         const std::vector<WellHistory>& histories,
                         const std::vector<double>& cells);

/// The same for a simulation of this input that has ended.
QString temperatureFault(const SimulationInput& input, const Simulation& simulation,
                         const std::vector<WellHistory>& histories);

} // namespace TVR
