#pragma once

#include <QFont>
#include <QPointF>
#include <QSizeF>
#include <QString>

#include <vector>

namespace TVR::Page {

struct Item;
struct LegendItem;
struct PlotItem;

/// A line of a legend: an item with its sample, or a heading or note without one.
struct LegendEntry {
  const Item* item = nullptr; ///< null for a heading or note
  QString text;
  QFont font;
  int symbol = 0; ///< of a curve: the sample's
};

/// The heading of a plot and the items in it that ask to be listed: wells and other curves, cells,
/// then isolines, those of an imported grid with its name; a curve once for each meaning that its
/// points have. Items of one kind with the same text are listed once. A grid whose temperature
/// stays as it is adds a note that says so. Empty if the plot is hidden, has no heading or nothing
/// to list.
std::vector<LegendEntry> legendEntries(const PlotItem& plot, const QFont& font);

/// Where the entries of a legend go.
struct LegendLayout {
  double scale = 1;            ///< of texts and samples, at most 1, so that all fit
  std::vector<QPointF> places; ///< left end and middle of each entry, from the legend's corner [mm]
  std::vector<QSizeF> sizes;   ///< of each entry with its sample [mm]
};

/// Puts headings above their entries, which fill one column after the other. There are as many
/// columns as the legend says, or more if only so the texts stay legible.
LegendLayout layOutLegend(const std::vector<LegendEntry>& entries, const LegendItem& legend);

} // namespace TVR::Page
