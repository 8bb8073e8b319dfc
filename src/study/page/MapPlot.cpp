#include "study/page/MapPlot.h"

#include "page/model/Canvas.h"
#include "study/page/PageMaker.h"
#include "study/page/PlumeBands.h"
#include "study/page/StudyFindings.h"
#include "study/page/StudyPageText.h"

#include <algorithm>
#include <cmath>

namespace TVR::Study {

namespace {

using namespace Page;
namespace Property = Sketra_lib::Property;

constexpr double percent = 100;
/// Cells that fewer runs reach need not be on the map.
constexpr double leastShown = 0.05;

/// How the line of each of bandProbabilities is drawn: what is surer is drawn stronger.
constexpr struct {
  Qt::PenStyle style;
  double width; ///< [mm]
} lineStyles[bandProbabilities.size()] = {
    {Qt::DashLine, 0.3}, {Qt::SolidLine, 0.5}, {Qt::DotLine, 0.5}};

/// What the colours of the map mean.
QString shareText(double level) {
  return (level < 0 ? StudyPageText::tr("Share of the runs in which it is colder by %1 K or more")
                    : StudyPageText::tr("Share of the runs in which it is warmer by %1 K or more"))
      .arg(std::abs(level));
}

/// What a line of the map means.
QString bandText(const BandProbability& band, double level) {
  return (level < 0
              ? StudyPageText::tr("%1: %2 % of the runs are colder by %3 K or more as far as here")
              : StudyPageText::tr("%1: %2 % of the runs are warmer by %3 K or more as far as here"))
      .arg(QString(band.name))
      .arg(percent * band.probability)
      .arg(std::abs(level));
}

QRectF joined(const QRectF& box, const QPointF& low, const QPointF& high) {
  const QRectF other(low, high);
  return box.isNull() ? other : box | other;
}

/// What the map has to show [m].
QRectF extentOf(const StudyFindings& findings) {
  QRectF extent;
  for (const BaseWell& well : findings.base.wells)
    extent = joined(extent, well.place, well.place + QPointF(1e-3, 1e-3));
  if (!findings.map)
    return extent;
  const Raster& raster = findings.map->raster;
  const double least = std::min(leastShown, findings.map->greatest());
  const QPointF half(raster.cell / 2, raster.cell / 2);
  for (int row = 0; row < raster.rows; ++row)
    for (int column = 0; column < raster.columns; ++column)
      if (findings.map->values[static_cast<std::size_t>(row) * raster.columns + column] >= least)
        extent =
            joined(extent, raster.centre(column, row) - half, raster.centre(column, row) + half);
  return extent;
}

/// Sets the axes of a map so that `extent` lies in its middle with some room around it.
void fitAxes(PlotItem& plot, const QRectF& extent) {
  constexpr double room = 1.12;
  constexpr double leastWidth = 10; // [m]
  const QRectF area = plot.area();
  const double metresPerMillimetre =
      std::max({extent.width() / area.width(), extent.height() / area.height(),
                leastWidth / area.width()}) *
      room;
  const QPointF half(area.width() / 2 * metresPerMillimetre,
                     area.height() / 2 * metresPerMillimetre);
  plot.x.minimum = extent.center().x() - half.x();
  plot.x.maximum = extent.center().x() + half.x();
  plot.y.minimum = extent.center().y() - half.y();
  plot.y.maximum = extent.center().y() + half.y();
}

GridDataItem& addGrid(PageMaker& page, PlotItem& plot, const ProbabilityMap& map) {
  auto& grid = page.addTo<GridDataItem>(plot);
  grid.mesh = meshOf(map.raster);
  grid.unit = "%";
  grid.title = shareText(map.level);
  grid.inLegend = true;
  grid.selectedSet = Property::Temperature;
  std::vector<double>& values = grid.sets[Property::Temperature].values;
  for (const double probability : map.values)
    values.push_back(percent * probability);
  const ColourScale colours(-1, 1);
  const double sign = map.level < 0 ? -1 : 1;
  constexpr int steps = 8;
  for (int step = 0; step <= steps; ++step) {
    const double share = static_cast<double>(step) / steps;
    grid.colourScale.push_back({percent * share * map.greatest(), colours.colour(sign * share)});
  }
  return grid;
}

void addWells(PageMaker& page, PlotItem& plot, const std::vector<BaseWell>& wells) {
  auto& curve = page.addTo<CurveItem>(plot);
  curve.style = Property::SymbolsOnly;
  curve.symbolSize = {34, 34};
  curve.symbol = CurveItem::Circle;
  curve.pen = QPen(Qt::black, 0.2);
  curve.brush = Qt::black;
  for (const BaseWell& well : wells) {
    curve.points.append(well.place);
    curve.marks.push_back({well.name, well.symbol, well.meaning});
  }
}

} // namespace

int addMap(PageMaker& page, const QRectF& box, const StudyFindings& findings) {
  auto& plot = page.add<PlotItem>(box);
  plot.name = "Map";
  plot.margins = {16, 10, 6, 9};
  plot.uniformScale = true;
  plot.font = QFont("Arial", 7);
  plot.x.automatic = plot.y.automatic = false;
  plot.x.description = StudyPageText::tr("E [m]");
  plot.y.description = StudyPageText::tr("N [m]");
  plot.legendText = StudyPageText::tr("No run reaches any of the levels");
  fitAxes(plot, extentOf(findings));
  int grid = 0;
  if (findings.map) {
    plot.legendText = StudyPageText::tr("Change of temperature by %1 K after %2 a")
                          .arg(findings.map->level)
                          .arg(findings.map->time);
    grid = addGrid(page, plot, *findings.map).id;
  }
  plot.legendFont = QFont("Arial", 8, QFont::Bold);
  addWells(page, plot, findings.base.wells);
  return grid;
}

void addProbabilityLines(Canvas& canvas, int grid, double level) {
  QVariantList levels;
  for (const BandProbability& band : bandProbabilities)
    levels << percent * band.probability;
  canvas.setProperty(grid, Property::Levels, levels);
  const QList<int> lines = canvas.childItems(grid);
  for (int i = 0; i < lines.size(); ++i) {
    auto* line = canvas.item<IsolineItem>(lines[i]);
    const BandProbability& band = bandProbabilities[static_cast<std::size_t>(i)];
    const auto& style = lineStyles[i];
    line->name = band.name;
    line->labelText = band.name;
    line->legendText = bandText(band, level);
    line->legendFont = QFont("Arial", 7);
    line->pen = QPen(level < 0 ? QColor(0, 30, 90) : QColor(90, 0, 0), style.width, style.style);
  }
  canvas.redraw(grid);
}

} // namespace TVR::Study
