#include "study/answers/Sensitivity.h"

#include "study/plan/NormalLaw.h"
#include "study/plan/UnitSamples.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <random>

using namespace TVR::Study;
using std::numbers::pi;

namespace {

using Column = std::vector<double>;

/// Independent keys, even between 0 and 1.
SampledKeys evenKeys(std::size_t keys, std::size_t runs, std::uint64_t seed = 3) {
  std::mt19937_64 random(seed);
  std::uniform_real_distribution<double> law;
  SampledKeys result;
  result.values.assign(keys, Column(runs));
  for (Column& column : result.values)
    for (double& value : column)
      value = law(random);
  result.repeats.assign(runs, 1);
  return result;
}

template <class Model>
Column answersOf(const SampledKeys& keys, Model model) {
  Column answers;
  for (std::size_t run = 0; run < keys.runs(); ++run) {
    Column values;
    for (const Column& column : keys.values)
      values.push_back(column[run]);
    answers.push_back(model(values));
  }
  return answers;
}

/// Ishigami and Homma (1990), with a = 7 and b = 0.1.
double ishigami(const Column& shares) {
  const auto angle = [&](std::size_t i) { return pi * (2 * shares[i] - 1); };
  return std::sin(angle(0)) + 7 * std::pow(std::sin(angle(1)), 2) +
         0.1 * std::pow(angle(2), 4) * std::sin(angle(0));
}

/// Its indices in closed form.
struct Ishigami {
  const double one = std::pow(1 + 0.1 * std::pow(pi, 4) / 5, 2) / 2;
  const double two = 49.0 / 8;
  const double oneAndThree = 0.01 * std::pow(pi, 8) * 8 / 225;
  const double variance = one + two + oneAndThree;
  const Column first{one / variance, two / variance, 0};
  const Column total{(one + oneAndThree) / variance, two / variance, oneAndThree / variance};
};

ChaosIndices chaosOf(const SampledKeys& keys, const Column& answer) {
  return ChaosEstimator(keys, std::vector<bool>(keys.runs(), true)).indices(answer);
}

// The estimator's standard deviation is about 1 / sqrt(runs) or below, here 0.01: three of them.
TEST(SensitivityTest, firstOrderIndicesOfIshigamiAreThoseOfTheClosedForm) {
  const SampledKeys keys = evenKeys(3, 10'000);
  const Column indices = firstOrderIndices(keys, answersOf(keys, ishigami));
  ASSERT_EQ(indices.size(), 3U);
  for (std::size_t key = 0; key < 3; ++key)
    EXPECT_NEAR(indices[key], Ishigami().first[key], 0.03) << key;
}

// What the polynomials do not explain bounds the error of totals, besides that of the sample: its
// coefficients have a standard deviation of a few hundredths in 1000 runs.
TEST(SensitivityTest, totalIndicesOfIshigamiAreThoseOfTheClosedForm) {
  const SampledKeys keys = evenKeys(3, 1000);
  const ChaosIndices indices = chaosOf(keys, answersOf(keys, ishigami));
  ASSERT_EQ(indices.totals.size(), 3U);
  EXPECT_GT(indices.explained, 0.97);
  EXPECT_LE(indices.explained, 1);
  for (std::size_t key = 0; key < 3; ++key)
    EXPECT_NEAR(indices.totals[key], Ishigami().total[key], 0.03) << key;
}

TEST(SensitivityTest, polynomialsTellTheFirstOrderOfIshigamiBetterThanRanks) {
  const SampledKeys keys = evenKeys(3, 1000);
  const Column answer = answersOf(keys, ishigami);
  const ChaosIndices chaos = chaosOf(keys, answer);
  const Column best = bestFirstOrder(keys, answer, chaos);
  ASSERT_EQ(best.size(), 3U);
  for (std::size_t key = 0; key < 3; ++key) {
    EXPECT_NEAR(best[key], Ishigami().first[key], 0.02) << key;
    EXPECT_LE(best[key], chaos.totals[key]) << key;
  }
}

TEST(SensitivityTest, whatPolynomialsLeaveOpenBeyondTheNoiseIsToldByRanks) {
  const SampledKeys keys = evenKeys(2, 1000);
  const Column answer =
      answersOf(keys, [](const Column& x) { return x[0] + std::sin(2000 * x[1]) / 6; });
  ChaosIndices chaos = chaosOf(keys, answer);
  ASSERT_GT(1 - chaos.explained, firstOrderNoise(1000));
  ASSERT_EQ(chaos.firstOrder.size(), 2U);
  EXPECT_EQ(bestFirstOrder(keys, answer, chaos), firstOrderIndices(keys, answer));
  chaos.explained = 1 - firstOrderNoise(1000) / 2;
  EXPECT_EQ(bestFirstOrder(keys, answer, chaos), chaos.firstOrder);
  EXPECT_EQ(bestFirstOrder(keys, answer, ChaosIndices()), firstOrderIndices(keys, answer));
}

// Ranks differ from even values by a variance of 1 / (6 runs), which is 2 / runs of theirs: the
// most that polynomials of 2000 ranks leave unexplained.
TEST(SensitivityTest, indicesOfALinearModelAreTheSharesOfItsSquares) {
  const SampledKeys keys = evenKeys(4, 10'000);
  const Column answer =
      answersOf(keys, [](const Column& x) { return 4 * x[0] - 2 * x[1] + x[2] + 100; });
  const Column expected{16.0 / 21, 4.0 / 21, 1.0 / 21, 0};
  const Column first = firstOrderIndices(keys, answer);
  const ChaosIndices total = chaosOf(keys, answer);
  ASSERT_EQ(first.size(), 4U);
  ASSERT_EQ(total.totals.size(), 4U);
  EXPECT_NEAR(total.explained, 1, 1e-3);
  for (std::size_t key = 0; key < 4; ++key) {
    EXPECT_NEAR(first[key], expected[key], 0.03) << key;
    EXPECT_NEAR(total.totals[key], expected[key], 0.01) << key;
  }
}

// Factors 1 + a (2 u - 1) of even keys u have a variance of a² / 3 each.
TEST(SensitivityTest, indicesOfAProductAreThoseOfTheClosedForm) {
  SampledKeys keys{latinHypercube(1000, 2, 5), std::vector<int>(1000, 1)};
  const Column answer =
      answersOf(keys, [](const Column& u) { return 2 * u[0] * (1.5 * u[1] + 1); });
  const double one = 1.0 / 3;
  const double other = std::pow(0.75 / 1.75, 2) / 3;
  const double all = (1 + one) * (1 + other) - 1;
  const ChaosIndices total = chaosOf(keys, answer);
  ASSERT_EQ(total.totals.size(), 2U);
  EXPECT_NEAR(total.totals[0], one * (1 + other) / all, 0.005);
  EXPECT_NEAR(total.totals[1], other * (1 + one) / all, 0.005);
  EXPECT_NEAR(firstOrderIndices(keys, answer)[0], one / all, 0.05);
}

TEST(SensitivityTest, totalsOfNormalKeysHoldTheirTails) {
  SampledKeys keys = evenKeys(2, 1000);
  for (Column& column : keys.values)
    for (double& value : column)
      value = normalQuantile(value);
  const ChaosIndices total =
      chaosOf(keys, answersOf(keys, [](const Column& x) { return 2 * x[0] + x[1]; }));
  ASSERT_EQ(total.totals.size(), 2U);
  EXPECT_GT(total.explained, 0.995);
  EXPECT_NEAR(total.totals[0], 0.8, 0.03);
}

// A study's own samples, with the scale of keys as far apart as those of a site.
TEST(SensitivityTest, indicesDoNotDependOnTheUnitsOfKeysAndAnswers) {
  const SampledKeys keys = evenKeys(3, 1000);
  const Column answer = answersOf(keys, ishigami);
  SampledKeys scaled = keys;
  for (double& value : scaled.values[0])
    value *= 1e-9;
  Column scaledAnswer = answer;
  for (double& value : scaledAnswer)
    value = 1e6 * value + 1e7;
  const Column one = firstOrderIndices(keys, answer);
  const Column other = firstOrderIndices(scaled, scaledAnswer);
  const ChaosIndices oneTotal = chaosOf(keys, answer);
  const ChaosIndices otherTotal = chaosOf(scaled, scaledAnswer);
  for (std::size_t key = 0; key < 3; ++key) {
    EXPECT_NEAR(one[key], other[key], 1e-9);
    EXPECT_NEAR(oneTotal.totals[key], otherTotal.totals[key], 1e-9);
  }
}

TEST(SensitivityTest, anIdleKeyStaysBelowTheNoiseInNineteenOfTwentyStudies) {
  constexpr int studies = 1000; // a standard deviation of 7 of them
  int above = 0;
  for (int i = 0; i < studies; ++i) {
    const SampledKeys keys = evenKeys(2, 200, static_cast<std::uint64_t>(i));
    const Column answer = answersOf(keys, [](const Column& x) { return x[0]; });
    above += firstOrderIndices(keys, answer)[1] > firstOrderNoise(200) ? 1 : 0;
  }
  EXPECT_GT(above, 25);
  EXPECT_LT(above, 75);
}

/// A grid of 5 x 40 runs.
SampledKeys grid() {
  SampledKeys keys;
  keys.values.resize(2);
  for (int i = 0; i < 200; ++i) {
    keys.values[0].push_back(i % 5);
    keys.values[1].push_back(i / 5);
  }
  keys.repeats.assign(200, 1);
  return keys;
}

TEST(SensitivityTest, aKeyWithFewValuesHasTheVarianceOfTheMeansAtThem) {
  const SampledKeys keys = grid();
  const Column answer =
      answersOf(keys, [](const Column& x) { return (x[0] == 2 ? 3.0 : 0.0) + x[1] / 100; });
  const double ofFew = 9 * 0.2 * 0.8;
  const double ofMany = (40 * 40 - 1) / 12.0 / 1e4;
  EXPECT_NEAR(firstOrderIndices(keys, answer)[0], ofFew / (ofFew + ofMany), 1e-12);
}

TEST(SensitivityTest, totalsOfAGridAreThoseOfItsValues) {
  const SampledKeys keys = grid();
  const Column answer = answersOf(keys, [](const Column& x) { return (x[0] - 2) * (x[1] - 19.5); });
  const ChaosIndices total = chaosOf(keys, answer);
  ASSERT_EQ(total.totals.size(), 2U);
  EXPECT_NEAR(total.totals[0], 1, 1e-9);
  EXPECT_NEAR(total.totals[1], 1, 1e-9);
}

// Of copies that are written out others are left when one is left out: the degree of the
// polynomials may be another one.
TEST(SensitivityTest, repeatsCountAsIfTheyWereWrittenOut) {
  SampledKeys brief = grid();
  SampledKeys written = brief;
  for (std::size_t run = 0; run < 200; run += 3) {
    brief.repeats[run] = 4;
    for (int i = 1; i < 4; ++i) {
      for (Column& column : written.values)
        column.push_back(column[run]);
      written.repeats.push_back(1);
    }
  }
  const auto model = [](const Column& x) { return x[0] * x[0] * 5 + x[1] * x[0]; };
  const Column briefAnswer = answersOf(brief, model);
  const Column writtenAnswer = answersOf(written, model);
  EXPECT_NEAR(firstOrderIndices(brief, briefAnswer)[0],
              firstOrderIndices(written, writtenAnswer)[0], 1e-12);
  const ChaosIndices one = chaosOf(brief, briefAnswer);
  const ChaosIndices other = chaosOf(written, writtenAnswer);
  EXPECT_NEAR(one.totals[1], other.totals[1], 1e-3);
  EXPECT_EQ(swingOf(brief, 1, briefAnswer)->atHighest,
            swingOf(written, 1, writtenAnswer)->atHighest);
}

TEST(SensitivityTest, correlatedKeysHaveNoTotals) {
  SampledKeys keys = evenKeys(2, 500);
  const auto sum = [](const Column& x) { return x[0] + x[1]; };
  EXPECT_EQ(chaosOf(keys, answersOf(keys, sum)).totals.size(), 2U);
  keys.areIndependent = false;
  EXPECT_TRUE(chaosOf(keys, answersOf(keys, sum)).totals.empty());
  keys.areIndependent = true;
  for (std::size_t i = 0; i < 500; ++i)
    keys.values[1][i] += 0.5 * keys.values[0][i];
  EXPECT_TRUE(chaosOf(keys, answersOf(keys, sum)).totals.empty());
}

TEST(SensitivityTest, anAnswerThatPolynomialsCantTellHasNoTotals) {
  const SampledKeys keys = evenKeys(3, 500);
  const ChaosIndices total = chaosOf(keys, answersOf(keys, [](const Column& x) {
                                       return std::sin(1000 * x[0]) * std::sin(700 * x[1]);
                                     }));
  EXPECT_TRUE(total.totals.empty());
  EXPECT_LT(total.explained, leastExplained);
}

TEST(SensitivityTest, anAnswerThatDoesNotVaryOrOfFewRunsHasNoIndices) {
  const SampledKeys keys = evenKeys(2, 100);
  const Column constant(100, 11.3);
  EXPECT_TRUE(firstOrderIndices(keys, constant).empty());
  EXPECT_TRUE(chaosOf(keys, constant).totals.empty());
  const SampledKeys few = evenKeys(2, fewestForIndices - 1);
  const Column answer = answersOf(few, [](const Column& x) { return x[0]; });
  EXPECT_TRUE(firstOrderIndices(few, answer).empty());
  EXPECT_TRUE(chaosOf(few, answer).totals.empty());
}

// Of 257 runs: the greatest answer has the least one for a neighbour, which costs 6 / runs.
TEST(SensitivityTest, runsWithoutANumberAreLeftOut) {
  const SampledKeys keys = evenKeys(2, 300);
  Column answer = answersOf(keys, [](const Column& x) { return x[0]; });
  std::vector<bool> wanted(300, true);
  for (std::size_t i = 0; i < 300; i += 7) {
    answer[i] = std::numeric_limits<double>::quiet_NaN();
    wanted[i] = false;
  }
  EXPECT_NEAR(firstOrderIndices(keys, answer)[0], 1, 0.03);
  EXPECT_NEAR(ChaosEstimator(keys, wanted).indices(answer).totals[0], 1, 1e-3);
  EXPECT_NEAR(swingOf(keys, 0, answer)->atHighest, 0.95, 0.03);
}

TEST(SensitivityTest, aSwingGoesFromTheLowestTenthOfAKeyToItsHighest) {
  SampledKeys keys;
  keys.values.resize(1);
  for (int i = 1; i <= 100; ++i)
    keys.values[0].push_back(i);
  keys.repeats.assign(100, 1);
  const auto swing = swingOf(keys, 0, answersOf(keys, [](const Column& x) { return -x[0]; }));
  ASSERT_TRUE(swing);
  EXPECT_EQ(swing->atLowest, -6); // the median of -1 to -10
  EXPECT_EQ(swing->atHighest, -96);
}

TEST(SensitivityTest, allRunsWithTheLeastValueOfAListCountAsItsLowestTenth) {
  const SampledKeys keys = grid();
  const auto swing = swingOf(keys, 0, answersOf(keys, [](const Column& x) { return x[1]; }));
  EXPECT_EQ(swing->atLowest, 19); // of 40 runs with 0 to 39
  EXPECT_EQ(swing->atHighest, 19);
}

} // namespace
