#pragma once

#include <QPointF>

#include <array>
#include <vector>

namespace TVR::Contour {

/// A mesh of quadrilaterals.
struct GridMesh {
  std::vector<QPointF> nodes;
  std::vector<std::array<int, 4>> cells; ///< node indices around each cell
  std::vector<QPointF> centres;          ///< of the cells, where the values belong
};

} // namespace TVR::Contour
