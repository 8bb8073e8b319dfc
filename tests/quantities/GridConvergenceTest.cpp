#include "quantities/GridConvergence.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace TVR::Quantities;

namespace {

constexpr double resolution = 1e-9;

/// Judges a figure whose error is `error` times the width of the cells to the power of `order`, on
/// meshes of so many cells of a unit square.
GridConvergence judged(double limit, double error, double order, std::array<int, 3> cells) {
  const auto on = [&](int count) {
    return MeshValue{limit + error * std::pow(1 / std::sqrt(count), order), count};
  };
  return gridConvergence({on(cells[0]), on(cells[1]), on(cells[2])}, resolution);
}

} // namespace

TEST(GridConvergenceTest, theOrderOfAnErrorIsFound) {
  for (const double order : {0.51, 0.8, 1.0, 2.0, 2.99}) {
    const GridConvergence found = judged(5, 3, order, {100, 400, 1600});
    EXPECT_EQ(found.behaviour, Behaviour::Monotone);
    ASSERT_TRUE(found.order && found.extrapolated) << order;
    EXPECT_NEAR(*found.order, order, 1e-9);
    EXPECT_NEAR(*found.extrapolated, 5, 1e-9);
  }
}

TEST(GridConvergenceTest, itIsFoundOnMeshesOfUnevenSteps) {
  const GridConvergence found = judged(5, -3, 1.5, {100, 300, 1400});
  ASSERT_TRUE(found.order && found.extrapolated);
  EXPECT_NEAR(*found.order, 1.5, 1e-9);
  EXPECT_NEAR(*found.extrapolated, 5, 1e-9);
}

TEST(GridConvergenceTest, theBandIsTheErrorOfTheMiddleMeshWithASafetyOfAQuarter) {
  const GridConvergence found = judged(5, 3, 2, {100, 400, 1600});
  EXPECT_DOUBLE_EQ(found.value, 5 + 3.0 / 400);
  EXPECT_NEAR(found.band, 1.25 * 3.0 / 400, 1e-9);
}

TEST(GridConvergenceTest, anErrorOfAnOrderThatIsTooSmallOrTooLargeIsNotExtrapolated) {
  for (const double order : {0.3, 0.46, 0.49, 3.01, 4.0}) {
    const GridConvergence found = judged(5, 3, order, {100, 400, 1600});
    EXPECT_EQ(found.behaviour, Behaviour::Monotone);
    ASSERT_TRUE(found.order);
    EXPECT_NEAR(*found.order, order, 1e-9);
    EXPECT_FALSE(found.extrapolated) << order;
    EXPECT_NEAR(found.band, 3 * 3 * (std::pow(0.1, order) - std::pow(0.05, order)), 1e-9);
  }
}

TEST(GridConvergenceTest, aFigureThatGoesToAndFroHasNoOrder) {
  const GridConvergence found =
      gridConvergence({{{5.0, 100}, {5.4, 400}, {5.3, 1600}}}, resolution);
  EXPECT_EQ(found.behaviour, Behaviour::Oscillating);
  EXPECT_FALSE(found.order);
  EXPECT_FALSE(found.extrapolated);
  EXPECT_NEAR(found.band, 3 * 0.4, 1e-12);
}

TEST(GridConvergenceTest, anOrderThatNobodyTrustsExtrapolatesNothing) {
  for (const auto& [before, after] : {std::pair{0.11, 0.1}, std::pair{5.0, 0.1}}) {
    const GridConvergence found =
        gridConvergence({{{5 - before, 100}, {5, 400}, {5 + after, 1600}}}, resolution);
    EXPECT_EQ(found.behaviour, Behaviour::Monotone);
    EXPECT_TRUE(found.order);
    EXPECT_FALSE(found.extrapolated);
    EXPECT_NEAR(found.band, 3 * before, 1e-12);
  }
}

TEST(GridConvergenceTest, differencesThatGrowExtrapolateNothing) {
  const GridConvergence found = gridConvergence({{{4.9, 100}, {5, 400}, {5.4, 1600}}}, resolution);
  EXPECT_FALSE(found.extrapolated);
  EXPECT_NEAR(found.band, 3 * 0.4, 1e-12);
}

TEST(GridConvergenceTest, whatHardlyChangesHasSettled) {
  const GridConvergence found =
      gridConvergence({{{5, 100}, {5 + 1e-6, 400}, {5 - 1e-6, 1600}}}, 1e-4);
  EXPECT_EQ(found.behaviour, Behaviour::Settled);
  EXPECT_FALSE(found.order);
  EXPECT_FALSE(found.extrapolated);
  EXPECT_DOUBLE_EQ(found.band, 1e-4);
}
