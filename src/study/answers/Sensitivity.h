#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace TVR::Study {

/// The values of the varied keys in the runs of a sample.
struct SampledKeys {
  std::vector<std::vector<double>> values; ///< a column for each key, with a number for each run
  std::vector<int> repeats;                ///< how often the sample holds each run
  bool areIndependent = true;              ///< false where keys are known to be correlated

  std::size_t runs() const { return repeats.size(); }
};

/// A bar of a tornado: the medians of an answer in the tenth of the runs with the lowest values of
/// a key, and in the tenth with the highest ones; all other keys vary as they do. Where many runs
/// share a value, all that have it count.
struct Swing {
  double atLowest;
  double atHighest;
};

/// None for an answer (one number for each run; those that are not finite are left out) without
/// numbers in one of the tenths.
std::optional<Swing> swingOf(const SampledKeys& keys, std::size_t key,
                             const std::vector<double>& answer);

/// The fewest runs, each with a finite answer, that indices are estimated from.
constexpr std::size_t fewestForIndices = 30;

/// Sobol' indices of first order, one for each key: the share of the variance of an answer that a
/// key has by itself, estimated from any sample. Sorted by the key, neighbours tell it (Gamboa,
/// Gremaud, Klein and Lagnoux 2022, "Global sensitivity analysis: a novel generation of mighty
/// estimators based on rank statistics"); of a key with few values, each in `runsPerValue` runs or
/// more on average, the variance of the means at its values (the correlation ratio, Pearson 1905).
/// Estimates of small indices may lie below 0. With keys that are correlated an index holds what a
/// key shares with others.
///
/// Empty for an answer that doesn't vary, or with too few runs.
std::vector<double> firstOrderIndices(const SampledKeys& keys, const std::vector<double>& answer);
constexpr std::size_t runsPerValue = 20;

/// What an index of first order of a key without any influence stays below in 95 of 100 studies:
/// such an estimate has a standard deviation of 1 / sqrt(runs).
double firstOrderNoise(std::size_t runs);

/// Sobol' indices from polynomials, one for each key; empty where they can't be told.
struct ChaosIndices {
  std::vector<double> firstOrder; ///< what a key does by itself, as above
  /// The share of the variance of an answer that would go if a key were known, with all that it
  /// does together with other keys. Never below that of first order.
  std::vector<double> totals;
  /// The share of the variance that the polynomials below foretell for a run that they were not
  /// fitted to (Q², by leaving out one run after the other). Indices may be wrong by the rest.
  double explained = 0;
};

/// The least explained share with which these indices are told.
constexpr double leastExplained = 0.8;

/// The indices of first order of an answer by the better way: from its polynomials where they leave
/// less unexplained than the noise of ranks, else as firstOrderIndices has them.
std::vector<double> bestFirstOrder(const SampledKeys& keys, const std::vector<double>& answer,
                                   const ChaosIndices& chaos);

/// Indices from a polynomial chaos (Sudret 2008) that is fitted by least squares to a sample, with
/// polynomials of the ranks of each key that are orthonormal on the sample (as in Oladyshkin and
/// Nowak 2012), up to the degree that explains most. Ranks keep any distribution, and lists, apart
/// from how the answer depends on the keys.
class ChaosEstimator {
public:
  /// Takes the first `mostRuns` runs of those that are `wanted` (one entry for each run).
  ChaosEstimator(const SampledKeys& keys, const std::vector<bool>& wanted);
  ~ChaosEstimator();
  ChaosEstimator(const ChaosEstimator&) = delete;
  ChaosEstimator& operator=(const ChaosEstimator&) = delete;

  /// Of an answer with a finite number for each wanted run. None for keys that are correlated,
  /// for one that doesn't vary, or with too few runs.
  ChaosIndices indices(const std::vector<double>& answer) const;

  static constexpr std::size_t mostRuns = 2000;

private:
  struct Fit;

  std::vector<std::size_t> runs_; ///< that it takes
  std::vector<double> weights_;   ///< square roots of their repeats
  std::size_t keys_;
  std::vector<Fit> fits_; ///< by degree; none where indices can't be had
};

} // namespace TVR::Study
