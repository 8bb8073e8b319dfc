#include "page/IsolineTracing.h"

#include "page/CentreMesh.h"
#include "page/GridMeshSamples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <limits>

namespace {

using namespace TVR::Page;
using namespace TVR::Page::Samples;

constexpr double nothing = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

using Field = std::function<double(double, double)>;

Isoline traced(const GridMesh& mesh, const Field& field, double level) {
  return traceIsoline(mesh, sampled(mesh, field), level);
}

/// The largest distance of a line's points from one that `distance` measures.
double largest(const Isoline& line, const Field& distance) {
  double result = 0;
  for (const QPointF& point : line.points)
    result = std::max(result, std::abs(distance(point.x(), point.y())));
  return result;
}

/// The length of all pieces.
double lengthOf(const Isoline& line) {
  double length = 0;
  for (const QPolygonF& piece : piecesOf(line))
    for (int i = 1; i < piece.size(); ++i)
      length += std::hypot(piece[i].x() - piece[i - 1].x(), piece[i].y() - piece[i - 1].y());
  return length;
}

/// Two hills of the height 1 with a pass between them.
double twoPeaks(double x, double y) {
  return std::exp(-2 * ((x - 1) * (x - 1) + y * y)) + std::exp(-2 * ((x + 1) * (x + 1) + y * y));
}

GridMesh squareAround0(int cells, double half) {
  return rowMesh(evenAxis(cells, -half, half), evenAxis(cells, -half, half));
}

void expectSameLine(const Isoline& one, const Isoline& other) {
  ASSERT_EQ(one.points.size(), other.points.size());
  EXPECT_EQ(one.breaks, other.breaks);
  for (int i = 0; i < one.points.size(); ++i) {
    EXPECT_EQ(one.points[i].x(), other.points[i].x());
    EXPECT_EQ(one.points[i].y(), other.points[i].y());
  }
}

// Position

TEST(IsolinePosition, aPlaneIsMetExactlyUpToTheEdge) {
  const GridMesh mesh = rowMesh(gradedAxis(12, 0, 30, 1.3), gradedAxis(9, 0, 20, 1.2));
  const Isoline line = traced(
      mesh, [](double x, double y) { return 2 * x + y; }, 31);
  EXPECT_LT(largest(line, [](double x, double y) { return 2 * x + y - 31; }), 1e-9);
  ASSERT_EQ(piecesOf(line).size(), 1u);
  std::vector<double> ends{line.points.first().y(), line.points.last().y()};
  std::sort(ends.begin(), ends.end());
  EXPECT_NEAR(ends[0], 0, 1e-9);
  EXPECT_NEAR(ends[1], 20, 1e-9);
}

TEST(IsolinePosition, theErrorOnAConeFallsWithTheSquareOfTheCellSize) {
  std::vector<double> errors;
  for (int cells : {20, 40, 80, 160}) {
    const GridMesh mesh = squareAround0(cells, 2.0);
    const Isoline line = traced(
        mesh, [](double x, double y) { return 2.0 - std::hypot(x, y); }, 0.8);
    errors.push_back(largest(line, [](double x, double y) { return std::hypot(x, y) - 1.2; }));
  }
  // How the circle lies among the centres makes single steps uneven.
  EXPECT_GT(std::log2(errors[0] / errors[3]) / 3, 1.8);
  EXPECT_LT(errors[3], 2e-4);
}

TEST(IsolinePosition, theErrorAtTheEdgeFallsWithTheSquareOfTheCellSize) {
  std::vector<double> errors;
  const auto offset = [](double x, double y) { return x - 0.4 * std::sin(1.5 * y) - 0.1; };
  for (int cells : {20, 40, 80}) {
    const Isoline line = traced(squareAround0(cells, 2.0), offset, 0);
    ASSERT_EQ(piecesOf(line).size(), 1u);
    errors.push_back(0);
    for (const QPointF& end : {line.points.first(), line.points.last()}) {
      EXPECT_NEAR(std::abs(end.y()), 2.0, 1e-12);
      errors.back() = std::max(errors.back(), std::abs(offset(end.x(), end.y())));
    }
  }
  EXPECT_GT(std::log2(errors[0] / errors[1]), 1.7);
  EXPECT_GT(std::log2(errors[1] / errors[2]), 1.7);
}

TEST(IsolinePosition, aTurnedAndGradedMeshShowsTheLineOfThePlainOne) {
  const double angle = 0.7;
  const QPointF origin(680000, 226000);
  const auto xs = gradedAxis(40, -20, 20, 1.15);
  const Field hill = [](double x, double y) { return std::exp(-(x * x + 2 * y * y) / 90); };
  const GridMesh plain = rowMesh(xs, xs);
  const GridMesh turned = rowMesh(xs, xs, angle, origin);
  const std::vector<double> values = sampled(plain, hill);
  const Isoline expected = traceIsoline(plain, values, 0.3);
  const Isoline line = traceIsoline(turned, values, 0.3);
  ASSERT_GT(line.points.size(), 20);
  ASSERT_EQ(line.points.size(), expected.points.size());
  for (int i = 0; i < line.points.size(); ++i) {
    const QPointF there = line.points[i] - origin;
    EXPECT_NEAR(std::cos(angle) * there.x() + std::sin(angle) * there.y(), expected.points[i].x(),
                1e-8);
    EXPECT_NEAR(std::cos(angle) * there.y() - std::sin(angle) * there.x(), expected.points[i].y(),
                1e-8);
  }
}

TEST(IsolinePosition, anEndOnATurnedMeshLiesOnItsEdge) {
  const double angle = 0.5;
  const auto xs = gradedAxis(15, -8, 8, 1.3);
  const GridMesh mesh = rowMesh(xs, xs, angle);
  const Isoline line =
      traceIsoline(mesh, sampled(rowMesh(xs, xs), [](double x, double) { return x; }), 1.5);
  ASSERT_EQ(piecesOf(line).size(), 1u);
  for (const QPointF& end : {line.points.first(), line.points.last()}) {
    EXPECT_NEAR(std::cos(angle) * end.x() + std::sin(angle) * end.y(), 1.5, 1e-9);
    EXPECT_NEAR(std::abs(std::cos(angle) * end.y() - std::sin(angle) * end.x()), 8, 1e-9);
  }
}

TEST(IsolinePosition, theFieldIsBilinearBetweenFourCentres) {
  // Value 1 at one of the four centres, at (0.5, 0.5): the line is xy = 0.3 seen from (1.5, 1.5).
  const Isoline line = traceIsoline(unitMesh(2, 2), {1, 0, 0, 0}, 0.3);
  int inside = 0;
  for (const QPointF& point : line.points)
    if (point.x() >= 0.5 && point.y() >= 0.5) {
      EXPECT_NEAR((1.5 - point.x()) * (1.5 - point.y()), 0.3, 1e-9);
      ++inside;
    }
  EXPECT_GT(inside, 2);
}

TEST(IsolinePosition, aChordLeavesTheLineByNoMoreThanOneOrTwoHundredthsOfThePatch) {
  for (double level : {0.02, 0.1, 0.3, 0.5, 0.9, 0.98}) {
    const Isoline line = traceIsoline(unitMesh(2, 2), {1, 0, 0, 0}, level);
    for (int i = 1; i < line.points.size(); ++i) {
      const QPointF middle = (line.points[i] + line.points[i - 1]) / 2;
      const double x = 1.5 - middle.x();
      const double y = 1.5 - middle.y();
      if (x <= 1 && y <= 1) {
        EXPECT_LT(std::abs(x * y - level) / std::hypot(x, y), 0.015) << level;
      }
    }
  }
}

TEST(IsolinePosition, aLineThatIsNearlyStraightHasOnePointPerSide) {
  const GridMesh mesh = squareAround0(100, 1.0);
  const Isoline line = traced(
      mesh, [](double x, double y) { return x + 0.1 * y * y; }, 0.052);
  EXPECT_LT(line.points.size(), 120);
}

// Topology

TEST(IsolineTopology, aHillGivesOneClosedPieceWithoutBreaks) {
  const Isoline line = traced(
      squareAround0(21, 2), [](double x, double y) { return -std::hypot(x, y); }, -1);
  EXPECT_TRUE(line.breaks.isEmpty());
  EXPECT_TRUE(isClosed(line.points));
}

TEST(IsolineTopology, twoHillsGiveAPieceEachAboveThePass) {
  const Isoline line = traced(squareAround0(40, 3), twoPeaks, 0.6);
  ASSERT_EQ(line.breaks.size(), 2);
  EXPECT_EQ(line.breaks.last(), line.points.size());
  for (const QPolygonF& piece : piecesOf(line))
    EXPECT_TRUE(isClosed(piece));
}

TEST(IsolineTopology, twoHillsGiveOnePieceBelowThePass) {
  const Isoline line = traced(squareAround0(40, 3), twoPeaks, 0.2);
  EXPECT_TRUE(line.breaks.isEmpty());
  EXPECT_TRUE(isClosed(line.points));
}

TEST(IsolineTopology, aSaddleGivesTwoOpenPiecesOnEitherSideOfIt) {
  const GridMesh mesh = squareAround0(20, 2);
  for (double level : {0.1, 0.001, -0.001, -0.1}) {
    const auto pieces = piecesOf(traced(
        mesh, [](double x, double y) { return x * y; }, level));
    ASSERT_EQ(pieces.size(), 2u) << level;
    for (const QPolygonF& piece : pieces) {
      EXPECT_FALSE(isClosed(piece));
      EXPECT_LT(level * piece.first().x() * piece.first().y(), 1.0);
      EXPECT_GT(piece.first().x() * piece.last().x(), 0) << "a piece stays in its quadrant";
    }
  }
}

TEST(IsolineTopology, theSaddleValueDecidesHowAPatchIsPassed) {
  // The saddle between these centres has the value 0.5: (1 * 1 - 0 * 0) / (1 + 1).
  const auto piecesAt = [](double level) {
    return piecesOf(traceIsoline(unitMesh(2, 2), {1, 0, 0, 1}, level));
  };
  for (double level : {0.4, 0.6}) {
    const auto pieces = piecesAt(level);
    ASSERT_EQ(pieces.size(), 2u);
    for (const QPolygonF& piece : pieces) {
      const QPointF middle = (piece.first() + piece.last()) / 2;
      // Below the saddle the low corners, at (1.5, 0.5) and (0.5, 1.5), are cut off.
      const bool isAtLowCorner = (middle.x() - 1) * (middle.y() - 1) < 0;
      EXPECT_EQ(isAtLowCorner, level < 0.5);
    }
  }
}

TEST(IsolineTopology, anExactSaddleIsPassedThroughItsMiddle) {
  const auto pieces = piecesOf(traceIsoline(unitMesh(2, 2), {1, 0, 0, 1}, 0.5));
  ASSERT_EQ(pieces.size(), 2u);
  for (const QPolygonF& piece : pieces)
    EXPECT_TRUE(std::any_of(piece.begin(), piece.end(), [](const QPointF& point) {
      return std::hypot(point.x() - 1, point.y() - 1) < 1e-12;
    }));
}

TEST(IsolineTopology, aLineThatLeavesTheMeshEndsOnItsEdge) {
  const Isoline line = traced(
      squareAround0(17, 1), [](double x, double y) { return std::hypot(x, y); }, 1.2);
  const auto pieces = piecesOf(line);
  ASSERT_EQ(pieces.size(), 4u) << "a circle that only the corners hold";
  for (const QPolygonF& piece : pieces)
    for (const QPointF& end : {piece.first(), piece.last()})
      EXPECT_DOUBLE_EQ(std::max(std::abs(end.x()), std::abs(end.y())), 1.0);
}

TEST(IsolineTopology, aLevelOutsideTheRangeOfTheValuesHasNoLine) {
  // Steep before the edge: gone straight on there it would fall to -1.
  const GridMesh mesh = unitMesh(6, 3);
  const auto values = sampled(mesh, [](double x, double) { return x < 5 ? 2.0 : 0.0; });
  EXPECT_TRUE(traceIsoline(mesh, values, -0.5).points.isEmpty());
  EXPECT_TRUE(traceIsoline(mesh, values, 2.5).points.isEmpty());
}

// Levels at values

TEST(IsolinePlateau, aFieldOfOneValueHasNoLineAtAnyLevel) {
  const GridMesh mesh = unitMesh(7, 5);
  const std::vector<double> values(35, 3.0);
  for (double level : {2.0, 3.0, 4.0})
    EXPECT_TRUE(traceIsoline(mesh, values, level).points.isEmpty());
}

TEST(IsolinePlateau, aPlateauAtTheLevelIsOutlinedOnce) {
  const GridMesh mesh = unitMesh(8, 8);
  const auto values = sampled(mesh, [](double x, double y) {
    return std::abs(x - 4) < 2 && std::abs(y - 4) < 2 ? 1.0 : 0.0;
  });
  const Isoline line = traceIsoline(mesh, values, 1.0);
  ASSERT_EQ(piecesOf(line).size(), 1u);
  EXPECT_TRUE(isClosed(line.points));
  EXPECT_NEAR(lengthOf(line), 4 * 3, 1e-12) << "through the centres of its outer cells";
}

TEST(IsolinePlateau, aBasinAtTheLevelHasNoLineSinceItCountsAsAbove) {
  const GridMesh mesh = unitMesh(8, 8);
  const auto values = sampled(mesh, [](double x, double y) {
    return std::abs(x - 4) < 2 && std::abs(y - 4) < 2 ? 1.0 : 2.0;
  });
  EXPECT_TRUE(traceIsoline(mesh, values, 1.0).points.isEmpty());
}

TEST(IsolinePlateau, noPointIsRepeatedWhereManyValuesEqualTheLevel) {
  const GridMesh mesh = unitMesh(12, 12);
  std::vector<double> values = randomValues(144, 7);
  for (double& value : values)
    value = std::round(2 * value);
  for (double level : {-2.0, -1.0, 0.0, 1.0, 2.0})
    for (const QPolygonF& piece : piecesOf(traceIsoline(mesh, values, level))) {
      ASSERT_GE(piece.size(), 2);
      for (int i = 1; i < piece.size(); ++i)
        EXPECT_GT(std::hypot(piece[i].x() - piece[i - 1].x(), piece[i].y() - piece[i - 1].y()),
                  1e-9);
    }
}

TEST(IsolinePlateau, aSummitAtTheLevelHasNoLine) {
  std::vector<double> values(25, 0.0);
  values[12] = 1.0;
  EXPECT_TRUE(traceIsoline(unitMesh(5, 5), values, 1.0).points.isEmpty());
}

// Cells without values

TEST(IsolineHole, aLineIsInterruptedAtACellWithoutAValue) {
  const GridMesh mesh = unitMesh(9, 9);
  for (double gap : {nothing, infinite, -infinite}) {
    std::vector<double> values = sampled(mesh, [](double, double y) { return y; });
    values[4 * 9 + 4] = gap;
    const auto pieces = piecesOf(traceIsoline(mesh, values, 4.7));
    ASSERT_EQ(pieces.size(), 2u);
    double length = 0;
    for (const QPolygonF& piece : pieces)
      length += std::abs(piece.first().x() - piece.last().x());
    EXPECT_NEAR(length, 9 - 2, 1e-12) << "from centre to centre beside the hole";
  }
}

TEST(IsolineHole, aCellAtTheEdgeBesideAHoleIsContinuedAsItIs) {
  const GridMesh mesh = unitMesh(3, 3);
  std::vector<double> values = sampled(mesh, [](double x, double) { return x; });
  for (int column = 0; column < 3; ++column)
    values[3 + column] = nothing;
  const auto pieces = piecesOf(traceIsoline(mesh, values, 1.25));
  ASSERT_EQ(pieces.size(), 2u);
  for (const QPolygonF& piece : pieces) {
    EXPECT_NEAR(std::abs(piece.first().y() - piece.last().y()), 0.5, 1e-12);
    for (const QPointF& point : piece)
      EXPECT_NEAR(point.x(), 1.25, 1e-12);
  }
}

TEST(IsolineHole, missingValuesAreHoles) {
  const GridMesh mesh = unitMesh(4, 4);
  std::vector<double> values = sampled(mesh, [](double x, double) { return x; });
  values.resize(8);
  const Isoline line = traceIsoline(mesh, values, 1.7);
  ASSERT_FALSE(line.points.isEmpty());
  for (const QPointF& point : line.points)
    EXPECT_LE(point.y(), 1.5);
}

TEST(IsolineHole, surplusValuesAreIgnored) {
  const GridMesh mesh = unitMesh(4, 4);
  std::vector<double> values = sampled(mesh, [](double x, double) { return x; });
  const Isoline expected = traceIsoline(mesh, values, 1.7);
  values.resize(40, 100.0);
  expectSameLine(traceIsoline(mesh, values, 1.7), expected);
}

TEST(IsolineHole, noValueAtAllGivesNoLine) {
  EXPECT_TRUE(traceIsoline(unitMesh(4, 4), {}, 0).points.isEmpty());
  EXPECT_TRUE(traceIsoline(unitMesh(4, 4), std::vector<double>(16, nothing), 0).points.isEmpty());
}

TEST(IsolineHole, aLevelThatIsNotANumberGivesNoLine) {
  const GridMesh mesh = unitMesh(4, 4);
  for (double level : {nothing, infinite, -infinite})
    EXPECT_TRUE(traced(
                    mesh, [](double x, double) { return x; }, level)
                    .points.isEmpty());
}

TEST(IsolineHole, valuesNearTheLargestNumberAreTraced) {
  const Isoline line = traced(
      unitMesh(4, 4), [](double x, double) { return x < 2 ? -1.7e308 : 1.7e308; }, 0);
  ASSERT_EQ(piecesOf(line).size(), 1u);
  for (const QPointF& point : line.points)
    EXPECT_NEAR(point.x(), 2.0, 1e-9);
}

// Small and bad meshes

TEST(IsolineMesh, anEmptyMeshHasNoLine) {
  EXPECT_TRUE(traceIsoline({}, {}, 0).points.isEmpty());
}

TEST(IsolineMesh, aSingleCellHasNoLine) {
  EXPECT_TRUE(traceIsoline(unitMesh(1, 1), {1.0}, 1.0).points.isEmpty());
  EXPECT_TRUE(traceIsoline(unitMesh(1, 1), {1.0}, 0.5).points.isEmpty());
}

TEST(IsolineMesh, aSingleRowIsCrossedFromEdgeToEdge) {
  const Isoline line = traced(
      unitMesh(6, 1), [](double x, double) { return x; }, 2.25);
  ASSERT_EQ(piecesOf(line).size(), 1u);
  EXPECT_NEAR(lengthOf(line), 1.0, 1e-12);
  for (const QPointF& point : line.points)
    EXPECT_NEAR(point.x(), 2.25, 1e-12);
}

TEST(IsolineMesh, aSingleColumnIsCrossedFromEdgeToEdge) {
  const Isoline line = traced(
      unitMesh(1, 6), [](double, double y) { return y; }, 4.75);
  ASSERT_EQ(piecesOf(line).size(), 1u);
  EXPECT_NEAR(lengthOf(line), 1.0, 1e-12);
  for (const QPointF& point : line.points)
    EXPECT_NEAR(point.y(), 4.75, 1e-12);
}

TEST(IsolineMesh, cellsWithMissingNodesAreLeftOut) {
  GridMesh mesh = unitMesh(5, 5);
  mesh.cells[12] = {17, -3, 25, 24};
  mesh.cells[13] = {18, 19, 1000000, 25};
  const Isoline line = traced(
      mesh, [](double, double y) { return y; }, 2.6);
  ASSERT_EQ(piecesOf(line).size(), 2u) << "one on either side of the gap";
  for (const QPointF& point : line.points)
    EXPECT_TRUE(point.x() <= 2 || point.x() >= 4);
}

TEST(IsolineMesh, cellsThatNameANodeTwiceAreLeftOut) {
  GridMesh mesh = unitMesh(5, 5);
  mesh.cells[12] = {14, 14, 14, 14};
  EXPECT_EQ(piecesOf(traced(
                         mesh, [](double, double y) { return y; }, 2.6))
                .size(),
            2u);
}

TEST(IsolineMesh, cellsThatAreListedManyTimesDoNoHarm) {
  GridMesh mesh = unitMesh(3, 3);
  for (int i = 0; i < 5; ++i)
    mesh.cells.push_back(mesh.cells[4]);
  mesh.centres.clear();
  const std::vector<double> values = randomValues(mesh.cells.size(), 3);
  for (const QPointF& point : traceIsoline(mesh, values, 0.1).points)
    EXPECT_TRUE(QRectF(0, 0, 3, 3).contains(point));
}

TEST(IsolineMesh, centresThatAreMissingLieAtTheMeanOfTheNodes) {
  GridMesh mesh = unitMesh(6, 6);
  const std::vector<double> values = randomValues(36, 11);
  const Isoline expected = traceIsoline(mesh, values, 0.2);
  mesh.centres.resize(10);
  expectSameLine(traceIsoline(mesh, values, 0.2), expected);
}

TEST(IsolineMesh, aCentreThatLiesNowhereIsAHole) {
  GridMesh mesh = unitMesh(5, 5);
  mesh.centres[12] = {nothing, 2.5};
  const Isoline line =
      traceIsoline(mesh, sampled(unitMesh(5, 5), [](double, double y) { return y; }), 2.6);
  EXPECT_EQ(piecesOf(line).size(), 2u);
  for (const QPointF& point : line.points)
    EXPECT_TRUE(std::isfinite(point.x()) && std::isfinite(point.y()));
}

TEST(IsolineMesh, aMeshWithoutAreaGivesFinitePoints) {
  GridMesh mesh = unitMesh(4, 4);
  std::fill(mesh.nodes.begin(), mesh.nodes.end(), QPointF(7, 7));
  std::fill(mesh.centres.begin(), mesh.centres.end(), QPointF(7, 7));
  const Isoline line = traceIsoline(mesh, randomValues(16, 5), 0.1);
  EXPECT_TRUE(line.points.isEmpty()) << "all its points are one";
}

TEST(IsolineMesh, aMeshOfTwoPartsIsTracedInBoth) {
  GridMesh mesh = unitMesh(4, 4);
  const GridMesh other = rowMesh(evenAxis(4, 10, 14), evenAxis(4, 0, 4));
  const int nodes = static_cast<int>(mesh.nodes.size());
  mesh.nodes.insert(mesh.nodes.end(), other.nodes.begin(), other.nodes.end());
  mesh.centres.insert(mesh.centres.end(), other.centres.begin(), other.centres.end());
  for (std::array<int, 4> cell : other.cells) {
    for (int& node : cell)
      node += nodes;
    mesh.cells.push_back(cell);
  }
  const auto pieces = piecesOf(traced(
      mesh, [](double, double y) { return y; }, 1.75));
  ASSERT_EQ(pieces.size(), 2u);
  for (const QPolygonF& piece : pieces)
    EXPECT_NEAR(std::abs(piece.first().x() - piece.last().x()), 4.0, 1e-12);
}

TEST(IsolineMesh, aReentrantCornerIsPassedWithoutAGap) {
  GridMesh mesh = unitMesh(6, 6);
  std::vector<double> values = sampled(mesh, [](double x, double y) { return x + y; });
  // The upper right quarter does not exist.
  for (int cell = 35; cell >= 0; --cell)
    if (mesh.centres[cell].x() > 3 && mesh.centres[cell].y() > 3) {
      mesh.cells.erase(mesh.cells.begin() + cell);
      mesh.centres.erase(mesh.centres.begin() + cell);
      values.erase(values.begin() + cell);
    }
  const Isoline line = traceIsoline(mesh, values, 5.5);
  EXPECT_EQ(piecesOf(line).size(), 1u);
  EXPECT_LT(largest(line, [](double x, double y) { return x + y - 5.5; }), 0.5);
}

TEST(IsolineMesh, nodesWithThreeOrFiveCellsAreCrossedWithoutAGap) {
  // `count` quadrilaterals around the origin.
  for (int count : {3, 5, 6}) {
    GridMesh mesh;
    mesh.nodes.push_back({0, 0});
    for (int i = 0; i < 2 * count; ++i) {
      const double angle = 3.14159265358979 * i / count;
      mesh.nodes.push_back({std::cos(angle), std::sin(angle)});
    }
    for (int i = 0; i < count; ++i)
      mesh.cells.push_back({0, 2 * i + 1, 2 * i + 2, (2 * i + 2) % (2 * count) + 1});
    for (const std::array<int, 4>& cell : mesh.cells)
      mesh.centres.push_back((mesh.nodes[cell[1]] + mesh.nodes[cell[2]] + mesh.nodes[cell[3]]) / 4);
    const Isoline line = traced(
        mesh, [](double x, double y) { return x + 0.3 * y; }, 0.05);
    EXPECT_EQ(piecesOf(line).size(), 1u) << count;
    EXPECT_LT(largest(line, [](double x, double y) { return x + 0.3 * y - 0.05; }), 0.25) << count;
  }
}

TEST(IsolineMesh, aNodeThatAllCellsShareCostsNoTime) {
  GridMesh mesh;
  const int cells = 100000;
  for (int i = 0; i < 3 * cells + 1; ++i)
    mesh.nodes.push_back({std::cos(i * 1e-5), std::sin(i * 2e-5)});
  for (int i = 0; i < cells; ++i)
    mesh.cells.push_back({0, 3 * i + 1, 3 * i + 2, 3 * i + 3});
  const auto before = std::chrono::steady_clock::now();
  traceIsoline(mesh, randomValues(cells, 1), 0);
  EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(10));
}

