#include "page/window/PageFrame.h"

#include "page/model/Canvas.h"
#include "page/model/ItemWalk.h"
#include "page/painting/CurvePainter.h"
#include "page/painting/PagePainter.h"
#include "page/window/PictureHandles.h"

#include <QElapsedTimer>
#include <QPaintDevice>
#include <QPainter>
#include <QRegion>

#include <cmath>

namespace TVR::Page {

namespace {

const QColor surroundings(0xd6, 0xd8, 0xda);

/// Hides the items on the sheet that do not touch a part of it [mm], for the life of the object.
class HiddenElsewhere {
public:
  HiddenElsewhere(const Canvas& canvas, const QRectF& part) {
    for (const auto& item : canvas.items()) {
      if (item->visible && !item->box().intersects(part)) {
        item->visible = false;
        hidden_.push_back(item.get());
      }
    }
  }
  ~HiddenElsewhere() {
    for (Item* item : hidden_)
      item->visible = true;
  }
  HiddenElsewhere(const HiddenElsewhere&) = delete;
  HiddenElsewhere& operator=(const HiddenElsewhere&) = delete;

private:
  std::vector<Item*> hidden_;
};

/// Takes the contents out of a plot for the life of the object.
class EmptyPlot {
public:
  explicit EmptyPlot(PlotItem& plot) : plot_(plot) { plot_.children.swap(children_); }
  ~EmptyPlot() { plot_.children.swap(children_); }
  EmptyPlot(const EmptyPlot&) = delete;
  EmptyPlot& operator=(const EmptyPlot&) = delete;

private:
  PlotItem& plot_;
  std::vector<std::unique_ptr<Item>> children_;
};

/// Takes the points out of a curve for the life of the object.
class EmptyCurve {
public:
  explicit EmptyCurve(CurveItem* curve) : curve_(curve) { swap(); }
  ~EmptyCurve() { swap(); }
  EmptyCurve(const EmptyCurve&) = delete;
  EmptyCurve& operator=(const EmptyCurve&) = delete;

private:
  void swap() {
    if (curve_)
      curve_->points.swap(points_);
  }

  CurveItem* curve_;
  QPolygonF points_;
};

void paintSurroundings(QPainter& painter, const QSize& window, const QRectF& sheet,
                       const QColor& paper) {
  painter.fillRect(QRect(QPoint(), window), surroundings);
  painter.setPen(Qt::NoPen);
  painter.setRenderHint(QPainter::Antialiasing);
  for (int width = 6; width > 0; --width) {
    painter.setBrush(QColor(0, 0, 0, 10));
    painter.drawRoundedRect(sheet.translated(0, 2).adjusted(-width, -width, width, width), width,
                            width);
  }
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.fillRect(sheet, paper);
}

void paintSheet(QPainter& painter, const Canvas& canvas, const SheetView& view) {
  painter.save();
  painter.setTransform(view.transform(), true);
  painter.setClipRect(QRectF(QPointF(), canvas.paperSize()), Qt::IntersectClip);
  paintPage(painter, canvas);
  painter.restore();
}

/// The page as far as a region of the window shows it; each rectangle on its own, since what lies
/// outside of a clipping rectangle costs little. Items that reach in by a pixel are left out.
void paintPart(QPainter& painter, const Canvas& canvas, const SheetView& view,
               const QRegion& region) {
  for (const QRect& part : region) {
    const HiddenElsewhere hidden(canvas, view.toPage(QRectF(part).adjusted(1, 1, -1, -1)));
    painter.save();
    painter.setClipRect(part, Qt::IntersectClip);
    paintSheet(painter, canvas, view);
    painter.restore();
  }
}

/// What lies behind the contents of a map.
void fillPart(QPainter& painter, const QRegion& region, const PlotItem& map, const QColor& paper) {
  for (const QRect& part : region) {
    painter.fillRect(part, paper);
    painter.fillRect(part, map.brush);
  }
}

/// Where on the page [mm] a part of a map now lies that lay elsewhere when the map showed `former`.
QRectF movedPart(const PlotItem& plot, const MapRange& former, const QRectF& part) {
  PlotItem before(plot.id);
  before.position = plot.position;
  before.size = plot.size;
  before.margins = plot.margins;
  before.uniformScale = plot.uniformScale;
  before.x.minimum = former.xMinimum;
  before.x.maximum = former.xMaximum;
  before.y.minimum = former.yMinimum;
  before.y.maximum = former.yMaximum;
  return {plot.toPage(before.fromPage(part.topLeft())),
          plot.toPage(before.fromPage(part.bottomRight()))};
}

bool sameView(const SheetView& a, const SheetView& b) {
  return a.scale == b.scale && a.origin == b.origin;
}

} // namespace

MovableItems movableItems(const Canvas& canvas) {
  MovableItems movable;
  forVisible<PlotItem>(canvas.items(), [&](const PlotItem& plot) {
    if (!plot.isMap())
      return;
    movable.maps.emplace(plot.id, rangeOf(plot));
    forEach<PictureItem>(plot.children, [&](const PictureItem& picture) {
      movable.pictures.emplace(picture.id, pictureOnPage(picture));
    });
  });
  return movable;
}

bool PageFrame::fits(const QPainter& painter, const QSize& window, int lifted) const {
  const double ratio = painter.device()->devicePixelRatioF();
  return !drawing_.isNull() && drawing_.devicePixelRatio() == ratio &&
         drawing_.size() == window * ratio && lifted == lifted_;
}

void PageFrame::draw(const Canvas& canvas, const QSize& window, double pixelRatio) {
  QElapsedTimer timer;
  timer.start();
  drawing_ = QPixmap(window * pixelRatio);
  drawing_.setDevicePixelRatio(pixelRatio);
  QPainter painter(&drawing_);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                         QPainter::SmoothPixmapTransform);
  paintSurroundings(painter, window, view_.toWindow(QRectF(QPointF(), canvas.paperSize())),
                    canvas.background());
  painter.setRenderHint(QPainter::Antialiasing);
  const EmptyCurve without(canvas.item<CurveItem>(lifted_));
  paintSheet(painter, canvas, view_);
  drawn_ = movableItems(canvas);
  cost_ = static_cast<double>(timer.nsecsElapsed()) / 1e6;
  ++drawings_;
}

