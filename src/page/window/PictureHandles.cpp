#include "page/window/PictureHandles.h"

#include "page/model/Canvas.h"

#include <algorithm>
#include <cmath>

namespace TVR::Page {

using namespace Sketra_lib::Property;

namespace {

/// Position and size as a picture has them, in the units of what it lies in.
struct PlacedPicture {
  QPointF position;
  QSizeF size;
};

/// What does not move on the page keeps its figures to the last bit.
PlacedPicture placed(const PictureItem& picture, const QRectF& onPage) {
  const PlotItem* plot = plotOf(picture);
  if (!plot)
    return {onPage.topLeft(), onPage.size()};
  const QSizeF unit = plot->scale();
  if (unit.isEmpty())
    return {picture.position, picture.size};
  const auto near = [](double a, double b) { return std::abs(a - b) < 1e-7; };
  const QRectF former = pictureOnPage(picture);
  PlacedPicture result{picture.position, picture.size};
  if (!near(onPage.width(), former.width()))
    result.size.setWidth(onPage.width() / unit.width());
  if (!near(onPage.height(), former.height()))
    result.size.setHeight(onPage.height() / unit.height());
  const QPointF corner = plot->fromPage(onPage.topLeft());
  if (!near(onPage.left(), former.left()))
    result.position.setX(corner.x());
  if (!near(onPage.top(), former.top()))
    result.position.setY(corner.y());
  return result;
}

} // namespace

QRectF pictureOnPage(const PictureItem& picture) {
  const PlotItem* plot = plotOf(picture);
  if (!plot)
    return picture.box();
  const QPointF opposite(picture.position.x() + picture.size.width(),
                         picture.position.y() - picture.size.height());
  return QRectF(plot->toPage(picture.position), plot->toPage(opposite)).normalized();
}

void placePicture(Canvas& canvas, int id, const QRectF& onPage) {
  const auto* picture = canvas.item<PictureItem>(id);
  if (!picture)
    return;
  const PlacedPicture now = placed(*picture, onPage);
  placePicture(canvas, id, now.position, now.size);
}

void placePicture(Canvas& canvas, int id, const QPointF& position, const QSizeF& size) {
  const auto* picture = canvas.item<PictureItem>(id);
  if (!picture)
    return;
  const bool isAtPosition = position == picture->position;
  const bool changesHeight = size.height() != picture->size.height();
  const UpdateScope update(canvas);
  if (size != picture->size)
    canvas.setProperty(id, Size, size);
  if (isAtPosition && changesHeight)
    canvas.setProperty(id, Position, position + QPointF(0, size.height()));
  if (!isAtPosition || changesHeight)
    canvas.setProperty(id, Position, position);
}

std::optional<Qt::Edges> edgesAt(const QRectF& frame, const QPointF& point, double reach) {
  const auto handles = handlesOf(frame);
  static const std::array<Qt::Edges, 8> edges = {Qt::TopEdge | Qt::LeftEdge,
                                                 Qt::TopEdge | Qt::RightEdge,
                                                 Qt::BottomEdge | Qt::RightEdge,
                                                 Qt::BottomEdge | Qt::LeftEdge,
                                                 Qt::TopEdge,
                                                 Qt::RightEdge,
                                                 Qt::BottomEdge,
                                                 Qt::LeftEdge};
  for (std::size_t i = 0; i < edges.size(); ++i) {
    const QPointF distance = point - handles[static_cast<int>(i)];
    if (std::max(std::abs(distance.x()), std::abs(distance.y())) <= reach)
      return edges[i];
  }
  if (frame.contains(point))
    return Qt::Edges();
  return std::nullopt;
}

QVector<QPointF> handlesOf(const QRectF& frame) {
  const QPointF centre = frame.center();
  return {frame.topLeft(),
          frame.topRight(),
          frame.bottomRight(),
          frame.bottomLeft(),
          {centre.x(), frame.top()},
          {frame.right(), centre.y()},
          {centre.x(), frame.bottom()},
          {frame.left(), centre.y()}};
}

QRectF draggedFrame(const QRectF& frame, Qt::Edges edges, const QPointF& by, bool keepsAspect,
                    double shortest) {
  if (!edges)
    return frame.translated(by);
  const bool horizontal = edges & (Qt::LeftEdge | Qt::RightEdge);
  const bool vertical = edges & (Qt::TopEdge | Qt::BottomEdge);
  double width = frame.width();
  double height = frame.height();
  if (horizontal)
    width = std::max(width + (edges & Qt::LeftEdge ? -by.x() : by.x()), shortest);
  if (vertical)
    height = std::max(height + (edges & Qt::TopEdge ? -by.y() : by.y()), shortest);

  if (keepsAspect && !frame.isEmpty()) {
    const double xFactor = width / frame.width();
    const double yFactor = height / frame.height();
    double factor = horizontal ? xFactor : yFactor;
    if (horizontal && vertical && std::abs(yFactor - 1) > std::abs(xFactor - 1))
      factor = yFactor;
    factor = std::max({factor, shortest / frame.width(), shortest / frame.height()});
    width = frame.width() * factor;
    height = frame.height() * factor;
  }
  double left = frame.left();
  double top = frame.top();
  if (edges & Qt::LeftEdge)
    left = frame.right() - width;
  else if (!horizontal)
    left = frame.center().x() - width / 2;
  if (edges & Qt::TopEdge)
    top = frame.bottom() - height;
  else if (!vertical)
    top = frame.center().y() - height / 2;
  return {left, top, width, height};
}

Qt::CursorShape cursorOf(Qt::Edges edges) {
  const bool horizontal = edges & (Qt::LeftEdge | Qt::RightEdge);
  const bool vertical = edges & (Qt::TopEdge | Qt::BottomEdge);
  if (horizontal && vertical) {
    const bool falling = bool(edges & Qt::LeftEdge) == bool(edges & Qt::TopEdge);
    return falling ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
  }
  if (horizontal)
    return Qt::SizeHorCursor;
  return vertical ? Qt::SizeVerCursor : Qt::SizeAllCursor;
}

} // namespace TVR::Page
