#include "simulator/ColouredQuotient.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

ColouredQuotient::ColouredQuotient(const LinkStructure& structure)
    : structure_(structure), undisturbed_(structure.count()), disturbed_(structure.count()),
      state_(structure.count()) {}

void ColouredQuotient::compute(FVSystem& system, double t, const double* y,
                               const double* errorWeights, StructuredMatrix& matrix) {
  static const double rootOfRounding = std::sqrt(std::numeric_limits<double>::epsilon());
  std::copy_n(y, state_.size(), state_.begin());
  const double inflow = system.inflowValue(y);
  system.evaluateWithInflow(t, y, undisturbed_.data(), inflow);
  for (const std::vector<LinkStructure::Index>& colour : structure_.colours()) {
    for (const LinkStructure::Index j : colour)
      state_[static_cast<std::size_t>(j)] +=
          std::max(rootOfRounding * std::abs(y[j]), 1.0 / errorWeights[j]);
    system.evaluateWithInflow(t, state_.data(), disturbed_.data(), inflow);
    for (const LinkStructure::Index index : colour) {
      const auto j = static_cast<std::size_t>(index);
      const double inverse = 1.0 / (state_[j] - y[j]);
      const auto quotient = [&](std::size_t i) {
        return (disturbed_[i] - undisturbed_[i]) * inverse;
      };
      matrix.diagonal[j] = quotient(j);
      for (auto near = structure_.neighboursBegin(index); near != structure_.neighboursEnd(index);
           ++near)
        matrix.entries[static_cast<std::size_t>(near->entry)] =
            quotient(static_cast<std::size_t>(near->element));
      state_[j] = y[j];
    }
  }
}
