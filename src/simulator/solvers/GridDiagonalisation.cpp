#include "simulator/solvers/GridDiagonalisation.h"

#include "simulator/balance/WideVectors.h"
#include "simulator/solvers/PivotCheck.h"

#include <Eigen/Eigenvalues>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace {

/// Entries that agree to this share of the diagonal count as the same.
constexpr double roundingOfQuotients = 1e-7;

bool agree(double a, double b, double scale) {
  return std::abs(a - b) <= roundingOfQuotients * scale;
}

/// `rows` rows of the product of `vectors` with the matrix, in `columns` groups of lanes, of which
/// the first `width` entries count.
template <std::size_t rows, std::size_t columns>
[[gnu::always_inline]] inline void multiplyPanel(const double* vectors, const double* matrix,
                                                 std::size_t order, std::size_t stride,
                                                 std::size_t width, double* results) {
  Lanes sums[rows][columns] = {};
  for (std::size_t j = 0; j < order; ++j) {
    Lanes entries[columns];
    for (std::size_t c = 0; c < columns; ++c)
      load(matrix + j * stride + c * lanes, entries[c]);
    for (std::size_t r = 0; r < rows; ++r)
      for (std::size_t c = 0; c < columns; ++c)
        sums[r][c] += vectors[r * order + j] * entries[c];
  }
  // A length known beforehand is copied in place, any other by a call.
  for (std::size_t r = 0; r < rows; ++r)
    if (width == columns * lanes)
      std::memcpy(results + r * order, sums[r], sizeof sums[r]);
    else
      std::memcpy(results + r * order, sums[r], width * sizeof(double));
}

/// As many rows and groups of lanes at a time as there are registers for their sums.
template <std::size_t columns>
[[gnu::always_inline]] inline void
multiplyPanels(const double* vectors, const double* matrix, std::size_t order, std::size_t stride,
               std::size_t rows, std::size_t width, double* results) {
  constexpr std::size_t rowsAtATime = 4;
  std::size_t r = 0;
  for (; r + rowsAtATime <= rows; r += rowsAtATime)
    multiplyPanel<rowsAtATime, columns>(vectors + r * order, matrix, order, stride, width,
                                        results + r * order);
  for (; r < rows; ++r)
    multiplyPanel<1, columns>(vectors + r * order, matrix, order, stride, width,
                              results + r * order);
}

/// results = vectors * matrix. `vectors` has `rows` rows of `order`, `matrix` `order` rows of which
/// each takes `stride`, a multiple of the lanes, with zeros behind its end.
TVR_WIDE_VECTORS void multiply(const double* vectors, const double* matrix, std::size_t order,
                               std::size_t stride, std::size_t rows, double* results) {
  std::size_t k = 0;
  for (; k + 2 * lanes <= order; k += 2 * lanes)
    multiplyPanels<2>(vectors, matrix + k, order, stride, rows, 2 * lanes, results + k);
  for (; k < order; k += lanes)
    multiplyPanels<1>(vectors, matrix + k, order, stride, rows, std::min(lanes, order - k),
                      results + k);
}

} // namespace

GridDiagonalisation::GridDiagonalisation(std::size_t order, std::size_t row)
    : row_(row), paddedRow_((row + lanes - 1) / lanes * lanes), columns_(order / row),
      diagonal_(order), upperNear_(order), lowerNear_(order), upperFar_(order), lowerFar_(order),
      inversePivots_(order), columnUpper_(columns_), columnLower_(columns_), modes_(order) {}

void GridDiagonalisation::setLink(std::size_t i, std::size_t j, double upper, double lower) {
  const bool isNear = j == i + 1;
  (isNear ? upperNear_ : upperFar_)[i] = upper;
  (isNear ? lowerNear_ : lowerFar_)[j] = lower;
}

// Along a row, a diagonal makes up for the links; where an end of the row is linked to a fixed
// state, it does more, which shows in the first row as an excess over its first cell.
void GridDiagonalisation::findRowDiagonal() {
  const auto ofLinks = [&](std::size_t r) { return -(upperNear_[r] + lowerNear_[r]); };
  rowDiagonal_.resize(row_);
  for (std::size_t r = 0; r < row_; ++r) {
    const double excess = diagonal_[r] - diagonal_[0] - (ofLinks(r) - ofLinks(0));
    rowDiagonal_[r] = ofLinks(r) + (agree(excess, 0.0, std::abs(diagonal_[r])) ? 0.0 : excess);
  }
}

bool GridDiagonalisation::isSum() const {
  for (std::size_t c = 0; c < columns_; ++c)
    for (std::size_t r = 0; r < row_; ++r) {
      const std::size_t i = c * row_ + r;
      const double scale = std::abs(diagonal_[i]);
      if (!agree(upperNear_[i], upperNear_[r], scale) ||
          !agree(lowerNear_[i], lowerNear_[r], scale) ||
          !agree(upperFar_[i], upperFar_[c * row_], scale) ||
          !agree(lowerFar_[i], lowerFar_[c * row_], scale) ||
          !agree(diagonal_[i], columnDiagonal(c) + rowDiagonal_[r], scale))
        return false;
    }
  return true;
}

