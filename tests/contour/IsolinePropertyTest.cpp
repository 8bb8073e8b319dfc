#include "contour/GridMeshSamples.h"
#include "contour/IsolineTracing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

namespace {

using namespace TVR::Contour;
using namespace TVR::Contour::Samples;

/// A side of a patch: column and row of its lower left point, and whether it goes up.
using Side = std::tuple<int, int, bool>;
/// A part of a line within a patch, as the two sides it joins, the lesser first.
using Part = std::pair<Side, Side>;

Part partOf(const Side& a, const Side& b) {
  return a < b ? Part(a, b) : Part(b, a);
}

/// The field of cell values on a mesh of unit cells, patch by patch: the points are the centres and
/// a frame of points on the edge of the mesh.
class PatchField {
public:
  PatchField(int columns, int rows, const std::vector<double>& cellValues)
      : columns_(columns), rows_(rows), values_((columns + 2) * (rows + 2)) {
    const auto [lowest, highest] = std::minmax_element(cellValues.begin(), cellValues.end());
    for (int j = 0; j < rows; ++j)
      for (int i = 0; i < columns; ++i)
        at(i + 1, j + 1) = cellValues[j * columns + i];
    const auto beyond = [&](double value, double before) {
      return std::clamp(value + (value - before) / 2, *lowest, *highest);
    };
    for (int j = 1; j <= rows; ++j) {
      at(0, j) = beyond(at(1, j), at(2, j));
      at(columns + 1, j) = beyond(at(columns, j), at(columns - 1, j));
    }
    for (int i = 1; i <= columns; ++i) {
      at(i, 0) = beyond(at(i, 1), at(i, 2));
      at(i, rows + 1) = beyond(at(i, rows), at(i, rows - 1));
    }
    for (int i : {0, columns + 1})
      for (int j : {0, rows + 1}) {
        const int besideI = i == 0 ? 1 : columns;
        const int besideJ = j == 0 ? 1 : rows;
        at(i, j) =
            std::clamp(at(besideI, j) + at(i, besideJ) - at(besideI, besideJ), *lowest, *highest);
      }
  }

  double at(int i, int j) const { return values_[j * (columns_ + 2) + i]; }
  double& at(int i, int j) { return values_[j * (columns_ + 2) + i]; }
  double x(int i) const { return std::clamp(i - 0.5, 0.0, double(columns_)); }
  double y(int j) const { return std::clamp(j - 0.5, 0.0, double(rows_)); }

  /// The field anywhere in the mesh.
  double operator()(const QPointF& point) const {
    const int i = std::clamp(static_cast<int>(std::floor(point.x() + 0.5)), 0, columns_);
    const int j = std::clamp(static_cast<int>(std::floor(point.y() + 0.5)), 0, rows_);
    const double s = (point.x() - x(i)) / (x(i + 1) - x(i));
    const double t = (point.y() - y(j)) / (y(j + 1) - y(j));
    return (1 - t) * ((1 - s) * at(i, j) + s * at(i + 1, j)) +
           t * ((1 - s) * at(i, j + 1) + s * at(i + 1, j + 1));
  }

  /// All parts of the line, patch by patch; opposite corners are joined as the saddle says.
  std::multiset<Part> parts(double level) const {
    std::multiset<Part> result;
    for (int j = 0; j <= rows_; ++j)
      for (int i = 0; i <= columns_; ++i) {
        const double corners[] = {at(i, j), at(i + 1, j), at(i + 1, j + 1), at(i, j + 1)};
        const Side sides[] = {{i, j, false}, {i + 1, j, true}, {i, j + 1, false}, {i, j, true}};
        std::vector<int> crossed;
        for (int k = 0; k < 4; ++k)
          if ((corners[k] >= level) != (corners[(k + 1) % 4] >= level))
            crossed.push_back(k);
        if (crossed.size() == 2)
          result.insert(partOf(sides[crossed[0]], sides[crossed[1]]));
        if (crossed.size() < 4)
          continue;
        const double saddle = (corners[0] * corners[2] - corners[1] * corners[3]) /
                              (corners[0] + corners[2] - corners[1] - corners[3]);
        const bool cutsOffFirst = (saddle >= level) != (corners[0] >= level);
        result.insert(partOf(sides[0], sides[cutsOffFirst ? 3 : 1]));
        result.insert(partOf(sides[2], sides[cutsOffFirst ? 1 : 3]));
      }
    return result;
  }

