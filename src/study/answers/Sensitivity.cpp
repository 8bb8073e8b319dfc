#include "study/answers/Sensitivity.h"

#include "study/answers/Statistics.h"
#include "study/plan/NormalLaw.h"

#include <Eigen/Dense>
#include <Eigen/QR>
#include <algorithm>
#include <cmath>
#include <numeric>

namespace TVR::Study {

namespace {

using Column = std::vector<double>;
using Places = std::vector<std::size_t>;

constexpr double tenth = 0.1;
/// A variance below this share of the squared mean is rounding.
constexpr double roundingShare = 1e-24;

/// The places of the runs that an answer has a number for, sorted by a key; equal ones keep their
/// order, which follows from their names and from nothing that they answer.
Places sortedBy(const Column& key, const Column& answer) {
  Places places;
  for (std::size_t i = 0; i < answer.size(); ++i)
    if (std::isfinite(answer[i]))
      places.push_back(i);
  std::stable_sort(places.begin(), places.end(),
                   [&](std::size_t one, std::size_t other) { return key[one] < key[other]; });
  return places;
}

/// Mean and summed squares of the differences to it, repeats written out.
struct Moments {
  double count = 0;
  double mean = 0;
  double squares = 0;

  bool vary() const { return squares > roundingShare * count * mean * mean; }
};

Moments momentsOf(const Column& answer, const std::vector<int>& repeats) {
  Moments moments;
  double sum = 0;
  for (std::size_t i = 0; i < answer.size(); ++i)
    if (std::isfinite(answer[i])) {
      moments.count += repeats[i];
      sum += repeats[i] * answer[i];
    }
  moments.mean = moments.count > 0 ? sum / moments.count : 0;
  for (std::size_t i = 0; i < answer.size(); ++i)
    if (std::isfinite(answer[i]))
      moments.squares += repeats[i] * std::pow(answer[i] - moments.mean, 2);
  return moments;
}

/// The squares that the means at equal values of a key account for.
double squaresBetween(const Places& places, const SampledKeys& keys, const Column& key,
                      const Column& answer, double mean) {
  double squares = 0;
  for (auto first = places.begin(); first != places.end();) {
    const auto end = std::find_if(first, places.end(),
                                  [&](std::size_t place) { return key[place] > key[*first]; });
    double count = 0;
    double sum = 0;
    for (; first != end; ++first) {
      count += keys.repeats[*first];
      sum += keys.repeats[*first] * (answer[*first] - mean);
    }
    squares += sum * sum / count;
  }
  return squares;
}

/// The products of neighbours; the last one has the first one behind it.
double productsOfNeighbours(const Places& places, const SampledKeys& keys, const Column& answer,
                            double mean) {
  double products = 0;
  for (std::size_t i = 0; i < places.size(); ++i) {
    const std::size_t next = places[(i + 1) % places.size()];
    products += keys.repeats[places[i]] * (answer[places[i]] - mean) * (answer[next] - mean);
  }
  return products;
}

std::size_t differentValues(const Places& places, const Column& key) {
  std::size_t count = places.empty() ? 0 : 1;
  for (std::size_t i = 1; i < places.size(); ++i)
    count += key[places[i]] > key[places[i - 1]] ? 1 : 0;
  return count;
}

/// For each run the share of the sample below it, with half of what is equal to it.
Eigen::VectorXd midShares(const Column& key, const Places& runs, const Eigen::VectorXd& repeats) {
  Places order(runs.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  const auto valueOf = [&](std::size_t i) { return key[runs[i]]; };
  std::sort(order.begin(), order.end(),
            [&](std::size_t one, std::size_t other) { return valueOf(one) < valueOf(other); });
  Eigen::VectorXd shares(repeats.size());
  double below = 0;
  for (auto first = order.begin(); first != order.end();) {
    double equal = 0;
    auto end = first;
    for (; end != order.end() && valueOf(*end) == valueOf(*first); ++end)
      equal += repeats[static_cast<Eigen::Index>(*end)];
    for (; first != end; ++first)
      shares[static_cast<Eigen::Index>(*first)] = (below + equal / 2) / repeats.sum();
    below += equal;
  }
  return shares;
}

constexpr std::size_t mostTerms = 200;
constexpr std::size_t runsPerTerm = 3;
constexpr std::size_t mostDegree = 10;
constexpr double singular = 1e-8; ///< of what should be about 1

/// Polynomials of one coordinate by degree, from 0, orthonormal on the weighted sample and times
/// the square roots of the weights, a column each: as many as different values allow.
Eigen::MatrixXd orthonormal(const Eigen::VectorXd& coordinate, const Eigen::VectorXd& weights) {
  Eigen::MatrixXd basis(coordinate.size(), static_cast<Eigen::Index>(mostDegree + 1));
  const double all = weights.norm();
  basis.col(0) = weights / all;
  Eigen::Index count = 1;
  for (; count < basis.cols(); ++count) {
    Eigen::VectorXd next = coordinate.cwiseProduct(basis.col(count - 1));
    const double size = next.norm();
    for (int pass = 0; pass < 2; ++pass) // twice is enough (Kahan)
      next -= basis.leftCols(count) * (basis.leftCols(count).transpose() * next);
    if (next.norm() <= singular * size)
      break;
    basis.col(count) = next.normalized();
  }
  return basis.leftCols(count) * all;
}

using Degrees = std::vector<std::size_t>; // of the factors of a term, by key

/// All terms up to a total degree, with factors that there are. Empty if they are too many.
std::vector<Degrees> termsOf(std::size_t degree, const std::vector<Eigen::MatrixXd>& factors,
                             std::size_t most) {
  std::vector<Degrees> terms{Degrees(factors.size(), 0)};
  for (std::size_t key = 0; key < factors.size(); ++key) {
    const std::size_t before = terms.size();
    for (std::size_t i = 0; i < before; ++i) {
      Degrees term = terms[i];
      std::size_t left = degree - std::accumulate(term.begin(), term.end(), std::size_t{0});
      left = std::min(left, static_cast<std::size_t>(factors[key].cols()) - 1);
      for (term[key] = 1; term[key] <= left; ++term[key])
        terms.push_back(term);
      if (terms.size() > most)
        return {};
    }
  }
  return terms;
}

bool areCorrelated(const std::vector<Eigen::MatrixXd>& factors, const Eigen::VectorXd& weights) {
  constexpr double deviations = 4; // that chance alone does not reach
  const double most = deviations / std::sqrt(static_cast<double>(weights.size()));
  for (std::size_t one = 0; one < factors.size(); ++one)
    for (std::size_t other = 0; other < one; ++other)
      if (factors[one].cols() > 1 && factors[other].cols() > 1 &&
          std::abs(factors[one].col(1).dot(factors[other].col(1))) > most * weights.squaredNorm())
        return true;
  return false;
}

} // namespace

std::optional<Swing> swingOf(const SampledKeys& keys, std::size_t key, const Column& answer) {
  const Column& values = keys.values[key];
  const Sample all(values, keys.repeats);
  if (all.size() == 0)
    return {};
  const double low = all.percentile(tenth);
  Column negated;
  for (const double value : values)
    negated.push_back(-value);
  const double high = -Sample(negated, keys.repeats).percentile(tenth);
  Column answers[2];
  std::vector<int> repeats[2];
  for (std::size_t i = 0; i < answer.size(); ++i)
    for (const std::size_t end : {0, 1})
      if (end == 0 ? values[i] <= low : values[i] >= high) {
        answers[end].push_back(answer[i]);
        repeats[end].push_back(keys.repeats[i]);
      }
  const Sample lowest(answers[0], repeats[0]);
  const Sample highest(answers[1], repeats[1]);
  if (lowest.size() == 0 || highest.size() == 0)
    return {};
  return Swing{lowest.percentile(0.5), highest.percentile(0.5)};
}

std::vector<double> firstOrderIndices(const SampledKeys& keys, const Column& answer) {
  const Moments moments = momentsOf(answer, keys.repeats);
  std::vector<double> indices;
  if (!moments.vary())
    return indices;
  for (const Column& key : keys.values) {
    const Places places = sortedBy(key, answer);
    if (places.size() < fewestForIndices)
      return {};
    const bool hasFewValues =
        static_cast<double>(differentValues(places, key) * runsPerValue) <= moments.count;
    indices.push_back((hasFewValues ? squaresBetween(places, keys, key, answer, moments.mean)
                                    : productsOfNeighbours(places, keys, answer, moments.mean)) /
                      moments.squares);
  }
  return indices;
}

double firstOrderNoise(std::size_t runs) {
  constexpr double quantile = 1.6448536269514722; // of the normal law, for 95 %
  return quantile / std::sqrt(static_cast<double>(runs));
}

std::vector<double> bestFirstOrder(const SampledKeys& keys, const Column& answer,
                                   const ChaosIndices& chaos) {
  const auto runs = static_cast<std::size_t>(momentsOf(answer, keys.repeats).count);
  const bool isLeftLess = 1 - chaos.explained < firstOrderNoise(std::max<std::size_t>(1, runs));
  return isLeftLess && !chaos.firstOrder.empty() ? chaos.firstOrder
                                                 : firstOrderIndices(keys, answer);
}

/// Least squares for one set of terms.
struct ChaosEstimator::Fit {
  std::vector<Degrees> terms;
  Eigen::MatrixXd directions; ///< orthonormal, as many as terms
  Eigen::MatrixXd triangle;
  Eigen::VectorXd left; ///< of each run, what its own answer does not decide of its fitted value

