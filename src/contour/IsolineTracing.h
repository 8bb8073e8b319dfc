#pragma once

#include "contour/Isoline.h"

#include <vector>

namespace TVR::Contour {

class CentreMesh;
struct GridMesh;

/// The line through a field on which it has the value `level`. The field has one value per cell, at
/// the centre of the cell, and is bilinear between the centres of the cells around a node; between
/// the outermost centres and the edge of the mesh it goes on to the edge, where a line ends. A
/// level outside the range of the values has no line.
///
/// `values` holds one value per cell of the mesh. A cell whose value is not a number, and what lies
/// between it and its neighbours, has no line; a cell without a value is like that. A value equal
/// to the level counts as above it. Pieces are joined as far as they go, closed where they close,
/// and come in an order that depends on the mesh and the values only. Never fails: a cell that
/// names a node that is not there is left out.
Isoline traceIsoline(const GridMesh& mesh, const std::vector<double>& values, double level);

/// The same for several levels at once, in their order.
std::vector<Isoline> traceIsolines(const GridMesh& mesh, const std::vector<double>& values,
                                   const std::vector<double>& levels);

/// The same on a mesh that is prepared already: for who traces again as the values change.
std::vector<Isoline> traceIsolines(const CentreMesh& mesh, const std::vector<double>& values,
                                   const std::vector<double>& levels);

} // namespace TVR::Contour
