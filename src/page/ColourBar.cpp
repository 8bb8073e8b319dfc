#include "page/ColourBar.h"

#include "page/AxisTicks.h"
#include "page/GridColours.h"
#include "page/GridPainter.h"
#include "page/Items.h"
#include "page/PageText.h"

#include <QLineF>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace TVR::Page {

namespace {

// Lengths in [mm].
constexpr double barLength = 26;
constexpr double barWidth = 3;
constexpr double padding = 1.2;
constexpr double tickLength = 0.8;
constexpr double labelGap = 0.4;
constexpr double cornerDistance = 1.5;
constexpr double mostOfArea = 0.4; // of its width and height

QFont barFont(const PlotItem& plot) {
  QFont font = plot.font;
  font.setPointSizeF(7);
  return font;
}

QString unitOf(const GridDataItem& grid) {
  return grid.colouredSet() == &grid.sets[Sketra_lib::Property::Temperature] ? "K" : "m";
}

AxisTicks barTicks(const GridColours& colours, const QFont& font) {
  const double range = colours.maximum() - colours.minimum();
  const double height = textSize("0", font).height();
  const double step = fittingStep(range, barLength, 0, false, [=](double) { return height; });
  return axisTicks(colours.minimum(), colours.maximum(), step, 0, false);
}

/// Wells and the values of the cells, the strongest weighing most.
std::vector<WeightedPlace> placesToShow(const GridDataItem& grid, const PlotItem& plot) {
  constexpr double wellWeight = 1000;
  std::vector<WeightedPlace> places;
  for (const auto& child : plot.children)
    if (const auto* curve = dynamic_cast<const CurveItem*>(child.get()))
      for (const QPointF& point : curve->points)
        places.push_back({plot.toPage(point), wellWeight});
  const std::vector<double>& values = grid.colouredSet()->values;
  double strongest = 0;
  for (const double value : values)
    strongest = std::isfinite(value) ? std::max(strongest, std::abs(value)) : strongest;
  const std::size_t cells = std::min(values.size(), grid.mesh.centres.size());
  // Some of the cells are enough to find the plume.
  const std::size_t stride = std::max<std::size_t>(1, cells / 5000);
  for (std::size_t i = 0; i < cells; i += stride)
    if (std::isfinite(values[i]))
      places.push_back({plot.toPage(grid.mesh.centres[i]), std::abs(values[i]) / strongest});
  return places;
}

} // namespace

QRectF quietestCorner(const QRectF& area, const QSizeF& size,
                      const std::vector<WeightedPlace>& places) {
  const double right = area.right() - size.width();
  const double bottom = area.bottom() - size.height();
  const std::array<QRectF, 4> corners = {
      QRectF({right, bottom}, size), QRectF({area.left(), bottom}, size),
      QRectF({right, area.top()}, size), QRectF(area.topLeft(), size)};
  std::array<double, 4> covered{};
  for (const WeightedPlace& place : places)
    for (std::size_t i = 0; i < corners.size(); ++i)
      if (corners[i].contains(place.place))
        covered[i] += place.weight;
  return corners[std::min_element(covered.begin(), covered.end()) - covered.begin()];
}

QRectF colourBarBox(const GridDataItem& grid, const PlotItem& plot) {
  const auto colours = GridColours::of(grid);
  if (!colours)
    return {};
  const QFont font = barFont(plot);
  const AxisTicks ticks = barTicks(*colours, font);
  double widest = textSize(unitOf(grid), font).width();
  for (const double value : ticks.major)
    widest = std::max(widest, textSize(tickLabel(value, ticks.step), font).width());
  const double lineHeight = textSize("0", font).height();
  const QSizeF size(2 * padding + barWidth + tickLength + labelGap + widest,
                    2 * padding + 1.5 * lineHeight + barLength);
  const QRectF area =
      plot.area().adjusted(cornerDistance, cornerDistance, -cornerDistance, -cornerDistance);
  if (size.width() > mostOfArea * area.width() || size.height() > mostOfArea * area.height())
    return {};
  return quietestCorner(area, size, placesToShow(grid, plot));
}

void paintColourBar(QPainter& painter, const GridDataItem& grid, const PlotItem& plot,
                    const QRectF& box) {
  const auto colours = GridColours::of(grid);
  if (!colours)
    return;
  painter.setPen(QPen(Qt::gray, 0.1));
  painter.setBrush(QColor(255, 255, 255, 235));
  painter.drawRect(box);
  const QFont font = barFont(plot);
  const double lineHeight = textSize("0", font).height();
  const QRectF bar(box.left() + padding, box.bottom() - padding - lineHeight / 2 - barLength,
                   barWidth, barLength);
  paintColours(painter, grid, bar);
  painter.setPen(QPen(Qt::black, 0.1));
  drawText(painter, {bar.left(), box.top() + padding}, Qt::AlignLeft | Qt::AlignTop, unitOf(grid),
           font);
  const AxisTicks ticks = barTicks(*colours, font);
  for (const double value : ticks.major) {
    const double share = (value - colours->minimum()) / (colours->maximum() - colours->minimum());
    const QPointF at(bar.right(), bar.bottom() - share * bar.height());
    painter.drawLine(QLineF(at, at + QPointF(tickLength, 0)));
    drawText(painter, at + QPointF(tickLength + labelGap, 0), Qt::AlignLeft | Qt::AlignVCenter,
             tickLabel(value, ticks.step), font);
  }
}

} // namespace TVR::Page
