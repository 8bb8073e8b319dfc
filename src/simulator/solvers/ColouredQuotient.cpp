#include "simulator/solvers/ColouredQuotient.h"

#include <algorithm>
#include <cmath>
#include <limits>

ColouredQuotient::ColouredQuotient(const LinkStructure& structure) : structure_(structure) {}

void ColouredQuotient::compute(FVSystem& system, const Place& place, double* state,
                               double* disturbed, StructuredMatrix& matrix) const {
  static const double rootOfRounding = std::sqrt(std::numeric_limits<double>::epsilon());
  const double* y = place.y;
  std::copy_n(y, structure_.count(), state);
  const double inflow = system.inflowValue(y);
  const double tolerances = system.disturbance();
  for (const std::vector<LinkStructure::Index>& colour : structure_.colours()) {
    for (const LinkStructure::Index j : colour)
      state[j] += std::max(rootOfRounding * std::abs(y[j]), tolerances / place.errorWeights[j]);
    system.evaluateWithInflow(place.t, state, disturbed, inflow);
    for (const LinkStructure::Index j : colour) {
      const double inverse = 1.0 / (state[j] - y[j]);
      const auto quotient = [&](LinkStructure::Index i) {
        return (disturbed[i] - place.f[i]) * inverse;
      };
      matrix.diagonal[static_cast<std::size_t>(j)] = quotient(j);
      for (auto near = structure_.neighboursBegin(j); near != structure_.neighboursEnd(j); ++near)
        matrix.entries[static_cast<std::size_t>(near->entry)] = quotient(near->element);
      state[j] = y[j];
    }
  }
}
