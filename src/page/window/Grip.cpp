#include "page/window/Grip.h"

#include "page/model/Canvas.h"
#include "page/model/ItemWalk.h"
#include "page/window/MapNavigation.h"
#include "page/window/PictureHandles.h"
#include "page/window/SheetView.h"

namespace TVR::Page {

namespace {

/// How far beside a symbol or a handle a press still holds it [pixel].
constexpr double pointReach = 6;
constexpr double handleReach = 5;

Grip pointGrip(const CurveItem& curve, const SheetView& view, const QPointF& pixel) {
  const auto* plot = plotOf(curve);
  if (!plot || !plot->area().contains(view.toPage(pixel)))
    return {};
  QPolygonF places;
  for (const QPointF& point : curve.points)
    places << view.toWindow(plot->toPage(point));
  const double reach = curve.symbolRadius() * view.scale + pointReach;
  const int index = nearestPoint(places, pixel, reach);
  if (index < 0)
    return {};
  return {Grip::Point, curve.id, index, {}};
}

Grip pictureGrip(const PictureItem& picture, const SheetView& view, const QPointF& pixel) {
  const auto* plot = plotOf(picture);
  if (!picture.visible || (plot && !plot->area().contains(view.toPage(pixel))))
    return {};
  const auto edges = edgesAt(view.toWindow(pictureOnPage(picture)), pixel, handleReach);
  if (!edges)
    return {};
  return {Grip::Picture, picture.id, 0, *edges};
}

} // namespace

Grip gripAt(const Canvas& canvas, const SheetView& view, int currentItem, const QPointF& pixel) {
  Grip grip;
  if (const auto* curve = canvas.item<CurveItem>(currentItem))
    grip = pointGrip(*curve, view, pixel);
  else if (const auto* picture = canvas.item<PictureItem>(currentItem))
    grip = pictureGrip(*picture, view, pixel);
  if (grip.kind != Grip::Nothing)
    return grip;
  if (const PlotItem* map = mapAt(canvas, view.toPage(pixel)))
    return {Grip::Map, map->id, 0, {}};
  return {};
}

int pictureAt(const Canvas& canvas, const SheetView& view, const QPointF& pixel) {
  const QPointF page = view.toPage(pixel);
  const PlotItem* map = mapAt(canvas, page);
  if (!map)
    return 0;
  int id = 0;
  forVisible<PictureItem>(map->children, [&](const PictureItem& picture) {
    if (pictureOnPage(picture).contains(page))
      id = picture.id;
  });
  return id;
}

int nearestPoint(const QPolygonF& points, const QPointF& place, double reach) {
  int nearest = -1;
  double least = reach * reach;
  for (int i = 0; i < points.size(); ++i) {
    const QPointF away = points[i] - place;
    const double distance = QPointF::dotProduct(away, away);
    if (distance <= least) {
      least = distance;
      nearest = i;
    }
  }
  return nearest;
}

Qt::CursorShape cursorOf(const Grip& grip) {
  switch (grip.kind) {
  case Grip::Point:
    return Qt::PointingHandCursor;
  case Grip::Picture:
    return cursorOf(grip.edges);
  case Grip::Map:
  case Grip::Nothing:
    break;
  }
  return Qt::ArrowCursor;
}

} // namespace TVR::Page
