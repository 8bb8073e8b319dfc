#include "page/PicturePainter.h"

#include "page/BoxPainter.h"
#include "page/Items.h"

#include <QCache>
#include <QPaintEngine>
#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace TVR::Page {

namespace {

/// The image made smaller by two to the power of `halvings`, from the last ones used: drawing a
/// large image small takes long and loses its thin lines.
QImage halved(const QImage& image, int halvings) {
  if (halvings <= 0)
    return image;
  static QCache<QPair<qint64, int>, QImage> reduced(64 * 1024); // [KiB]
  const QPair<qint64, int> key(image.cacheKey(), halvings);
  if (const QImage* known = reduced.object(key))
    return *known;
  const QSize size(std::max(1, image.width() >> halvings), std::max(1, image.height() >> halvings));
  const QImage smaller = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                             .convertToFormat(QImage::Format_ARGB32_Premultiplied);
  reduced.insert(key, new QImage(smaller), std::max<qsizetype>(1, smaller.sizeInBytes() / 1024));
  return smaller;
}

/// How often the image can be halved and still has a pixel for each one of the device.
int spareHalvings(const QPainter& painter, const QImage& image, const QRectF& target) {
  if (painter.paintEngine()->type() != QPaintEngine::Raster)
    return 0;
  const QRectF onDevice = painter.deviceTransform().mapRect(target);
  const double spare =
      std::min(image.width() / onDevice.width(), image.height() / onDevice.height());
  return spare >= 2 ? std::min(12, static_cast<int>(std::floor(std::log2(spare)))) : 0;
}

/// Draws the part of the image, which fills `target`, that lies within `within`.
void drawImage(QPainter& painter, const QImage& original, const QRectF& target,
               const QRectF& within) {
  const QRectF visible = target.intersected(within);
  if (original.isNull() || visible.isEmpty())
    return;
  const QImage image = halved(original, spareHalvings(painter, original, target));
  const QTransform toImage =
      QTransform::fromTranslate(-target.x(), -target.y()) *
      QTransform::fromScale(image.width() / target.width(), image.height() / target.height());
  painter.save();
  constexpr int lossless = 1 << 20; // pixels up to which a file keeps every one as it is
  painter.setRenderHint(QPainter::LosslessImageRendering,
                        image.width() * image.height() <= lossless);
  if (visible == target)
    painter.drawImage(target, image);
  else {
    // Whole pixels of the source: a device that embeds images takes these only.
    const QRect source = toImage.mapRect(visible).toAlignedRect() & image.rect();
    painter.setClipRect(visible, Qt::IntersectClip);
    painter.drawImage(toImage.inverted().mapRect(QRectF(source)), image, source);
  }
  painter.restore();
}

} // namespace

void paintPicture(QPainter& painter, const PictureItem& picture) {
  const QRectF box = picture.box();
  QSizeF size = picture.image.size();
  size.scale(box.size(), Qt::KeepAspectRatio);
  QRectF target({0, 0}, size);
  target.moveCenter(box.center());
  drawImage(painter, picture.image, target, box);
  paintBox(painter, picture);
}

void paintPicture(QPainter& painter, const PictureItem& picture, const PlotItem& plot) {
  const QPointF topLeft = picture.position;
  const QPointF bottomRight = topLeft + QPointF(picture.size.width(), -picture.size.height());
  const QRectF target(plot.toPage(topLeft), plot.toPage(bottomRight));
  if (target.isEmpty())
    return;
  drawImage(painter, picture.image, target, plot.clipsChildren ? plot.area() : target);
  if (picture.pen.style() == Qt::NoPen || picture.pen.color().alpha() == 0)
    return;
  painter.setPen(pagePen(picture.pen));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(target.intersected(plot.area()));
}

} // namespace TVR::Page
