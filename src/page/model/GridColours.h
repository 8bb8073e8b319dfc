#pragma once

#include "page/model/ColourScale.h"

#include <QRgb>

#include <optional>
#include <vector>

namespace TVR::Page {

struct GridDataItem;

/// The colours of the data set that a grid shows, from the lowest to the highest value that it and
/// the grids of the same quantity in its plot have. They are
/// translucent, so that a map below stays to be seen.
class GridColours {
public:
  /// None if the grid shows no data set. The grid's own scale counts if it has two entries or more.
  static std::optional<GridColours> of(const GridDataItem& grid);

  double minimum() const { return minimum_; }
  double maximum() const { return maximum_; }
  QColor colour(double value) const;
  /// The premultiplied colours of values; those that are not finite are transparent.
  std::vector<QRgb> pixels(const std::vector<double>& values) const;

private:
  GridColours(ColourScale scale, double minimum, double maximum);

  ColourScale scale_;
  double minimum_;
  double maximum_;
};

} // namespace TVR::Page
