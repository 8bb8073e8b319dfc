#include "study/answers/Statistics.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numeric>
#include <random>

using namespace TVR::Study;

namespace {

Sample sampleOf(const std::vector<double>& values) {
  return {values, std::vector<int>(values.size(), 1)};
}

/// 1 to `count`, in an order that is none.
std::vector<double> shuffled(int count) {
  std::vector<double> values(static_cast<std::size_t>(count));
  std::iota(values.begin(), values.end(), 1.0);
  std::shuffle(values.begin(), values.end(), std::mt19937_64(1));
  return values;
}

/// How often the interval that `intervalOf` makes of a new sample holds `truth`.
template <class Function>
int hits(int studies, double truth, Function intervalOf) {
  std::mt19937_64 random(7);
  int count = 0;
  for (int i = 0; i < studies; ++i) {
    const ConfidenceInterval interval = intervalOf(random);
    count += *interval.low <= truth && truth <= *interval.high ? 1 : 0;
  }
  return count;
}

TEST(StatisticsTest, meanAndDeviationAreThoseOfTheNumbers) {
  const Sample sample = sampleOf({2, 4, 4, 4, 5, 5, 7, 9});
  EXPECT_DOUBLE_EQ(sample.mean(), 5);
  EXPECT_DOUBLE_EQ(sample.deviation(), std::sqrt(32.0 / 7));
}

TEST(StatisticsTest, aValueWithRepeatsCountsAsOftenAsTheyAreWrittenOut) {
  const Sample brief({3, 1, 2}, {4, 1, 2});
  const Sample written = sampleOf({3, 3, 3, 3, 1, 2, 2});
  EXPECT_EQ(brief.size(), 7U);
  EXPECT_DOUBLE_EQ(brief.mean(), written.mean());
  EXPECT_DOUBLE_EQ(brief.deviation(), written.deviation());
  for (const double share : {0.05, 0.1, 0.2, 0.4, 0.5, 0.9, 1.0})
    EXPECT_EQ(brief.percentile(share), written.percentile(share)) << share;
  EXPECT_EQ(brief.countAbove(2), 4U);
}

TEST(StatisticsTest, whatIsNoNumberIsLeftOut) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  const Sample sample = sampleOf({none, 1, 3, std::numeric_limits<double>::infinity()});
  EXPECT_EQ(sample.size(), 2U);
  EXPECT_DOUBLE_EQ(sample.mean(), 2);
}

TEST(StatisticsTest, aSampleWithoutNumbersHasNoFigures) {
  const Spread spread = spreadOf(sampleOf({}));
  EXPECT_EQ(spread.runs, 0U);
  EXPECT_TRUE(spread.percentiles.empty());
}

TEST(StatisticsTest, aPercentileIsTheLeastNumberThatTheShareDoesNotExceed) {
  const Sample sample = sampleOf(shuffled(100));
  EXPECT_EQ(sample.percentile(0.05), 5);
  EXPECT_EQ(sample.percentile(0.1), 10);
  EXPECT_EQ(sample.percentile(0.5), 50);
  EXPECT_EQ(sample.percentile(0.95), 95);
  EXPECT_EQ(sample.percentile(0.951), 96);
  EXPECT_EQ(sample.percentile(0.001), 1);
  EXPECT_EQ(sample.percentile(1), 100);
}

// Ranks 42 and 59 of 100 hold the median with a confidence of 0.911: Conover (1999), table A3:
// binomial law of 100 and 0.5: 0.0443 up to 41, 0.0666 up to 42.
TEST(StatisticsTest, theIntervalOfAMedianHasTheRanksOfTheBinomialLaw) {
  const ConfidenceInterval interval = sampleOf(shuffled(100)).percentileInterval(0.5);
  EXPECT_EQ(interval.low, 42);
  EXPECT_EQ(interval.high, 59);
}

TEST(StatisticsTest, aBoundThatASmallSampleCantHaveIsMissing) {
  const Sample sample = sampleOf(shuffled(28)); // 0.9^28 = 0.052: none of them may be below P10
  EXPECT_FALSE(sample.percentileInterval(0.1).low);
  EXPECT_TRUE(sample.percentileInterval(0.1).high);
  EXPECT_FALSE(sample.percentileInterval(0.9).high);
  EXPECT_TRUE(sample.percentileInterval(0.9).low);
  const Sample larger = sampleOf(shuffled(29)); // 0.9^29 = 0.047
  EXPECT_EQ(larger.percentileInterval(0.1).low, 1);
  EXPECT_EQ(larger.percentileInterval(0.9).high, 29);
}

// The chance that the interval holds what is true is at least 0.9 and, with 200 numbers, below
// 0.935. Among 2000 studies its standard deviation is 0.0067: the tolerance is three of them.
TEST(StatisticsTest, nineOfTenIntervalsOfAPercentileHoldWhatIsTrue) {
  for (const double share : {0.1, 0.5, 0.9}) {
    const double truth = -std::log(1 - share);
    const int count = hits(2000, truth, [share](std::mt19937_64& random) {
      std::exponential_distribution<double> law;
      std::vector<double> values;
      for (int i = 0; i < 200; ++i)
        values.push_back(law(random));
      return sampleOf(values).percentileInterval(share);
    });
    EXPECT_GE(count, 2000 * (0.9 - 0.02)) << share;
    EXPECT_LE(count, 2000 * (0.935 + 0.02)) << share;
  }
}

// Clopper and Pearson's interval of 90 %: with none of n the upper bound is 1 - 0.05^(1/n).
TEST(StatisticsTest, theIntervalOfAProbabilityIsThatOfTheBinomialLaw) {
  EXPECT_EQ(probabilityInterval(0, 10).low, 0);
  EXPECT_NEAR(*probabilityInterval(0, 10).high, 1 - std::pow(0.05, 0.1), 1e-12);
  EXPECT_NEAR(*probabilityInterval(10, 10).low, std::pow(0.05, 0.1), 1e-12);
  EXPECT_EQ(probabilityInterval(10, 10).high, 1);
  EXPECT_NEAR(*probabilityInterval(5, 10).low, 0.22244, 1e-5);
  EXPECT_NEAR(*probabilityInterval(5, 10).high, 0.77756, 1e-5);
}

TEST(StatisticsTest, nineOfTenIntervalsOfAProbabilityHoldWhatIsTrue) {
  const int count = hits(2000, 0.3, [](std::mt19937_64& random) {
    std::binomial_distribution<std::uint64_t> law(100, 0.3);
    return probabilityInterval(law(random), 100);
  });
  EXPECT_GE(count, 2000 * (0.9 - 0.02));
  EXPECT_LE(count, 2000 * (0.94 + 0.02));
}

} // namespace
