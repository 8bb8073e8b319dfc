#include "simulator/mesh/FVGridLine.h"

#include "simulator/SiteFixtures.h"

#include <gtest/gtest.h>

using SiteFixtures::lineOf;

TEST(FVGridLine, derivesCentreAndHalfWidth) {
  const FVGridLine line = lineOf({1.0, 3.0}, 10.0);
  EXPECT_EQ(line.count(), 2u);
  EXPECT_EQ(line.halfWidth(1), 1.5);
  EXPECT_EQ(line.centre(1), 12.5);
}

TEST(FVGridLine, findsTheCellOfAValue) {
  const FVGridLine line = lineOf({1.0, 3.0, 2.0}, 10.0);
  EXPECT_EQ(line.find(10.5), 0);
  EXPECT_EQ(line.find(12.0), 1);
  EXPECT_EQ(line.find(15.9), 2);
}

TEST(FVGridLine, lowerEdgeBelongsToTheCell) {
  const FVGridLine line = lineOf({1.0, 3.0}, 10.0);
  EXPECT_EQ(line.find(10.0), 0);
  EXPECT_EQ(line.find(11.0), 1);
}

TEST(FVGridLine, valuesOutsideTheLineGiveMinusOne) {
  const FVGridLine line = lineOf({1.0, 3.0}, 10.0);
  EXPECT_EQ(line.find(9.9), -1);
  EXPECT_EQ(line.find(14.0), -1);
  EXPECT_EQ(line.find(100.0), -1);
  EXPECT_EQ(FVGridLine().find(0.0), -1);
}
