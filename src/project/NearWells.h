#pragma once

#include <vector>

namespace TVR {

class ProjectReader;

/// Two wells, by their rows in the well table, that stand less than a metre apart, or within one
/// cell of the mesh, but not at one place.
struct NearWells {
  int one;
  int other;
  double distance; ///< [m]
  bool shareACell; ///< the mesh cannot tell them apart
};

/// All such pairs of the project, along the regional flow.
std::vector<NearWells> nearWells(const ProjectReader& project);

/// Width of the cell that a well stands in [m].
double wellCellWidth(const ProjectReader& project);

} // namespace TVR
