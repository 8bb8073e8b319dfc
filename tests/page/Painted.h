#pragma once

#include "page/model/Items.h"
#include "page/painting/PagePainter.h"

#include <QImage>
#include <QPainter>

#include <functional>
#include <memory>
#include <vector>

/// Pictures of items for tests that look at pixels: ten of them to the millimetre.
namespace Painted {

constexpr int pixelsPerMillimetre = 10;

/// A white sheet of this size [mm] that `paint` has drawn on.
inline QImage sheet(const QSize& size, const std::function<void(QPainter&)>& paint) {
  QImage image(size * pixelsPerMillimetre, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.scale(pixelsPerMillimetre, pixelsPerMillimetre);
  paint(painter);
  return image;
}

/// A white sheet with one item.
inline QImage item(const QSize& size, std::unique_ptr<TVR::Page::Item> item) {
  std::vector<std::unique_ptr<TVR::Page::Item>> items;
  items.push_back(std::move(item));
  return sheet(size, [&](QPainter& painter) { TVR::Page::paintItems(painter, items, size); });
}

/// The colour at a place [mm].
inline QColor at(const QImage& image, const QPointF& place) {
  return image.pixelColor((place * pixelsPerMillimetre).toPoint());
}

/// The box around all that is not white within `within` [mm], in [mm]; null if there is nothing.
inline QRectF inkBox(const QImage& image, const QRectF& within) {
  const QRect area =
      QRectF(within.topLeft() * pixelsPerMillimetre, within.size() * pixelsPerMillimetre).toRect() &
      image.rect();
  QRect box;
  for (int y = area.top(); y <= area.bottom(); ++y)
    for (int x = area.left(); x <= area.right(); ++x)
      if (image.pixel(x, y) != 0xffffffff)
        box |= QRect(x, y, 1, 1);
  return QRectF(QPointF(box.topLeft()) / pixelsPerMillimetre,
                QSizeF(box.size()) / pixelsPerMillimetre);
}

inline QRectF inkBox(const QImage& image) {
  return inkBox(image, QRectF({0, 0}, QSizeF(image.size()) / pixelsPerMillimetre));
}

} // namespace Painted
