#pragma once

#include <QPointF>

namespace TVR {

/// The part of a plane that a plot shows [map units].
struct MapRange {
  double xMinimum = 0;
  double xMaximum = 0;
  double yMinimum = 0;
  double yMaximum = 0;

  double width() const { return xMaximum - xMinimum; }
  double height() const { return yMaximum - yMinimum; }
  QPointF centre() const { return {(xMinimum + xMaximum) / 2, (yMinimum + yMaximum) / 2}; }
  bool operator==(const MapRange&) const = default;
  bool contains(const QPointF& point) const {
    return point.x() >= xMinimum && point.x() <= xMaximum && point.y() >= yMinimum &&
           point.y() <= yMaximum;
  }
};

} // namespace TVR
