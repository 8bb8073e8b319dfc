#pragma once

#include <QColor>
#include <QRgb>

#include <optional>
#include <vector>

namespace TVR::Page {

struct GridDataItem;

/// The colours of the data set that a grid shows, from its lowest to its highest value. They are
/// translucent.
class GridColours {
public:
  explicit GridColours(const GridDataItem& grid, double minimum, double maximum);

  double minimum() const { return minimum_; }
  double maximum() const { return maximum_; }
  QColor colour(double value) const;

private:
  const GridDataItem& grid_;
  double minimum_;
  double maximum_;
};

/// None if the grid shows no data set.
std::optional<GridColours> gridColours(const GridDataItem& grid);

/// The premultiplied colours of the cells of a grid; those of values that are not finite are
/// transparent. Empty if it shows no data set.
std::vector<QRgb> cellColours(const GridDataItem& grid);

} // namespace TVR::Page
