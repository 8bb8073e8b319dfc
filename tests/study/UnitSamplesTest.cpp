#include "study/plan/UnitSamples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace TVR::Study;

TEST(UnitSamplesTest, aLatinHypercubeHasOnePointInEachShareOfEachDimension) {
  const Columns columns = latinHypercube(50, 3, 7);
  ASSERT_EQ(columns.size(), 3U);
  for (const std::vector<double>& column : columns) {
    std::set<int> shares;
    for (const double number : column)
      shares.insert(static_cast<int>(number * 50));
    EXPECT_EQ(shares.size(), 50U);
  }
  EXPECT_NE(columns[0], columns[1]);
}

TEST(UnitSamplesTest, aSampleFollowsFromItsSeedOnEveryMachine) {
  EXPECT_EQ(latinHypercube(20, 2, 1), latinHypercube(20, 2, 1));
  EXPECT_NE(latinHypercube(20, 2, 1), latinHypercube(20, 2, 2));
  EXPECT_EQ(sobolPoints(20, 2, 5), sobolPoints(20, 2, 5));
  EXPECT_NE(sobolPoints(20, 2, 5), sobolPoints(20, 2, 6));
}

TEST(UnitSamplesTest, withoutASeedTheSequenceIsThatOfTheLiterature) {
  // Bratley and Fox (1988), without the origin.
  const Columns columns = sobolPoints(7, 2, 0);
  EXPECT_EQ(columns[0], (std::vector<double>{0.5, 0.75, 0.25, 0.375, 0.875, 0.625, 0.125}));
  EXPECT_EQ(columns[1], (std::vector<double>{0.5, 0.25, 0.75, 0.375, 0.875, 0.125, 0.625}));
}

TEST(UnitSamplesTest, aShiftedSequenceKeepsItsEvenSpread) {
  const Columns columns = sobolPoints(255, 2, 9);
  // With the point that stands for the origin each of 16 x 16 squares would have exactly one.
  std::set<std::pair<int, int>> squares;
  for (std::size_t i = 0; i < 255; ++i)
    squares.insert({static_cast<int>(columns[0][i] * 16), static_cast<int>(columns[1][i] * 16)});
  EXPECT_EQ(squares.size(), 255U);
}

TEST(UnitSamplesTest, morePointsOfASequenceGoOnFromFewer) {
  const Columns few = sobolPoints(10, 3, 4);
  const Columns more = sobolPoints(20, 3, 4);
  for (std::size_t d = 0; d < 3; ++d)
    EXPECT_TRUE(std::equal(few[d].begin(), few[d].end(), more[d].begin()));
}

TEST(UnitSamplesTest, aGridHasAllCombinationsOfTheMidpoints) {
  const Columns columns = gridPoints({2, 3});
  EXPECT_EQ(columns[0], (std::vector<double>{0.25, 0.25, 0.25, 0.75, 0.75, 0.75}));
  const double sixth = 0.5 / 3;
  EXPECT_EQ(columns[1], (std::vector<double>{sixth, 0.5, 2.5 / 3, sixth, 0.5, 2.5 / 3}));
}

TEST(UnitSamplesTest, noNumberIsAnEndOfTheUnitInterval) {
  for (const Columns& columns : {latinHypercube(1000, 2, 3), sobolPoints(1000, 2, 3)})
    for (const std::vector<double>& column : columns) {
      EXPECT_GT(*std::min_element(column.begin(), column.end()), 0);
      EXPECT_LT(*std::max_element(column.begin(), column.end()), 1);
    }
}
