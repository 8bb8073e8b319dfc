#pragma once

#include "page/window/MapNavigation.h"
#include "page/window/SheetView.h"

#include <QPixmap>

#include <map>

class QPainter;

namespace TVR::Page {

class Canvas;
struct PlotItem;

/// What can move on a page, and where it was when the page was drawn.
struct MovableItems {
  std::map<int, MapRange> maps;   ///< by the ids of the plots
  std::map<int, QRectF> pictures; ///< places of the pictures on maps [mm]
};

MovableItems movableItems(const Canvas& canvas);

/// The page as it was last drawn in a window, kept so that the next frame of a movement need not
/// draw it from scratch. Sizes and places in [pixel] without the device pixel ratio, which is taken
/// from the painter's device.
class PageFrame {
public:
  /// A page whose drawing takes longer than `slow` [ms] is not drawn in part for each frame.
  explicit PageFrame(double slow = 30) : slow_(slow) {}

  /// Draws the page and its surroundings into a window of this size and keeps the drawing. A kept
  /// one is taken as it is if it was not dropped and view, window, pixel ratio and `lifted` are the
  /// same. `lifted` is a curve on a map that moves on its own: it is left out of what is kept and
  /// drawn above it; 0 for none.
  void paint(QPainter& painter, const Canvas& canvas, const SheetView& view, const QSize& window,
             int lifted = 0);
  /// The same out of the kept drawing: it is moved and stretched to the view, and its maps to the
  /// ranges, of now, and only the axes and what that uncovers are drawn; the latter is left to the
  /// next drawing if that is slow. A picture that moved shows above the page. Other changes since
  /// the drawing was made do not show. Without a drawing for this window like paint().
  void paintMoved(QPainter& painter, const Canvas& canvas, const SheetView& view,
                  const QSize& window, int lifted = 0);
  void drop() { drawing_ = {}; }
  /// How long the last drawing took [ms].
  double cost() const { return cost_; }
  /// How many drawings were made from scratch.
  int drawings() const { return drawings_; }

private:
  bool fits(const QPainter& painter, const QSize& window, int lifted) const;
  void draw(const Canvas& canvas, const QSize& window, double pixelRatio);
  void paintMovedSheet(QPainter& painter, const Canvas& canvas, const SheetView& view,
                       const QSize& window) const;
  void paintMap(QPainter& painter, const Canvas& canvas, PlotItem& map) const;
  void paintMovedMap(QPainter& painter, const Canvas& canvas, PlotItem& map) const;
  void paintMovedPictures(QPainter& painter, const PlotItem& map) const;
  void paintLifted(QPainter& painter, const Canvas& canvas) const;

  const double slow_;
  QPixmap drawing_;
  SheetView view_;
  int lifted_ = 0;
  MovableItems drawn_;
  double cost_ = 0;
  int drawings_ = 0;
};

} // namespace TVR::Page
