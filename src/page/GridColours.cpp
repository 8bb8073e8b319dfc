#include "page/GridColours.h"

#include "page/Items.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace TVR::Page {

namespace {

constexpr int opacity = 170; // of 255

} // namespace

GridColours::GridColours(const GridDataItem& grid, double minimum, double maximum)
    : grid_(grid), minimum_(minimum), maximum_(maximum) {}

QColor GridColours::colour(double value) const {
  const double extreme = std::max(std::abs(minimum_), std::abs(maximum_));
  const double share = std::clamp(value / extreme, -1., 1.);
  const int pale = static_cast<int>(255 * (1 - std::abs(share)));
  return share < 0 ? QColor(pale, pale, 255, opacity) : QColor(255, pale, pale, opacity);
}

std::optional<GridColours> gridColours(const GridDataItem& grid) {
  const GridDataItem::DataSet* set = grid.colouredSet();
  if (!set)
    return {};
  double minimum = std::numeric_limits<double>::infinity();
  double maximum = -minimum;
  for (const double value : set->values)
    if (std::isfinite(value)) {
      minimum = std::min(minimum, value);
      maximum = std::max(maximum, value);
    }
  if (!(maximum > minimum))
    return {};
  return GridColours(grid, minimum, maximum);
}

std::vector<QRgb> cellColours(const GridDataItem& grid) {
  const std::optional<GridColours> colours = gridColours(grid);
  if (!colours)
    return {};
  // A table of colours: a grid has many more cells than colours that an eye tells apart.
  constexpr int tableSize = 1024;
  std::array<QRgb, tableSize> table;
  const double step = (colours->maximum() - colours->minimum()) / (tableSize - 1);
  for (int i = 0; i < tableSize; ++i)
    table[i] = qPremultiply(colours->colour(colours->minimum() + i * step).rgba());
  const std::vector<double>& values = grid.colouredSet()->values;
  std::vector<QRgb> cells(values.size(), 0);
  for (std::size_t i = 0; i < values.size(); ++i)
    if (std::isfinite(values[i]))
      cells[i] = table[static_cast<int>((values[i] - colours->minimum()) / step + 0.5)];
  return cells;
}

} // namespace TVR::Page
