#pragma once

#include "simulation/SiteSetup.h"

namespace TVR {

class ProjectTarget;

// What a run writes to its project stands here, but for its frame (SimulationRun) and the extents
// that the page reads off its isotherms (Isolines).

/// Makes the tables that a run reads, a place for each well included. The store makes a table when
/// it is first asked for; with that of the wells it writes their distance, and a project file holds
/// those that stand.
void makeTables(ProjectTarget& project);

/// Writes what a run uses instead of what the project holds, before the mesh is made: a site that
/// can't be meshed shows what was asked for.
void storeUsedSite(ProjectTarget& project, const UsedSite& used);

/// Writes the number of cells, and clears the extent of the last results.
void storeMesh(ProjectTarget& project, const FVMesh& mesh);

/// Reads a project, makes the model of a run over the given times and writes back what the user
/// sees of it. Throws what `planSite` and `makeSite` throw.
SiteSetup setUpSite(ProjectTarget& project, const OutputTimes& outputTimes);

} // namespace TVR
