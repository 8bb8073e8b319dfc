#include "simulator/balance/FlatBalance.h"

#include "simulator/balance/Mixing.h"
#include "simulator/balance/WideVectors.h"

#include <algorithm>

namespace {

TVR_WIDE_VECTORS void multiplyInto(double* into, const double* __restrict factors,
                                   std::size_t count) {
  for (std::size_t i = 0; i < count; ++i)
    into[i] *= factors[i];
}

} // namespace

void FlatBalance::clear() {
  inverseStorage_.clear();
  boundaryLinks_.clear();
  wells_.clear();
}

void FlatBalance::addBoundaryLink(std::size_t i1, double fixedState, const LinkFactors& factors) {
  boundaryLinks_.push_back({i1, fixedState, factors});
}

void FlatBalance::addWell(std::size_t cell, const WellFactors& factors) {
  wells_.push_back({cell, factors});
}

void FlatBalance::setMixing(bool closedLoop, double reference) {
  closedLoop_ = closedLoop;
  reference_ = reference;
  findMixing();
}

void FlatBalance::findMixing() {
  mixing_.clear();
  if (!closedLoop_)
    return;
  double sumRate = 0.0;
  bool isAnyInjecting = false;
  for (const auto& [cell, factors] : wells_) {
    sumRate += factors.producedRate;
    isAnyInjecting = isAnyInjecting || factors.inflow != 0.0;
  }
  if (!isProduced(sumRate) || !isAnyInjecting)
    return;
  for (const auto& [cell, factors] : wells_)
    mixing_.push_back(
        {cell, factors.producedRate / sumRate, factors.inflow * inverseStorage_[cell]});
}

double FlatBalance::inflowValue(const double* y) const {
  if (!closedLoop_)
    return reference_;
  double sumRate = 0.0;
  double sumValue = 0.0;
  for (const CellWell& well : wells_) {
    sumRate += well.factors.producedRate;
    sumValue += well.factors.producedRate * (y[well.cell] - reference_);
  }
  return mixedValue(sumRate, sumValue, reference_);
}

void FlatBalance::evaluate(const double* y, double* dydt, double inflow) const {
  const std::size_t cells = inverseStorage_.size();
  std::fill_n(dydt, cells, 0.0);
  links_.addFlows(y, dydt);
  for (const auto& [cell, fixedState, factors] : boundaryLinks_)
    dydt[cell] += (y[cell] - fixedState) * factors.difference +
                  (y[cell] * factors.first + fixedState * factors.second);
  for (const auto& [cell, factors] : wells_)
    dydt[cell] += factors.own * y[cell] + factors.inflow * inflow + factors.constant;
  multiplyInto(dydt, inverseStorage_.data(), cells);
}
