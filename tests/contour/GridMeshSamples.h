#pragma once

#include "contour/GridMesh.h"
#include "contour/Isoline.h"

#include <cmath>
#include <numeric>
#include <random>
#include <vector>

/// Meshes and fields for the tests of what is drawn from them.
namespace TVR::Contour::Samples {

/// `count` + 1 edges of cells of one width.
inline std::vector<double> evenAxis(int count, double from, double to) {
  std::vector<double> axis;
  for (int i = 0; i <= count; ++i)
    axis.push_back(from + (to - from) * i / count);
  return axis;
}

/// `count` + 1 edges of cells that grow by a factor from the middle to both ends.
inline std::vector<double> gradedAxis(int count, double from, double to, double growth) {
  std::vector<double> axis{0};
  for (int i = 0; i < count; ++i)
    axis.push_back(axis.back() + std::pow(growth, std::abs(i - 0.5 * (count - 1))));
  const double length = axis.back();
  for (double& edge : axis)
    edge = from + (to - from) * edge / length;
  return axis;
}

/// A mesh numbered row by row, turned around `origin` by an angle [rad], where its (0, 0) lies.
inline GridMesh rowMesh(const std::vector<double>& xs, const std::vector<double>& ys,
                        double angle = 0, const QPointF& origin = {}) {
  const auto place = [&](double x, double y) {
    return origin + QPointF(std::cos(angle) * x - std::sin(angle) * y,
                            std::sin(angle) * x + std::cos(angle) * y);
  };
  const int columns = static_cast<int>(xs.size()) - 1;
  const int rows = static_cast<int>(ys.size()) - 1;
  GridMesh mesh;
  for (double y : ys)
    for (double x : xs)
      mesh.nodes.push_back(place(x, y));
  for (int j = 0; j < rows; ++j)
    for (int i = 0; i < columns; ++i) {
      const int node = j * (columns + 1) + i;
      mesh.cells.push_back({node, node + 1, node + columns + 2, node + columns + 1});
      mesh.centres.push_back(place((xs[i] + xs[i + 1]) / 2, (ys[j] + ys[j + 1]) / 2));
    }
  return mesh;
}

/// The square from 0 to `size`, in cells of the width 1.
inline GridMesh unitMesh(int columns, int rows) {
  return rowMesh(evenAxis(columns, 0, columns), evenAxis(rows, 0, rows));
}

/// The values of a function of place at the centres.
template <typename Field>
std::vector<double> sampled(const GridMesh& mesh, const Field& field) {
  std::vector<double> values;
  for (const QPointF& centre : mesh.centres)
    values.push_back(field(centre.x(), centre.y()));
  return values;
}

inline std::vector<double> randomValues(std::size_t count, unsigned seed) {
  std::mt19937 generator(seed);
  std::vector<double> values(count);
  for (double& value : values)
    value = 2.0 * generator() / 4294967296.0 - 1;
  return values;
}

/// The same cells in another order, each begun at another corner and every second one turned over.
inline void shuffle(GridMesh& mesh, std::vector<double>& values, unsigned seed) {
  std::mt19937 generator(seed);
  std::vector<int> order(mesh.cells.size());
  std::iota(order.begin(), order.end(), 0);
  for (std::size_t i = order.size(); i > 1; --i)
    std::swap(order[i - 1], order[generator() % i]);
  GridMesh shuffled;
  shuffled.nodes = mesh.nodes;
  std::vector<double> shuffledValues;
  for (int from : order) {
    const std::array<int, 4>& cell = mesh.cells[from];
    const int first = static_cast<int>(generator() % 4);
    const int step = generator() % 2 ? 1 : 3;
    shuffled.cells.push_back({cell[first], cell[(first + step) % 4], cell[(first + 2) % 4],
                              cell[(first + 3 * step) % 4]});
    shuffled.centres.push_back(mesh.centres[from]);
    shuffledValues.push_back(values[from]);
  }
  mesh = shuffled;
  values = shuffledValues;
}

/// The pieces of a line, each with its own points.
inline std::vector<QVector<QPointF>> piecesOf(const Isoline& line) {
  if (line.points.isEmpty())
    return {};
  std::vector<QVector<QPointF>> pieces;
  int begin = 0;
  const QVector<int> ends = line.breaks.isEmpty() ? QVector<int>{line.points.size()} : line.breaks;
  for (int end : ends) {
    pieces.push_back(line.points.mid(begin, end - begin));
    begin = end;
  }
  return pieces;
}

inline bool isClosed(const QVector<QPointF>& piece) {
  return piece.size() > 2 && piece.first().x() == piece.last().x() &&
         piece.first().y() == piece.last().y();
}

} // namespace TVR::Contour::Samples
