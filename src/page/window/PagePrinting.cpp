#include "page/window/PagePrinting.h"

#include "page/model/Canvas.h"
#include "page/painting/Inch.h"
#include "page/painting/PagePainter.h"

#include <QPageLayout>
#include <QPainter>
#include <QPrinter>

#include <algorithm>

namespace TVR::Page {

double printPage(const Canvas& canvas, QPrinter& printer) {
  constexpr double tolerance = 0.5; // papers of one name differ by less [mm]
  const QSizeF sheet = canvas.paperSize();
  printer.setFullPage(true);
  QPainter painter;
  if (sheet.isEmpty() || !painter.begin(&printer))
    return 0;
  const QRectF paper = printer.pageLayout().fullRect(QPageLayout::Millimeter);
  double shrinking = std::min(paper.width() / sheet.width(), paper.height() / sheet.height());
  if (sheet.width() < paper.width() + tolerance && sheet.height() < paper.height() + tolerance)
    shrinking = 1;
  const double scale = printer.resolution() / millimetresPerInch;
  painter.scale(scale, scale);
  painter.translate((paper.width() - sheet.width() * shrinking) / 2,
                    (paper.height() - sheet.height() * shrinking) / 2);
  painter.scale(shrinking, shrinking);
  paintPage(painter, canvas);
  return painter.end() ? shrinking : 0;
}

} // namespace TVR::Page
