#include "page/window/Drag.h"

#include "page/model/Canvas.h"
#include "page/window/Grip.h"
#include "page/window/MapNavigation.h"
#include "page/window/PictureHandles.h"
#include "page/window/SheetView.h"

#include <algorithm>

namespace TVR::Page {

namespace {

/// The shortest side that a picture can be given [mm].
constexpr double shortestPicture = 2;

class SheetDrag final : public Drag {
public:
  SheetDrag(SheetView& view, const QPointF& pixel)
      : view_(view), grabbed_(view.toPage(pixel)), start_(view) {}

  void moveTo(const QPointF& pixel, Qt::KeyboardModifiers) override {
    view_.origin = pixel - grabbed_ * view_.scale;
  }
  void undo() override { view_ = start_; }
  Qt::CursorShape cursor() const override { return Qt::ClosedHandCursor; }
  bool changesPage() const override { return false; }

private:
  SheetView& view_;
  const QPointF grabbed_; ///< [mm]
  const SheetView start_;
};

class MapDrag final : public Drag {
public:
  MapDrag(Canvas& canvas, const SheetView& view, const PlotItem& plot, const QPointF& pixel)
      : canvas_(canvas), view_(view), plot_(plot.id), grabbed_(view.toPage(pixel)),
        start_(rangeOf(plot)) {}

  void moveTo(const QPointF& pixel, Qt::KeyboardModifiers) override {
    const auto* plot = canvas_.item<PlotItem>(plot_);
    if (!plot || plot->scale().isEmpty())
      return;
    const QPointF by = view_.toPage(pixel) - grabbed_;
    const QSizeF unit = plot->scale();
    showRange(canvas_, plot_, movedRange(start_, {-by.x() / unit.width(), by.y() / unit.height()}));
  }
  void undo() override { showRange(canvas_, plot_, start_); }
  Qt::CursorShape cursor() const override { return Qt::ClosedHandCursor; }

private:
  Canvas& canvas_;
  const SheetView& view_;
  const int plot_;
  const QPointF grabbed_; ///< [mm]
  const MapRange start_;
};

class PointDrag final : public Drag {
public:
  PointDrag(Canvas& canvas, const SheetView& view, const CurveItem& curve, const PlotItem& plot,
            int index, const QPointF& pixel)
      : canvas_(canvas), view_(view), curve_(curve.id), index_(index), start_(curve.points[index]),
        beside_(plot.toPage(start_) - view.toPage(pixel)) {}

  void moveTo(const QPointF& pixel, Qt::KeyboardModifiers) override {
    const auto* curve = canvas_.item<CurveItem>(curve_);
    const auto* plot = curve ? plotOf(*curve) : nullptr;
    if (!plot)
      return;
    const QRectF area = plot->area();
    QPointF place = view_.toPage(pixel) + beside_;
    place.setX(std::clamp(place.x(), area.left(), area.right()));
    place.setY(std::clamp(place.y(), area.top(), area.bottom()));
    canvas_.movePoint(curve_, index_, plot->fromPage(place));
  }
  void undo() override { canvas_.movePoint(curve_, index_, start_); }
  Qt::CursorShape cursor() const override { return Qt::ClosedHandCursor; }
  int movingItem() const override { return curve_; }

private:
  Canvas& canvas_;
  const SheetView& view_;
  const int curve_;
  const int index_;
  const QPointF start_;  ///< [map units]
  const QPointF beside_; ///< from the mouse to the point [mm]
};

class PictureDrag final : public Drag {
public:
  PictureDrag(Canvas& canvas, const SheetView& view, const PictureItem& picture, Qt::Edges edges,
              const QPointF& pixel)
      : canvas_(canvas), view_(view), picture_(picture.id), edges_(edges),
        grabbed_(view.toPage(pixel)), start_(pictureOnPage(picture)), position_(picture.position),
        size_(picture.size) {}

  void moveTo(const QPointF& pixel, Qt::KeyboardModifiers modifiers) override {
    const bool keepsAspect = modifiers & Qt::ShiftModifier;
    placePicture(
        canvas_, picture_,
        draggedFrame(start_, edges_, view_.toPage(pixel) - grabbed_, keepsAspect, shortestPicture));
  }
  void undo() override { placePicture(canvas_, picture_, position_, size_); }
  Qt::CursorShape cursor() const override { return cursorOf(edges_); }
  int movingItem() const override { return picture_; }

private:
  Canvas& canvas_;
  const SheetView& view_;
  const int picture_;
  const Qt::Edges edges_;
  const QPointF grabbed_; ///< [mm]
  const QRectF start_;    ///< [mm]
  const QPointF position_;
  const QSizeF size_;
};

} // namespace

std::unique_ptr<Drag> startDrag(Canvas& canvas, const SheetView& view, const Grip& grip,
                                const QPointF& pixel) {
  if (grip.kind == Grip::Map) {
    if (const auto* plot = canvas.item<PlotItem>(grip.item))
      return std::make_unique<MapDrag>(canvas, view, *plot, pixel);
  } else if (grip.kind == Grip::Point) {
    const auto* curve = canvas.item<CurveItem>(grip.item);
    const auto* plot = curve ? plotOf(*curve) : nullptr;
    if (plot && grip.index < curve->points.size())
      return std::make_unique<PointDrag>(canvas, view, *curve, *plot, grip.index, pixel);
  } else if (grip.kind == Grip::Picture) {
    if (const auto* picture = canvas.item<PictureItem>(grip.item))
      return std::make_unique<PictureDrag>(canvas, view, *picture, grip.edges, pixel);
  }
  return nullptr;
}

std::unique_ptr<Drag> startSheetDrag(SheetView& view, const QPointF& pixel) {
  return std::make_unique<SheetDrag>(view, pixel);
}

} // namespace TVR::Page