  /// The side that a point lies on; false within a patch.
  bool sideAt(const QPointF& point, Side& side) const {
    const int i = std::clamp(static_cast<int>(std::floor(point.x() + 0.5)), 0, columns_);
    const int j = std::clamp(static_cast<int>(std::floor(point.y() + 0.5)), 0, rows_);
    for (int k : {i, i + 1})
      if (std::abs(point.x() - x(k)) < 1e-12) {
        side = {k, j, true};
        return true;
      }
    for (int k : {j, j + 1})
      if (std::abs(point.y() - y(k)) < 1e-12) {
        side = {i, k, false};
        return true;
      }
    return false;
  }

  bool isOnEdge(const QPointF& point) const {
    return point.x() == 0 || point.x() == columns_ || point.y() == 0 || point.y() == rows_;
  }

private:
  int columns_;
  int rows_;
  std::vector<double> values_;
};

/// The parts of a traced line, between one side and the next.
std::multiset<Part> partsOf(const Isoline& line, const PatchField& field) {
  std::multiset<Part> result;
  for (const QVector<QPointF>& piece : piecesOf(line)) {
    Side last;
    EXPECT_TRUE(field.sideAt(piece.first(), last)) << "a piece begins on a side";
    for (int i = 1; i < piece.size(); ++i) {
      Side side;
      if (field.sideAt(piece[i], side)) {
        result.insert(partOf(last, side));
        last = side;
      }
    }
  }
  return result;
}

class RandomField : public testing::TestWithParam<unsigned> {
protected:
  static constexpr int columns = 23;
  static constexpr int rows = 17;
  const std::vector<double> values = randomValues(columns * rows, GetParam());
  const PatchField field{columns, rows, values};
  const std::vector<double> levels{-0.7, -0.2, 0.0, 0.013, 0.4, 0.8};
  const std::vector<Isoline> lines = traceIsolines(unitMesh(columns, rows), values, levels);
};

TEST_P(RandomField, theLineConsistsOfThePartsOfAllPatches) {
  for (std::size_t i = 0; i < levels.size(); ++i)
    EXPECT_EQ(partsOf(lines[i], field), field.parts(levels[i])) << levels[i];
}

TEST_P(RandomField, everyPointHasTheLevel) {
  for (std::size_t i = 0; i < levels.size(); ++i)
    for (const QPointF& point : lines[i].points)
      EXPECT_NEAR(field(point), levels[i], 1e-9);
}

TEST_P(RandomField, everyPieceIsClosedOrEndsOnTheEdge) {
  for (const Isoline& line : lines)
    for (const QVector<QPointF>& piece : piecesOf(line))
      if (!isClosed(piece)) {
        EXPECT_TRUE(field.isOnEdge(piece.first()));
        EXPECT_TRUE(field.isOnEdge(piece.last()));
      }
}

TEST_P(RandomField, noPointBelongsToTwoPartsOfTheLine) {
  for (const Isoline& line : lines) {
    std::set<std::pair<double, double>> seen;
    for (const QVector<QPointF>& piece : piecesOf(line))
      for (int i = isClosed(piece) ? 1 : 0; i < piece.size(); ++i)
        EXPECT_TRUE(seen.insert({piece[i].x(), piece[i].y()}).second);
  }
}

TEST_P(RandomField, cellsInAnyOrderAndSenseGiveTheSameParts) {
  GridMesh mesh = unitMesh(columns, rows);
  std::vector<double> shuffledValues = values;
  shuffle(mesh, shuffledValues, GetParam());
  const std::vector<Isoline> shuffledLines = traceIsolines(mesh, shuffledValues, levels);
  for (std::size_t i = 0; i < levels.size(); ++i) {
    EXPECT_EQ(partsOf(shuffledLines[i], field), field.parts(levels[i]));
    EXPECT_EQ(shuffledLines[i].points.size(), lines[i].points.size());
    EXPECT_EQ(shuffledLines[i].breaks.size(), lines[i].breaks.size());
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomField, testing::Range(1u, 9u));

} // namespace
