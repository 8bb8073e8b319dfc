#pragma once

#include "design/WellPlacement.h"

namespace TVR {

class ProjectReader;
class ProjectTarget;

/// The wells of a project that names none, as its design recommends them.
struct DesignedWells {
  WellField field;          ///< around the default well position
  double temperatureChange; ///< of the water that is injected [K]: negative where heat is drawn
};

/// What the design of a project recommends for `wells` wells: `_d_min` between the rows (where
/// there is none, `_big_r`) and `_big_r` within a row. The distances are 0 for a project that
/// designs nothing.
DesignedWells designedWells(const ProjectReader& project, int wells);

/// Gives each well of the project its place, and each injection well its rate and the temperature
/// change of the design: a heat pump returns colder water, which the sign of
/// `used_temperature_change` does not tell. Leaves everything as it is where the design gives no
/// distance.
void placeDesignedWells(ProjectTarget& project);

} // namespace TVR
