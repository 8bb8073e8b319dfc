#include "simulator/FlatBalance.h"

#include "simulator/Mixing.h"

#include <algorithm>

void FlatBalance::clear() {
  inverseStorage_.clear();
  plainEnds_.clear();
  plainFactors_.clear();
  ends_.clear();
  factors_.clear();
  boundaryLinks_.clear();
  wells_.clear();
}

void FlatBalance::addLink(std::size_t i1, std::size_t i2, const LinkFactors& factors) {
  const Ends ends{static_cast<std::int32_t>(i1), static_cast<std::int32_t>(i2)};
  if (factors.first == 0.0 && factors.second == 0.0) {
    plainEnds_.push_back(ends);
    plainFactors_.push_back(factors.difference);
  } else {
    ends_.push_back(ends);
    factors_.push_back(factors);
  }
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
  for (std::size_t k = 0; k < ends_.size(); ++k) {
    const auto [i1, i2] = ends_[k];
    const LinkFactors& factors = factors_[k];
    const double flow =
        (y[i1] - y[i2]) * factors.difference + (y[i1] * factors.first + y[i2] * factors.second);
    dydt[i1] += flow;
    dydt[i2] -= flow;
  }
  for (std::size_t k = 0; k < plainEnds_.size(); ++k) {
    const auto [i1, i2] = plainEnds_[k];
    const double flow = (y[i1] - y[i2]) * plainFactors_[k];
    dydt[i1] += flow;
    dydt[i2] -= flow;
  }
  for (const auto& [cell, fixedState, factors] : boundaryLinks_)
    dydt[cell] += (y[cell] - fixedState) * factors.difference +
                  (y[cell] * factors.first + fixedState * factors.second);
  for (const auto& [cell, factors] : wells_)
    dydt[cell] += factors.own * y[cell] + factors.inflow * inflow + factors.constant;
  for (std::size_t i = 0; i < cells; ++i)
    dydt[i] *= inverseStorage_[i];
}
