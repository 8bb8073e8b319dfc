#pragma once

#include <Qt>

class QPointF;
class QPolygonF;

namespace TVR::Page {

class Canvas;
struct SheetView;

/// What the left button takes hold of at a place of the page.
struct Grip {
  enum Kind {
    Nothing,
    Map,    ///< the plot `item`
    Point,  ///< the point `index` of the curve `item`
    Picture ///< the picture `item`, by its `edges`
  };
  Kind kind = Nothing;
  int item = 0;
  int index = 0;
  Qt::Edges edges;
};

/// The grip at a place of the window [pixel]. Points are held within a few pixels of their symbols
/// if their curve is the current item; a picture if it is the current item; else the map is.
Grip gripAt(const Canvas& canvas, const SheetView& view, int currentItem, const QPointF& pixel);

/// The picture on a map under a place of the window, the topmost one; 0 if there is none.
int pictureAt(const Canvas& canvas, const SheetView& view, const QPointF& pixel);

/// The index of the point nearest to `place` among those at most `reach` away, -1 if there is none.
int nearestPoint(const QPolygonF& points, const QPointF& place, double reach);

/// The cursor that says what the grip does.
Qt::CursorShape cursorOf(const Grip& grip);

} // namespace TVR::Page
