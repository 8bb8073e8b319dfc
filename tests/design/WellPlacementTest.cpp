#include "design/WellPlacement.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace TVR {
namespace {

PlanePoint between(const PlanePoint& from, const PlanePoint& to) {
  return {to.x - from.x, to.y - from.y};
}

double product(const PlanePoint& a, const PlanePoint& b) {
  return a.x * b.x + a.y * b.y;
}

TEST(WellPlacement, aPairStandsAlongTheFlowAroundTheCentre) {
  const auto wells = placeWells({.wells = 2, .betweenRows = 30, .centre = {100, 200}});
  ASSERT_EQ(wells.size(), 2U);
  EXPECT_EQ(wells[0].x, 85);
  EXPECT_EQ(wells[0].y, 200);
  EXPECT_EQ(wells[1].x, 115);
  EXPECT_EQ(wells[1].y, 200);
}

TEST(WellPlacement, aFlowToTheSouthHasItsWithdrawalInTheNorth) {
  const auto wells = placeWells({.wells = 2, .betweenRows = 30, .angle = 90});
  EXPECT_EQ(wells[0].x, 0);
  EXPECT_EQ(wells[0].y, 15);
  EXPECT_EQ(wells[1].y, -15);
}

TEST(WellPlacement, withdrawalIsUpstreamForEveryDirectionOfFlow) {
  for (double angle = -90; angle < 360; angle += 25) {
    const auto wells = placeWells({.wells = 6,
                                   .betweenRows = 30,
                                   .withinRow = 8,
                                   .angle = angle,
                                   .centre = {681000, 227000}});
    const double radians = angle * std::numbers::pi / 180;
    const PlanePoint flow{std::cos(radians), -std::sin(radians)};
    for (int pair = 0; pair < 3; ++pair) {
      const PlanePoint way = between(wells[pair], wells[pair + 3]);
      EXPECT_NEAR(product(way, flow), 30, 1e-8) << angle;
      EXPECT_NEAR(std::hypot(way.x, way.y), 30, 1e-8) << angle;
    }
  }
}

TEST(WellPlacement, rowsRunAcrossTheFlow) {
  const auto wells = placeWells({.wells = 6, .betweenRows = 30, .withinRow = 8, .angle = 35});
  const PlanePoint flow = between(wells[0], wells[3]);
  for (const int well : {0, 1, 3, 4}) {
    const PlanePoint way = between(wells[well], wells[well + 1]);
    EXPECT_NEAR(product(way, flow), 0, 1e-10) << well;
    EXPECT_NEAR(std::hypot(way.x, way.y), 8, 1e-12) << well;
  }
}

TEST(WellPlacement, bothRowsAreInTheMiddleOfTheField) {
  const auto wells =
      placeWells({.wells = 5, .betweenRows = 30, .withinRow = 8, .centre = {100, 200}});
  ASSERT_EQ(wells.size(), 5U);
  EXPECT_EQ((wells[0].y + wells[1].y) / 2, 200);
  EXPECT_EQ(wells[3].y, 200) << "the odd well belongs to the injection wells";
  EXPECT_EQ(wells[0].x, 85);
  EXPECT_EQ(wells[2].x, 115);
}

TEST(WellPlacement, aSingleWellStandsInTheCentre) {
  const auto wells = placeWells({.wells = 1, .betweenRows = 30, .withinRow = 8, .centre = {3, 4}});
  ASSERT_EQ(wells.size(), 1U);
  EXPECT_EQ(wells[0].x, 3);
  EXPECT_EQ(wells[0].y, 4);
}

TEST(WellPlacement, anyNumberOfWellsMayWithdraw) {
  const auto wells = placeWells(
      {.wells = 4, .withdrawing = 1, .betweenRows = 30, .withinRow = 8, .centre = {3, 4}});
  ASSERT_EQ(wells.size(), 4U);
  EXPECT_EQ(wells[0].x, -12);
  EXPECT_EQ(wells[0].y, 4);
  for (const int well : {1, 2, 3}) {
    EXPECT_EQ(wells[well].x, 18) << well;
    EXPECT_EQ(wells[well].y, 4 + 8 * (well - 2)) << well;
  }
}

TEST(WellPlacement, wellsThatAllWithdrawAreOneRowThroughTheCentre) {
  const auto wells = placeWells({.wells = 2, .withdrawing = 2, .betweenRows = 30, .withinRow = 8});
  EXPECT_EQ(wells[0].x, 0);
  EXPECT_EQ(wells[1].x, 0);
  EXPECT_EQ(wells[0].y, -4);
}

TEST(WellPlacement, noWellsHaveNoPlaces) {
  EXPECT_TRUE(placeWells({}).empty());
  EXPECT_TRUE(placeWells({.wells = -3}).empty());
}

} // namespace
} // namespace TVR
