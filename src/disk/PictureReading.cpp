#include "disk/PictureReading.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace TVR {

namespace {

QString& onlyDirectory() {
  static QString directory;
  return directory;
}

bool hasPixels(const QImageReader& reader) {
  static const QList<QByteArray> forms{"png",  "jpg",  "jpeg", "bmp", "gif", "tif",
                                       "tiff", "webp", "ppm",  "pgm", "pbm"};
  return forms.contains(reader.format());
}

/// The size of the picture that `reader` is about to read from `device`; empty if it must not.
QSize sizeOf(QIODevice& device, qint64 pixels, QImageReader& reader) {
  reader.setDevice(&device);
  reader.setDecideFormatFromContent(true);
  if (!hasPixels(reader))
    return {};
  const QSize size = reader.size();
  const bool isTaken =
      !size.isEmpty() && static_cast<qint64>(size.width()) * size.height() <= pixels;
  return isTaken ? size : QSize();
}

/// A pipe would never end to be opened, a device never to be read.
bool openPicture(QFile& file) {
  const QFileInfo info(file);
  return info.isFile() && info.size() <= largestPictureFile &&
         liesWherePicturesAreTaken(file.fileName()) && file.open(QIODevice::ReadOnly);
}

} // namespace

QImage readImage(QIODevice& device, qint64 pixels) {
  QImageReader reader;
  return sizeOf(device, pixels, reader).isEmpty() ? QImage() : reader.read();
}

QImage readImage(const QString& file) {
  QFile device(file);
  return openPicture(device) ? readImage(device) : QImage();
}

QSize pictureSize(const QString& file) {
  QFile device(file);
  QImageReader reader;
  return openPicture(device) ? sizeOf(device, maximumPixels, reader) : QSize();
}

bool isPicture(const QString& file) {
  return !readImage(file).isNull();
}

void takePicturesFrom(const QString& directory) {
  onlyDirectory() = directory.isEmpty() ? QString() : QFileInfo(directory).canonicalFilePath();
}

bool liesWherePicturesAreTaken(const QString& file) {
  if (onlyDirectory().isEmpty())
    return true;
  const QString beginning = onlyDirectory().endsWith('/') ? onlyDirectory() : onlyDirectory() + '/';
  return QFileInfo(file).canonicalFilePath().startsWith(beginning);
}

} // namespace TVR