// Order

TEST(IsolineOrder, theSameInputGivesTheSameLine) {
  const GridMesh mesh = unitMesh(30, 30);
  const std::vector<double> values = randomValues(900, 42);
  expectSameLine(traceIsoline(mesh, values, 0.1), traceIsoline(mesh, values, 0.1));
}

TEST(IsolineOrder, severalLevelsAreTheLinesOfEachInTheirOrder) {
  const GridMesh mesh = unitMesh(30, 30);
  const std::vector<double> values = randomValues(900, 42);
  const std::vector<double> levels{0.3, -0.3, 0.3, 5.0, 0.0};
  const std::vector<Isoline> lines = traceIsolines(mesh, values, levels);
  ASSERT_EQ(lines.size(), levels.size());
  for (std::size_t i = 0; i < levels.size(); ++i)
    expectSameLine(lines[i], traceIsoline(mesh, values, levels[i]));
}

TEST(IsolineOrder, aPreparedMeshServesOtherValues) {
  const GridMesh mesh = unitMesh(30, 30);
  const CentreMesh prepared(mesh);
  for (unsigned seed : {1u, 2u}) {
    std::vector<double> values = randomValues(900, seed);
    values[400] = nothing;
    expectSameLine(traceIsolines(prepared, values, {0.1}).front(), traceIsoline(mesh, values, 0.1));
  }
}

TEST(IsolineOrder, openPiecesComeBeforeClosedOnes) {
  const auto pieces = piecesOf(traceIsoline(unitMesh(20, 20), randomValues(400, 9), 0.1));
  ASSERT_GT(pieces.size(), 4u);
  bool closedSeen = false;
  for (const QPolygonF& piece : pieces) {
    EXPECT_FALSE(closedSeen && !isClosed(piece));
    closedSeen = closedSeen || isClosed(piece);
  }
}

TEST(IsolineOrder, breaksRiseAndEndWithTheLastPoint) {
  const Isoline line = traceIsoline(unitMesh(20, 20), randomValues(400, 9), 0.1);
  ASSERT_GT(line.breaks.size(), 2);
  int begin = 0;
  for (int end : line.breaks) {
    EXPECT_GE(end - begin, 2);
    begin = end;
  }
  EXPECT_EQ(begin, line.points.size());
}

} // namespace
