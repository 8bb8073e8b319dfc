#include "simulation/OutputTimes.h"

#include "project/Units.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace TVR;

namespace {

constexpr double year = secondsPerYear;
constexpr double month = 2629800;
using Times = std::vector<double>;
using Steps = std::vector<int>;

OutputTimes of(double time, const std::vector<double>& durations, int cycleLength = 12,
               double dispersivity = 0) {
  return outputTimes({time, durations, cycleLength, dispersivity});
}

Times multiples(double step, int count) {
  Times times;
  for (int k = 1; k <= count; ++k)
    times.push_back(k * step);
  return times;
}

/// `count` times each of the steps, one after the other.
Steps each(int count, const Steps& steps) {
  Steps result;
  for (const int step : steps)
    result.insert(result.end(), count, step);
  return result;
}

} // namespace

TEST(OutputTimes, aConstantDemandGivesOneTimeAYear) {
  const OutputTimes result = of(3 * year, {year});
  EXPECT_EQ(result.times, (Times{year, 2 * year, 3 * year}));
  EXPECT_EQ(result.demandSteps, (Steps{0, 0, 0}));
}

TEST(OutputTimes, aTimeThatIsNoWholeNumberOfYearsMayEndAYearEarlier) {
  EXPECT_NEAR(of(127.1 * year, {}).times.back(), 126.1 * year, 0.001 * year);
  EXPECT_NEAR(of(127.2 * year, {}).times.back(), 127.2 * year, 0.001 * year);
}

TEST(OutputTimes, periodsEndWithAWholeYearInsteadOfAPartOfOne) {
  EXPECT_NEAR(of(2.05 * year, {year / 2, year / 2}).times.back(), 2 * year, 1);
  EXPECT_NEAR(of(2.6 * year, {year / 2, year / 2}).times.back(), 3 * year, 1);
}

TEST(OutputTimes, wholeNumbersOfYearsEndInTime) {
  for (int years = 1; years <= 300; ++years)
    for (const Times& durations : {Times{}, Times{year / 2, year / 2}, Times(12, year / 12)})
      for (const double dispersivity : {0.0, 5.0})
        EXPECT_NEAR(of(years * year, durations, 12, dispersivity).times.back(), years * year, 1)
            << years;
}

TEST(OutputTimes, aProjectWithoutPeriodsIsOneOfConstantDemand) {
  EXPECT_EQ(of(3 * year, {}).times, (Times{year, 2 * year, 3 * year}));
}

TEST(OutputTimes, oneYearGivesOneTime) {
  EXPECT_EQ(of(year, {year}).times, Times{year});
}

TEST(OutputTimes, theDurationOfASinglePeriodCountsForNothing) {
  EXPECT_EQ(of(2 * year, {1000}).times, (Times{year, 2 * year}));
}

TEST(OutputTimes, twoEqualPeriodsAreResolvedByMonths) {
  const OutputTimes result = of(year, {year / 2, year / 2});
  EXPECT_EQ(result.times, multiples(month, 12));
  EXPECT_EQ(result.demandSteps, each(6, {0, 1}));
}

TEST(OutputTimes, fourEqualPeriodsAreResolvedByMonths) {
  const OutputTimes result = of(year, {year / 4, year / 4, year / 4, year / 4});
  EXPECT_EQ(result.times, multiples(month, 12));
  EXPECT_EQ(result.demandSteps, each(3, {0, 1, 2, 3}));
}

