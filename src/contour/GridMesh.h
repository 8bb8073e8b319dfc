#pragma once

#include <QPointF>
#include <QPolygonF>
#include <QVector>

#include <array>
#include <vector>

namespace TVR::Page {

/// A mesh of quadrilaterals.
struct GridMesh {
  std::vector<QPointF> nodes;
  std::vector<std::array<int, 4>> cells; ///< node indices around each cell
  std::vector<QPointF> centres;          ///< of the cells, where the values belong
};

/// A line of several pieces: all points in one polygon, and for each piece, the last one included,
/// the index behind its last point. A line of one piece has no breaks. A closed piece repeats its
/// first point at the end.
struct Isoline {
  QPolygonF points;
  QVector<int> breaks;
};

} // namespace TVR::Page
