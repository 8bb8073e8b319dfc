#include "page/painting/PageExport.h"

#include "disk/FileReplacement.h"
#include "page/model/Canvas.h"
#include "page/painting/PagePainter.h"
#include "page/painting/PageText.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSvgGenerator>

#include <algorithm>

namespace TVR::Page {

namespace {

constexpr double millimetresPerInch = 25.4;
constexpr int pictureResolution = 150; // [dots per inch]
constexpr int vectorResolution = 1200;

/// The sheet without margins, by the name of its format where it has one.
QPageLayout sheetLayout(const QSizeF& size) {
  const bool isLandscape = size.width() > size.height();
  const QSizeF upright = isLandscape ? size.transposed() : size;
  return {QPageSize(upright, QPageSize::Millimeter, QString(), QPageSize::FuzzyMatch),
          isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()};
}

/// Draws the page on a device of this resolution; false if the device can't be drawn on.
bool drawOn(QPaintDevice& device, double dotsPerInch, const Canvas& canvas) {
  QPainter painter;
  if (!painter.begin(&device))
    return false;
  painter.scale(dotsPerInch / millimetresPerInch, dotsPerInch / millimetresPerInch);
  paintPage(painter, canvas);
  return painter.end();
}

bool writePdf(QIODevice& file, const Canvas& canvas) {
  QPdfWriter writer(&file);
  writer.setCreator("Tevrane");
  writer.setResolution(vectorResolution);
  writer.setPageLayout(sheetLayout(canvas.paperSize()));
  return drawOn(writer, vectorResolution, canvas);
}

bool writeSvg(QIODevice& file, const Canvas& canvas) {
  QSvgGenerator writer;
  writer.setOutputDevice(&file);
  // Fonts are written in dots of this resolution.
  writer.setResolution(textResolution);
  writer.setSize((canvas.paperSize() / textDot).toSize());
  writer.setViewBox(QRectF({0, 0}, canvas.paperSize()));
  return drawOn(writer, millimetresPerInch, canvas);
}

bool writePng(QIODevice& file, const Canvas& canvas) {
  QImage image((canvas.paperSize() * pictureResolution / millimetresPerInch).toSize(),
               QImage::Format_ARGB32_Premultiplied);
  if (image.isNull())
    return false;
  image.setDotsPerMeterX(qRound(pictureResolution * 1000 / millimetresPerInch));
  image.setDotsPerMeterY(image.dotsPerMeterX());
  image.fill(Qt::white);
  return drawOn(image, pictureResolution, canvas) && image.save(&file, "PNG");
}

struct Format {
  const char* ending;
  bool (*write)(QIODevice&, const Canvas&);
};

constexpr Format formats[] = {{"pdf", writePdf}, {"svg", writeSvg}, {"png", writePng}};

} // namespace

bool exportPage(const Canvas& canvas, const QString& fileName) {
  const QString ending = QFileInfo(fileName).suffix().toLower();
  const auto* format = std::find_if(std::begin(formats), std::end(formats),
                                    [&](const Format& one) { return ending == one.ending; });
  if (format == std::end(formats) || canvas.paperSize().isEmpty())
    return false;
  QBuffer file;
  return file.open(QIODevice::WriteOnly) && format->write(file, canvas) &&
         replaceFile(fileName, file.data());
}

void printPage(const Canvas& canvas, QPrinter& printer) {
  printer.setFullPage(true);
  printer.setPageLayout(sheetLayout(canvas.paperSize()));
  drawOn(printer, printer.resolution(), canvas);
}

} // namespace TVR::Page
