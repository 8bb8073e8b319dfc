#pragma once

#include <vector>

class FVMesh;

namespace TVR::Quantities {

/// The box, along and across the regional flow, around the places where a temperature change goes
/// beyond a level [m]; 0 by 0 where it nowhere does.
struct PlumeExtent {
  double length = 0;
  double width = 0;
};

/// The extent of a plume from the temperature change of each cell [K], to the isotherm of `level`
/// [K], which the map shows. A plume that leaves the mesh ends at its edge.
PlumeExtent plumeExtent(const FVMesh& mesh, const std::vector<double>& temperatureChanges,
                        double level);
/// The same for several levels at once, in their order.
std::vector<PlumeExtent> plumeExtents(const FVMesh& mesh,
                                      const std::vector<double>& temperatureChanges,
                                      const std::vector<double>& levels);

} // namespace TVR::Quantities
