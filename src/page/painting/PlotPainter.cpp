#include "page/painting/PlotPainter.h"

#include "page/model/ItemWalk.h"
#include "page/painting/AxisPainter.h"
#include "page/painting/ColourBar.h"
#include "page/painting/CurvePainter.h"
#include "page/painting/GridPainter.h"
#include "page/painting/IsolinePainter.h"
#include "page/painting/LinePainter.h"
#include "page/painting/MapFurniture.h"
#include "page/painting/PicturePainter.h"
#include "page/painting/PointLabels.h"

#include <QPainter>

#include <algorithm>
#include <vector>

namespace TVR::Page {

namespace {

/// The boxes of the symbols in the plot, which a label keeps off.
std::vector<QPolygonF> symbolOutlines(const PlotItem& plot) {
  std::vector<QPolygonF> outlines;
  forEach<CurveItem>(plot.children, [&](const CurveItem& curve) {
    if (curve.symbolSize.isEmpty())
      return;
    for (const QPointF& point : curve.points) {
      QRectF box({0, 0}, curve.symbolSize / 10);
      box.moveCenter(plot.toPage(point));
      if (plot.area().intersects(box))
        outlines.emplace_back(box);
    }
  });
  return outlines;
}

void paintCurves(QPainter& painter, const PlotItem& plot) {
  forEach<CurveItem>(plot.children, [&](const auto& item) { paintCurve(painter, item, plot); });
}

/// The curves of a diagram, above its frame and in their whole width where they run along it.
void paintDiagram(QPainter& painter, const PlotItem& plot) {
  double widest = 0;
  forEach<CurveItem>(plot.children,
                     [&](const CurveItem& item) { widest = std::max(widest, item.pen.widthF()); });
  painter.save();
  if (plot.clipsChildren)
    painter.setClipRect(plot.area().marginsAdded(QMarginsF(widest, widest, widest, widest) / 2),
                        Qt::IntersectClip);
  paintCurves(painter, plot);
  painter.restore();
}

void paintContents(QPainter& painter, const PlotItem& plot) {
  if (plot.clipsChildren)
    painter.setClipRect(plot.area(), Qt::IntersectClip);
  forVisible<PictureItem>(plot.children,
                          [&](const auto& item) { paintPicture(painter, item, plot); });
  forVisible<GridDataItem>(plot.children,
                           [&](const auto& item) { paintCells(painter, item, plot); });
  paintGridLines(painter, plot);
  forVisible<GridDataItem>(plot.children,
                           [&](const auto& item) { paintIsolines(painter, item, plot); });
  if (plot.isMap())
    paintCurves(painter, plot);
  std::vector<QPolygonF> taken = symbolOutlines(plot);
  for (const ColourBar& bar : colourBars(plot)) {
    paintColourBar(painter, *bar.grid, plot, bar.box);
    taken.emplace_back(bar.box);
  }
  forEach<CurveItem>(plot.children,
                     [&](const auto& item) { paintPointLabels(painter, item, plot, taken); });
  forVisible<GridDataItem>(
      plot.children, [&](const auto& item) { paintIsolineLabels(painter, item, plot, taken); });
}

} // namespace

void paintPlot(QPainter& painter, const PlotItem& plot) {
  if (plot.brush.style() != Qt::NoBrush)
    painter.fillRect(plot.area(), plot.brush);
  const bool hasContents = !plot.area().isEmpty() && !plot.scale().isEmpty();
  if (hasContents) {
    painter.save();
    paintContents(painter, plot);
    painter.restore();
  }
  paintAxes(painter, plot);
  if (plot.isMap() && plot.axisPen.style() != Qt::NoPen)
    paintMapFurniture(painter, plot);
  if (hasContents && !plot.isMap())
    paintDiagram(painter, plot);
  paintFrame(painter, plot.box(), plot.pen);
}

} // namespace TVR::Page
