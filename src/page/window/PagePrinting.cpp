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
  const QPageLayout layout = printer.pageLayout();
  const QRectF room = layout.fullRect(QPageLayout::Millimeter)
                          .marginsRemoved(layout.margins(QPageLayout::Millimeter));
  double shrinking = std::min(room.width() / sheet.width(), room.height() / sheet.height());
  if (sheet.width() < room.width() + tolerance && sheet.height() < room.height() + tolerance)
    shrinking = 1;
  const double scale = printer.resolution() / millimetresPerInch;
  painter.scale(scale, scale);
  painter.translate(room.center() - QRectF({0, 0}, sheet * shrinking).center());
  painter.scale(shrinking, shrinking);
  paintPage(painter, canvas);
  return painter.end() ? shrinking : 0;
}

} // namespace TVR::Page
