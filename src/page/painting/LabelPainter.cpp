#include "page/painting/LabelPainter.h"

#include "page/model/Items.h"
#include "page/painting/IsolineLabels.h"
#include "page/painting/LinePainter.h"
#include "page/painting/PageText.h"

#include <QCache>
#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>

#include <algorithm>

namespace TVR::Page {

namespace {

// Lengths in [mm].
constexpr double haloWidth = 0.4; // on each side of a letter
constexpr double leaderWidth = 0.1;

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

} // namespace

QFont labelFont(const PlotItem& plot) {
  QFont font = plot.font;
  font.setPointSizeF(std::max(5., (font.pointSizeF() > 0 ? font.pointSizeF() : 8) - 1));
  return font;
}

QSizeF labelRoom(const QString& text, const QFont& font) {
  return textSize(text, font) + QSizeF(1, 0);
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

void writeLabelBeside(QPainter& painter, const PlaceBeside& place, const QString& text,
                      const QFont& font, const QColor& colour) {
  if (!place.leader.isNull())
    paintLine(painter, place.leader, QPen(colour, leaderWidth));
  writeLabel(painter, place.label, text, font, colour);
}

} // namespace TVR::Page
