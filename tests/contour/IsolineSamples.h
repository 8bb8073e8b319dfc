#pragma once

#include "contour/GridMeshSamples.h"
#include "contour/IsolineTracing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>

/// What the tests of the tracing share: lines of fields, and measures of lines.
namespace TVR::Contour::Samples {

constexpr double nothing = std::numeric_limits<double>::quiet_NaN();

using Field = std::function<double(double, double)>;

inline Isoline traced(const GridMesh& mesh, const Field& field, double level) {
  return traceIsoline(mesh, sampled(mesh, field), level);
}

/// The largest distance of a line's points from one that `distance` measures.
inline double largest(const Isoline& line, const Field& distance) {
  double result = 0;
  for (const QPointF& point : line.points)
    result = std::max(result, std::abs(distance(point.x(), point.y())));
  return result;
}

/// The length of all pieces.
inline double lengthOf(const Isoline& line) {
  double length = 0;
  for (const QVector<QPointF>& piece : piecesOf(line))
    for (int i = 1; i < piece.size(); ++i)
      length += std::hypot(piece[i].x() - piece[i - 1].x(), piece[i].y() - piece[i - 1].y());
  return length;
}

inline GridMesh squareAround0(int cells, double half) {
  return rowMesh(evenAxis(cells, -half, half), evenAxis(cells, -half, half));
}

inline void expectSameLine(const Isoline& one, const Isoline& other) {
  ASSERT_EQ(one.points.size(), other.points.size());
  EXPECT_EQ(one.breaks, other.breaks);
  for (int i = 0; i < one.points.size(); ++i) {
    EXPECT_EQ(one.points[i].x(), other.points[i].x());
    EXPECT_EQ(one.points[i].y(), other.points[i].y());
  }
}

} // namespace TVR::Contour::Samples
