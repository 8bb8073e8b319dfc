#pragma once

#include <memory>
#include <vector>

class QPainter;
class QSizeF;

namespace TVR::Page {

class Canvas;
struct Item;

/// Draws a page. The painter's coordinates are [mm] from the top left corner of the sheet, so that
/// a screen, a printer and a file look the same: see PageExport.h for how they are set up.
void paintPage(QPainter& painter, const Canvas& canvas);

/// Draws items that lie directly on a sheet of this size [mm], with all that is in them, in their
/// order. What is not visible takes no room. A text whose box reaches beyond the sheet keeps as far
/// off that edge as its box is off the opposite one.
void paintItems(QPainter& painter, const std::vector<std::unique_ptr<Item>>& items,
                const QSizeF& paper);

} // namespace TVR::Page
