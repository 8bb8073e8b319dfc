#include "study/plan/RankCorrelation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

using namespace TVR::Study;

namespace {

std::vector<double> ranksOf(const std::vector<double>& numbers) {
  std::vector<std::size_t> order(numbers.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::sort(order.begin(), order.end(),
            [&](std::size_t one, std::size_t other) { return numbers[one] < numbers[other]; });
  std::vector<double> ranks(numbers.size());
  for (std::size_t i = 0; i < order.size(); ++i)
    ranks[order[i]] = static_cast<double>(i);
  return ranks;
}

/// Spearman's, without ties.
double rankCorrelation(const std::vector<double>& one, const std::vector<double>& other) {
  const std::vector<double> a = ranksOf(one);
  const std::vector<double> b = ranksOf(other);
  double squares = 0;
  for (std::size_t i = 0; i < a.size(); ++i)
    squares += (a[i] - b[i]) * (a[i] - b[i]);
  const auto n = static_cast<double>(a.size());
  return 1 - 6 * squares / (n * (n * n - 1));
}

} // namespace

TEST(RankCorrelationTest, aReorderedHypercubeHasTheWantedCorrelationsAndNoOthers) {
  const Columns columns = reordered(latinHypercube(500, 3, 11), {{0, 1, 0.6}, {1, 2, -0.4}});
  EXPECT_NEAR(rankCorrelation(columns[0], columns[1]), 0.6, 0.02);
  EXPECT_NEAR(rankCorrelation(columns[1], columns[2]), -0.4, 0.02);
  EXPECT_NEAR(rankCorrelation(columns[0], columns[2]), 0, 0.02);
}

TEST(RankCorrelationTest, reorderingKeepsTheNumbersOfEachColumn) {
  const Columns before = latinHypercube(100, 2, 11);
  const Columns after = reordered(before, {{0, 1, 0.8}});
  for (std::size_t d = 0; d < 2; ++d)
    EXPECT_TRUE(std::is_permutation(before[d].begin(), before[d].end(), after[d].begin()));
}

TEST(RankCorrelationTest, bentPointsHaveTheWantedCorrelation) {
  const Columns columns = bent(sobolPoints(1023, 3, 2), {{0, 2, 0.7}});
  EXPECT_NEAR(rankCorrelation(columns[0], columns[2]), 0.7, 0.02);
  EXPECT_NEAR(rankCorrelation(columns[0], columns[1]), 0, 0.02);
  for (const double number : columns[2])
    EXPECT_TRUE(number > 0 && number < 1);
}

TEST(RankCorrelationTest, correlationsThatCannotAllHoldAreFound) {
  EXPECT_TRUE(areConsistent({{0, 1, 0.9}, {1, 2, 0.9}, {0, 2, 0.8}}, 3));
  EXPECT_FALSE(areConsistent({{0, 1, 0.9}, {1, 2, 0.9}, {0, 2, -0.9}}, 3));
}