// A new step width scales the part along a row as a whole and leaves its eigenvectors.
bool GridDiagonalisation::diagonaliseRow() {
  const double unit = upperNear_[0];
  if (unit == 0.0 || !std::isfinite(unit))
    return false;
  const auto isSame = [&](const Values& known, const Values& values) {
    return known.size() == row_ &&
           std::equal(known.begin(), known.end(), values.begin(),
                      [&](double x, double y) { return agree(x, y / unit, std::abs(x)); });
  };
  if (isSame(rowUpper_, upperNear_) && isSame(rowLower_, lowerNear_) &&
      isSame(relativeDiagonal_, rowDiagonal_))
    return true;
  const auto take = [&](Values& known, const Values& values) {
    known.resize(row_);
    std::transform(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(row_),
                   known.begin(), [&](double value) { return value / unit; });
  };
  take(rowUpper_, upperNear_);
  take(rowLower_, lowerNear_);
  take(relativeDiagonal_, rowDiagonal_);
  return findModes();
}

bool GridDiagonalisation::findModes() {
  const auto order = static_cast<Eigen::Index>(row_);
  Eigen::VectorXd offDiagonal(order - 1);
  Values symmetry(row_, 1.0); // of a scaling that makes the part along a row symmetric
  for (std::size_t r = 1; r < row_; ++r) {
    const double square = rowUpper_[r - 1] * rowLower_[r];
    if (!(square > 0.0))
      return false;
    offDiagonal[static_cast<Eigen::Index>(r) - 1] = std::sqrt(square);
    symmetry[r] = symmetry[r - 1] * std::sqrt(rowUpper_[r - 1] / rowLower_[r]);
  }
  Eigen::SelfAdjointEigenSolver<Eigen::MatrixXd> modes;
  modes.computeFromTridiagonal(Eigen::Map<const Eigen::VectorXd>(relativeDiagonal_.data(), order),
                               offDiagonal);
  if (modes.info() != Eigen::Success)
    return false;
  eigenvalues_.assign(modes.eigenvalues().begin(), modes.eigenvalues().end());
  const double* vectors = modes.eigenvectors().data(); // one after the other
  toModes_.assign(row_ * paddedRow_, 0.0);
  toCells_.assign(row_ * paddedRow_, 0.0);
  for (std::size_t k = 0; k < row_; ++k)
    for (std::size_t r = 0; r < row_; ++r) {
      toModes_[r * paddedRow_ + k] = vectors[k * row_ + r] * symmetry[r];
      toCells_[k * paddedRow_ + r] = vectors[k * row_ + r] / symmetry[r];
    }
  return true;
}

bool GridDiagonalisation::analyse() {
  findRowDiagonal();
  largestEntry_ = 0.0;
  for (const double value : diagonal_)
    largestEntry_ = std::max(largestEntry_, std::abs(value));
  if (isSum() && diagonaliseRow())
    return true;
  rowUpper_.clear();
  return false;
}

// The eigenvalues carry an error of some roundings of the largest one, which has to stay small
// against the part of the unit matrix. Only cells of next to no width make it larger.
bool GridDiagonalisation::isAccurate(double factor, double identity) const {
  constexpr double largestError = 1e-4;
  return std::numeric_limits<double>::epsilon() * std::abs(factor) * largestEntry_ <=
         largestError * std::abs(identity);
}

bool GridDiagonalisation::factorise(double factor, double identity) {
  if (!isAccurate(factor, identity))
    return false;
  const double unit = factor * upperNear_[0];
  for (std::size_t c = 0; c < columns_; ++c) {
    const std::size_t first = c * row_;
    columnUpper_[c] = factor * upperFar_[first];
    columnLower_[c] = factor * lowerFar_[first];
    const double diagonal = factor * columnDiagonal(c) + identity;
    const double product = c > 0 ? columnLower_[c] * columnUpper_[c - 1] : 0.0;
    for (std::size_t k = 0; k < row_; ++k) {
      const double before = c > 0 ? inversePivots_[first - row_ + k] : 0.0;
      const double pivot = diagonal + eigenvalues_[k] * unit - product * before;
      if (!isDominant(pivot, std::abs(columnUpper_[c])))
        return false;
      inversePivots_[first + k] = 1.0 / pivot;
    }
  }
  return true;
}

void GridDiagonalisation::transform(const Values& matrix, const double* vectors,
                                    double* results) const {
  multiply(vectors, matrix.data(), row_, paddedRow_, columns_, results);
}

void GridDiagonalisation::solve(double* x) {
  transform(toModes_, x, modes_.data());
  for (std::size_t c = 0; c < columns_; ++c) {
    double* __restrict here = &modes_[c * row_];
    const double* pivots = &inversePivots_[c * row_];
    if (c > 0) {
      const double* before = here - row_;
      for (std::size_t k = 0; k < row_; ++k)
        here[k] = (here[k] - columnLower_[c] * before[k]) * pivots[k];
    } else {
      for (std::size_t k = 0; k < row_; ++k)
        here[k] *= pivots[k];
    }
  }
  for (std::size_t c = columns_ - 1; c-- > 0;) {
    double* __restrict here = &modes_[c * row_];
    const double* behind = here + row_;
    const double* pivots = &inversePivots_[c * row_];
    for (std::size_t k = 0; k < row_; ++k)
      here[k] -= columnUpper_[c] * pivots[k] * behind[k];
  }
  transform(toCells_, modes_.data(), x);
}
