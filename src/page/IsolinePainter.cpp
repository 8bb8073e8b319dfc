#include "page/IsolinePainter.h"

#include "page/IsolineLabels.h"
#include "page/Items.h"
#include "page/LineClip.h"
#include "page/LinePainter.h"
#include "page/PageText.h"

#include <QCache>
#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>

#include <algorithm>

namespace TVR::Page {

namespace {

constexpr double haloWidth = 0.4; // [mm] on each side of a letter

QFont labelFont(const PlotItem& plot) {
  QFont font = plot.font;
  font.setPointSizeF(std::max(5., (font.pointSizeF() > 0 ? font.pointSizeF() : 8) - 1));
  return font;
}

/// The parts of the isoline in the area of the plot [mm].
std::vector<QPolygonF> drawnParts(const IsolineItem& isoline, const PlotItem& plot) {
  std::vector<QPolygonF> parts;
  for (QPolygonF& piece : pieces(isoline.line)) {
    std::transform(piece.begin(), piece.end(), piece.begin(),
                   [&](const QPointF& point) { return plot.toPage(point); });
    for (QPolygonF& part : clippedLine(piece, plot.area()))
      parts.push_back(std::move(part));
  }
  return parts;
}

template <typename Action>
void forVisibleIsolines(const GridDataItem& grid, const Action& action) {
  for (const auto& child : grid.children)
    if (const auto* isoline = dynamic_cast<const IsolineItem*>(child.get());
        isoline && isoline->visible)
      action(*isoline);
}

/// The outline of a text, widened: making it takes longer than drawing it.
const QPainterPath& halo(const QString& text, const QFont& font) {
  static QCache<QString, QPainterPath> halos(200);
  const QString key = font.toString() + '\n' + text;
  if (const QPainterPath* known = halos.object(key))
    return *known;
  QPainterPathStroker stroker(
      QPen(Qt::white, 2 * haloWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const QPainterPath letters = textOutline(text, font);
  auto* widened = new QPainterPath(stroker.createStroke(letters).united(letters));
  halos.insert(key, widened);
  return *widened;
}

void writeLabel(QPainter& painter, const LabelPlace& place, const QString& text, const QFont& font,
                const QColor& colour) {
  painter.save();
  painter.translate(place.centre);
  painter.rotate(place.angle);
  painter.fillPath(halo(text, font), QColor(255, 255, 255, 225));
  painter.restore();
  painter.setPen(colour);
  drawText(painter, place.centre, Qt::AlignCenter, text, font, 1, place.angle);
}

} // namespace

QPen isolinePen(const IsolineItem& isoline) {
  QPen pen = isoline.pen;
  if (!pen.color().isValid())
    pen.setColor(Qt::darkRed);
  pen.setJoinStyle(Qt::RoundJoin);
  return pen;
}

QString isolineLabel(const IsolineItem& isoline) {
  return QString::number(isoline.shownLevel.value_or(isoline.level));
}

void paintIsolines(QPainter& painter, const GridDataItem& grid, const PlotItem& plot) {
  forVisibleIsolines(grid, [&](const IsolineItem& isoline) {
    for (const QPolygonF& part : drawnParts(isoline, plot))
      paintLine(painter, part, isolinePen(isoline));
  });
}

void paintIsolineLabels(QPainter& painter, const GridDataItem& grid, const PlotItem& plot,
                        std::vector<QPolygonF>& taken) {
  const QFont font = labelFont(plot);
  const QRectF area = plot.area().adjusted(0.5, 0.5, -0.5, -0.5);
  forVisibleIsolines(grid, [&](const IsolineItem& isoline) {
    if (!isoline.labelsVisible)
      return;
    const QString text = isolineLabel(isoline);
    const QSizeF room = textSize(text, font) + QSizeF(1, 0);
    const double distance = 10. * std::max(1, isoline.labelDensity); // from [cm]
    for (const QPolygonF& part : drawnParts(isoline, plot))
      for (const LabelPlace& place : placeLabels(part, room, distance, area, taken))
        writeLabel(painter, place, text, font, isolinePen(isoline).color());
  });
}

} // namespace TVR::Page
