#include "study/page/ProbabilityMap.h"

#include "study/plan/ResultLayout.h"
#include "study/work/Exceedance.h"

#include <gtest/gtest.h>

using namespace TVR::Study;

namespace {

ResultLayout layoutOfTwoLevelsAndTimes() {
  return {{"kf"}, {"m/s"}, {"Pump"}, {"plume_area"}, {10, 30}, {-1, 3}, {30}, {0, 0, 1, 2, 1}};
}

TEST(ProbabilityMap, aCountIsAShareOfTheRuns) {
  const ResultLayout layout = layoutOfTwoLevelsAndTimes();
  ExceedanceCounts counts(layout.maps(), 2);
  counts.maps = {{10, 5}, {0, 0}, {10, 9}, {1, 0}};
  const std::vector<ProbabilityMap> maps = probabilityMaps(layout, counts, 10);
  ASSERT_EQ(maps.size(), 4u);
  EXPECT_EQ(maps[0].values, (std::vector<double>{1, 0.5}));
  EXPECT_EQ(maps[2].values, (std::vector<double>{1, 0.9}));
  EXPECT_EQ(maps[3].greatest(), 0.1);
}

TEST(ProbabilityMap, theLevelsOfATimeFollowEachOther) {
  const ResultLayout layout = layoutOfTwoLevelsAndTimes();
  const std::vector<ProbabilityMap> maps =
      probabilityMaps(layout, ExceedanceCounts(layout.maps(), 2), 10);
  ASSERT_EQ(maps.size(), 4u);
  EXPECT_EQ(maps[1].level, 3);
  EXPECT_EQ(maps[1].time, 10);
  EXPECT_EQ(maps[2].level, -1);
  EXPECT_EQ(maps[2].time, 30);
}

TEST(ProbabilityMap, withoutRunsThereAreNone) {
  const ResultLayout layout = layoutOfTwoLevelsAndTimes();
  EXPECT_TRUE(probabilityMaps(layout, ExceedanceCounts(layout.maps(), 2), 0).empty());
}

TEST(ProbabilityMap, cellsOfTheMeshLieWhereTheRasterSays) {
  const Raster raster{100, 200, 10, 3, 2};
  const TVR::Contour::GridMesh mesh = meshOf(raster);
  ASSERT_EQ(mesh.cells.size(), 6u);
  EXPECT_EQ(mesh.centres[4], QPointF(115, 215));
  const auto& cell = mesh.cells[4];
  EXPECT_EQ(mesh.nodes[static_cast<std::size_t>(cell[0])], QPointF(110, 210));
  EXPECT_EQ(mesh.nodes[static_cast<std::size_t>(cell[2])], QPointF(120, 220));
}

} // namespace
