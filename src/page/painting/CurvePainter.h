#pragma once

#include <QPointF>
#include <QPolygonF>

class QPainter;

namespace TVR::Page {

struct CurveItem;
struct PlotItem;

/// The line that joins the points of a curve: a step goes along x to the next point and there along
/// y. Empty for a curve of symbols only.
QPolygonF curveLine(const CurveItem& curve);

/// Draws a symbol in the colours and the size of a curve, with its centre at `centre` [mm].
void paintSymbol(QPainter& painter, const CurveItem& curve, int symbol, const QPointF& centre);

/// Draws a curve in its plot. The brush fills the symbols, or if there are none the room between
/// the line and 0. If the curve is not visible only its symbols are drawn. In a plot that lies over
/// another one, its x axis being hidden, a solid line is dashed.
void paintCurve(QPainter& painter, const CurveItem& curve, const PlotItem& plot);

} // namespace TVR::Page
