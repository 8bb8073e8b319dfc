#include "page/model/GridColours.h"

#include "page/model/ItemWalk.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace TVR::Page {

namespace {

/// Pale colours, which stand for little change, hide less of a map than strong ones do.
int opacity(const QColor& colour) {
  constexpr int palest = 40;
  constexpr int strongest = 200;
  const double strength = (255 - std::min({colour.red(), colour.green(), colour.blue()})) / 190.;
  return palest + static_cast<int>((strongest - palest) * std::min(1., strength));
}

ColourScale scaleOf(const GridDataItem& grid, double minimum, double maximum) {
  if (grid.colourScale.size() < 2)
    return {minimum, maximum};
  return ColourScale(grid.colourScale);
}

/// The grid, and those in its plot that show the same quantity: the same value has one colour.
std::vector<const GridDataItem*> comparedGrids(const GridDataItem& grid) {
  std::vector<const GridDataItem*> grids{&grid};
  if (!grid.parent)
    return grids;
  forVisible<GridDataItem>(grid.parent->children, [&](const GridDataItem& other) {
    if (&other != &grid && other.colouredSet() &&
        other.colouredQuantity() == grid.colouredQuantity())
      grids.push_back(&other);
  });
  return grids;
}

} // namespace

GridColours::GridColours(ColourScale scale, double minimum, double maximum)
    : scale_(std::move(scale)), minimum_(minimum), maximum_(maximum) {}

std::optional<GridColours> GridColours::of(const GridDataItem& grid) {
  if (!grid.colouredSet())
    return {};
  double minimum = std::numeric_limits<double>::infinity();
  double maximum = -minimum;
  for (const GridDataItem* other : comparedGrids(grid))
    for (const double value : other->colouredSet()->values)
      if (std::isfinite(value)) {
        minimum = std::min(minimum, value);
        maximum = std::max(maximum, value);
      }
  if (!(maximum > minimum) || !std::isfinite(maximum - minimum))
    return {};
  return GridColours(scaleOf(grid, minimum, maximum), minimum, maximum);
}

QColor GridColours::colour(double value) const {
  QColor colour = scale_.colour(value);
  if (colour.alpha() > 0)
    colour.setAlpha(colour.alpha() * opacity(colour) / 255);
  return colour;
}

std::vector<QRgb> GridColours::pixels(const std::vector<double>& values) const {
  // A table of colours: a grid has many more cells than colours that an eye tells apart.
  constexpr int tableSize = 1024;
  std::array<QRgb, tableSize> table;
  const double step = (maximum_ - minimum_) / (tableSize - 1);
  for (int i = 0; i < tableSize; ++i)
    table[i] = qPremultiply(colour(minimum_ + i * step).rgba());
  std::vector<QRgb> colours(values.size(), 0);
  for (std::size_t i = 0; i < values.size(); ++i)
    if (std::isfinite(values[i])) {
      const double place = std::clamp((values[i] - minimum_) / step, 0., tableSize - 1.);
      colours[i] = table[static_cast<int>(place + 0.5)];
    }
  return colours;
}

} // namespace TVR::Page
