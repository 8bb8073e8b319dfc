#include "page/IsolinePainter.h"

#include "page/Items.h"
#include "page/LabelPainter.h"
#include "page/LineClip.h"
#include "page/LinePainter.h"

#include <algorithm>

namespace TVR::Page {

namespace {

QRectF labelArea(const PlotItem& plot) {
  return plot.area().adjusted(0.5, 0.5, -0.5, -0.5);
}

template <typename Action>
void forVisibleIsolines(const GridDataItem& grid, const Action& action) {
  for (const auto& child : grid.children)
    if (const auto* isoline = dynamic_cast<const IsolineItem*>(child.get());
        isoline && isoline->visible)
      action(*isoline);
}

/// The label of a level whose pieces are all too short to bear one, off the longest of them.
void labelOffTheLine(QPainter& painter, const std::vector<QPolygonF>& parts, const QString& text,
                     const PlotItem& plot, const QColor& colour, std::vector<QPolygonF>& taken) {
  const QFont font = labelFont(plot);
  const auto longest =
      std::max_element(parts.begin(), parts.end(), [](const QPolygonF& a, const QPolygonF& b) {
        return lengthOf(a) < lengthOf(b);
      });
  if (longest == parts.end())
    return;
  const auto place = placeOffLine(*longest, labelRoom(text, font), labelArea(plot), taken);
  if (place)
    writeLabelBeside(painter, *place, text, font, colour);
}

void labelLine(QPainter& painter, const IsolineItem& isoline, const PlotItem& plot,
               std::vector<QPolygonF>& taken) {
  const QFont font = labelFont(plot);
  const QString text = isolineLabel(isoline);
  const QColor colour = isolinePen(isoline).color();
  const double distance = 10. * std::max(1, isoline.labelDensity); // from [cm]
  const std::vector<QPolygonF> parts = isolineParts(isoline, plot);
  bool isLabelled = false;
  for (const QPolygonF& part : parts)
    for (const LabelPlace& place :
         placeLabels(part, labelRoom(text, font), distance, labelArea(plot), taken)) {
      writeLabel(painter, place, text, font, colour);
      isLabelled = true;
    }
  if (!isLabelled)
    labelOffTheLine(painter, parts, text, plot, colour, taken);
}

} // namespace

QPen isolinePen(const IsolineItem& isoline) {
  QPen pen = isoline.pen;
  if (!pen.color().isValid())
    pen.setColor(Qt::darkRed);
  pen.setJoinStyle(Qt::RoundJoin);
  const auto* grid = dynamic_cast<const GridDataItem*>(isoline.parent);
  if (grid && grid->isImported)
    pen.setStyle(pen.style() == Qt::SolidLine ? Qt::DashDotLine : Qt::DotLine);
  return pen;
}

std::vector<QPolygonF> isolineParts(const IsolineItem& isoline, const PlotItem& plot) {
  std::vector<QPolygonF> parts;
  for (QPolygonF& piece : pieces(isoline.line)) {
    std::transform(piece.begin(), piece.end(), piece.begin(),
                   [&](const QPointF& point) { return plot.toPage(point); });
    for (QPolygonF& part : clippedLine(piece, plot.area()))
      parts.push_back(std::move(part));
  }
  return parts;
}

QString isolineLabel(const IsolineItem& isoline) {
  const QString unit = isoline.dataSet == Sketra_lib::Property::Temperature ? " K" : " m";
  return QString::number(isoline.shownLevel.value_or(isoline.level)) + unit;
}

void paintIsolines(QPainter& painter, const GridDataItem& grid, const PlotItem& plot) {
  forVisibleIsolines(grid, [&](const IsolineItem& isoline) {
    for (const QPolygonF& part : isolineParts(isoline, plot))
      paintLine(painter, part, isolinePen(isoline));
  });
}

void paintIsolineLabels(QPainter& painter, const GridDataItem& grid, const PlotItem& plot,
                        std::vector<QPolygonF>& taken) {
  forVisibleIsolines(grid, [&](const IsolineItem& isoline) {
    if (isoline.labelsVisible || isoline.shownLevel)
      labelLine(painter, isoline, plot, taken);
  });
}

} // namespace TVR::Page
