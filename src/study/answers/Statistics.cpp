#include "study/answers/Statistics.h"

#include <algorithm>
#include <boost/math/distributions/binomial.hpp>
#include <cmath>
#include <numeric>

namespace TVR::Study {

namespace {

using boost::math::binomial_distribution;

constexpr double tail = (1 - confidence) / 2;

/// The least count that a binomial law does not exceed with a probability above `share`.
std::uint64_t binomialRank(std::uint64_t runs, double probability, double share) {
  using namespace boost::math::policies;
  using Law = binomial_distribution<double, policy<discrete_quantile<integer_round_up>>>;
  return static_cast<std::uint64_t>(
      std::max(0.0, quantile(Law(static_cast<double>(runs), probability), share)));
}

} // namespace

Sample::Sample(const std::vector<double>& values, const std::vector<int>& repeats) {
  std::vector<std::size_t> order;
  for (std::size_t i = 0; i < values.size(); ++i)
    if (std::isfinite(values[i]) && repeats[i] > 0)
      order.push_back(i);
  std::sort(order.begin(), order.end(),
            [&](std::size_t one, std::size_t other) { return values[one] < values[other]; });
  double sum = 0;
  for (const std::size_t i : order) {
    values_.push_back(values[i]);
    ends_.push_back(size() + static_cast<std::uint64_t>(repeats[i]));
    sum += repeats[i] * values[i];
  }
  mean_ = values_.empty() ? 0 : sum / static_cast<double>(size());
  for (const std::size_t i : order)
    squares_ += repeats[i] * (values[i] - mean_) * (values[i] - mean_);
}

double Sample::deviation() const {
  return size() < 2 ? 0 : std::sqrt(squares_ / static_cast<double>(size() - 1));
}

double Sample::ofRank(std::uint64_t rank) const {
  const auto found = std::lower_bound(ends_.begin(), ends_.end(), rank);
  return values_[static_cast<std::size_t>(found - ends_.begin())];
}

double Sample::percentile(double share) const {
  constexpr double rounding = 1e-9; // 0.95 of 100 is 95, not 95.00000000000001
  const double rank = std::ceil(share * static_cast<double>(size()) - rounding);
  return ofRank(std::clamp<std::uint64_t>(static_cast<std::uint64_t>(rank), 1, size()));
}

ConfidenceInterval Sample::percentileInterval(double share) const {
  ConfidenceInterval interval;
  if (const auto rank = binomialRank(size(), share, tail); rank >= 1)
    interval.low = ofRank(rank);
  if (const auto rank = binomialRank(size(), share, 1 - tail) + 1; rank <= size())
    interval.high = ofRank(rank);
  return interval;
}

std::uint64_t Sample::countAbove(double limit) const {
  const auto above = std::upper_bound(values_.begin(), values_.end(), limit);
  const auto count = static_cast<std::size_t>(above - values_.begin());
  return size() - (count == 0 ? 0 : ends_[count - 1]);
}

ConfidenceInterval probabilityInterval(std::uint64_t count, std::uint64_t runs) {
  const auto all = static_cast<double>(runs);
  const auto some = static_cast<double>(count);
  return {binomial_distribution<>::find_lower_bound_on_p(all, some, tail),
          binomial_distribution<>::find_upper_bound_on_p(all, some, tail)};
}

Spread spreadOf(const Sample& sample) {
  Spread spread;
  spread.runs = sample.size();
  if (spread.runs == 0)
    return spread;
  spread.mean = sample.mean();
  spread.deviation = sample.deviation();
  spread.least = sample.least();
  spread.greatest = sample.greatest();
  for (const double share : percentileShares)
    spread.percentiles.push_back(
        {share, sample.percentile(share), sample.percentileInterval(share)});
  return spread;
}

} // namespace TVR::Study