void PageFrame::paint(QPainter& painter, const Canvas& canvas, const SheetView& view,
                      const QSize& window, int lifted) {
  if (!fits(painter, window, lifted) || !sameView(view, view_)) {
    view_ = view;
    lifted_ = lifted;
    draw(canvas, window, painter.device()->devicePixelRatioF());
  }
  painter.drawPixmap(0, 0, drawing_);
  paintLifted(painter, canvas);
}

void PageFrame::paintMoved(QPainter& painter, const Canvas& canvas, const SheetView& view,
                           const QSize& window, int lifted) {
  if (!fits(painter, window, lifted)) {
    paint(painter, canvas, view, window, lifted);
    return;
  }
  if (!sameView(view, view_)) {
    paintMovedSheet(painter, canvas, view, window);
    return;
  }
  painter.drawPixmap(0, 0, drawing_);
  for (const auto& [id, range] : drawn_.maps) {
    auto* map = canvas.item<PlotItem>(id);
    if (map && map->visible)
      paintMap(painter, canvas, *map);
  }
  paintLifted(painter, canvas);
}

void PageFrame::paintMovedSheet(QPainter& painter, const Canvas& canvas, const SheetView& view,
                                const QSize& window) const {
  const QRectF sheet = view.toWindow(QRectF(QPointF(), canvas.paperSize()));
  paintSurroundings(painter, window, sheet, canvas.background());
  painter.save();
  painter.setClipRect(sheet);
  const double factor = view.scale / view_.scale;
  painter.setRenderHint(QPainter::SmoothPixmapTransform, factor != 1);
  painter.translate(view.origin - view_.origin * factor);
  painter.scale(factor, factor);
  painter.drawPixmap(0, 0, drawing_);
  painter.restore();
}

void PageFrame::paintMap(QPainter& painter, const Canvas& canvas, PlotItem& map) const {
  if (drawn_.maps.at(map.id) == rangeOf(map))
    paintMovedPictures(painter, map);
  else
    paintMovedMap(painter, canvas, map);
}

void PageFrame::paintMovedMap(QPainter& painter, const Canvas& canvas, PlotItem& map) const {
  const double ratio = drawing_.devicePixelRatio();
  const QRect window(QPoint(), drawing_.size() / ratio);
  // The lines of the axes are left to be drawn.
  const QRect visible = view_.toWindow(map.area()).toAlignedRect().adjusted(2, 2, -2, -2) & window;
  const QRectF source(visible);
  QRectF target = view_.toWindow(movedPart(map, drawn_.maps.at(map.id), view_.toPage(source)));
  const bool isOnlyShifted = std::abs(target.width() - source.width()) < 0.5;
  if (isOnlyShifted) {
    // A map that is only shifted is copied pixel by pixel.
    const QPointF shift = (target.topLeft() - source.topLeft()) * ratio;
    target = source.translated(std::round(shift.x()) / ratio, std::round(shift.y()) / ratio);
  }
  painter.save();
  painter.setClipRect(visible);
  painter.setRenderHint(QPainter::SmoothPixmapTransform, !isOnlyShifted);
  painter.drawPixmap(target, drawing_, QRectF(source.topLeft() * ratio, source.size() * ratio));
  painter.restore();
  const QRegion uncovered = QRegion(visible) - target.toAlignedRect().adjusted(1, 1, -1, -1);
  if (cost_ <= slow_)
    paintPart(painter, canvas, view_, uncovered);
  else
    fillPart(painter, uncovered, map, canvas.background());

  const EmptyPlot empty(map);
  const QRect box = view_.toWindow(map.box()).toAlignedRect() & window;
  paintPart(painter, canvas, view_, QRegion(box) - visible);
}

void PageFrame::paintMovedPictures(QPainter& painter, const PlotItem& map) const {
  painter.save();
  painter.setClipRect(view_.toWindow(map.area()));
  painter.setOpacity(0.6);
  for (const auto& child : map.children) {
    const auto* picture = dynamic_cast<const PictureItem*>(child.get());
    const auto former = drawn_.pictures.find(child->id);
    if (!picture || former == drawn_.pictures.end())
      continue;
    const QRectF place = pictureOnPage(*picture);
    if (place != former->second)
      painter.drawImage(view_.toWindow(place), picture->image);
  }
  painter.restore();
}

void PageFrame::paintLifted(QPainter& painter, const Canvas& canvas) const {
  const auto* curve = canvas.item<CurveItem>(lifted_);
  const auto* plot = curve ? plotOf(*curve) : nullptr;
  if (!plot)
    return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setTransform(view_.transform(), true);
  painter.setClipRect(plot->area());
  paintCurve(painter, *curve, *plot);
  painter.restore();
}

} // namespace TVR::Page
