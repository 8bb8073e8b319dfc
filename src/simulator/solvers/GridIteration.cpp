#include "simulator/solvers/GridIteration.h"

#include "simulator/balance/WideVectors.h"
#include "simulator/solvers/PivotCheck.h"

#include <algorithm>
#include <cmath>

namespace {

using Front = GridIteration::Front;

TVR_WIDE_VECTORS double product(const double* x, const double* y, std::size_t n) {
  return wideSum(n, [=](std::size_t i) { return x[i] * y[i]; });
}

TVR_WIDE_VECTORS void addMultiple(double factor, const double* __restrict x,
                                  double* __restrict result, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i)
    result[i] += factor * x[i];
}

TVR_WIDE_VECTORS void addMultiples(double a, const double* __restrict x, double b,
                                   const double* __restrict y, double* __restrict result,
                                   std::size_t n) {
  for (std::size_t i = 0; i < n; ++i)
    result[i] += a * x[i] + b * y[i];
}

/// direction = residual + beta * (direction - omega * along)
TVR_WIDE_VECTORS void turn(double beta, double omega, const double* __restrict residual,
                           const double* __restrict along, double* __restrict direction,
                           std::size_t n) {
  for (std::size_t i = 0; i < n; ++i)
    direction[i] = residual[i] + beta * (direction[i] - omega * along[i]);
}

/// result = value - far * (result at p - toFar) - near * (result at p - toNear) over a front.
[[gnu::always_inline]] inline void sweepFront(const Front& front, std::ptrdiff_t toNear,
                                              std::ptrdiff_t toFar, const double* near,
                                              const double* far, const double* value,
                                              double* result) {
  const auto step = static_cast<std::ptrdiff_t>(lanes);
  for (std::ptrdiff_t p = front.begin; p < front.begin + front.length; p += step) {
    Lanes sum, factor, other;
    load(value + p, sum);
    load(far + p, factor);
    load(result + p - toFar, other);
    sum -= factor * other;
    load(near + p, factor);
    load(result + p - toNear, other);
    sum -= factor * other;
    store(sum, result + p);
  }
}

/// Solves with the lower part of the factorisation: from the first front to the last.
TVR_WIDE_VECTORS void sweepLower(const std::vector<Front>& fronts, const double* near,
                                 const double* far, const double* value, double* result) {
  for (const Front& front : fronts)
    sweepFront(front, front.shift, front.shift + 1, near, far, value, result);
}

/// Solves with the upper part: from the last front to the first.
TVR_WIDE_VECTORS void sweepUpper(const std::vector<Front>& fronts, const double* near,
                                 const double* far, const double* value, double* result) {
  std::ptrdiff_t shift = 0;
  for (auto front = fronts.rbegin(); front != fronts.rend(); ++front) {
    sweepFront(*front, -shift, -shift - 1, near, far, value, result);
    shift = front->shift;
  }
}

/// result = x + factors * swept
TVR_WIDE_VECTORS void addScaled(const double* __restrict x, const double* __restrict factors,
                                const double* __restrict swept, double* __restrict result,
                                std::size_t n) {
  for (std::size_t i = 0; i < n; ++i)
    result[i] = x[i] + factors[i] * swept[i];
}

} // namespace

GridIteration::GridIteration(std::size_t order, std::size_t row) : row_(row), places_(order) {
  makeFronts(order / row);
  // The sweeps read up to one group of lanes in front of the first front and behind the last one.
  const auto end = static_cast<std::size_t>(fronts_.back().begin + fronts_.back().length) + lanes;
  for (Values* values :
       {&diagonal_, &lowerNear_, &lowerFar_, &upperNear_, &upperFar_, &inversePivots_, &shadow_,
        &residual_, &direction_, &alongDirection_, &alongResidual_, &solution_, &swept_})
    values->assign(end, 0.0);
}

// Behind each front there is one place without a cell at least, which stands for what the cells at
// the edges of the mesh lack, and as many as make its length a multiple of the lanes.
void GridIteration::makeFronts(std::size_t rows) {
  std::size_t begin = lanes;
  std::size_t firstRow = 0;
  for (std::size_t f = 0; f < rows + row_ - 1; ++f) {
    const std::size_t firstRowBefore = firstRow;
    firstRow = f < row_ ? 0 : f - row_ + 1;
    const std::size_t cells = std::min(f, rows - 1) + 1 - firstRow;
    const std::size_t length = (cells + 1 + lanes - 1) / lanes * lanes;
    for (std::size_t k = 0; k < cells; ++k)
      places_[(firstRow + k) * row_ + f - firstRow - k] = static_cast<std::int32_t>(begin + k);
    const std::size_t beginBefore =
        fronts_.empty() ? begin : static_cast<std::size_t>(fronts_.back().begin);
    const std::size_t shift = begin - firstRow - (beginBefore - firstRowBefore);
    fronts_.push_back({static_cast<std::ptrdiff_t>(begin), static_cast<std::ptrdiff_t>(cells),
                       static_cast<std::ptrdiff_t>(length), static_cast<std::ptrdiff_t>(shift)});
    begin += length;
  }
}

