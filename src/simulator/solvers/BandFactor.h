#pragma once

#include <cstddef>
#include <vector>

/// Triangular factors of a band matrix without exchange of rows. That is stable for a matrix whose
/// rows are dominated by their diagonal (Wilkinson, 1961), and is checked row by row.
class BandFactor {
public:
  /// Order of the matrix and number of its diagonals on either side of the main one.
  BandFactor(std::size_t order, std::size_t halfWidth);

  /// Clears the matrix, which is then filled.
  void setZero();
  void setDiagonal(std::size_t i, double value) { at(i, i) = value; }
  /// Entries of a link: `upper` stands in row i and column j, `lower` in row j and column i, at
  /// most halfWidth apart.
  void setLink(std::size_t i, std::size_t j, double upper, double lower) {
    at(i, j) = upper;
    at(j, i) = lower;
  }
  /// Replaces the matrix by its factors. False, and of no further use, if a pivot is not finite or
  /// does not dominate what is left of its row.
  bool factorise();
  /// Replaces the right-hand side x by the solution; needs a successful factorise().
  void solve(double* x) const;

private:
  double& at(std::size_t i, std::size_t j) { return rows_[i * stride_ + halfWidth_ + j - i]; }
  bool invertPivot(std::size_t k);

  std::size_t order_;
  std::size_t halfWidth_;
  std::size_t stride_;
  std::vector<double> rows_;
  std::vector<double> inversePivots_;
};
