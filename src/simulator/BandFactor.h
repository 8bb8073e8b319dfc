#pragma once

#include <cstddef>
#include <vector>

/// Triangular factors of a band matrix without exchange of rows. That is stable for a matrix whose
/// rows are dominated by their diagonal (Wilkinson, 1961), and is checked row by row.
class BandFactor {
public:
  /// Order of the matrix and number of its diagonals on either side of the main one.
  BandFactor(std::size_t order, std::size_t halfWidth);

  /// Clears the matrix, which is then filled with at().
  void setZero();
  /// Entry of row i and column j, at most halfWidth apart.
  double& at(std::size_t i, std::size_t j) { return rows_[i * stride_ + halfWidth_ + j - i]; }
  /// Replaces the matrix by its factors. False, and of no further use, if a pivot is not finite or
  /// does not dominate what is left of its row.
  bool factorise();
  /// Replaces the right-hand side x by the solution; needs a successful factorise().
  void solve(double* x) const;

private:
  bool invertPivot(std::size_t k);

  std::size_t order_;
  std::size_t halfWidth_;
  std::size_t stride_;
  std::vector<double> rows_;
  std::vector<double> inversePivots_;
};