void GridIteration::setZero() {
  for (Values* values : {&diagonal_, &lowerNear_, &lowerFar_, &upperNear_, &upperFar_})
    std::fill(values->begin(), values->end(), 0.0);
}

void GridIteration::setLink(std::size_t i, std::size_t j, double upper, double lower) {
  const bool isNear = j == i + 1;
  (isNear ? upperNear_ : upperFar_)[place(i)] = upper;
  (isNear ? lowerNear_ : lowerFar_)[place(j)] = lower;
}

bool GridIteration::factorise() {
  return std::all_of(fronts_.begin(), fronts_.end(),
                     [&](const Front& front) { return factorise(front); });
}

// Rows are divided by their pivots, so that the sweeps need no division.
bool GridIteration::factorise(const Front& front) {
  for (std::ptrdiff_t k = 0; k < front.cells; ++k) {
    const auto p = static_cast<std::size_t>(front.begin + k);
    const auto before = static_cast<std::size_t>(front.begin + k - front.shift);
    const double pivot =
        diagonal_[p] - lowerNear_[p] * upperNear_[before] - lowerFar_[p] * upperFar_[before - 1];
    if (!isDominant(pivot, std::abs(upperNear_[p]) + std::abs(upperFar_[p])))
      return false;
    const double inverse = 1.0 / pivot;
    inversePivots_[p] = inverse;
    lowerNear_[p] *= inverse;
    lowerFar_[p] *= inverse;
    upperNear_[p] *= inverse;
    upperFar_[p] *= inverse;
    diagonal_[p] = diagonal_[p] * inverse - 2.0;
  }
  return true;
}

void GridIteration::apply(const Values& x, Values& result) {
  sweepUpper(fronts_, upperNear_.data(), upperFar_.data(), x.data(), swept_.data());
  addScaled(x.data(), diagonal_.data(), swept_.data(), result.data(), result.size());
  sweepLower(fronts_, lowerNear_.data(), lowerFar_.data(), result.data(), result.data());
  addMultiple(1.0, swept_.data(), result.data(), result.size());
}

bool GridIteration::iterate() {
  constexpr double tolerance = 1e-6;
  constexpr int mostIterations = 400;
  const std::size_t n = residual_.size();
  const auto productOf = [&](const Values& x, const Values& y) {
    return product(x.data(), y.data(), n);
  };
  shadow_ = residual_;
  direction_ = residual_;
  std::fill(solution_.begin(), solution_.end(), 0.0);
  double rho = productOf(residual_, residual_);
  if (!std::isfinite(rho)) // no residual is small against infinity
    return false;
  const double goal = tolerance * tolerance * rho;
  double square = rho;
  for (int count = 0; !(square <= goal); ++count) {
    if (count == mostIterations || !std::isfinite(square))
      return false;
    ++iterations_;
    apply(direction_, alongDirection_);
    const double alpha = rho / productOf(shadow_, alongDirection_);
    addMultiple(-alpha, alongDirection_.data(), residual_.data(), n);
    apply(residual_, alongResidual_);
    const double along = productOf(alongResidual_, alongResidual_);
    const double omega = along > 0.0 ? productOf(alongResidual_, residual_) / along : 0.0;
    addMultiples(alpha, direction_.data(), omega, residual_.data(), solution_.data(), n);
    addMultiple(-omega, alongResidual_.data(), residual_.data(), n);
    square = productOf(residual_, residual_);
    const double nextRho = productOf(shadow_, residual_);
    const double beta = nextRho / rho * (alpha / omega);
    rho = nextRho;
    turn(beta, omega, residual_.data(), alongDirection_.data(), direction_.data(), n);
  }
  return true;
}

bool GridIteration::solve(double* x, const std::int32_t* elements) {
  for (std::size_t i = 0; i < places_.size(); ++i)
    residual_[place(i)] = x[elements[i]] * inversePivots_[place(i)];
  sweepLower(fronts_, lowerNear_.data(), lowerFar_.data(), residual_.data(), residual_.data());
  if (!iterate()) {
    // What is not finite must not stay at the places without a cell.
    for (Values* values : {&residual_, &alongDirection_, &alongResidual_, &solution_, &swept_})
      std::fill(values->begin(), values->end(), 0.0);
    return false;
  }
  sweepUpper(fronts_, upperNear_.data(), upperFar_.data(), solution_.data(), solution_.data());
  for (std::size_t i = 0; i < places_.size(); ++i)
    x[elements[i]] = solution_[place(i)];
  return true;
}
