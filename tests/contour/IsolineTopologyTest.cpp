#include "contour/IsolineSamples.h"

namespace {

using namespace TVR::Contour;
using namespace TVR::Contour::Samples;

/// Two hills of the height 1 with a pass between them.
double twoPeaks(double x, double y) {
  return std::exp(-2 * ((x - 1) * (x - 1) + y * y)) + std::exp(-2 * ((x + 1) * (x + 1) + y * y));
}

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
  for (const QVector<QPointF>& piece : piecesOf(line))
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
    for (const QVector<QPointF>& piece : pieces) {
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
    for (const QVector<QPointF>& piece : pieces) {
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
  for (const QVector<QPointF>& piece : pieces)
    EXPECT_TRUE(std::any_of(piece.begin(), piece.end(), [](const QPointF& point) {
      return std::hypot(point.x() - 1, point.y() - 1) < 1e-12;
    }));
}

TEST(IsolineTopology, aLineThatLeavesTheMeshEndsOnItsEdge) {
  const Isoline line = traced(
      squareAround0(17, 1), [](double x, double y) { return std::hypot(x, y); }, 1.2);
  const auto pieces = piecesOf(line);
  ASSERT_EQ(pieces.size(), 4u) << "a circle that only the corners hold";
  for (const QVector<QPointF>& piece : pieces)
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
    for (const QVector<QPointF>& piece : piecesOf(traceIsoline(mesh, values, level))) {
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

} // namespace
