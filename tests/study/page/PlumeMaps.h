#pragma once

#include "study/page/ProbabilityMap.h"

#include <QPolygonF>

#include <cmath>
#include <vector>

/// A map of 20 by 10 cells of 5 m, on which nothing is likely.
inline TVR::Study::ProbabilityMap emptyMap() {
  return {-1, 30, {1000, 2000, 5, 20, 10}, std::vector<double>(200)};
}

/// Sets the columns from `left` to before `right` of the rows from `low` to before `high`.
inline void fill(TVR::Study::ProbabilityMap& map, int left, int right, int low, int high,
                 double probability) {
  for (int row = low; row < high; ++row)
    for (int column = left; column < right; ++column)
      map.values[static_cast<std::size_t>(row * map.raster.columns + column)] = probability;
}

/// Above 0 if the ring goes anticlockwise.
inline double signedArea(const QPolygonF& ring) {
  double twice = 0;
  for (int i = 0; i + 1 < ring.size(); ++i)
    twice += (ring[i].x() - ring[0].x()) * (ring[i + 1].y() - ring[0].y()) -
             (ring[i + 1].x() - ring[0].x()) * (ring[i].y() - ring[0].y());
  return twice / 2;
}
