#include "contour/IsolineSamples.h"

namespace {

using namespace TVR::Contour;
using namespace TVR::Contour::Samples;

constexpr double infinite = std::numeric_limits<double>::infinity();

TEST(IsolineHole, aLineIsInterruptedAtACellWithoutAValue) {
  const GridMesh mesh = unitMesh(9, 9);
  for (double gap : {nothing, infinite, -infinite}) {
    std::vector<double> values = sampled(mesh, [](double, double y) { return y; });
    values[4 * 9 + 4] = gap;
    const auto pieces = piecesOf(traceIsoline(mesh, values, 4.7));
    ASSERT_EQ(pieces.size(), 2u);
    double length = 0;
    for (const QVector<QPointF>& piece : pieces)
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
  for (const QVector<QPointF>& piece : pieces) {
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

} // namespace
