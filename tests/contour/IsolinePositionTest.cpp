#include "contour/IsolineSamples.h"

namespace {

using namespace TVR::Contour;
using namespace TVR::Contour::Samples;

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

} // namespace
