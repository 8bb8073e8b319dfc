#pragma once

#include <QPointF>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace TVR::Page {

inline bool isFinite(const QPointF& point) {
  return std::isfinite(point.x()) && std::isfinite(point.y());
}

/// The points without those that are not finite.
inline QPolygonF finitePoints(const QPolygonF& points) {
  if (std::all_of(points.begin(), points.end(), isFinite))
    return points;
  QPolygonF finite;
  std::copy_if(points.begin(), points.end(), std::back_inserter(finite), isFinite);
  return finite;
}

} // namespace TVR::Page
