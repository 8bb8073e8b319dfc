#pragma once

#include <QImage>

class QIODevice;

namespace TVR::Page {

/// More picture elements than this are not decoded, however small the file that asks for them.
constexpr qint64 maximumPixels = 150'000'000;

/// An image of any format that Qt reads. Null if it is none, or if its size is unknown or above
/// `pixels`.
QImage readImage(QIODevice& device, qint64 pixels = maximumPixels);
QImage readImage(const QString& file);

} // namespace TVR::Page
