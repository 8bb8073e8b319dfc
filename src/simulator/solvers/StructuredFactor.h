#pragma once

#include "simulator/solvers/BandFactor.h"
#include "simulator/solvers/GridDiagonalisation.h"
#include "simulator/solvers/GridIteration.h"
#include "simulator/solvers/LinkStructure.h"
#include "simulator/solvers/StructuredMatrix.h"

#include <optional>
#include <vector>

/// Factors of a StructuredMatrix: leaves are eliminated one by one into their roots, which changes
/// nothing but the diagonal there. The core that remains is diagonalised where it is that of a
/// homogeneous mesh; else it is factorised as a band, or, where the band is too wide, solved by
/// iteration to nearly the same. No row is exchanged: that is stable where the diagonal dominates
/// its row, and is checked.
class StructuredFactor {
public:
  /// How the core is solved. Automatic tries the diagonalisation, and takes the iteration instead
  /// of the band from a certain width on.
  enum class Core { Automatic, Band, Iteration };

  /// The structure is not owned and outlives the factors. Diagonalisation and iteration need a core
  /// that is a grid; any other one is factorised as a band, whatever `core` says.
  explicit StructuredFactor(const LinkStructure& structure, Core core = Core::Automatic);

  /// Takes note of a matrix, which is not owned and stays until another one is set. Has to be
  /// called again when its values have changed. A matrix that cannot be diagonalised ends the
  /// attempts to do so.
  void setMatrix(const StructuredMatrix& matrix);
  /// Factors of `factor` times the matrix plus `identity` times the unit matrix; needs a matrix to
  /// be set. False, and of no further use until the next call, if a pivot does not dominate its
  /// row.
  bool factorise(double factor, double identity);
  /// Replaces the right-hand side x, one entry per element, by the solution. Needs a successful
  /// factorise(). False if the iteration does not end; x then is undefined.
  bool solve(double* x);

private:
  /// Of a leaf: what its row adds to the root's, and the row itself divided by its pivot.
  struct LeafFactor {
    double toRoot;
    double inversePivot;
    double fromRoot;
  };

  bool eliminateLeaves(double factor, double identity);
  void makeCore();
  /// Hands the core's part of the matrix over: setDiagonal(place, value) and
  /// setLink(place, later place, upper, lower).
  template <class SetDiagonal, class SetLink>
  void fillCore(double factor, SetDiagonal setDiagonal, SetLink setLink) const;
  bool solveCore(double* x);

  const LinkStructure& structure_;
  Core kind_;
  const StructuredMatrix* matrix_ = nullptr;
  std::vector<double> diagonal_;
  std::vector<LeafFactor> leafFactors_;
  std::optional<GridDiagonalisation> diagonalisation_; ///< tried first, where it may do
  bool isDiagonalised_ = false;
  std::optional<BandFactor> band_;         ///< else this
  std::optional<GridIteration> iteration_; ///< or this
  std::vector<double> coreValues_;
};
