#pragma once

#include <QPen>
#include <QPolygonF>

#include <vector>

class QLineF;
class QPainter;
class QRectF;

namespace TVR::Page {

struct Item;

/// The pen of solid lines on a page in [mm], with the width and colour of `pen` and
/// flat ends.
QPen pagePen(const QPen& pen);

/// The dashes of a polyline. `pattern` holds the lengths of dashes and gaps in turn, in the units
/// of the points; it goes on around the corners. The whole line if the pattern is empty or not
/// above 0.
std::vector<QPolygonF> dashes(const QPolygonF& line, const QVector<qreal>& pattern);

/// Draws a line on a page in [mm], in the style of `pen`. Dashes are cut here and not by the
/// device, so that they are alike on all of them, and those of a thin line are long enough to be
/// told apart. The painter keeps the pen.
void paintLine(QPainter& painter, const QPolygonF& line, const QPen& pen);
void paintLine(QPainter& painter, const QLineF& line, const QPen& pen);

/// Draws the outline of a rectangle.
void paintFrame(QPainter& painter, const QRectF& frame, const QPen& pen);

/// Fills the box of the item with its brush and draws its frame.
void paintBox(QPainter& painter, const Item& item);

} // namespace TVR::Page
