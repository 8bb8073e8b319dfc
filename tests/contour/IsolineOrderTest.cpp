#include "contour/CentreMesh.h"
#include "contour/IsolineSamples.h"

#include <limits>

namespace {

using namespace TVR::Contour;
using namespace TVR::Contour::Samples;

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

TEST(IsolineOrder, aLineKnowsItsLevelAlsoWhereItIsEmpty) {
  const std::vector<double> levels{0.3, 5.0, std::numeric_limits<double>::infinity()};
  const std::vector<Isoline> lines = traceIsolines(unitMesh(30, 30), randomValues(900, 42), levels);
  for (std::size_t i = 0; i < levels.size(); ++i)
    EXPECT_EQ(lines.at(i).level, levels[i]);
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
  for (const QVector<QPointF>& piece : pieces) {
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