  Fit(const std::vector<Degrees>& ofTerms, const std::vector<Eigen::MatrixXd>& factors,
      const Eigen::VectorXd& weights)
      : terms(ofTerms) {
    const auto count = static_cast<Eigen::Index>(terms.size());
    Eigen::MatrixXd matrix(weights.size(), count);
    for (Eigen::Index term = 0; term < count; ++term) {
      matrix.col(term) = weights;
      const Degrees& degrees = terms[static_cast<std::size_t>(term)];
      for (std::size_t key = 0; key < factors.size(); ++key)
        if (degrees[key] > 0)
          matrix.col(term).array() *=
              factors[key].col(static_cast<Eigen::Index>(degrees[key])).array() / weights.array();
    }
    const Eigen::HouseholderQR<Eigen::MatrixXd> qr(matrix);
    directions = qr.householderQ() * Eigen::MatrixXd::Identity(matrix.rows(), count);
    triangle = qr.matrixQR().topRows(count).triangularView<Eigen::Upper>();
    left = Eigen::VectorXd::Ones(matrix.rows()) - directions.rowwise().squaredNorm();
  }

  /// Whether the sample tells all terms apart, and no run decides its fitted value alone.
  bool isSound() const {
    const Eigen::VectorXd diagonal = triangle.diagonal().cwiseAbs();
    return diagonal.minCoeff() > singular * diagonal.maxCoeff() && left.minCoeff() > singular;
  }

