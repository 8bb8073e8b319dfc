#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// Iterative solver for the cells of a mesh, each linked to the cells one and one row away in the
/// numbering: stabilised bi-conjugate gradients (van der Vorst, 1992) on the system preconditioned
/// from both sides by an incomplete factorisation with the matrix's own off-diagonals, in the form
/// that needs no product with the matrix (Eisenstat, 1981). Its cost per cell hardly grows with
/// the mesh, where that of a band grows with the length of its rows.
///
/// Cells are kept by fronts, from the first cell to the last one: a front holds one cell of each
/// row, one column further back than that of the row before. In a sweep the cells of a front
/// depend on those of the front before and on none of their own front, so that they are reckoned
/// side by side.
class GridIteration {
public:
  /// Order of the matrix and length of a row, which divides it and is at least 2.
  GridIteration(std::size_t order, std::size_t row);

  /// Clears the matrix, which is then filled.
  void setZero();
  void setDiagonal(std::size_t i, double value) { diagonal_[place(i)] = value; }
  /// Entries of a link: j is i + row, or i + 1 in the same row. `upper` stands in row i of the
  /// matrix, `lower` in row j.
  void setLink(std::size_t i, std::size_t j, double upper, double lower);
  /// False, and of no further use, if a pivot does not dominate what is left of its row.
  bool factorise();
  /// Replaces the right-hand side by the solution, to a residual of 1e-6 of the right-hand side in
  /// the Euclidean norm, both as preconditioned. The entry of cell i stands at x[elements[i]].
  /// False, and x as it was, if that is not reached or the right-hand side is not finite; the next
  /// solution is not affected. Needs a successful factorise().
  bool solve(double* x, const std::int32_t* elements);

  /// Iterations of all solutions so far.
  long iterations() const { return iterations_; }

  /// The cells [begin, begin + cells) of the arrays, and places that belong to no cell up to
  /// begin + length. The cell before a place p in its row is at p - shift, that in the row before
  /// at p - shift - 1.
  struct Front {
    std::ptrdiff_t begin;
    std::ptrdiff_t cells;
    std::ptrdiff_t length;
    std::ptrdiff_t shift;
  };

private:
  using Values = std::vector<double>;
  std::size_t place(std::size_t i) const { return static_cast<std::size_t>(places_[i]); }
  void makeFronts(std::size_t rows);
  bool factorise(const Front& front);
  void apply(const Values& x, Values& product);
  bool iterate();

  std::size_t row_;
  std::vector<std::int32_t> places_; ///< of each cell in the arrays
  std::vector<Front> fronts_;
  // One entry per place; where there is no cell it stays 0.
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
