#include "page/painting/PagePainter.h"

#include "page/model/Canvas.h"
#include "page/model/Items.h"
#include "page/painting/LegendPainter.h"
#include "page/painting/PageText.h"
#include "page/painting/PicturePainter.h"
#include "page/painting/PlotPainter.h"

#include <QPainter>

#include <algorithm>

namespace TVR::Page {

namespace {

/// The part of the item's box that a text may use on a sheet.
QRectF partOnSheet(const Item& item, const QSizeF& paper) {
  QRectF part = item.box();
  if (part.right() > paper.width())
    part.setRight(paper.width() - std::max(0., part.left()));
  if (part.bottom() > paper.height())
    part.setBottom(paper.height() - std::max(0., part.top()));
  return part;
}

void paintItem(QPainter& painter, const Item& item, const std::vector<std::unique_ptr<Item>>& page,
               const QSizeF& paper) {
  if (!item.visible)
    return;
  if (const auto* text = dynamic_cast<const TextItem*>(&item))
    paintTextItem(painter, *text, partOnSheet(item, paper));
  else if (const auto* plot = dynamic_cast<const PlotItem*>(&item))
    paintPlot(painter, *plot);
  else if (const auto* legend = dynamic_cast<const LegendItem*>(&item))
    paintLegend(painter, *legend, page);
  else if (const auto* picture = dynamic_cast<const PictureItem*>(&item))
    paintPicture(painter, *picture);
}

} // namespace

void paintItems(QPainter& painter, const std::vector<std::unique_ptr<Item>>& items,
                const QSizeF& paper) {
  painter.save();
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                         QPainter::SmoothPixmapTransform);
  for (const auto& item : items)
    paintItem(painter, *item, items, paper);
  painter.restore();
}

void paintPage(QPainter& painter, const Canvas& canvas) {
  painter.fillRect(QRectF({0, 0}, canvas.paperSize()), canvas.background());
  paintItems(painter, canvas.items(), canvas.paperSize());
}

} // namespace TVR::Page
