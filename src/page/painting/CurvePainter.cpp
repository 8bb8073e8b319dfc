#include "page/painting/CurvePainter.h"

#include "page/model/Items.h"
#include "page/painting/LineClip.h"
#include "page/painting/LinePainter.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace TVR::Page {

namespace {

constexpr double symbolUnit = 0.1; // [mm]

bool hasSymbol(const CurveItem& curve) {
  return curve.symbol != CurveItem::NoSymbol && !curve.symbolSize.isEmpty();
}

bool isWell(int symbol) {
  return symbol >= CurveItem::WithdrawalWell && symbol <= CurveItem::AlternatingWell;
}

/// An arrow head in a circle; `upwards` is 1, or -1 for one that points down.
QPolygonF arrowHead(const QPointF& centre, double size, int upwards) {
  const double half = size / 2;
  return QVector<QPointF>{centre + QPointF(-half, half * 0.8 * upwards),
                          centre + QPointF(0, -half * upwards),
                          centre + QPointF(half, half * 0.8 * upwards)};
}

/// A withdrawal well is filled and an injection well is not, so that small ones differ as well.
void paintWell(QPainter& painter, const CurveItem& curve, int symbol, const QRectF& box) {
  const QColor colour = curve.brush.color();
  const bool isFilled = symbol == CurveItem::WithdrawalWell;
  const double size = std::min(box.width(), box.height());
  QPen rim = pagePen(curve.pen);
  rim.setWidthF(std::min(rim.widthF(), 0.1 * size));
  painter.setPen(rim);
  painter.setBrush(isFilled ? colour : QColor(Qt::white));
  painter.drawEllipse(box);
  painter.setPen(Qt::NoPen);
  painter.setBrush(isFilled ? QColor(Qt::white) : colour);
  if (symbol != CurveItem::AlternatingWell) {
    painter.drawPolygon(arrowHead(box.center(), 0.55 * size, isFilled ? 1 : -1));
    return;
  }
  const QPointF aside(0, 0.2 * size);
  painter.drawPolygon(arrowHead(box.center() - aside, 0.32 * size, 1));
  painter.drawPolygon(arrowHead(box.center() + aside, 0.32 * size, -1));
}

QPainterPath symbolPath(int symbol, const QRectF& box) {
  QPainterPath path;
  switch (symbol) {
  case CurveItem::Circle:
    path.addEllipse(box);
    break;
  case CurveItem::Triangle:
    path.addPolygon(
        QVector<QPointF>{box.bottomLeft(), {box.center().x(), box.top()}, box.bottomRight()});
    path.closeSubpath();
    break;
  case CurveItem::Diamond:
    path.addPolygon(QVector<QPointF>{{box.left(), box.center().y()},
                                     {box.center().x(), box.top()},
                                     {box.right(), box.center().y()},
                                     {box.center().x(), box.bottom()}});
    path.closeSubpath();
    break;
  case CurveItem::Cross:
    path.moveTo(box.topLeft());
    path.lineTo(box.bottomRight());
    path.moveTo(box.bottomLeft());
    path.lineTo(box.topRight());
    break;
  default:
    path.addRect(box);
  }
  return path;
}

QPolygonF onPage(const QPolygonF& points, const PlotItem& plot) {
  QPolygonF mapped(points.size());
  std::transform(points.begin(), points.end(), mapped.begin(),
                 [&](const QPointF& point) { return plot.toPage(point); });
  return mapped;
}

void fillToZero(QPainter& painter, const QPolygonF& line, const CurveItem& curve,
                const PlotItem& plot) {
  QPolygonF outline = onPage(line, plot);
  outline.append(plot.toPage({line.last().x(), 0}));
  outline.append(plot.toPage({line.first().x(), 0}));
  QPainterPath filled;
  filled.addPolygon(outline);
  filled.closeSubpath();
  QPainterPath area;
  area.addRect(plot.area());
  painter.fillPath(plot.clipsChildren ? filled.intersected(area) : filled, curve.brush);
}

/// The pen of a curve's line. A plot without an x axis of its own lies over another, and its curves
/// may run along that one's: dashes let both be seen.
QPen linePen(const CurveItem& curve, const PlotItem& plot) {
  QPen pen = curve.pen;
  if (plot.x.hidden && !plot.isMap() && pen.style() == Qt::SolidLine)
    pen.setStyle(Qt::DashLine);
  return pen;
}

} // namespace

QPolygonF curveLine(const CurveItem& curve) {
  if (curve.style == Sketra_lib::Property::SymbolsOnly)
    return {};
  if (curve.style != Sketra_lib::Property::Steps)
    return curve.points;
  QPolygonF line;
  for (const QPointF& point : curve.points) {
    if (!line.isEmpty() && line.last().x() != point.x())
      line.append({point.x(), line.last().y()});
    if (line.isEmpty() || line.last() != point)
      line.append(point);
  }
  return line;
}

void paintSymbol(QPainter& painter, const CurveItem& curve, int symbol, const QPointF& centre) {
  if (symbol == CurveItem::NoSymbol || curve.symbolSize.isEmpty())
    return;
  QRectF box({0, 0}, curve.symbolSize * symbolUnit);
  box.moveCenter(centre);
  painter.setPen(pagePen(curve.pen));
  if (isWell(symbol)) {
    paintWell(painter, curve, symbol, box);
    return;
  }
  painter.setBrush(curve.brush);
  painter.drawPath(symbolPath(symbol, box));
}

void paintCurve(QPainter& painter, const CurveItem& curve, const PlotItem& plot) {
  const QPolygonF line = curveLine(curve);
  if (curve.visible && line.size() > 1) {
    if (curve.brush.style() != Qt::NoBrush && !hasSymbol(curve))
      fillToZero(painter, line, curve, plot);
    const QPolygonF drawn = onPage(line, plot);
    const QPen pen = linePen(curve, plot);
    if (!plot.clipsChildren)
      paintLine(painter, drawn, pen);
    else
      for (const QPolygonF& part : clippedLine(drawn, plot.area()))
        paintLine(painter, part, pen);
  }
  for (int point = 0; point < curve.points.size(); ++point) {
    const QPointF centre = plot.toPage(curve.points[point]);
    if (!plot.clipsChildren || plot.area().contains(centre))
      paintSymbol(painter, curve, curve.symbolOf(point), centre);
  }
}

} // namespace TVR::Page
