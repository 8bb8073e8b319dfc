#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QTransform>

namespace TVR::Page {

/// How the sheet of a page lies in a window: from [mm] on the sheet to [pixel] in the window and
/// back. Pixels do not depend on the device pixel ratio; y points downwards in both.
struct SheetView {
  double scale = 1; ///< [pixel/mm], above 0
  QPointF origin;   ///< top left corner of the sheet in the window [pixel]

  QPointF toWindow(const QPointF& page) const { return page * scale + origin; }
  QRectF toWindow(const QRectF& page) const {
    return {toWindow(page.topLeft()), page.size() * scale};
  }
  QPointF toPage(const QPointF& pixel) const { return (pixel - origin) / scale; }
  QRectF toPage(const QRectF& pixels) const {
    return {toPage(pixels.topLeft()), pixels.size() / scale};
  }
  QTransform transform() const { return {scale, 0, 0, scale, origin.x(), origin.y()}; }
};

/// The whole sheet [mm] in the middle of the window [pixel], with at least `border` [pixel] around
/// it. A sheet or a window without an area gives the scale 1.
SheetView fittedView(const QSizeF& sheet, const QSizeF& window, double border);

/// The sheet as wide as the window less the borders, its upper edge in sight. A sheet or a window
/// without an area gives the scale 1.
SheetView widthView(const QSizeF& sheet, const QSizeF& window, double border);

/// The sheet in the middle of the window at a scale [pixel/mm].
SheetView centredView(const QSizeF& sheet, const QSizeF& window, double scale);

/// The sheet enlarged by `factor`, what lies at `pixel` staying there. The scale stays between 0.2
/// and 200 pixels to a millimetre, or where it is if it lies outside.
SheetView zoomedView(const SheetView& view, double factor, const QPointF& pixel);

/// The view moved back just so far that a strip of the sheet [60 pixels, less of a smaller sheet]
/// can be seen.
SheetView keptInSight(const SheetView& view, const QSizeF& sheet, const QSizeF& window);

} // namespace TVR::Page
