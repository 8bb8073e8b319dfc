#pragma once

#include <memory>
#include <vector>

class QPainter;

namespace TVR::Page {

struct Item;
struct LegendItem;

/// Draws a legend of the plots among `items` that have a heading for it.
void paintLegend(QPainter& painter, const LegendItem& legend,
                 const std::vector<std::unique_ptr<Item>>& items);

} // namespace TVR::Page
