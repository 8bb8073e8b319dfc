#pragma once

#include "simulator/FVSystem.h"
#include "simulator/LinkStructure.h"
#include "simulator/StructuredMatrix.h"

#include <vector>

/// Jacobian of a system by difference quotients: elements of one colour are disturbed together,
/// since each element depends on at most one of them. The dependence over the links is complete;
/// the mixing of produced water, which couples wells across the mesh, is held and so left out.
class ColouredQuotient {
public:
  /// The structure is not owned and outlives this object.
  explicit ColouredQuotient(const LinkStructure& structure);

  /// Writes the Jacobian at (t, y) into `matrix`. An entry of y is disturbed by the inverse of its
  /// `errorWeights` entry, which is its tolerance, but not by less than rounding allows.
  void compute(FVSystem& system, double t, const double* y, const double* errorWeights,
               StructuredMatrix& matrix);
  /// Evaluations of the right-hand side that one Jacobian costs.
  std::size_t evaluations() const { return structure_.colours().size() + 1; }

private:
  const LinkStructure& structure_;
  std::vector<double> undisturbed_;
  std::vector<double> disturbed_;
  std::vector<double> state_;
};
