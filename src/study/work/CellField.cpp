#include "study/work/CellField.h"

#include "simulator/mesh/FVMesh.h"

#include <algorithm>
#include <array>

namespace TVR::Study {

namespace {

/// Edge, centres and edge of the cells of an axis.
std::vector<double> linesOf(const FVGridLine& axis) {
  std::vector<double> lines{axis.start(0)};
  for (std::size_t i = 0; i < axis.count(); ++i)
    lines.push_back(axis.centre(i));
  const std::size_t last = axis.count() - 1;
  lines.push_back(axis.start(last) + axis.width(last));
  return lines;
}

/// The cell that a line of the padded field belongs to.
std::size_t cellOf(std::size_t line, std::size_t cells) {
  return std::clamp<std::size_t>(line, 1, cells) - 1;
}

/// The line before a position, which lies between the first and the last line.
std::size_t before(const std::vector<double>& lines, double position) {
  const auto next = std::upper_bound(lines.begin() + 1, lines.end() - 1, position);
  return static_cast<std::size_t>(next - lines.begin()) - 1;
}

/// The share of a triangle in which a linear function with these values at its corners is not
/// below 0.
double shareAbove(std::array<double, 3> v) {
  std::sort(v.begin(), v.end());
  if (v[0] >= 0)
    return 1;
  if (v[2] < 0)
    return 0;
  if (v[1] >= 0)
    return 1 - v[0] * v[0] / ((v[1] - v[0]) * (v[2] - v[0]));
  return v[2] * v[2] / ((v[2] - v[0]) * (v[2] - v[1]));
}

} // namespace

CellField::CellField(const FVMesh& mesh, const std::vector<double>& values)
    : xs_(linesOf(mesh.xLine)), ys_(linesOf(mesh.yLine)) {
  const std::size_t nx = mesh.xLine.count();
  const std::size_t ny = mesh.yLine.count();
  values_.reserve(xs_.size() * ys_.size());
  for (std::size_t row = 0; row < ys_.size(); ++row)
    for (std::size_t column = 0; column < xs_.size(); ++column)
      values_.push_back(values[cellOf(row, ny) * nx + cellOf(column, nx)]);
}

double CellField::value(double x, double y) const {
  if (!(x >= xs_.front() && x <= xs_.back() && y >= ys_.front() && y <= ys_.back()))
    return 0;
  const std::size_t i = before(xs_, x);
  const std::size_t j = before(ys_, y);
  const double u = (x - xs_[i]) / (xs_[i + 1] - xs_[i]);
  const double v = (y - ys_[j]) / (ys_[j + 1] - ys_[j]);
  return (1 - v) * ((1 - u) * at(i, j) + u * at(i + 1, j)) +
         v * ((1 - u) * at(i, j + 1) + u * at(i + 1, j + 1));
}

/// Calls `rectangle(column, row, values)` for each quadrilateral of centres with a corner above the
/// level; its values are those of the corners less the level, turned so that above is above 0:
/// lower left, lower right, upper left, upper right.
template <class Rectangle>
void CellField::eachAbove(double level, Rectangle rectangle) const {
  const double sign = level < 0 ? -1 : 1;
  for (std::size_t j = 0; j + 1 < ys_.size(); ++j)
    for (std::size_t i = 0; i + 1 < xs_.size(); ++i) {
      const std::array corners{sign * (at(i, j) - level), sign * (at(i + 1, j) - level),
                               sign * (at(i, j + 1) - level), sign * (at(i + 1, j + 1) - level)};
      if (std::any_of(corners.begin(), corners.end(), [](double v) { return v >= 0; }))
        rectangle(i, j, corners);
    }
}

double CellField::areaAbove(double level) const {
  double area = 0;
  eachAbove(level, [&](std::size_t i, std::size_t j, const std::array<double, 4>& v) {
    const double half = (xs_[i + 1] - xs_[i]) * (ys_[j + 1] - ys_[j]) / 2;
    area += half * (shareAbove({v[0], v[1], v[2]}) + shareAbove({v[1], v[2], v[3]}));
  });
  return area;
}

QRectF CellField::boundsAbove(double level) const {
  QRectF bounds;
  eachAbove(level, [&](std::size_t i, std::size_t j, const std::array<double, 4>&) {
    bounds |= QRectF(QPointF(xs_[i], ys_[j]), QPointF(xs_[i + 1], ys_[j + 1]));
  });
  return bounds;
}

} // namespace TVR::Study
