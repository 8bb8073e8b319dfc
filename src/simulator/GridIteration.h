#pragma once

#include <cstddef>
#include <vector>

/// Iterative solver for the cells of a mesh, each linked to the cells one and one row away in the
/// numbering: stabilised bi-conjugate gradients (van der Vorst, 1992) on the system preconditioned
/// from both sides by an incomplete factorisation with the matrix's own off-diagonals, in the form
/// that needs no product with the matrix (Eisenstat, 1981). Its cost per cell hardly grows with
/// the mesh, where that of a band grows with the length of its rows.
class GridIteration {
public:
  /// Order of the matrix and distance of the outer diagonals, at least 2.
  GridIteration(std::size_t order, std::size_t row);

  void setZero();
  void setDiagonal(std::size_t i, double value) { diagonal_[i] = value; }
  /// Entries of a link: j is i + 1 or i + row. `upper` stands in row i, `lower` in row j.
  void setLink(std::size_t i, std::size_t j, double upper, double lower);
  /// False, and of no further use, if a pivot does not dominate what is left of its row.
  bool factorise();
  /// Replaces the right-hand side x by the solution, to a residual of 1e-6 of the right-hand side.
  /// False if that is not reached; x then is undefined.
  bool solve(double* x);

  /// Iterations of all solutions so far.
  long iterations() const { return iterations_; }

private:
  using Values = std::vector<double>;
  void sweepLower(Values& x) const;
  void sweepUpper(Values& x) const;
  void apply(const Values& x, Values& product);

  std::size_t order_;
  std::size_t row_;
  Values diagonal_; ///< after factorise() divided by the pivots, less 2
  Values lowerNear_;
  Values lowerFar_;
  Values upperNear_;
  Values upperFar_;
  Values inversePivots_;
  Values shadow_;
  Values residual_;
  Values direction_;
  Values alongDirection_;
  Values alongResidual_;
  Values solution_;
  Values swept_;
  long iterations_ = 0;
};