  double explained(const Eigen::VectorXd& answer, double squares) const {
    const Eigen::VectorXd rest = answer - directions * (directions.transpose() * answer);
    return 1 - rest.cwiseQuotient(left).squaredNorm() / squares;
  }

  /// Adds up the squares of the coefficients of the terms that each key stands in, and of those
  /// that it stands in alone.
  void takeIndices(const Eigen::VectorXd& answer, std::size_t keys, ChaosIndices& indices) const {
    const Eigen::VectorXd coefficients =
        triangle.triangularView<Eigen::Upper>().solve(directions.transpose() * answer);
    indices.firstOrder.assign(keys, 0);
    indices.totals.assign(keys, 0);
    const double all = coefficients.tail(coefficients.size() - 1).squaredNorm();
    for (std::size_t term = 1; term < terms.size(); ++term) {
      const double share = std::pow(coefficients[static_cast<Eigen::Index>(term)], 2) / all;
      const bool isOfOneKey = std::count(terms[term].begin(), terms[term].end(), std::size_t{0}) ==
                              static_cast<std::ptrdiff_t>(keys - 1);
      for (std::size_t key = 0; key < keys; ++key)
        if (terms[term][key] > 0) {
          indices.totals[key] += share;
          indices.firstOrder[key] += isOfOneKey ? share : 0;
        }
    }
  }
};

ChaosEstimator::ChaosEstimator(const SampledKeys& keys, const std::vector<bool>& wanted)
    : keys_(keys.values.size()) {
  for (std::size_t i = 0; i < wanted.size() && runs_.size() < mostRuns; ++i)
    if (wanted[i]) {
      runs_.push_back(i);
      weights_.push_back(std::sqrt(keys.repeats[i]));
    }
  if (!keys.areIndependent || runs_.size() < fewestForIndices)
    return;
  const Eigen::Map<const Eigen::VectorXd> weights(weights_.data(),
                                                  static_cast<Eigen::Index>(weights_.size()));
  std::vector<Eigen::MatrixXd> even;
  std::vector<Eigen::MatrixXd> normal;
  for (const Column& key : keys.values) {
    const Eigen::VectorXd shares = midShares(key, runs_, weights.cwiseAbs2());
    even.push_back(orthonormal(shares.array() - 0.5, weights));
    normal.push_back(orthonormal(shares.unaryExpr(&normalQuantile), weights));
  }
  if (areCorrelated(even, weights))
    return;
  const std::size_t most = std::min(mostTerms, runs_.size() / runsPerTerm);
  for (std::size_t degree = 1; degree <= mostDegree; ++degree) {
    const std::vector<Degrees> terms = termsOf(degree, even, most);
    if (terms.empty() || (!fits_.empty() && terms.size() == fits_.back().terms.size()))
      break;
    fits_.emplace_back(terms, even, weights);
    fits_.emplace_back(terms, normal, weights);
  }
  std::erase_if(fits_, [](const Fit& fit) { return !fit.isSound(); });
}

ChaosEstimator::~ChaosEstimator() = default;

ChaosIndices ChaosEstimator::indices(const Column& answer) const {
  Column taken;
  std::vector<int> repeats;
  for (std::size_t i = 0; i < runs_.size(); ++i) {
    taken.push_back(answer[runs_[i]]);
    repeats.push_back(static_cast<int>(std::lround(weights_[i] * weights_[i])));
  }
  const Moments moments = momentsOf(taken, repeats);
  ChaosIndices result;
  if (fits_.empty() || !moments.vary())
    return result;
  const auto count = static_cast<Eigen::Index>(taken.size());
  const Eigen::ArrayXd differences =
      Eigen::Map<const Eigen::ArrayXd>(taken.data(), count) - moments.mean;
  const Eigen::VectorXd weighted =
      differences * Eigen::Map<const Eigen::ArrayXd>(weights_.data(), count);
  const Fit* best = nullptr;
  for (const Fit& fit : fits_)
    if (const double explained = fit.explained(weighted, moments.squares);
        !best || explained > result.explained) {
      best = &fit;
      result.explained = explained;
    }
  if (result.explained >= leastExplained)
    best->takeIndices(weighted, keys_, result);
  return result;
}

} // namespace TVR::Study
