#include "page/window/MapNavigation.h"

#include "page/model/Canvas.h"

#include <cmath>

namespace TVR::Page {

using namespace Sketra_lib::Property;

namespace {

constexpr double shortestSide = 1e-3;
constexpr double longestSide = 1e8;

/// `step` rounded to a power of two that is about a millionth of `length`.
double roundedStep(double step, double length) {
  if (!(length > 0) || !std::isfinite(length))
    return step;
  const double unit = std::ldexp(1.0, std::ilogb(length) - 20);
  return std::round(step / unit) * unit;
}

PlotItem* asMap(const std::unique_ptr<Item>& item) {
  auto* plot = dynamic_cast<PlotItem*>(item.get());
  return plot && plot->visible && plot->isMap() ? plot : nullptr;
}

void showAxis(Canvas& canvas, int plot, int minimumNumber, int maximumNumber, double minimum,
              double maximum) {
  const auto write = [&](int number, double value) {
    if (canvas.property(plot, number).toDouble() != value)
      canvas.setProperty(plot, number, value);
  };
  if (minimum >= canvas.property(plot, maximumNumber).toDouble()) {
    write(maximumNumber, maximum);
    write(minimumNumber, minimum);
  } else {
    write(minimumNumber, minimum);
    write(maximumNumber, maximum);
  }
}

} // namespace

MapRange rangeOf(const PlotItem& plot) {
  return {plot.x.minimum, plot.x.maximum, plot.y.minimum, plot.y.maximum};
}

MapRange movedRange(const MapRange& range, const QPointF& by) {
  const double dx = roundedStep(by.x(), range.width());
  const double dy = roundedStep(by.y(), range.height());
  return {range.xMinimum + dx, range.xMaximum + dx, range.yMinimum + dy, range.yMaximum + dy};
}

MapRange zoomedRange(const MapRange& range, double factor, const QPointF& fixed) {
  const double shorter = std::min(range.width(), range.height()) * factor;
  const double longer = std::max(range.width(), range.height()) * factor;
  if (!(shorter >= shortestSide && longer <= longestSide))
    return range;
  const auto zoomed = [factor](double value, double around) {
    return around + (value - around) * factor;
  };
  return {zoomed(range.xMinimum, fixed.x()), zoomed(range.xMaximum, fixed.x()),
          zoomed(range.yMinimum, fixed.y()), zoomed(range.yMaximum, fixed.y())};
}

void showRange(Canvas& canvas, int plot, const MapRange& range) {
  const UpdateScope update(canvas);
  showAxis(canvas, plot, XMinimum, XMaximum, range.xMinimum, range.xMaximum);
  showAxis(canvas, plot, YMinimum, YMaximum, range.yMinimum, range.yMaximum);
}

PlotItem* mapAt(const Canvas& canvas, const QPointF& page) {
  const auto& items = canvas.items();
  for (auto item = items.rbegin(); item != items.rend(); ++item) {
    PlotItem* map = asMap(*item);
    if (map && map->area().contains(page))
      return map;
  }
  return nullptr;
}

PlotItem* firstMap(const Canvas& canvas) {
  for (const auto& item : canvas.items()) {
    if (PlotItem* map = asMap(item))
      return map;
  }
  return nullptr;
}

} // namespace TVR::Page
