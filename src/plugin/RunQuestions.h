#pragma once

namespace TVR {

class SimulationRun;

/// Whether an interactive run is on. One that was told to stop is until its results are shown.
bool isUnderWay(const SimulationRun& run);

/// Whether a simulation is under way, which must not be disturbed; the user is then told.
bool refusesDuringRun(const SimulationRun& run);

/// Ends an interactive run at its next step, if the user agrees to that.
void cancelRun(SimulationRun& run);

} // namespace TVR
