#pragma once

#include <QPen>

class QPainter;

namespace TVR::Page {

struct Item;

/// The pen as a page in [mm] needs it: dashes and gaps of a thin line are long enough to be told
/// apart on paper.
QPen pagePen(const QPen& pen);

/// Fills the box of the item with its brush and draws its frame.
void paintBox(QPainter& painter, const Item& item);

} // namespace TVR::Page
