#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <vector>

class QPainter;

namespace TVR::Page {

struct GridDataItem;
struct PlotItem;

/// Something that should not be covered, as a place with a weight.
struct WeightedPlace {
  QPointF place;
  double weight;
};

/// The box of `size` in that corner of `area` that covers the least weight: of equal ones the lower
/// right, lower left, upper right, upper left.
QRectF quietestCorner(const QRectF& area, const QSizeF& size,
                      const std::vector<WeightedPlace>& places);

/// The box of the colour bar of a grid in a corner of its plot [mm], off the wells and the
/// strongest values; empty if the grid shows no values or the area has no room for it.
QRectF colourBarBox(const GridDataItem& grid, const PlotItem& plot);

/// Draws the colours of the grid's values into `box`, with ticks and their unit.
void paintColourBar(QPainter& painter, const GridDataItem& grid, const PlotItem& plot,
                    const QRectF& box);

} // namespace TVR::Page
