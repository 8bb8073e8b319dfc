#pragma once

#include <QImage>

class QIODevice;

namespace TVR {

/// More picture elements than this are not decoded, however small the file that asks for them.
constexpr qint64 maximumPixels = 150'000'000;
/// A larger file is not opened as a picture [bytes].
constexpr qint64 largestPictureFile = qint64(256) * 1024 * 1024;

/// An image in one of the usual forms of pixels, told by its content. Null if it is none, or if its
/// size is unknown or above `pixels`. A drawing is no such picture: it could name other files.
QImage readImage(QIODevice& device, qint64 pixels = maximumPixels);

/// The same from a file that anybody may have named: a regular one that is not too large, and that
/// lies where pictures are taken from. Nothing else is opened.
QImage readImage(const QString& file);

/// Width and height [picture elements] of a file that `readImage` takes, from its first bytes;
/// empty for any other.
QSize pictureSize(const QString& file);

/// Whether a file is a picture that `readImage` takes, to its last byte.
bool isPicture(const QString& file);

/// From now on pictures are taken from files below this directory only; from everywhere if empty.
void takePicturesFrom(const QString& directory);

/// Whether a file lies where pictures are taken from, links followed. One that is not there does
/// not.
bool liesWherePicturesAreTaken(const QString& file);

} // namespace TVR
