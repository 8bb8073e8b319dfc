#include "project/ParameterRange.h"

#include "design/ParameterId.h"
#include "project/ParameterTable.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace TVR {
namespace {

using namespace Parameter;

constexpr ParameterRange range{1, 100, 10, 20};
constexpr double endless = std::numeric_limits<double>::infinity();

TEST(ParameterRange, aValueIsUsualUnusualOrImpossible) {
  for (const double value : {10.0, 15.0, 20.0})
    EXPECT_EQ(judge(range, value), RangeVerdict::Usual) << value;
  for (const double value : {1.0, 9.99, 20.01, 100.0})
    EXPECT_EQ(judge(range, value), RangeVerdict::Unusual) << value;
  for (const double value : {0.99, 100.01, -endless, endless, std::nan("")})
    EXPECT_EQ(judge(range, value), RangeVerdict::Impossible) << value;
}

TEST(ParameterRange, withoutBoundsEveryFiniteNumberIsUsual) {
  EXPECT_EQ(judge({}, 1e300), RangeVerdict::Usual);
  EXPECT_EQ(judge({}, std::nan("")), RangeVerdict::Impossible);
  EXPECT_EQ(judge({}, endless), RangeVerdict::Impossible);
}

TEST(ParameterRange, withoutUsualBoundsAllThatIsPossibleIsUsual) {
  EXPECT_EQ(judge({1, 100}, 100), RangeVerdict::Usual);
}

TEST(ParameterRange, theRemarkTellsTheBoundsThatAreBroken) {
  EXPECT_EQ(rangeRemark(range, 15, "m", "15"), "");
  EXPECT_EQ(rangeRemark(range, 5, "m", "5.0"), "usual is 10 to 20 m, found \"5.0\"");
  EXPECT_EQ(rangeRemark(range, 0, "m", "none"), "expected 1 to 100 m, found \"none\"");
  EXPECT_EQ(rangeRemark({}, endless, "m", "inf"), "expected a number of m, found \"inf\"");
}

TEST(ParameterRange, aNumberWithoutUnitShowsNone) {
  EXPECT_EQ(boundsText(range, RangeVerdict::Impossible, ""), "1 to 100");
  EXPECT_EQ(boundsText(range, RangeVerdict::Impossible, "-"), "1 to 100");
}

TEST(ParameterRange, standsInAnotherUnit) {
  const ParameterRange doubled = range.inUnitOf(2);
  EXPECT_EQ(doubled.least, 2);
  EXPECT_EQ(doubled.most, 200);
  EXPECT_EQ(doubled.usualLeast, 20);
  EXPECT_EQ(doubled.usualMost, 40);
}

TEST(ParameterRange, usualBoundsLieWithinTheOuterOnes) {
  for (const ParameterRow& row : parameterTable()) {
    EXPECT_LE(row.range.least, row.range.usualLeast) << row.key;
    EXPECT_LT(row.range.usualLeast, row.range.usualMost) << row.key;
    EXPECT_LE(row.range.usualMost, row.range.most) << row.key;
  }
}

TEST(ParameterRange, boundsOfWellsAndPeriodsAreThoseOfFiles) {
  EXPECT_EQ(parameterRow(NumberOfWells).range.most, 20'000);
  EXPECT_EQ(parameterRow(NumberOfDemandsPerYear).range.most, 10'000);
}

TEST(ParameterRange, porosityIsAFractionAboveZero) {
  EXPECT_EQ(judge(parameterRow(EffectivePorosity).range, 0), RangeVerdict::Impossible);
  EXPECT_EQ(judge(parameterRow(EffectivePorosity).range, 1), RangeVerdict::Unusual);
  EXPECT_EQ(judge(parameterRow(EffectivePorosity).range, 1.01), RangeVerdict::Impossible);
}

TEST(ParameterRange, waterIsLiquid) {
  EXPECT_EQ(parameterRow(ReferenceTemperature).range.least, 0);
  EXPECT_EQ(parameterRow(ReferenceTemperature).range.most, 100);
}

} // namespace
} // namespace TVR
