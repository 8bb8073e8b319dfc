#pragma once

#include <QRectF>

#include <vector>

class FVMesh;

namespace TVR::Study {

/// A field of cell values on a mesh, in model coordinates: bilinear between the centres of the
/// cells, and constant from the outermost centres to the edge of the mesh, where it ends.
///
/// What lies above a level is where the field is at least that of a positive level, or at most that
/// of a negative one.
class CellField {
public:
  /// `values`: one per cell, row by row.
  CellField(const FVMesh& mesh, const std::vector<double>& values);

  /// Outside of the mesh 0.
  double value(double x, double y) const;

  /// The area above a level [m2], with the field linear on the two triangles of each quadrilateral
  /// of centres.
  double areaAbove(double level) const;
  /// A rectangle that holds all that lies above a level; null if nothing does.
  QRectF boundsAbove(double level) const;

private:
  std::size_t columns() const { return xs_.size(); }
  double at(std::size_t column, std::size_t row) const { return values_[row * columns() + column]; }
  template <class Rectangle>
  void eachAbove(double level, Rectangle rectangle) const;

  std::vector<double> xs_;     ///< edge, centres, edge
  std::vector<double> ys_;     ///< edge, centres, edge
  std::vector<double> values_; ///< row by row
};

} // namespace TVR::Study
