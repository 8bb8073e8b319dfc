#include "page/painting/PicturePainter.h"

#include "page/model/Items.h"
#include "page/painting/Inch.h"
#include "page/painting/LinePainter.h"

#include <QCache>
#include <QPaintEngine>
#include <QPainter>

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

/// The part of the image, which fills `target`, in `visible`, with the pixels of a good print.
QImage visiblePart(const QImage& image, const QRectF& target, const QRectF& visible) {
  constexpr double coarsest = 300 / millimetresPerInch; // pixels per millimetre
  constexpr double finest = 600 / millimetresPerInch;
  const double resolution = std::clamp(image.width() / target.width(), coarsest, finest);
  QImage part((visible.size() * resolution).toSize().expandedTo({1, 1}),
              QImage::Format_ARGB32_Premultiplied);
  part.fill(Qt::transparent);
  QPainter painter(&part);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.scale(part.width() / visible.width(), part.height() / visible.height());
  painter.translate(-visible.topLeft());
  painter.drawImage(target, image);
  painter.end();
  return image.hasAlphaChannel() ? part : part.convertToFormat(QImage::Format_RGB32);
}

/// Draws the part of the image, which fills `target`, that lies within `within`.
void drawImage(QPainter& painter, const QImage& original, const QRectF& target,
               const QRectF& within) {
  const QRectF visible = target.intersected(within);
  if (original.isNull() || visible.isEmpty())
    return;
  painter.save();
  if (painter.paintEngine()->type() == QPaintEngine::Raster) {
    painter.setClipRect(visible, Qt::IntersectClip);
    painter.drawImage(target, halved(original, spareHalvings(painter, original, target)));
  } else {
    // Not all files can cut an image.
    const QImage image = visible == target ? original : visiblePart(original, target, visible);
    constexpr int lossless = 1 << 20; // pixels up to which a file keeps every one as it is
    painter.setRenderHint(QPainter::LosslessImageRendering,
                          image.width() * image.height() <= lossless);
    painter.drawImage(visible, image);
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
  paintFrame(painter, box, picture.pen);
}

void paintPicture(QPainter& painter, const PictureItem& picture, const PlotItem& plot) {
  const QPointF topLeft = picture.position;
  const QPointF bottomRight = topLeft + QPointF(picture.size.width(), -picture.size.height());
  const QRectF target(plot.toPage(topLeft), plot.toPage(bottomRight));
  if (target.isEmpty())
    return;
  drawImage(painter, picture.image, target, plot.clipsChildren ? plot.area() : target);
  paintFrame(painter, plot.clipsChildren ? target.intersected(plot.area()) : target, picture.pen);
}

} // namespace TVR::Page
