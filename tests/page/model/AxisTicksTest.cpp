#include "page/model/AxisTicks.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace TVR::Page;

double noRoom(double) {
  return 0;
}

TEST(AxisTicks, stepsAreOneTwoOrFiveTimesAPowerOfTen) {
  EXPECT_DOUBLE_EQ(niceStep(0.9, false), 1);
  EXPECT_DOUBLE_EQ(niceStep(1.1, false), 2);
  EXPECT_DOUBLE_EQ(niceStep(21, false), 50);
  EXPECT_DOUBLE_EQ(niceStep(0.06, false), 0.1);
}

TEST(AxisTicks, aRoundStepIsKept) {
  EXPECT_DOUBLE_EQ(niceStep(500, false), 500);
}

TEST(AxisTicks, wholeStepsAreOneAtLeast) {
  EXPECT_DOUBLE_EQ(niceStep(0.06, true), 1);
}

TEST(AxisTicks, noStepWithoutALength) {
  EXPECT_EQ(niceStep(0, false), 0);
  EXPECT_EQ(niceStep(std::numeric_limits<double>::infinity(), false), 0);
  EXPECT_EQ(niceStep(std::nan(""), false), 0);
}

TEST(AxisTicks, ticksAreTheMultiplesOfTheStepWithBothEnds) {
  EXPECT_EQ(axisTicks(0, 12, 2, 0, true).major, (std::vector<double>{0, 2, 4, 6, 8, 10, 12}));
}

TEST(AxisTicks, coordinatesOfANationalGridHaveRoundTicks) {
  EXPECT_EQ(axisTicks(681147, 681223, 20, 0, false).major,
            (std::vector<double>{681160, 681180, 681200, 681220}));
}

TEST(AxisTicks, aStepOfTwoIsDividedIntoFourAndNotIntoFive) {
  EXPECT_EQ(axisTicks(0, 2, 2, 4, false).minor, (std::vector<double>{0.5, 1, 1.5}));
}

TEST(AxisTicks, aStepOfTenIsDividedIntoFive) {
  EXPECT_EQ(axisTicks(0, 10, 10, 4, false).minor, (std::vector<double>{2, 4, 6, 8}));
}

TEST(AxisTicks, wholeTicksHaveNoMinorOnesBetweenWholeNumbers) {
  EXPECT_TRUE(axisTicks(0, 12, 1, 4, true).minor.empty());
  EXPECT_EQ(axisTicks(0, 2, 2, 4, true).minor, (std::vector<double>{1}));
}

TEST(AxisTicks, minorTicksGoOnBeforeTheFirstMajorOne) {
  EXPECT_EQ(axisTicks(3, 12, 10, 4, false).minor, (std::vector<double>{4, 6, 8, 12}));
}

TEST(AxisTicks, anEmptyRangeHasNone) {
  EXPECT_TRUE(axisTicks(5, 5, 1, 4, false).major.empty());
  EXPECT_TRUE(axisTicks(0, std::numeric_limits<double>::infinity(), 1, 4, false).major.empty());
}

TEST(AxisTicks, aStepMuchTooSmallHasNone) {
  EXPECT_TRUE(axisTicks(0, 1, 1e-9, 4, false).major.empty());
}

TEST(AxisTicks, theWishedStepCountsWhereItSuits) {
  EXPECT_DOUBLE_EQ(fittingStep(1520, 152, 500, false, noRoom), 500);
}

TEST(AxisTicks, aWishedStepThatGivesFewTicksIsReplaced) {
  EXPECT_DOUBLE_EQ(fittingStep(760, 152, 500, false, noRoom), 100);
}

TEST(AxisTicks, aWishedStepBeyondTheRangeIsReplaced) {
  EXPECT_DOUBLE_EQ(fittingStep(76, 152, 500, false, noRoom), 10);
}

TEST(AxisTicks, labelsThatNeedMoreRoomThinTheTicksOut) {
  EXPECT_DOUBLE_EQ(fittingStep(76, 152, 0, false, [](double) { return 21; }), 20);
}

TEST(AxisTicks, aWishedStepWithoutRoomForItsLabelsIsReplaced) {
  EXPECT_DOUBLE_EQ(fittingStep(100, 100, 1, false, [](double) { return 12; }), 20);
}

TEST(AxisTicks, labelsHaveThePlacesOfTheStep) {
  EXPECT_EQ(tickLabel(681200, 20), "681200");
  EXPECT_EQ(tickLabel(0.3, 0.1), "0.3");
  EXPECT_EQ(tickLabel(1.5, 0.25), "1.50");
}

TEST(AxisTicks, largeNumbersHaveNoExponent) {
  EXPECT_EQ(tickLabel(2600000, 100000), "2600000");
}

TEST(AxisTicks, zeroHasNoSign) {
  EXPECT_EQ(tickLabel(-1e-17, 0.1), "0.0");
}

} // namespace
