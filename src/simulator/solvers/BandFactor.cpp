#include "simulator/solvers/BandFactor.h"

#include "simulator/solvers/PivotCheck.h"

#include <algorithm>

namespace {

// Four sums side by side, since one alone would wait for each of its additions.
double dot(const double* a, const double* b, std::size_t length) {
  double s0 = 0.0;
  double s1 = 0.0;
  double s2 = 0.0;
  double s3 = 0.0;
  std::size_t j = 0;
  for (; j + 3 < length; j += 4) {
    s0 += a[j] * b[j];
    s1 += a[j + 1] * b[j + 1];
    s2 += a[j + 2] * b[j + 2];
    s3 += a[j + 3] * b[j + 3];
  }
  for (; j < length; ++j)
    s0 += a[j] * b[j];
  return (s0 + s1) + (s2 + s3);
}

} // namespace

BandFactor::BandFactor(std::size_t order, std::size_t halfWidth)
    : order_(order), halfWidth_(halfWidth), stride_(2 * halfWidth + 1), rows_(order * stride_, 0.0),
      inversePivots_(order, 0.0) {}

void BandFactor::setZero() {
  std::fill(rows_.begin(), rows_.end(), 0.0);
}

bool BandFactor::invertPivot(std::size_t k) {
  const double* row = &rows_[k * stride_ + halfWidth_];
  double rest = 0.0;
  for (std::size_t j = 1; j <= halfWidth_; ++j)
    rest += std::abs(row[j]);
  if (!isDominant(row[0], rest))
    return false;
  inversePivots_[k] = 1.0 / row[0];
  return true;
}

// Rows are eliminated into four at a time: the pivot row is then read once for four rows.
bool BandFactor::factorise() {
  for (std::size_t k = 0; k < order_; ++k) {
    if (!invertPivot(k))
      return false;
    const std::size_t width = std::min(halfWidth_, order_ - 1 - k);
    const double* __restrict pivot = rows_.data() + k * stride_ + halfWidth_ + 1;
    // Row k + d holds column k at halfWidth - d, so that its part right of it starts one behind.
    const auto rowBehind = [&](std::size_t d) {
      return &rows_[(k + d) * stride_ + halfWidth_ - d];
    };
    std::size_t d = 1;
    for (; d + 3 <= width; d += 4) {
      double* __restrict r0 = rowBehind(d);
      double* __restrict r1 = rowBehind(d + 1);
      double* __restrict r2 = rowBehind(d + 2);
      double* __restrict r3 = rowBehind(d + 3);
      const double m0 = r0[0] *= inversePivots_[k];
      const double m1 = r1[0] *= inversePivots_[k];
      const double m2 = r2[0] *= inversePivots_[k];
      const double m3 = r3[0] *= inversePivots_[k];
      for (std::size_t j = 0; j < width; ++j) {
        const double p = pivot[j];
        r0[j + 1] -= m0 * p;
        r1[j + 1] -= m1 * p;
        r2[j + 1] -= m2 * p;
        r3[j + 1] -= m3 * p;
      }
    }
    for (; d <= width; ++d) {
      double* __restrict r0 = rowBehind(d);
      const double m0 = r0[0] *= inversePivots_[k];
      for (std::size_t j = 0; j < width; ++j)
        r0[j + 1] -= m0 * pivot[j];
    }
  }
  return true;
}

void BandFactor::solve(double* x) const {
  for (std::size_t i = 1; i < order_; ++i) {
    const std::size_t width = std::min(halfWidth_, i);
    x[i] -= dot(&rows_[i * stride_ + halfWidth_ - width], x + i - width, width);
  }
  for (std::size_t i = order_; i-- > 0;) {
    const std::size_t width = std::min(halfWidth_, order_ - 1 - i);
    const double sum = dot(rows_.data() + i * stride_ + halfWidth_ + 1, x + i + 1, width);
    x[i] = (x[i] - sum) * inversePivots_[i];
  }
}
