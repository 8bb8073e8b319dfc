#include "page/BoxPainter.h"

#include "page/Items.h"

#include <QPainter>

#include <algorithm>

namespace TVR::Page {

QPen pagePen(const QPen& pen) {
  constexpr double dashUnit = 0.4; // [mm] of a dot in a thin line
  QPen onPage = pen;
  onPage.setCosmetic(false);
  const double width = std::max(pen.widthF(), 0.02);
  onPage.setWidthF(width);
  if (pen.style() > Qt::SolidLine && pen.style() < Qt::CustomDashLine && width < dashUnit) {
    QVector<qreal> pattern = pen.dashPattern();
    for (qreal& length : pattern)
      length *= dashUnit / width;
    onPage.setDashPattern(pattern);
    onPage.setCapStyle(Qt::FlatCap);
  }
  return onPage;
}

void paintBox(QPainter& painter, const Item& item) {
  if (item.size.isEmpty())
    return;
  painter.setPen(item.pen.style() == Qt::NoPen ? QPen(Qt::NoPen) : pagePen(item.pen));
  painter.setBrush(item.brush);
  if (painter.pen().style() != Qt::NoPen || painter.brush().style() != Qt::NoBrush)
    painter.drawRect(item.box());
}

} // namespace TVR::Page
