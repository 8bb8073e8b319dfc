#pragma once

#include "host/MapRange.h"

#include <QPointF>
#include <QRectF>

namespace TVR::Page {

class Canvas;
struct PlotItem;

MapRange rangeOf(const PlotItem& plot);

/// The range moved by about `by` [map units]: the step is rounded to a millionth of the range, a
/// power of two, so that width and height, and with them the scale, stay to the last bit.
MapRange movedRange(const MapRange& range, const QPointF& by);

/// The range enlarged by `factor` along both axes, so that `fixed` [map units] stays at its place
/// in the plot. Factors that would make a side shorter than 1e-3 or longer than 1e8 [map units],
/// or are no positive number, leave the range as it is.
MapRange zoomedRange(const MapRange& range, double factor, const QPointF& fixed);

/// Gives the range to the plot as four changes of properties, in an order in which none of the
/// plot's ranges is empty on the way, and within one update. What does not change is not written.
void showRange(Canvas& canvas, int plot, const MapRange& range);

/// The topmost visible plot with a uniform scale whose plotting area holds the point of the page
/// [mm]; null if there is none there.
PlotItem* mapAt(const Canvas& canvas, const QPointF& page);

/// The first visible plot with a uniform scale, null if the page has none.
PlotItem* firstMap(const Canvas& canvas);

} // namespace TVR::Page
