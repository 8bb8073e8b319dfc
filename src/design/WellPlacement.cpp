#include "design/WellPlacement.h"

namespace TVR {

namespace {

/// A row of wells across a flow along +x, at `x` from the centre.
void appendRow(std::vector<PlanePoint>& points, const WellField& field, int wells, double x) {
  const DesignFormulas formulas;
  double angle = field.angle;
  for (int i = 0; i < wells; ++i) {
    PlanePoint point{field.centre.x + x,
                     field.centre.y + (i - (wells - 1) * 0.5) * field.withinRow};
    formulas.rotatePoint(point.x, point.y, angle, field.centre.x, field.centre.y);
    points.push_back(point);
  }
}

} // namespace

std::vector<PlanePoint> placeWells(const WellField& field) {
  const int withdrawing = field.withdrawing < 0 ? field.wells / 2 : field.withdrawing;
  const bool hasTwoRows = withdrawing > 0 && withdrawing < field.wells;
  const double half = hasTwoRows ? field.betweenRows * 0.5 : 0.0;
  std::vector<PlanePoint> points;
  appendRow(points, field, withdrawing, -half);
  appendRow(points, field, field.wells - withdrawing, half);
  return points;
}

} // namespace TVR
