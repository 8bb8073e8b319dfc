#include "page/painting/LinePainter.h"

#include "page/model/Items.h"

#include <QLineF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace TVR::Page {

namespace {

constexpr double thinnest = 0.02;     // [mm]
constexpr double shortestDash = 0.35; // [mm] of a dot

} // namespace

QPen pagePen(const QPen& pen) {
  QPen solid = pen;
  solid.setCosmetic(false);
  solid.setWidthF(std::max(pen.widthF(), thinnest));
  solid.setStyle(Qt::SolidLine);
  solid.setCapStyle(Qt::FlatCap); // a line ends where its last point is
  return solid;
}

std::vector<QPolygonF> dashes(const QPolygonF& line, const QVector<qreal>& pattern) {
  const bool isPattern = !pattern.isEmpty() && std::all_of(pattern.begin(), pattern.end(),
                                                           [](qreal part) { return part > 0; });
  if (!isPattern)
    return {line};
  std::vector<QPolygonF> parts;
  int part = 0;
  double left = pattern[0];
  for (int i = 1; i < line.size(); ++i) {
    const QLineF segment(line[i - 1], line[i]);
    const double length = segment.length();
    if (!(length > 0) || !std::isfinite(length))
      continue;
    for (double done = 0; done < length;) {
      const double step = std::min(left, length - done);
      const bool isDash = part % 2 == 0;
      if (isDash && left == pattern[part])
        parts.emplace_back(QVector<QPointF>{segment.pointAt(done / length)});
      done += step;
      if (isDash)
        parts.back().append(segment.pointAt(std::min(1., done / length)));
      left -= step;
      if (left <= 0) {
        part = (part + 1) % pattern.size();
        left = pattern[part];
      }
    }
  }
  return parts;
}

void paintLine(QPainter& painter, const QPolygonF& line, const QPen& pen) {
  if (pen.style() == Qt::NoPen)
    return;
  const QPen solid = pagePen(pen);
  if (pen.style() == Qt::SolidLine) {
    painter.setPen(solid);
    painter.drawPolyline(line);
    return;
  }
  painter.setPen(solid);
  QVector<qreal> pattern = pen.dashPattern();
  for (qreal& length : pattern)
    length *= std::max(solid.widthF(), shortestDash);
  for (const QPolygonF& dash : dashes(line, pattern))
    painter.drawPolyline(dash);
}

void paintLine(QPainter& painter, const QLineF& line, const QPen& pen) {
  paintLine(painter, QPolygonF(QVector<QPointF>{line.p1(), line.p2()}), pen);
}

void paintFrame(QPainter& painter, const QRectF& frame, const QPen& pen) {
  if (pen.style() != Qt::SolidLine) {
    paintLine(painter, QPolygonF(frame), pen);
    return;
  }
  painter.setPen(pagePen(pen));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(frame);
}

void paintBox(QPainter& painter, const Item& item) {
  if (item.size.isEmpty())
    return;
  if (item.brush.style() != Qt::NoBrush)
    painter.fillRect(item.box(), item.brush);
  paintFrame(painter, item.box(), item.pen);
}

} // namespace TVR::Page
