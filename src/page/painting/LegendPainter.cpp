#include "page/painting/LegendPainter.h"

#include "page/model/ItemWalk.h"
#include "page/painting/CurvePainter.h"
#include "page/painting/GridPainter.h"
#include "page/painting/IsolinePainter.h"
#include "page/painting/Legend.h"
#include "page/painting/LinePainter.h"
#include "page/painting/PageText.h"

#include <QLineF>
#include <QPainter>

namespace TVR::Page {

namespace {

/// Draws what the item of an entry looks like over the length of `line`.
void paintSample(QPainter& painter, const LegendEntry& entry, const QLineF& line) {
  const Item& item = *entry.item;
  if (const auto* curve = dynamic_cast<const CurveItem*>(&item)) {
    if (curve->visible && curve->style != Sketra_lib::Property::SymbolsOnly)
      paintLine(painter, line, curve->pen);
    paintSymbol(painter, *curve, entry.symbol, line.center());
  } else if (const auto* isoline = dynamic_cast<const IsolineItem*>(&item)) {
    paintLine(painter, line, isolinePen(*isoline));
  } else if (const auto* grid = dynamic_cast<const GridDataItem*>(&item)) {
    paintColours(painter, *grid, QRectF(line.p1() - QPointF(0, 1.1), line.p2() + QPointF(0, 1.1)));
  }
}

} // namespace

void paintLegend(QPainter& painter, const LegendItem& legend,
                 const std::vector<std::unique_ptr<Item>>& items) {
  paintBox(painter, legend);
  std::vector<LegendEntry> entries;
  forEach<PlotItem>(items, [&](const PlotItem& plot) {
    const std::vector<LegendEntry> ofPlot = legendEntries(plot, legend.font);
    entries.insert(entries.end(), ofPlot.begin(), ofPlot.end());
  });
  const LegendLayout layout = layOutLegend(entries, legend);
  if (layout.scale <= 0)
    return;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const QPointF place = legend.position + layout.places[i];
    double indent = 0;
    if (entries[i].item) {
      painter.save();
      painter.translate(place);
      painter.scale(layout.scale, layout.scale);
      paintSample(painter, entries[i], QLineF(0, 0, legend.symbolWidth, 0));
      painter.restore();
      indent = (legend.symbolWidth + legend.spacing) * layout.scale;
    }
    painter.setPen(Qt::black);
    drawText(painter, place + QPointF(indent, 0), Qt::AlignLeft | Qt::AlignVCenter, entries[i].text,
             entries[i].font, layout.scale);
  }
}

} // namespace TVR::Page
