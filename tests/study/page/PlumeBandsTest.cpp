#include "study/page/PlumeBands.h"

#include "study/page/PlumeMaps.h"
#include "study/plan/Distribution.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace TVR::Study;

namespace {

constexpr double cellArea = 25; // [m2]

TEST(PlumeBands, aRectangleOfTwelveCellsHasTheirArea) {
  ProbabilityMap map = emptyMap();
  fill(map, 6, 10, 3, 6, 1);
  const std::vector<QPolygonF> rings = ringsOf(map, 0.5);
  ASSERT_EQ(rings.size(), 1u);
  EXPECT_EQ(rings[0].first(), rings[0].last());
  // Between centres the map is bilinear, which takes (1 - ln 4) / 4 of a cell off each corner.
  EXPECT_NEAR(std::abs(signedArea(rings[0])), (12 - 0.386) * cellArea, 0.1 * cellArea);
  const QRectF box = rings[0].boundingRect();
  EXPECT_NEAR(box.left(), 1030, 1e-5);
  EXPECT_NEAR(box.top(), 2015, 1e-5);
  EXPECT_NEAR(box.right(), 1050, 1e-5);
  EXPECT_NEAR(box.bottom(), 2030, 1e-5);
}

TEST(PlumeBands, theLineOfAProbabilityLiesWhereTheMapHasIt) {
  ProbabilityMap map = emptyMap();
  for (int column = 0; column < map.raster.columns; ++column)
    fill(map, column, column + 1, 0, map.raster.rows, 1 - 0.05 * column);
  // 1 at x = 1002.5 m, falling by 0.01 a metre
  for (const double probability : {0.1, 0.5, 0.9}) {
    const std::vector<QPolygonF> rings = ringsOf(map, probability);
    ASSERT_EQ(rings.size(), 1u);
    EXPECT_NEAR(rings[0].boundingRect().right(), 1002.5 + 100 * (1 - probability), 1e-5);
  }
}

TEST(PlumeBands, aPlumeThatLeavesTheRasterEndsAtItsEdge) {
  ProbabilityMap map = emptyMap();
  fill(map, 15, 20, 0, 10, 1);
  for (const double probability : {0.1, 0.5}) {
    const std::vector<QPolygonF> rings = ringsOf(map, probability);
    ASSERT_EQ(rings.size(), 1u);
    EXPECT_EQ(rings[0].boundingRect().right(), 1100);
    EXPECT_EQ(rings[0].boundingRect().top(), 2000);
    EXPECT_EQ(rings[0].boundingRect().bottom(), 2050);
  }
}

TEST(PlumeBands, aHoleIsARingOfItsOwn) {
  ProbabilityMap map = emptyMap();
  fill(map, 4, 14, 1, 9, 1);
  fill(map, 7, 10, 4, 6, 0);
  EXPECT_EQ(ringsOf(map, 0.5).size(), 2u);
}

TEST(PlumeBands, theNinetyPercentBandLiesWithinTheTenPercentBand) {
  ProbabilityMap map = emptyMap();
  fill(map, 4, 16, 2, 8, 0.2);
  fill(map, 5, 12, 3, 7, 0.6);
  fill(map, 6, 8, 4, 6, 0.95);
  const std::vector<PlumeBand> bands = plumeBands({map});
  ASSERT_EQ(bands.size(), 3u);
  EXPECT_EQ(bands[0].name, "P10");
  EXPECT_EQ(bands[2].name, "P90");
  for (std::size_t i = 1; i < bands.size(); ++i)
    EXPECT_TRUE(bands[i - 1].rings[0].boundingRect().contains(bands[i].rings[0].boundingRect()));
}

TEST(PlumeBands, aProbabilityThatIsNowhereReachedHasNoBand) {
  ProbabilityMap map = emptyMap();
  fill(map, 6, 10, 3, 6, 0.3);
  const std::vector<PlumeBand> bands = plumeBands({map, emptyMap()});
  ASSERT_EQ(bands.size(), 1u);
  EXPECT_EQ(bands[0].name, "P10");
}

TEST(PlumeBands, aCellThatJustHasTheProbabilityAmongOthersWithoutIsNoBand) {
  ProbabilityMap map = emptyMap();
  fill(map, 6, 7, 3, 4, 0.5);
  EXPECT_TRUE(ringsOf(map, 0.5).empty());
  EXPECT_EQ(ringsOf(map, 0.45).size(), 1u);
}

/// A plume one row of cells wide from x = 1000 m, whose length is 10 000 s times the conductivity:
/// the map of 1000 runs that sample the conductivity evenly.
ProbabilityMap mapOfConductivities(const Distribution& conductivity) {
  constexpr int runs = 1000;
  ProbabilityMap map = emptyMap();
  for (int column = 0; column < map.raster.columns; ++column) {
    int count = 0;
    for (int run = 0; run < runs; ++run) {
      const double length = 1e4 * conductivity.quantile((run + 0.5) / runs);
      count += length >= (column + 0.5) * map.raster.cell ? 1 : 0;
    }
    fill(map, column, column + 1, 4, 5, static_cast<double>(count) / runs);
  }
  return map;
}

TEST(PlumeBands, bandsReachAsFarAsThePercentilesOfAKnownLength) {
  const Distribution conductivity{Shape::LogUniform, {0.002, 0.009}};
  const std::vector<PlumeBand> bands = plumeBands({mapOfConductivities(conductivity)});
  ASSERT_EQ(bands.size(), 3u);
  for (const PlumeBand& band : bands) {
    const double reach = band.rings[0].boundingRect().right() - 1000;
    const double length = 1e4 * conductivity.quantile(1 - band.probability);
    EXPECT_NEAR(reach, length, 0.2 * emptyMap().raster.cell) << band.name.toStdString();
  }
}

} // namespace
