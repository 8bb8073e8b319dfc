#include "page/window/SheetView.h"

#include <algorithm>

namespace TVR::Page {

namespace {

constexpr double smallestScale = 0.2;
constexpr double largestScale = 200;
constexpr double strip = 60;

/// Where a stretch of this length may begin so that a strip of it lies in 0 ... `room`.
double inSight(double begin, double length, double room) {
  const double seen = std::min({strip, length, room});
  return std::clamp(begin, seen - length, std::max(room - seen, seen - length));
}

} // namespace

SheetView fittedView(const QSizeF& sheet, const QSizeF& window, double border) {
  if (sheet.isEmpty() || window.isEmpty())
    return {};
  const double width = std::max(window.width() - 2 * border, 1.0);
  const double height = std::max(window.height() - 2 * border, 1.0);
  return centredView(sheet, window, std::min(width / sheet.width(), height / sheet.height()));
}

SheetView widthView(const QSizeF& sheet, const QSizeF& window, double border) {
  if (sheet.isEmpty() || window.isEmpty())
    return {};
  const double width = std::max(window.width() - 2 * border, 1.0);
  SheetView view = centredView(sheet, window, width / sheet.width());
  view.origin.setY(std::max(view.origin.y(), border));
  return view;
}

SheetView centredView(const QSizeF& sheet, const QSizeF& window, double scale) {
  const QSizeF around = (window - sheet * scale) / 2;
  return {scale, {around.width(), around.height()}};
}

SheetView zoomedView(const SheetView& view, double factor, const QPointF& pixel) {
  const double scale = std::clamp(view.scale * factor, std::min(smallestScale, view.scale),
                                  std::max(largestScale, view.scale));
  return {scale, pixel - (pixel - view.origin) * (scale / view.scale)};
}

SheetView keptInSight(const SheetView& view, const QSizeF& sheet, const QSizeF& window) {
  const QSizeF size = sheet * view.scale;
  return {view.scale,
          {inSight(view.origin.x(), size.width(), window.width()),
           inSight(view.origin.y(), size.height(), window.height())}};
}

} // namespace TVR::Page
