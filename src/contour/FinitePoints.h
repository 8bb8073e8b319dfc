#pragma once

#include <QPointF>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace TVR::Contour {

inline bool isFinite(const QPointF& point) {
  return std::isfinite(point.x()) && std::isfinite(point.y());
}

/// The points without those that are not finite.
inline QVector<QPointF> finitePoints(const QVector<QPointF>& points) {
  if (std::all_of(points.begin(), points.end(), isFinite))
    return points;
  QVector<QPointF> finite;
  std::copy_if(points.begin(), points.end(), std::back_inserter(finite), isFinite);
  return finite;
}

} // namespace TVR::Contour
