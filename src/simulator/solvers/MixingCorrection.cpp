#include "simulator/solvers/MixingCorrection.h"

#include <algorithm>

void MixingCorrection::setTerm(const std::vector<MixedCell>& cells, std::size_t count) {
  cells_ = cells;
  if (!cells_.empty())
    ofResponses_.resize(count);
}

double MixingCorrection::mixed(const double* x) const {
  double sum = 0.0;
  for (const MixedCell& cell : cells_)
    sum += cell.share * x[cell.cell];
  return sum;
}

// In the matrix of a time step the divisor is what is not yet back at the production wells of the
// water injected during the step: it lies between 0 and 1.
bool MixingCorrection::factorise(double factor, StructuredFactor& factors) {
  if (cells_.empty())
    return true;
  std::fill(ofResponses_.begin(), ofResponses_.end(), 0.0);
  for (const MixedCell& cell : cells_)
    ofResponses_[cell.cell] += cell.response;
  if (!factors.solve(ofResponses_.data()))
    return false;
  const double divisor = 1.0 + factor * mixed(ofResponses_.data());
  scale_ = factor / divisor;
  return divisor > 0.0;
}

void MixingCorrection::correct(double* x) const {
  if (cells_.empty())
    return;
  const double multiple = scale_ * mixed(x);
  for (std::size_t i = 0; i < ofResponses_.size(); ++i)
    x[i] -= multiple * ofResponses_[i];
}
