#include "study/work/RasterWalk.h"

#include "project/RunFrame.h"
#include "study/work/CellField.h"

#include <QPolygonF>
#include <QRectF>

#include <algorithm>
#include <cmath>

namespace TVR::Study {

namespace {

/// First and last cell of a raster, in one direction, whose centres may lie in an interval.
struct Span {
  int first;
  int last;
};

Span spanOf(double from, double to, double origin, double cell, int count) {
  const auto place = [&](double position) {
    return static_cast<int>(std::clamp((position - origin) / cell, -1.0, count + 0.0));
  };
  return {std::max(place(from) - 1, 0), std::min(place(to) + 1, count - 1)};
}

QRectF boundsOnMap(const QRectF& inModel, const RunFrame& frame) {
  QPolygonF corners;
  for (const QPointF& corner :
       {inModel.topLeft(), inModel.topRight(), inModel.bottomLeft(), inModel.bottomRight()})
    corners << frame.onMap(corner);
  return corners.boundingRect();
}

} // namespace

std::vector<char> cellsAbove(const CellField& field, double level, const Raster& raster,
                             const RunFrame& frame) {
  std::vector<char> cells(static_cast<std::size_t>(raster.size()));
  const QRectF bounds = field.boundsAbove(level);
  if (bounds.isNull())
    return cells;
  const QRectF map = boundsOnMap(bounds, frame);
  const Span columns = spanOf(map.left(), map.right(), raster.left, raster.cell, raster.columns);
  const Span rows = spanOf(map.top(), map.bottom(), raster.bottom, raster.cell, raster.rows);
  // The model is turned against the map: a step on the map is one and the same step in the model.
  const QPointF origin = frame.inModel(raster.centre(0, 0));
  const QPointF right = frame.inModel(raster.centre(1, 0)) - origin;
  const QPointF up = frame.inModel(raster.centre(0, 1)) - origin;
  for (int row = rows.first; row <= rows.last; ++row)
    for (int column = columns.first; column <= columns.last; ++column) {
      const QPointF place = origin + column * right + row * up;
      const double value = field.value(place.x(), place.y());
      cells[static_cast<std::size_t>(row) * raster.columns + column] =
          level > 0 ? value >= level : value <= level;
    }
  return cells;
}

} // namespace TVR::Study
