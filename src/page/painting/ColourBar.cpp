#include "page/painting/ColourBar.h"

#include "page/model/AxisTicks.h"
#include "page/model/GridColours.h"
#include "page/model/ItemWalk.h"
#include "page/painting/CellImage.h"
#include "page/painting/GridPainter.h"
#include "page/painting/IsolinePainter.h"
#include "page/painting/LinePainter.h"
#include "page/painting/PageText.h"

#include <QImage>
#include <QLineF>
#include <QPainter>
#include <QTransform>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>

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

constexpr double barWeight = 1e9; // no bar covers another

QFont barFont(const PlotItem& plot) {
  QFont font = plot.font;
  font.setPointSizeF(7);
  return font;
}

AxisTicks barTicks(const GridColours& colours, const QFont& font) {
  const double range = colours.maximum() - colours.minimum();
  const double height = textSize("0", font).height();
  const double step = fittingStep(range, barLength, 0, false, [=](double) { return height; });
  return axisTicks(colours.minimum(), colours.maximum(), step, 0, false);
}

/// What the places of a plot stand for: squares of a millimetre, or more where it is large.
double placeLength(const PlotItem& plot) {
  constexpr double mostPlaces = 500; // along a side
  return std::max(1., std::max(plot.area().width(), plot.area().height()) / mostPlaces);
}

/// A place in each square that the grid colours, weighing as much as its colour is strong. Values
/// that are next to nothing are not to be seen.
void addColouredPlaces(const GridDataItem& grid, const PlotItem& plot,
                       std::vector<WeightedPlace>& places) {
  constexpr double faintest = 0.02; // of the strongest value
  const std::vector<double>& values = grid.colouredSet()->values;
  double strongest = 0;
  for (const double value : values)
    strongest = std::isfinite(value) ? std::max(strongest, std::abs(value)) : strongest;
  const double least = std::max(Sketra_lib::Property::leastChange, faintest * strongest);
  std::vector<QRgb> strengths(values.size(), 0);
  for (std::size_t i = 0; i < values.size(); ++i)
    if (const double size = std::abs(values[i]); size >= least && std::isfinite(size))
      strengths[i] = qRgba(0, 0, 0, static_cast<int>(255 * size / strongest));
  const QPointF corner = plot.area().topLeft();
  const double length = placeLength(plot);
  const QImage image =
      cellImage(grid.mesh, strengths,
                plot.pageTransform() * QTransform::fromTranslate(-corner.x(), -corner.y()) *
                    QTransform::fromScale(1 / length, 1 / length),
                QSize(qCeil(plot.area().width() / length), qCeil(plot.area().height() / length)));
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (const int strength = qAlpha(image.pixel(x, y)); strength > 0)
        places.push_back({corner + QPointF(x + 0.5, y + 0.5) * length, strength / 255.});
}

/// A place in each square that an isoline of the grid goes through.
void addLines(const GridDataItem& grid, const PlotItem& plot, std::vector<WeightedPlace>& places) {
  constexpr double lineWeight = 0.3;
  forVisible<IsolineItem>(grid.children, [&](const IsolineItem& isoline) {
    for (const QPolygonF& part : isolineParts(isoline, plot))
      for (const QPolygonF& piece : dashes(part, {placeLength(plot), 1e-3}))
        places.push_back({piece.first(), lineWeight});
  });
}

/// What a bar should not cover: wells most of all, then strong values, then lines.
std::vector<WeightedPlace> placesToShow(const PlotItem& plot) {
  constexpr double wellWeight = 1000;
  std::vector<WeightedPlace> places;
  forEach<CurveItem>(plot.children, [&](const CurveItem& curve) {
    for (const QPointF& point : curve.points)
      places.push_back({plot.toPage(point), wellWeight});
  });
  forVisible<GridDataItem>(plot.children, [&](const GridDataItem& grid) {
    if (grid.colouredSet())
      addColouredPlaces(grid, plot, places);
    addLines(grid, plot, places);
  });
  return places;
}

/// The size of the grid's bar; empty if it shows no values.
QSizeF barSize(const GridDataItem& grid, const PlotItem& plot) {
  const auto colours = GridColours::of(grid);
  if (!colours)
    return {};
  const QFont font = barFont(plot);
  const AxisTicks ticks = barTicks(*colours, font);
  double widest = textSize(grid.colouredUnit(), font).width();
  for (const double value : ticks.major)
    widest = std::max(widest, textSize(tickLabel(value, ticks.step), font).width());
  const double lineHeight = textSize("0", font).height();
  return {2 * padding + barWidth + tickLength + labelGap + widest,
          2 * padding + 1.5 * lineHeight + barLength};
}

} // namespace

QRectF quietestCorner(const QRectF& area, const QSizeF& size,
                      const std::vector<WeightedPlace>& places) {
  constexpr double distance = 6; // [mm] to what should be seen
  const QMarginsF around(distance, distance, distance, distance);
  const double right = area.right() - size.width();
  const double bottom = area.bottom() - size.height();
  const std::array<QRectF, 4> corners = {
      QRectF({right, bottom}, size), QRectF({area.left(), bottom}, size),
      QRectF({right, area.top()}, size), QRectF(area.topLeft(), size)};
  std::array<double, 4> covered{};
  for (const WeightedPlace& place : places)
    for (std::size_t i = 0; i < corners.size(); ++i)
      if (corners[i].marginsAdded(around).contains(place.place))
        covered[i] += place.weight;
  return corners[std::min_element(covered.begin(), covered.end()) - covered.begin()];
}

std::vector<ColourBar> colourBars(const PlotItem& plot) {
  const QRectF area =
      plot.area().adjusted(cornerDistance, cornerDistance, -cornerDistance, -cornerDistance);
  std::vector<ColourBar> bars;
  std::vector<WeightedPlace> places;
  forVisible<GridDataItem>(plot.children, [&](const GridDataItem& grid) {
    const QSizeF size = barSize(grid, plot);
    const bool isKnown = std::any_of(bars.begin(), bars.end(), [&](const ColourBar& bar) {
      return bar.grid->colouredQuantity() == grid.colouredQuantity();
    });
    if (size.isEmpty() || isKnown || size.width() > mostOfArea * area.width() ||
        size.height() > mostOfArea * area.height())
      return;
    if (bars.empty())
      places = placesToShow(plot);
    bars.push_back({&grid, quietestCorner(area, size, places)});
    places.push_back({bars.back().box.center(), barWeight});
  });
  return bars;
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
  drawText(painter, {bar.left(), box.top() + padding}, Qt::AlignLeft | Qt::AlignTop,
           grid.colouredUnit(), font);
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
