#pragma once

#include "simulator/balance/Mixing.h"
#include "simulator/solvers/StructuredFactor.h"

#include <cstddef>
#include <vector>

/// The mixing of produced water on top of the factors of a matrix without it. It makes each
/// injection well depend on each production well wherever they stand, but as a term of rank one:
/// responses times shares. So the solution with it is that without it less a multiple of one
/// vector, which costs one more solution per factorisation (Sherman and Morrison, 1950).
class MixingCorrection {
public:
  /// Takes note of the term; no cells: there is none. `count`: elements of the matrix.
  void setTerm(const std::vector<MixedCell>& cells, std::size_t count);
  /// To be called when `factors` are those of `factor` times the matrix, plus a multiple of the
  /// unit matrix. False, and of no further use until the next call, if the matrix with the term
  /// cannot be solved with.
  bool factorise(double factor, StructuredFactor& factors);
  /// Turns the solution x without the term into that with it; needs a successful factorise().
  void correct(double* x) const;

private:
  double mixed(const double* x) const;

  std::vector<MixedCell> cells_;
  std::vector<double> ofResponses_; ///< solution without the term for the responses
  double scale_ = 0.0;              ///< multiple of it per mixed value
};
