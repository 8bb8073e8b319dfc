#pragma once

#include "contour/GridMesh.h"

class FVMesh;

namespace TVR {

struct RunFrame;

/// The cells of a run with this frame as they lie on the map, row by row. Nodes are numbered row by
/// row too, one more to a row than there are cells; a cell goes around its lower left node,
/// counter- clockwise in the model.
Contour::GridMesh cellsOnMap(const FVMesh& mesh, const RunFrame& frame);

} // namespace TVR
