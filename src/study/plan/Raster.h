#pragma once

#include <QPointF>

namespace TVR::Study {

/// A rectangle on the map [m].
struct RasterBox {
  double left;
  double bottom;
  double width;
  double height;
};

/// Square cells on the map, which all runs of a study share. They are numbered row by row, with
/// ascending x in a row and ascending y from row to row.
struct Raster {
  double left = 0;   ///< of the first cell [m]
  double bottom = 0; ///< of the first cell [m]
  double cell = 1;   ///< width [m]
  int columns = 0;
  int rows = 0;

  int size() const { return columns * rows; }
  QPointF centre(int column, int row) const {
    return {left + (column + 0.5) * cell, bottom + (row + 0.5) * cell};
  }
  bool operator==(const Raster&) const = default;
};

} // namespace TVR::Study
