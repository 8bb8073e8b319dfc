#include "gui/positions/RateCheck.h"

#include <gtest/gtest.h>

#include <cmath>

namespace TVR::GUI {
namespace {

TEST(RateCheck, equalRatesAsDesignedPass) {
  const RateVerdict verdict = checkRates({{{0, 2.0}}, {{0, 2.0}}}, 2.0);
  EXPECT_EQ(verdict.errors, "");
  EXPECT_EQ(verdict.notes, "");
  EXPECT_FALSE(verdict.differsFromDesign);
}

TEST(RateCheck, withoutInjectionNothingIsLookedAt) {
  const RateVerdict verdict = checkRates({{}, {{0, 7.0}, {1, 3.0}}}, 2.0);
  EXPECT_EQ(verdict.errors + verdict.notes, "");
  EXPECT_FALSE(verdict.differsFromDesign);
}

TEST(RateCheck, periodsThatOnlyPumpAreNotLookedAt) {
  const RateVerdict verdict = checkRates({{{0, 2.0}}, {{0, 2.0}, {1, 9.0}}}, 2.0);
  EXPECT_EQ(verdict.errors + verdict.notes, "");
  EXPECT_FALSE(verdict.differsFromDesign);
}

TEST(RateCheck, aMismatchOfOneStepReadsZeroPercent) {
  const RateVerdict verdict = checkRates({{{0, 2.0}}, {{0, 3.0}}}, 2.0);
  EXPECT_EQ(verdict.errors,
            "There is a mismatch by 0 % between the pumping and injection rate.<br>");
  EXPECT_TRUE(verdict.differsFromDesign) << "a surplus is no error, but another design";
}

TEST(RateCheck, aMismatchOfSeveralStepsNamesTheStep) {
  const RateVerdict verdict = checkRates({{{0, 2.0}, {1, 2.0}}, {{0, 2.0}, {1, 3.0}}}, 2.0);
  EXPECT_EQ(verdict.errors,
            "There is a mismatch between the pumping and injection rate of demand step 2.<br>");
}

TEST(RateCheck, pumpingWithoutAnyInjectedRateIsAMismatch) {
  EXPECT_EQ(checkRates({{{0, 0.0}}, {{0, 3.0}}}, 0.0).errors,
            "There is a mismatch by 0 % between the pumping and injection rate.<br>");
}

TEST(RateCheck, neitherPumpingNorInjectedRateIsNoMismatch) {
  const RateVerdict verdict = checkRates({{{0, 2.0}, {1, 0.0}}, {{0, 2.0}, {1, 0.0}}}, 2.0);
  EXPECT_EQ(verdict.errors, "");
  EXPECT_NE(verdict.notes, "") << "but less than the design needs";
}

TEST(RateCheck, aShortfallOfOneStepIsAnErrorWithItsPercentage) {
  const RateVerdict verdict = checkRates({{{0, 1.5}}, {{0, 1.5}}}, 2.0);
  EXPECT_EQ(verdict.errors,
            "There is a mismatch by -25 % between the required pumping rate and the sum of the "
            "currently assigned pumping rates.<br>"
            "There is a mismatch by -25 % between the required injection rate and the sum of the "
            "currently assigned injection rates.<br>");
  EXPECT_EQ(verdict.notes, "");
  EXPECT_TRUE(verdict.differsFromDesign);
}

TEST(RateCheck, percentagesHaveSixDigits) {
  EXPECT_TRUE(checkRates({{{0, 2.0}}, {{0, 2.0}}}, 3.0)
                  .errors.startsWith("There is a mismatch by -33.3333 % between"));
}

TEST(RateCheck, aShortfallOfSeveralStepsIsANote) {
  const RateVerdict verdict = checkRates({{{0, 2.0}, {1, 1.0}}, {{0, 2.0}, {1, 1.0}}}, 2.0);
  EXPECT_EQ(verdict.errors, "");
  EXPECT_EQ(verdict.notes,
            "There is a mismatch by -50 % between the required pumping rate and the sum of the "
            "currently assigned pumping rates of demand step 2.<br>"
            "There is a mismatch by -50 % between the required injection rate and the sum of the "
            "currently assigned injection rates of demand step 2.<br>");
}

TEST(RateCheck, theBorderOfOnePercentPasses) {
  const double required = 100.0;
  const auto errorsOf = [required](double rate) {
    return checkRates({{{0, rate}}, {{0, rate}}}, required).errors;
  };
  EXPECT_EQ(errorsOf(99.0), "");
  EXPECT_NE(errorsOf(98.9999), "");
  EXPECT_FALSE(checkRates({{{0, 99.0}}, {{0, 99.0}}}, required).differsFromDesign);
  EXPECT_FALSE(checkRates({{{0, 101.0}}, {{0, 101.0}}}, required).differsFromDesign);
  EXPECT_TRUE(checkRates({{{0, 101.01}}, {{0, 101.01}}}, required).differsFromDesign);
  EXPECT_EQ(checkRates({{{0, 100.0}}, {{0, 101.0}}}, required).errors, "");
  EXPECT_NE(checkRates({{{0, 100.0}}, {{0, 101.01}}}, required).errors, "");
}

} // namespace
} // namespace TVR::GUI
