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

/// The box of `size` in that corner of `area` that covers the least weight, with some distance
/// around it: of equal ones the lower right, lower left, upper right, upper left.
QRectF quietestCorner(const QRectF& area, const QSizeF& size,
                      const std::vector<WeightedPlace>& places);

/// The bar that explains the colours of a grid, and its box in a corner of the plot [mm].
struct ColourBar {
  const GridDataItem* grid;
  QRectF box;
};

/// The bars of a plot: one for each quantity that its visible grids show, off each other, the wells
/// and as much as can be of what the grids colour. None where the area has no room for them.
std::vector<ColourBar> colourBars(const PlotItem& plot);

/// Draws the colours of the grid's values into `box`, with ticks and their unit.
void paintColourBar(QPainter& painter, const GridDataItem& grid, const PlotItem& plot,
                    const QRectF& box);

} // namespace TVR::Page
