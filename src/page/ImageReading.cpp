#include "page/ImageReading.h"

#include <QFile>
#include <QImageReader>

namespace TVR::Page {

QImage readImage(QIODevice& device, qint64 pixels) {
  QImageReader reader(&device);
  const QSize size = reader.size();
  if (size.isEmpty() || static_cast<qint64>(size.width()) * size.height() > pixels)
    return {};
  return reader.read();
}

QImage readImage(const QString& file) {
  QFile device(file);
  return device.open(QIODevice::ReadOnly) ? readImage(device) : QImage();
}

} // namespace TVR::Page
