#pragma once

#include "simulator/balance/FVSystem.h"
#include "simulator/solvers/LinkStructure.h"
#include "simulator/solvers/StructuredMatrix.h"

#include <cstddef>

/// Jacobian of a system by difference quotients: elements of one colour are disturbed together,
/// since each element depends on at most one of them. The dependence over the links is complete;
/// the mixing of produced water, which couples wells across the mesh, is held: MixingCorrection
/// adds it.
class ColouredQuotient {
public:
  /// The structure is not owned and outlives this object.
  explicit ColouredQuotient(const LinkStructure& structure);

  /// What the quotients are made from, one entry per element each: the state y and its right-hand
  /// side f at time t, and the inverse tolerances of its entries. An entry is disturbed by the
  /// system's disturbance() times its tolerance, but not by less than rounding allows.
  struct Place {
    double t;
    const double* y;
    const double* f;
    const double* errorWeights;
  };
  /// Writes the Jacobian at a place into `matrix`. `state` and `disturbed` are room for one entry
  /// per element each.
  void compute(FVSystem& system, const Place& place, double* state, double* disturbed,
               StructuredMatrix& matrix) const;
  /// Evaluations of the right-hand side that one Jacobian costs.
  std::size_t evaluations() const { return structure_.colours().size(); }

private:
  const LinkStructure& structure_;
};
