#include "study/plan/RankCorrelation.h"

#include "study/plan/NormalLaw.h"

#include <Eigen/Cholesky>
#include <Eigen/Dense>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace TVR::Study {

namespace {

/// A share as near to 0 as one can be to 1.
constexpr double leastShare = 0x1p-53;

/// The correlations of normal numbers whose ranks have the wanted ones (Pearson 1907).
Eigen::MatrixXd normalCorrelations(const std::vector<CorrelatedPair>& pairs,
                                   std::size_t dimensions) {
  const auto size = static_cast<Eigen::Index>(dimensions);
  Eigen::MatrixXd matrix = Eigen::MatrixXd::Identity(size, size);
  for (const CorrelatedPair& pair : pairs) {
    const auto i = static_cast<Eigen::Index>(pair.one);
    const auto j = static_cast<Eigen::Index>(pair.other);
    matrix(i, j) = matrix(j, i) = 2 * std::sin(std::numbers::pi / 6 * pair.correlation);
  }
  return matrix;
}

Eigen::MatrixXd lowerFactor(const Eigen::MatrixXd& matrix) {
  return matrix.llt().matrixL();
}

/// The places of the numbers when they are sorted: the rank of each, from 0.
template <class Numbers>
std::vector<std::size_t> ranksOf(const Numbers& numbers, std::size_t count) {
  std::vector<std::size_t> order(count);
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(), [&](std::size_t one, std::size_t other) {
    return numbers[static_cast<Eigen::Index>(one)] < numbers[static_cast<Eigen::Index>(other)];
  });
  std::vector<std::size_t> ranks(count);
  for (std::size_t rank = 0; rank < count; ++rank)
    ranks[order[rank]] = rank;
  return ranks;
}

/// The normal scores of the ranks in each column (van der Waerden), with a mean of 0.
Eigen::MatrixXd scoresOf(const Columns& columns) {
  const std::size_t count = columns.front().size();
  Eigen::MatrixXd scores(static_cast<Eigen::Index>(count),
                         static_cast<Eigen::Index>(columns.size()));
  for (std::size_t d = 0; d < columns.size(); ++d) {
    const auto numbers = Eigen::Map<const Eigen::VectorXd>(columns[d].data(), scores.rows());
    const std::vector<std::size_t> ranks = ranksOf(numbers, count);
    for (std::size_t i = 0; i < count; ++i)
      scores(static_cast<Eigen::Index>(i), static_cast<Eigen::Index>(d)) =
          normalQuantile((static_cast<double>(ranks[i]) + 1) / (static_cast<double>(count) + 1));
  }
  return scores;
}

} // namespace

bool areConsistent(const std::vector<CorrelatedPair>& pairs, std::size_t dimensions) {
  return normalCorrelations(pairs, dimensions).llt().info() == Eigen::ComputationInfo::Success;
}

Columns reordered(const Columns& columns, const std::vector<CorrelatedPair>& pairs) {
  const Eigen::MatrixXd scores = scoresOf(columns);
  // What the scores are correlated by chance is taken out first. All have one variance.
  const Eigen::MatrixXd products = scores.transpose() * scores;
  const Eigen::MatrixXd present = products / products(0, 0);
  const Eigen::MatrixXd wanted = lowerFactor(normalCorrelations(pairs, columns.size()));
  const Eigen::MatrixXd independent =
      lowerFactor(present).triangularView<Eigen::Lower>().solve(scores.transpose());
  const Eigen::MatrixXd target = (wanted * independent).transpose();

  Columns result = columns;
  for (std::size_t d = 0; d < columns.size(); ++d) {
    std::vector<double> sorted = columns[d];
    std::sort(sorted.begin(), sorted.end());
    const std::vector<std::size_t> ranks =
        ranksOf(target.col(static_cast<Eigen::Index>(d)), sorted.size());
    for (std::size_t i = 0; i < sorted.size(); ++i)
      result[d][i] = sorted[ranks[i]];
  }
  return result;
}

Columns bent(const Columns& columns, const std::vector<CorrelatedPair>& pairs) {
  const Eigen::MatrixXd factor = lowerFactor(normalCorrelations(pairs, columns.size()));
  Columns result = columns;
  Eigen::VectorXd point(static_cast<Eigen::Index>(columns.size()));
  for (std::size_t i = 0; i < columns.front().size(); ++i) {
    for (std::size_t d = 0; d < columns.size(); ++d)
      point[static_cast<Eigen::Index>(d)] = normalQuantile(columns[d][i]);
    const Eigen::VectorXd correlated = factor * point;
    for (std::size_t d = 0; d < columns.size(); ++d)
      result[d][i] = std::clamp(normalShare(correlated[static_cast<Eigen::Index>(d)]), leastShare,
                                1 - leastShare);
  }
  return result;
}

} // namespace TVR::Study
