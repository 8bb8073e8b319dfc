#pragma once

class QImage;
class QPageLayout;
class QPaintDevice;
class QSizeF;
class QString;

namespace TVR::Page {

class Canvas;

/// Writes the page to a file of the kind that the ending names: ".pdf" (vectors, at the size of the
/// sheet), ".svg" (vectors) or ".png" (150 dots per inch). False for another ending or if the file
/// can't be written; an older file of that name then stays. Needs a QGuiApplication.
bool exportPage(const Canvas& canvas, const QString& fileName);

/// The page as exported to PNG, at 150 dots per inch; null if the sheet has no size or too much of
/// it.
QImage pictureOf(const Canvas& canvas);

/// A sheet of this size [mm] without margins, by the name of its format where it has one.
QPageLayout sheetLayout(const QSizeF& size);

/// Draws the page on a device of this resolution; false if the device can't be drawn on.
bool drawSheet(QPaintDevice& device, double dotsPerInch, const Canvas& canvas);

} // namespace TVR::Page
