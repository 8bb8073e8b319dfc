#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace TVR::Study {

/// Bounds within which what is true lies in 90 of 100 studies that differ by their random numbers
/// alone. It tells how good the sampling is, not how good the site is known. A bound is missing
/// where the sample is too small to have one.
struct ConfidenceInterval {
  std::optional<double> low;
  std::optional<double> high;
};

/// The confidence of all intervals.
constexpr double confidence = 0.9;

/// Numbers of a sample, each with how often the sample holds it; all figures are of the sample with
/// the repeats written out. The intervals hold for independent draws; a Latin hypercube and a
/// Sobol' sequence are as good or better.
class Sample {
public:
  Sample() = default;
  /// As many repeats as values. Values that are not finite are left out.
  Sample(const std::vector<double>& values, const std::vector<int>& repeats);

  /// How many numbers there are, repeats included. The other figures want at least one.
  std::uint64_t size() const { return ends_.empty() ? 0 : ends_.back(); }
  double least() const { return values_.front(); }
  double greatest() const { return values_.back(); }

  double mean() const { return mean_; }
  /// The standard deviation, with one number less in the denominator; 0 for one number.
  double deviation() const;

  /// The least number that at least a share (above 0, to 1) of the numbers do not exceed.
  double percentile(double share) const;
  /// Of the same, from order statistics, whose ranks follow from the binomial law: no distribution
  /// of the numbers is assumed (Conover, Practical Nonparametric Statistics, 1999, section 3.2).
  ConfidenceInterval percentileInterval(double share) const;

  /// How many numbers exceed a limit.
  std::uint64_t countAbove(double limit) const;

private:
  double ofRank(std::uint64_t rank) const;

  std::vector<double> values_;      ///< ascending
  std::vector<std::uint64_t> ends_; ///< of how many numbers each value is the last one
  double mean_ = 0;
  double squares_ = 0; ///< of the differences to the mean, summed
};

/// The interval of the probability of something that `count` of `runs` (at least 1) have done
/// (Clopper and Pearson 1934).
ConfidenceInterval probabilityInterval(std::uint64_t count, std::uint64_t runs);

/// A sample in a few figures.
struct Spread {
  struct Percentile {
    double share;
    double value;
    ConfidenceInterval interval;
  };

  std::uint64_t runs = 0; ///< repeats included; without any there are no other figures
  double mean = 0;
  double deviation = 0;
  double least = 0;
  double greatest = 0;
  std::vector<Percentile> percentiles; ///< of the `percentileShares`, in their order
};

/// P5, P10, P50, P90 and P95.
constexpr double percentileShares[] = {0.05, 0.1, 0.5, 0.9, 0.95};

Spread spreadOf(const Sample& sample);

} // namespace TVR::Study
