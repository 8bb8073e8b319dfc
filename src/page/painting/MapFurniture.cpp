#include "page/painting/MapFurniture.h"

#include "page/model/Items.h"
#include "page/painting/PageText.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace TVR::Page {

namespace {

// Lengths in [mm].
constexpr double longestBar = 50;
constexpr double barHeight = 1.2;
constexpr double distanceToMap = 1.8;
constexpr double labelGap = 0.3;
constexpr double arrowWidth = 4;
constexpr double arrowHeight = 5;
constexpr double narrowestMargin = 8.5;
constexpr double outline = 0.12;

void paintScaleBar(QPainter& painter, const PlotItem& map) {
  const double metre = map.scale().width();
  const ScaleBar bar = scaleBar(metre, std::min(longestBar, map.area().width() / 2));
  if (!(bar.length > 0))
    return;
  const QPointF start = map.area().topLeft() - QPointF(0, distanceToMap + barHeight);
  const double part = bar.length / bar.parts;
  painter.setPen(QPen(Qt::black, outline));
  for (int k = 0; k < bar.parts; ++k) {
    painter.setBrush(k % 2 == 0 ? Qt::black : Qt::white);
    painter.drawRect(QRectF(start + QPointF(k * part * metre, 0), QSizeF(part * metre, barHeight)));
  }
  const auto write = [&](double length, const QString& text) {
    drawText(painter, start + QPointF(length * metre, -labelGap),
             Qt::AlignHCenter | Qt::AlignBottom, text, map.font);
  };
  write(0, "0");
  write(part, QString::number(part / bar.unitLength));
  write(bar.length, QString::number(bar.length / bar.unitLength) + ' ' + bar.unit);
}

void paintNorthArrow(QPainter& painter, const PlotItem& map) {
  const QPointF foot = map.area().topRight() - QPointF(arrowWidth / 2 + 0.5, distanceToMap);
  const QPointF tip = foot - QPointF(0, arrowHeight);
  const QPointF notch = foot - QPointF(0, arrowHeight / 4);
  const QPointF side(arrowWidth / 2, 0);
  painter.setPen(QPen(Qt::black, outline, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  painter.setBrush(Qt::black);
  painter.drawPolygon(QPolygonF(QVector<QPointF>{tip, foot - side, notch}));
  painter.setBrush(Qt::white);
  painter.drawPolygon(QPolygonF(QVector<QPointF>{tip, foot + side, notch}));
  QFont font = map.font;
  font.setBold(true);
  // The direction has the same letter in all languages of the pages.
  drawText(painter, tip, Qt::AlignHCenter | Qt::AlignBottom, "N", font);
}

} // namespace

ScaleBar scaleBar(double metre, double room) {
  if (!(metre > 0) || !(room > 0) || !std::isfinite(room / metre))
    return {};
  const double longest = room / metre;
  const double power = std::pow(10, std::floor(std::log10(longest)));
  const double digit = longest >= 5 * power ? 5 : longest >= 2 * power ? 2 : 1;
  ScaleBar bar;
  bar.length = digit * power;
  bar.parts = digit == 5 ? 5 : 2;
  const bool isLong = bar.length >= 1000;
  bar.unit = isLong ? "km" : "m";
  bar.unitLength = isLong ? 1000 : 1;
  return bar;
}

void paintMapFurniture(QPainter& painter, const PlotItem& map) {
  if (map.margins.top() < narrowestMargin || map.scale().isEmpty())
    return;
  painter.save();
  paintScaleBar(painter, map);
  paintNorthArrow(painter, map);
  painter.restore();
}

} // namespace TVR::Page
