#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QVector>

#include <optional>

namespace TVR::Page {

class Canvas;
struct PictureItem;

/// Where a picture lies on the sheet [mm], also if it lies on a map.
QRectF pictureOnPage(const PictureItem& picture);

/// Gives a picture position and size, in the units of what it lies in, within one update. The
/// position is written last and, if the height changes, in any case: an observer that takes the
/// lower edge from position and size at a change of the position has it right in the end.
void placePicture(Canvas& canvas, int picture, const QPointF& position, const QSizeF& size);

/// The same for a place on the sheet [mm]. A side that stays keeps its figures to the last bit.
void placePicture(Canvas& canvas, int picture, const QRectF& onPage);

/// The edges of a frame that a press at `point` takes hold of: two at a corner, one at the middle
/// of an edge, none inside, which is hold of the whole. No value outside. All in one unit of
/// length; `reach` is half the side of a handle.
std::optional<Qt::Edges> edgesAt(const QRectF& frame, const QPointF& point, double reach);

/// The middles of the eight handles: corners clockwise from the top left one, then edges from the
/// top one.
QVector<QPointF> handlesOf(const QRectF& frame);

/// The frame after these edges were dragged by `by`; without edges the whole frame moves. No side
/// gets shorter than `shortest`. With `keepsAspect` the proportions stay, the opposite corner, or
/// the middle of the opposite edge, holds still.
QRectF draggedFrame(const QRectF& frame, Qt::Edges edges, const QPointF& by, bool keepsAspect,
                    double shortest);

/// The cursor that shows how these edges can be dragged.
Qt::CursorShape cursorOf(Qt::Edges edges);

} // namespace TVR::Page
