#include "page/painting/Legend.h"

#include "page/model/Items.h"
#include "page/painting/PageText.h"

#include <QCoreApplication>

#include <algorithm>
#include <numeric>

namespace TVR::Page {

namespace {

constexpr double columnGap = 4;      // [mm]
constexpr double legibleScale = 0.7; // below it more columns are tried
constexpr int mostColumns = 5;

QString listedText(const Item& item) {
  if (const auto* isoline = dynamic_cast<const IsolineItem*>(&item)) {
    const QString text = isoline->legendText.isEmpty() ? item.name : isoline->legendText;
    const auto* grid = dynamic_cast<const GridDataItem*>(item.parent);
    return grid && grid->isImported ? text + ", " + grid->name : text;
  }
  if (const auto* grid = dynamic_cast<const GridDataItem*>(&item))
    return grid->title.isEmpty() ? item.name : grid->title;
  return item.name;
}

bool isListed(const Item& item) {
  if (const auto* curve = dynamic_cast<const CurveItem*>(&item))
    return curve->inLegend && (curve->visible || curve->symbol != CurveItem::NoSymbol);
  if (const auto* grid = dynamic_cast<const GridDataItem*>(&item))
    return grid->inLegend && grid->visible && grid->colouredSet();
  if (const auto* isoline = dynamic_cast<const IsolineItem*>(&item))
    return isoline->inLegend && isoline->visible && isoline->line.points.size() > 1;
  return false;
}

void list(const LegendEntry& wished, std::vector<LegendEntry>& entries) {
  const bool isKnown = std::any_of(entries.begin(), entries.end(), [&](const LegendEntry& entry) {
    return entry.item && entry.item->kind == wished.item->kind && entry.text == wished.text;
  });
  if (isListed(*wished.item) && !wished.text.isEmpty() && !isKnown)
    entries.push_back(wished);
}

void list(const Item& item, const QFont& font, std::vector<LegendEntry>& entries) {
  const auto* curve = dynamic_cast<const CurveItem*>(&item);
  if (!curve) {
    list({&item, listedText(item), font}, entries);
    return;
  }
  // A curve that is being dragged is listed although its points are taken out of the page.
  const int marked = static_cast<int>(curve->marks.size());
  const int count =
      std::clamp(std::max(curve->points.size(), marked), 1, CurveItem::mostMarksShown);
  for (int point = 0; point < count; ++point) {
    const bool isMarked = point < marked;
    const QString meaning = isMarked ? curve->marks[point].legend : QString();
    list({&item, meaning.isEmpty() ? item.name : meaning, font, curve->symbolOf(point)}, entries);
  }
}

/// Whether a grid that wants to be listed has a temperature, and that without a change.
bool isUnchanged(const Item& item) {
  const auto* grid = dynamic_cast<const GridDataItem*>(&item);
  return grid && grid->inLegend && grid->visible && grid->keepsItsTemperature();
}

QString noChange() {
  return QCoreApplication::translate("Legend", "no change above %1 K")
      .arg(Sketra_lib::Property::leastChange);
}

double entryHeight(const LegendEntry& entry) {
  return textSize("X", entry.font).height();
}

double entryWidth(const LegendEntry& entry, const LegendItem& legend) {
  const double sample = entry.item ? legend.symbolWidth + legend.spacing : 0;
  return sample + textSize(entry.text, entry.font).width();
}

/// The entries at their own size, in a number of columns.
struct Arrangement {
  std::vector<QPointF> places;
  QSizeF size;
};

/// Puts the entries from `first` to before `end` below `top`, one column after the other.
void arrangeBlock(const std::vector<LegendEntry>& entries, std::size_t first, std::size_t end,
                  const LegendItem& legend, int columns, Arrangement& arrangement) {
  const std::size_t rows = (end - first + columns - 1) / columns;
  if (rows == 0)
    return;
  const double top = arrangement.size.height();
  double row = 0;
  for (std::size_t i = first; i < end; ++i)
    row = std::max(row, entryHeight(entries[i]) + legend.spacing);
  double left = 0;
  for (std::size_t i = first; i < end; i += rows) {
    const std::size_t columnEnd = std::min(end, i + rows);
    double width = 0;
    for (std::size_t k = i; k < columnEnd; ++k) {
      arrangement.places.emplace_back(left, top + (k - i + 0.5) * row);
      width = std::max(width, entryWidth(entries[k], legend));
    }
    arrangement.size.setWidth(std::max(arrangement.size.width(), left + width));
    left += width + columnGap;
  }
  arrangement.size.setHeight(top + rows * row);
}

Arrangement arrange(const std::vector<LegendEntry>& entries, const LegendItem& legend,
                    int columns) {
  Arrangement arrangement;
  arrangement.size = {0, 0};
  for (std::size_t i = 0; i < entries.size();) {
    if (!entries[i].item) {
      const double height = entryHeight(entries[i]) + legend.spacing;
      arrangement.places.emplace_back(0, arrangement.size.height() + height / 2);
      arrangement.size = {std::max(arrangement.size.width(), entryWidth(entries[i], legend)),
                          arrangement.size.height() + height};
      ++i;
      continue;
    }
    const auto next = std::find_if(entries.begin() + i, entries.end(),
                                   [](const LegendEntry& entry) { return !entry.item; });
    const auto end = static_cast<std::size_t>(next - entries.begin());
    arrangeBlock(entries, i, end, legend, columns, arrangement);
    i = end;
  }
  return arrangement;
}

double fittingScale(const QSizeF& size, const LegendItem& legend) {
  const QSizeF room = legend.size - QSizeF(2 * legend.margin, 2 * legend.margin);
  if (size.isEmpty() || room.isEmpty())
    return 0;
  return std::min({1., room.width() / size.width(), room.height() / size.height()});
}

} // namespace

std::vector<LegendEntry> legendEntries(const PlotItem& plot, const QFont& font) {
  std::vector<LegendEntry> entries;
  if (!plot.visible || plot.legendText.isEmpty())
    return entries;
  for (const ItemKind kind : {ItemKind::Curve, ItemKind::GridData, ItemKind::Isoline})
    for (const auto& child : plot.children) {
      if (child->kind == kind)
        list(*child, font, entries);
      if (kind != ItemKind::Isoline || !child->visible)
        continue;
      for (const auto& grandchild : child->children)
        if (const auto* isoline = dynamic_cast<const IsolineItem*>(grandchild.get()))
          list(*isoline, isoline->legendFont, entries);
    }
  if (std::any_of(plot.children.begin(), plot.children.end(),
                  [](const auto& child) { return isUnchanged(*child); }))
    entries.push_back({nullptr, noChange(), font});
  if (!entries.empty())
    entries.insert(entries.begin(), {nullptr, plot.legendText, plot.legendFont});
  return entries;
}

LegendLayout layOutLegend(const std::vector<LegendEntry>& entries, const LegendItem& legend) {
  const int wished = std::max(1, legend.columns);
  Arrangement best = arrange(entries, legend, wished);
  double scale = fittingScale(best.size, legend);
  for (int columns = wished + 1; scale < legibleScale && columns <= mostColumns; ++columns) {
    Arrangement other = arrange(entries, legend, columns);
    const double otherScale = fittingScale(other.size, legend);
    if (otherScale <= scale)
      continue;
    scale = otherScale;
    best = std::move(other);
  }
  LegendLayout layout;
  layout.scale = scale;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    layout.places.push_back(QPointF(legend.margin, legend.margin) + scale * best.places[i]);
    layout.sizes.push_back(scale * QSizeF(entryWidth(entries[i], legend), entryHeight(entries[i])));
  }
  return layout;
}

} // namespace TVR::Page
