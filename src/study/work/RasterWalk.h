#pragma once

#include "study/plan/Raster.h"

#include <vector>

namespace TVR {
struct RunFrame;
}

namespace TVR::Study {

class CellField;

/// For each cell of a raster whether its centre lies above a level of a field, whose model lies on
/// the map as the frame says.
std::vector<char> cellsAbove(const CellField& field, double level, const Raster& raster,
                             const RunFrame& frame);

} // namespace TVR::Study
