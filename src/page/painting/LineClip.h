#pragma once

#include <QPolygonF>
#include <QRectF>

#include <vector>

namespace TVR::Page {

/// The parts of a polyline inside a rectangle, cut at its edges, in the order of the line. Points
/// that are not finite break the line. Not every device that a page is drawn on clips by itself.
std::vector<QPolygonF> clippedLine(const QPolygonF& line, const QRectF& rectangle);

} // namespace TVR::Page
