#pragma once

#include <memory>
#include <vector>

class QPainter;

namespace TVR::Page {

class Canvas;
struct Item;

/// Draws a page. The painter's coordinates are [mm] from the top left corner of the sheet, so that
/// a screen, a printer and a file look the same: see PageExport.h for how they are set up.
void paintPage(QPainter& painter, const Canvas& canvas);

/// Draws items that lie directly on a sheet, with all that is in them, in their order. What is not
/// visible takes no room.
void paintItems(QPainter& painter, const std::vector<std::unique_ptr<Item>>& items);

} // namespace TVR::Page
