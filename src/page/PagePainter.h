#pragma once

class QPainter;
class QRectF;

namespace TVR::Page {

class Canvas;

/// Draws a page. The painter's coordinates are [mm] from the top left corner of the sheet, so that
/// a screen, a printer and a file look the same: see PageExport.h for how they are set up.
void paintPage(QPainter& painter, const Canvas& canvas);

} // namespace TVR::Page
