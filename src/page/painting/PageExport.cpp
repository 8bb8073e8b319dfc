#include "page/painting/PageExport.h"

#include "disk/FileReplacement.h"
#include "page/model/Canvas.h"
#include "page/painting/Inch.h"
#include "page/painting/PagePainter.h"
#include "page/painting/PageText.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <algorithm>

namespace TVR::Page {

namespace {

constexpr int pictureResolution = 150; // [dots per inch]
constexpr int vectorResolution = 1200;

bool writePdf(QIODevice& file, const Canvas& canvas) {
  QPdfWriter writer(&file);
  writer.setCreator("Tevrane");
  writer.setResolution(vectorResolution);
  writer.setPageLayout(sheetLayout(canvas.paperSize()));
  return drawSheet(writer, vectorResolution, canvas);
}

bool writeSvg(QIODevice& file, const Canvas& canvas) {
  QSvgGenerator writer;
  writer.setOutputDevice(&file);
  // Fonts are written in dots of this resolution.
  writer.setResolution(textResolution);
  writer.setSize((canvas.paperSize() / textDot).toSize());
  writer.setViewBox(QRectF({0, 0}, canvas.paperSize()));
  return drawSheet(writer, millimetresPerInch, canvas);
}

bool writePng(QIODevice& file, const Canvas& canvas) {
  const QImage picture = pictureOf(canvas);
  return !picture.isNull() && picture.save(&file, "PNG");
}

struct Format {
  const char* ending;
  bool (*write)(QIODevice&, const Canvas&);
};

constexpr Format formats[] = {{"pdf", writePdf}, {"svg", writeSvg}, {"png", writePng}};

} // namespace

QPageLayout sheetLayout(const QSizeF& size) {
  const bool isLandscape = size.width() > size.height();
  const QSizeF upright = isLandscape ? size.transposed() : size;
  return {QPageSize(upright, QPageSize::Millimeter, QString(), QPageSize::FuzzyMatch),
          isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()};
}

bool drawSheet(QPaintDevice& device, double dotsPerInch, const Canvas& canvas) {
  QPainter painter;
  if (!painter.begin(&device))
    return false;
  painter.scale(dotsPerInch / millimetresPerInch, dotsPerInch / millimetresPerInch);
  paintPage(painter, canvas);
  return painter.end();
}

QImage pictureOf(const Canvas& canvas) {
  QImage image((canvas.paperSize() * pictureResolution / millimetresPerInch).toSize(),
               QImage::Format_ARGB32_Premultiplied);
  if (image.isNull())
    return {};
  image.setDotsPerMeterX(qRound(pictureResolution * 1000 / millimetresPerInch));
  image.setDotsPerMeterY(image.dotsPerMeterX());
  image.fill(Qt::white);
  return drawSheet(image, pictureResolution, canvas) ? image : QImage();
}

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

} // namespace TVR::Page
