#pragma once

#include "page/MapNavigation.h"
#include "page/SheetView.h"

#include <QPixmap>
#include <QPolygonF>

#include <map>

class QPainter;
class QRegion;

namespace TVR::Page {

class Canvas;
struct PlotItem;

/// What can move on a page, and where it was when the page was drawn.
struct MovableItems {
  std::map<int, MapRange> maps;      ///< by the ids of the plots
  std::map<int, QPolygonF> symbols;  ///< points of the curves on maps [map units]
  std::map<int, QRectF> mapPictures; ///< places of the pictures on maps [mm]
};

MovableItems movableItems(const Canvas& canvas);

/// The page as it was last drawn in a window, kept so that the next frame of a movement need not
/// draw it from scratch. Sizes and places in [pixel] without the device pixel ratio, which is taken
/// from the painter's device.
class PageFrame {
public:
  /// Draws the page and its surroundings into a window of this size and keeps the drawing. A kept
  /// one is taken as it is if it was not dropped and view, window and pixel ratio are the same.
  void paint(QPainter& painter, const Canvas& canvas, const SheetView& view, const QSize& window);
  /// The same out of the kept drawing: it is moved and stretched to the view, and its maps to the
  /// ranges, of now, and only what that uncovers, symbols that moved and the axes are drawn. A
  /// picture that moved shows above the page. Other changes since the drawing was made do not show.
  /// Without a drawing for this window like paint().
  void paintMoved(QPainter& painter, const Canvas& canvas, const SheetView& view,
                  const QSize& window);
  void drop() { drawing_ = {}; }
  /// How long the last drawing took [ms].
  double cost() const { return cost_; }
  /// How many drawings were made from scratch.
  int drawings() const { return drawings_; }

private:
  bool fits(const QPainter& painter, const QSize& window) const;
  void draw(const Canvas& canvas, const QSize& window, double pixelRatio);
  void paintMap(QPainter& painter, const Canvas& canvas, PlotItem& map) const;
  void paintMovedMap(QPainter& painter, const Canvas& canvas, PlotItem& map) const;
  void paintMovedPictures(QPainter& painter, const PlotItem& map) const;
  QRegion movedSymbols(const PlotItem& map) const;

  QPixmap drawing_;
  SheetView view_;
  MovableItems drawn_;
  double cost_ = 0;
  int drawings_ = 0;
};

} // namespace TVR::Page