TEST(OutputTimes, twelveEqualPeriodsHaveOneTimeEach) {
  const OutputTimes result = of(year, std::vector<double>(12, month));
  EXPECT_EQ(result.times, multiples(month, 12));
  EXPECT_EQ(result.demandSteps, (Steps{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
}

TEST(OutputTimes, aCycleThatThePeriodsDoNotDivideIsRoundedUp) {
  const OutputTimes result = of(year, std::vector<double>(5, year / 5));
  EXPECT_EQ(result.times, multiples(year / 15, 15));
  EXPECT_EQ(result.demandSteps, each(3, {0, 1, 2, 3, 4}));
}

TEST(OutputTimes, aLongerCycleRefinesAYearWithPeriods) {
  const OutputTimes result = of(year, {year / 2, year / 2}, 24);
  EXPECT_EQ(result.times, multiples(month / 2, 24));
  EXPECT_EQ(result.demandSteps, each(12, {0, 1}));
}

TEST(OutputTimes, aLongerCycleLeavesAConstantDemandAsItIs) {
  EXPECT_EQ(of(2 * year, {year}, 24).times, (Times{year, 2 * year}));
}

TEST(OutputTimes, periodsComeAgainInEveryYear) {
  const OutputTimes result = of(2 * year, {year / 2, year / 2});
  EXPECT_EQ(result.times, multiples(month, 24));
  EXPECT_EQ(result.demandSteps, each(6, {0, 1, 0, 1}));
}

TEST(OutputTimes, timesArePulledOntoTheEndsOfUnequalPeriods) {
  // The second period ends after 5.4 months, before the sixth even time.
  const OutputTimes result = of(year, {7889400, 6311520, 9467280, 7889400});
  Times expected = multiples(month, 12);
  expected[5] = 14200920;
  EXPECT_EQ(result.times, expected);
  EXPECT_EQ(result.demandSteps, (Steps{0, 0, 0, 1, 1, 1, 2, 2, 2, 3, 3, 3}));
}

TEST(OutputTimes, aShortPeriodSetsTheStepOfAllTimes) {
  const OutputTimes result = of(year, {1e6, year - 1e6});
  Times expected = multiples(1e6, 31);
  expected.push_back(year);
  EXPECT_EQ(result.times, expected);
  Steps steps(32, 1);
  steps[0] = 0;
  EXPECT_EQ(result.demandSteps, steps);
}

TEST(OutputTimes, periodsShorterThanAYearLeaveTheRestToTheFirstPeriod) {
  const OutputTimes result = of(year, {1e7, 1e7});
  ASSERT_EQ(result.times.size(), 18u);
  for (int k = 0; k < 18; ++k)
    EXPECT_NEAR(result.times[k], (k + 1) * 1e7 / 6, 1e-6);
  EXPECT_EQ(result.times[5], 1e7);
  EXPECT_EQ(result.times[11], 2e7);
  EXPECT_EQ(result.demandSteps, each(6, {0, 1, 0}));
}

TEST(OutputTimes, periodsLongerThanAYearProlongTheRun) {
  const OutputTimes result = of(year, {2e7, 2e7});
  ASSERT_EQ(result.times.size(), 10u);
  for (int k = 0; k < 9; ++k)
    EXPECT_NEAR(result.times[k], (k + 1) * 1e7 / 3, 1e-6);
  EXPECT_EQ(result.times[5], 2e7);
  EXPECT_EQ(result.times[9], 4e7);
  EXPECT_EQ(result.demandSteps, (Steps{0, 0, 0, 0, 0, 0, 1, 1, 1, 1}));
}

TEST(OutputTimes, periodsThatDoNotAddUpToAYearAreFollowedForAsManyRoundsAsYears) {
  const OutputTimes result = of(2 * year, {2e7, 2e7});
  EXPECT_EQ(result.times.back(), 8e7);
  EXPECT_EQ(result.demandSteps.back(), 1);
  EXPECT_TRUE(std::count(result.times.begin(), result.times.end(), 6e7));
}

TEST(OutputTimes, dispersionResolvesAYearOfConstantDemand) {
  const OutputTimes result = of(2 * year, {year}, 12, 5);
  EXPECT_EQ(result.times, multiples(month, 24));
  EXPECT_EQ(result.demandSteps, Steps(24, 0));
}

TEST(OutputTimes, dispersionFollowsTheLengthOfTheCycle) {
  EXPECT_EQ(of(year, {}, 4, 5).times, multiples(year / 4, 4));
}

TEST(OutputTimes, dispersionChangesNothingWherePeriodsResolveTheYear) {
  const std::vector<double> durations{7889400, 6311520, 9467280, 7889400};
  const OutputTimes with = of(3 * year, durations, 12, 5);
  const OutputTimes without = of(3 * year, durations);
  EXPECT_EQ(with.times, without.times);
  EXPECT_EQ(with.demandSteps, without.demandSteps);
}

TEST(OutputTimes, aHundredYearsStayAsLongAsTheyAre) {
  const OutputTimes result = of(100 * year, {1e7, 1e7});
  ASSERT_EQ(result.times.size(), 1200u);
  EXPECT_EQ(result.times.back(), 100 * year);
  // The first period ends between the third and the fourth month.
  EXPECT_EQ((Times{result.times.begin(), result.times.begin() + 5}),
            (Times{month, 2 * month, 3 * month, 1e7, 5 * month}));
  EXPECT_EQ((Steps{result.demandSteps.begin(), result.demandSteps.begin() + 5}),
            (Steps{0, 0, 0, 0, 1}));
}

TEST(OutputTimes, justUnderAHundredYearsFollowThePeriods) {
  const OutputTimes result = of(99 * year, {1e7, 1e7});
  ASSERT_EQ(result.times.size(), 1874u);
  EXPECT_EQ(result.times[5], 1e7);
  EXPECT_EQ(result.demandSteps[1187], 1);
  EXPECT_EQ(Steps(result.demandSteps.begin() + 1188, result.demandSteps.end()), Steps(686, 0));
}

TEST(OutputTimes, aThousandSecondsAreOneTime) {
  EXPECT_EQ(of(1000, {year}).times, Times{1000});
}

TEST(OutputTimes, aThousandSecondsWithPeriodsLastAllPeriods) {
  const OutputTimes result = of(1000, {year / 2, year / 2});
  EXPECT_EQ(result.times, (Times{year / 2, year}));
  EXPECT_EQ(result.demandSteps, (Steps{0, 1}));
}

TEST(OutputTimes, aThousandSecondsWithDispersionAreDividedLikeAYear) {
  const OutputTimes result = of(1000, {}, 12, 5);
  ASSERT_EQ(result.times.size(), 12u);
  EXPECT_DOUBLE_EQ(result.times.front(), 1000.0 / 12);
  EXPECT_DOUBLE_EQ(result.times.back(), 1000);
}

TEST(OutputTimes, aPartOfAYearIsRoundedToWholeYears) {
  EXPECT_EQ(of(1.4 * year, {}).times, Times{1.4 * year});
  EXPECT_EQ(of(1.6 * year, {}).times, (Times{0.8 * year, 1.6 * year}));
}

TEST(OutputTimes, aRunOfNoLengthHasNoTimes) {
  for (const double time : {0.0, -1.0, -5 * year, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_TRUE(of(time, {year}).times.empty()) << time;
    EXPECT_TRUE(of(time, {year / 2, year / 2}).demandSteps.empty()) << time;
  }
}

TEST(OutputTimes, aPeriodOfNoLengthIsLeftOut) {
  for (const double nothing : {0.0, -month, std::numeric_limits<double>::quiet_NaN()}) {
    const OutputTimes result = of(year, {nothing, year});
    EXPECT_EQ(result.times, multiples(month, 12)) << nothing;
    EXPECT_EQ(result.demandSteps, Steps(12, 1)) << nothing;
  }
}

TEST(OutputTimes, periodsWithoutAnyLengthAreNotFollowed) {
  const OutputTimes result = of(year, {0, 0});
  EXPECT_EQ(result.times, multiples(month, 12));
  EXPECT_EQ(result.demandSteps, Steps(12, 0));
}

TEST(OutputTimes, timesAscendAndHaveOneDemandStepEach) {
  const std::vector<std::vector<double>> tables{
      {}, {year / 2, year / 2}, {1e6, 2e6, 3e6}, {3e7, 1e5}, {0, 1e7, 2e7}, {year, year, year}};
  for (const auto& durations : tables)
    for (const double time : {1000.0, year, 2.5 * year, 30 * year, 120 * year})
      for (const double dispersivity : {0.0, 5.0}) {
        const OutputTimes result = of(time, durations, 12, dispersivity);
        ASSERT_FALSE(result.times.empty());
        EXPECT_EQ(result.times.size(), result.demandSteps.size());
        EXPECT_GT(result.times.front(), 0);
        EXPECT_EQ(std::adjacent_find(result.times.begin(), result.times.end(),
                                     std::greater_equal<double>()),
                  result.times.end())
            << time << " s, " << durations.size() << " periods";
      }
}

TEST(OutputTimes, defaultPeriodsGiveTimesThatAscendOrAgreeToRounding) {
  for (int periods = 1; periods <= 24; ++periods)
    for (int years = 1; years <= 50; ++years) {
      const OutputTimes result = of(years * year, std::vector<double>(periods, year / periods));
      EXPECT_NEAR(result.times.back(), years * year, 1e-3) << periods << " periods";
      double last = 0.0;
      for (const double time : result.times) {
        const double interval = time - last;
        EXPECT_TRUE(interval > 1.0 || std::abs(interval) < 1e-4)
            << interval << " s, " << periods << " periods, " << years << " years";
        last = time;
      }
    }
}

TEST(SimulatedYears, areRoundedAndAtLeastOne) {
  EXPECT_EQ(simulatedYears(0), 1);
  EXPECT_EQ(simulatedYears(0.4 * year), 1);
  EXPECT_EQ(simulatedYears(2.4 * year), 2);
  EXPECT_EQ(simulatedYears(2.6 * year), 3);
  EXPECT_EQ(simulatedYears(30 * year), 30);
}
