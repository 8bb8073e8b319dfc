#include "simulator/GridIteration.h"

#include "simulator/PivotCheck.h"

#include <algorithm>
#include <cmath>

namespace {

double product(const std::vector<double>& x, const std::vector<double>& y) {
  double sums[4] = {0.0, 0.0, 0.0, 0.0};
  std::size_t i = 0;
  for (; i + 3 < x.size(); i += 4)
    for (std::size_t lane = 0; lane < 4; ++lane)
      sums[lane] += x[i + lane] * y[i + lane];
  for (; i < x.size(); ++i)
    sums[0] += x[i] * y[i];
  return (sums[0] + sums[1]) + (sums[2] + sums[3]);
}

} // namespace

GridIteration::GridIteration(std::size_t order, std::size_t row)
    : order_(order), row_(row), diagonal_(order), lowerNear_(order), lowerFar_(order),
      upperNear_(order), upperFar_(order), inversePivots_(order), shadow_(order), residual_(order),
      direction_(order), alongDirection_(order), alongResidual_(order), solution_(order),
      swept_(order) {}

void GridIteration::setZero() {
  for (Values* values : {&diagonal_, &lowerNear_, &lowerFar_, &upperNear_, &upperFar_})
    std::fill(values->begin(), values->end(), 0.0);
}

void GridIteration::setLink(std::size_t i, std::size_t j, double upper, double lower) {
  const bool isNear = j == i + 1;
  (isNear ? upperNear_ : upperFar_)[i] = upper;
  (isNear ? lowerNear_ : lowerFar_)[j] = lower;
}

// Rows are divided by their pivots, so that the sweeps need no division.
bool GridIteration::factorise() {
  for (std::size_t i = 0; i < order_; ++i) {
    double pivot = diagonal_[i];
    if (i >= 1)
      pivot -= lowerNear_[i] * upperNear_[i - 1];
    if (i >= row_)
      pivot -= lowerFar_[i] * upperFar_[i - row_];
    if (!isDominant(pivot, std::abs(upperNear_[i]) + std::abs(upperFar_[i])))
      return false;
    const double inverse = 1.0 / pivot;
    inversePivots_[i] = inverse;
    lowerNear_[i] *= inverse;
    lowerFar_[i] *= inverse;
    upperNear_[i] *= inverse;
    upperFar_[i] *= inverse;
    diagonal_[i] = diagonal_[i] * inverse - 2.0;
  }
  return true;
}

void GridIteration::sweepLower(Values& x) const {
  const std::size_t head = std::min(row_, order_);
  double last = x[0];
  for (std::size_t i = 1; i < head; ++i)
    x[i] = last = x[i] - lowerNear_[i] * last;
  for (std::size_t i = head; i < order_; ++i)
    x[i] = last = (x[i] - lowerFar_[i] * x[i - row_]) - lowerNear_[i] * last;
}

void GridIteration::sweepUpper(Values& x) const {
  const std::size_t tail = order_ - std::min(row_, order_);
  double last = x[order_ - 1];
  std::size_t i = order_ - 1;
  while (i-- > tail)
    x[i] = last = x[i] - upperNear_[i] * last;
  for (i = tail; i-- > 0;)
    x[i] = last = (x[i] - upperFar_[i] * x[i + row_]) - upperNear_[i] * last;
}

void GridIteration::apply(const Values& x, Values& result) {
  swept_ = x;
  sweepUpper(swept_);
  for (std::size_t i = 0; i < order_; ++i)
    result[i] = x[i] + diagonal_[i] * swept_[i];
  sweepLower(result);
  for (std::size_t i = 0; i < order_; ++i)
    result[i] += swept_[i];
}

bool GridIteration::solve(double* x) {
  constexpr double tolerance = 1e-6;
  constexpr int mostIterations = 400;
  for (std::size_t i = 0; i < order_; ++i)
    residual_[i] = x[i] * inversePivots_[i];
  sweepLower(residual_);
  shadow_ = residual_;
  direction_ = residual_;
  std::fill(solution_.begin(), solution_.end(), 0.0);
  double rho = product(residual_, residual_);
  const double goal = tolerance * tolerance * rho;
  double square = rho;
  for (int count = 0; !(square <= goal); ++count) {
    if (count == mostIterations || !std::isfinite(square))
      return false;
    ++iterations_;
    apply(direction_, alongDirection_);
    const double alpha = rho / product(shadow_, alongDirection_);
    for (std::size_t i = 0; i < order_; ++i)
      residual_[i] -= alpha * alongDirection_[i];
    apply(residual_, alongResidual_);
    const double along = product(alongResidual_, alongResidual_);
    const double omega = along > 0.0 ? product(alongResidual_, residual_) / along : 0.0;
    for (std::size_t i = 0; i < order_; ++i) {
      solution_[i] += alpha * direction_[i] + omega * residual_[i];
      residual_[i] -= omega * alongResidual_[i];
    }
    square = product(residual_, residual_);
    const double nextRho = product(shadow_, residual_);
    const double beta = nextRho / rho * (alpha / omega);
    rho = nextRho;
    for (std::size_t i = 0; i < order_; ++i)
      direction_[i] = residual_[i] + beta * (direction_[i] - omega * alongDirection_[i]);
  }
  sweepUpper(solution_);
  std::copy(solution_.begin(), solution_.end(), x);
  return true;
}
