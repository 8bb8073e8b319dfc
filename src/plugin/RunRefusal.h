#pragma once

namespace TVR {

class SimulationRun;

/// Whether a simulation runs, which must not be disturbed; the user is then told.
bool refusesDuringRun(const SimulationRun& run);

} // namespace TVR
