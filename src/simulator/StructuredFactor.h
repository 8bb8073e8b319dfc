#pragma once

#include "simulator/BandFactor.h"
#include "simulator/LinkStructure.h"
#include "simulator/StructuredMatrix.h"

#include <vector>

/// Factors of a StructuredMatrix: leaves are eliminated one by one into their roots, which changes
/// nothing but the diagonal there; the core that remains is factorised as a band. No row is
/// exchanged; that is stable where the diagonal dominates its row, and is checked.
class StructuredFactor {
public:
  /// The structure is not owned and outlives the factors.
  explicit StructuredFactor(const LinkStructure& structure);

  /// False, and of no further use until the next call, if a pivot does not dominate its row.
  bool factorise(const StructuredMatrix& matrix);
  /// Replaces the right-hand side x, one entry per element, by the solution. Needs a successful
  /// factorise().
  void solve(double* x);

private:
  /// Of a leaf: what its row adds to the root's, and the row itself divided by its pivot.
  struct LeafFactor {
    double toRoot;
    double inversePivot;
    double fromRoot;
  };

  const LinkStructure& structure_;
  std::vector<double> diagonal_;
  std::vector<LeafFactor> leafFactors_;
  BandFactor core_;
  std::vector<double> coreValues_;
};
