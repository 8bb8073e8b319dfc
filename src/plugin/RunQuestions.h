#pragma once

namespace TVR {

class SimulationRun;

/// Whether a simulation runs, which must not be disturbed; the user is then told.
bool refusesDuringRun(const SimulationRun& run);

/// Ends an interactive run at its next step, if the user agrees to that.
void cancelRun(SimulationRun& run);

} // namespace TVR
