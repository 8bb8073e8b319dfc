#pragma once

#include <cstddef>
#include <vector>

/// Direct solver for the cells of a rectangular mesh whose matrix is a sum of one part along the
/// rows and one part along the columns, as it is in a homogeneous aquifer: the part along the rows
/// is brought to its eigenvectors once, and each eigenvector leaves a tridiagonal system along
/// the columns (Lynch, Rice and Thomas, 1964). Multiples of the matrix, and of the unit matrix
/// added to it, keep the eigenvectors, and cost little.
class GridDiagonalisation {
public:
  /// Order of the matrix and length of a row, which divides it; both are 2 at least.
  GridDiagonalisation(std::size_t order, std::size_t row);

  void setDiagonal(std::size_t i, double value) { diagonal_[i] = value; }
  /// Entries of a link: j is i + 1 or i + row. `upper` stands in row i, `lower` in row j. What no
  /// link was set for stays 0.
  void setLink(std::size_t i, std::size_t j, double upper, double lower);
  /// To be called after entries were set. False, and of no further use until the next call, if the
  /// matrix is no such sum to rounding of difference quotients.
  bool analyse();
  /// Factors of `factor` times the matrix plus `identity` times the unit matrix; needs a successful
  /// analyse(). False, and of no further use until the next call, if the matrix is so large against
  /// the unit matrix that its eigenvalues are not accurate enough, or if a pivot does not dominate
  /// what is left of its row.
  bool factorise(double factor, double identity);
  /// Replaces the right-hand side x by the solution; needs a successful factorise().
  void solve(double* x);

private:
  using Values = std::vector<double>;
  void findRowDiagonal();
  double columnDiagonal(std::size_t c) const { return diagonal_[c * row_] - rowDiagonal_[0]; }
  bool isSum() const;
  bool isAccurate(double factor, double identity) const;
  bool diagonaliseRow();
  bool findModes();
  /// results = vectors * matrix for all columns of the mesh.
  void transform(const Values& matrix, const double* vectors, double* results) const;

  std::size_t row_;
  std::size_t paddedRow_; ///< of the matrices: a multiple of the lanes of a product
  std::size_t columns_;
  Values diagonal_;
  double largestEntry_ = 0.0; ///< of diagonal_, in magnitude
  Values upperNear_;
  Values lowerNear_;
  Values upperFar_;
  Values lowerFar_;
  Values rowDiagonal_;
  Values rowUpper_;         ///< of the row that was diagonalised, relative to its first entry
  Values rowLower_;         ///< likewise
  Values relativeDiagonal_; ///< likewise
  Values eigenvalues_;      ///< likewise
  Values toModes_;          ///< [r * paddedRow + k]: part of cell r in mode k
  Values toCells_;          ///< [k * paddedRow + r]: part of mode k in cell r
  Values inversePivots_;    ///< [column * row + k]
  Values columnUpper_;
  Values columnLower_;
  Values modes_;
};
