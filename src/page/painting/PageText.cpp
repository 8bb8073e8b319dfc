#include "page/painting/PageText.h"

#include "disk/ClosedDocument.h"
#include "page/model/Items.h"
#include "page/painting/LinePainter.h"

#include <QAbstractTextDocumentLayout>
#include <QCache>
#include <QCoreApplication>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <memory>

namespace TVR::Page {

namespace {

/// What texts are measured on.
QImage& referenceDevice() {
  static QImage device = [] {
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    image.setDotsPerMeterX(qRound(textResolution / 0.0254));
    image.setDotsPerMeterY(qRound(textResolution / 0.0254));
    return image;
  }();
  return device;
}

struct LaidText {
  ClosedDocument document;
  double scale = 1;
};

bool isTurnedUpright(const TextItem& item) {
  return std::abs(std::remainder(item.rotation, 180)) > 45;
}

/// The room for the text in a part of its box, before it is turned [mm].
QSizeF textRoom(const TextItem& item, const QRectF& part) {
  const QSizeF room = part.size() - QSizeF(2 * item.margin, 2 * item.margin);
  return isTurnedUpright(item) ? room.transposed() : room;
}

/// Lays the text out for a box of `room` [dots] that is `scale` times smaller on the page.
bool fits(QTextDocument& document, const QSizeF& room, bool wraps, double scale) {
  // A line that fits by less than a hundredth of a millimetre is not worth another size.
  constexpr double slack = 0.5;
  document.setTextWidth(wraps ? room.width() / scale : -1);
  return document.idealWidth() * scale <= room.width() + slack &&
         document.size().height() * scale <= room.height() + slack;
}

void layOut(LaidText& text, const TextItem& item, const QSizeF& roomOnPage) {
  text.document.setUndoRedoEnabled(false);
  text.document.documentLayout()->setPaintDevice(&referenceDevice());
  text.document.setDocumentMargin(0);
  QFont font = item.font;
  font.setHintingPreference(QFont::PreferNoHinting);
  text.document.setDefaultFont(font);
  text.document.setHtml(item.html);
  const QSizeF room = roomOnPage / textDot;
  if (!(room.width() > 0) || !(room.height() > 0) || fits(text.document, room, item.wraps, 1))
    return;
  double fitting = 0.05;
  double tooLarge = 1;
  while (tooLarge - fitting > 0.005) {
    const double scale = (fitting + tooLarge) / 2;
    (fits(text.document, room, item.wraps, scale) ? fitting : tooLarge) = scale;
  }
  text.scale = fitting;
  fits(text.document, room, item.wraps, fitting);
}

/// Layouts of the last texts drawn: a page redraws the same ones with every frame.
QCache<QString, LaidText>& laidTexts() {
  static QCache<QString, LaidText> cache(64);
  static const bool clearsWithApplication = [] {
    qAddPostRoutine([] { laidTexts().clear(); });
    return true;
  }();
  Q_UNUSED(clearsWithApplication);
  return cache;
}

LaidText& laidText(const TextItem& item, const QSizeF& room) {
  const QString key = QString("%1\n%2 %3 %4\n%5")
                          .arg(item.font.toString())
                          .arg(room.width())
                          .arg(room.height())
                          .arg(item.wraps)
                          .arg(item.html);
  if (LaidText* known = laidTexts().object(key))
    return *known;
  auto text = std::make_unique<LaidText>();
  layOut(*text, item, room);
  LaidText& laid = *text;
  laidTexts().insert(key, text.release());
  return laid;
}

} // namespace

QFont pageFont(const QFont& font) {
  QFont inDots = font;
  const double points = font.pointSizeF() > 0 ? font.pointSizeF() : font.pixelSize() * 72 / 96.;
  inDots.setPixelSize(std::max(1, qRound(points * textResolution / 72)));
  inDots.setHintingPreference(QFont::PreferNoHinting);
  return inDots;
}

QSizeF textSize(const QString& text, const QFont& font) {
  const QFontMetricsF metrics(pageFont(font), &referenceDevice());
  return QSizeF(metrics.horizontalAdvance(text), metrics.height()) * textDot;
}

void drawText(QPainter& painter, const QPointF& place, Qt::Alignment alignment, const QString& text,
              const QFont& font, double scale, double angle) {
  const QFont inDots = pageFont(font);
  const QFontMetricsF metrics(inDots, &referenceDevice());
  const double width = metrics.horizontalAdvance(text);
  double x = 0;
  if (alignment & Qt::AlignHCenter)
    x = -width / 2;
  else if (alignment & Qt::AlignRight)
    x = -width;
  double y = metrics.ascent();
  if (alignment & Qt::AlignVCenter)
    y = metrics.ascent() - metrics.height() / 2;
  else if (alignment & Qt::AlignBottom)
    y = -metrics.descent();
  painter.save();
  painter.translate(place);
  painter.rotate(angle);
  painter.scale(scale * textDot, scale * textDot);
  painter.setFont(inDots);
  painter.drawText(QPointF(x, y), text);
  painter.restore();
}

QPainterPath textOutline(const QString& text, const QFont& font) {
  const QFont inDots = pageFont(font);
  const QFontMetricsF metrics(inDots, &referenceDevice());
  QPainterPath outline;
  outline.addText(-metrics.horizontalAdvance(text) / 2, metrics.ascent() - metrics.height() / 2,
                  inDots, text);
  return QTransform::fromScale(textDot, textDot).map(outline);
}

void paintTextItem(QPainter& painter, const TextItem& item, const QRectF& part) {
  paintBox(painter, item);
  const QSizeF room = textRoom(item, part);
  if (item.html.isEmpty() || room.isEmpty())
    return;
  LaidText& text = laidText(item, room);
  painter.save();
  painter.translate(part.center());
  painter.rotate(item.rotation);
  painter.translate(-room.width() / 2, -room.height() / 2);
  painter.scale(textDot * text.scale, textDot * text.scale);
  QAbstractTextDocumentLayout::PaintContext context;
  context.palette.setColor(QPalette::Text, item.colour);
  text.document.documentLayout()->draw(&painter, context);
  painter.restore();
}

double textItemScale(const TextItem& item) {
  return laidText(item, textRoom(item, item.box())).scale;
}

} // namespace TVR::Page
