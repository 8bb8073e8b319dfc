#include "project/Units.h"
#include "simulation/OutputTimes.h"
#include "simulator/SiteFixtures.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <vector>

using namespace TVR;

namespace {

/// A doublet on a few cells whose rates differ from period to period, driven over all output times
/// of `years` years with `periods` periods of equal length, at a tolerance of 1e-3.
std::unique_ptr<FVGeothermSite> runOver(int periods, int years) {
  std::vector<Well> wells{Well(0, 3.5, 1.5, -1e-4), Well(1, 7.5, 1.5, 1e-4, 5.0)};
  for (int period = 0; period < periods; ++period)
    for (Well& well : wells) {
      const double share = 1.0 + 0.5 * std::sin(period);
      well.setRate(period, (well.id() == 0 ? -1e-4 : 1e-4) * share);
      well.setTemperatureChange(period, 4.0 * share);
    }
  auto site = SiteFixtures::makeSite(FVMesh(SiteFixtures::lineOf({3.0, 1.0, 3.0, 1.0, 3.0}),
                                            SiteFixtures::lineOf({1.0, 1.0}), 10.0),
                                     wells);
  const OutputTimes times = outputTimes(
      {years * secondsPerYear, std::vector<double>(periods, secondsPerYear / periods), 12, 0.0});
  for (std::size_t k = 0; k < times.times.size(); ++k) {
    site->setDemandStep(times.demandSteps[k]);
    site->solveGroundwater(times.times[k], 1e-3, 1e-3);
    site->solveHeat(times.times[k], true, 1e-3, 1e-3);
  }
  return site;
}

class NumbersOfPeriods : public testing::TestWithParam<int> {};

} // namespace

TEST_P(NumbersOfPeriods, runForOneToFiftyYears) {
  for (const int years : {1, 2, 13, 29, 50}) {
    std::unique_ptr<FVGeothermSite> site;
    ASSERT_NO_THROW(site = runOver(GetParam(), years)) << years << " years";
    EXPECT_NEAR(site->time(), years * secondsPerYear, 1e-3);
    for (std::size_t i = 0; i < site->heat.elementCount(); ++i)
      ASSERT_TRUE(std::isfinite(site->temperature(i)));
  }
}

INSTANTIATE_TEST_SUITE_P(OneToTwentyFour, NumbersOfPeriods, testing::Range(1, 25));

TEST(RobustTimes, ofManyPeriodsThatGatherRoundingRunForACentury) {
  for (const int periods : {11, 13, 22, 23})
    EXPECT_NO_THROW(runOver(periods, 99)) << periods;
}
