#include "study/work/MeshBands.h"

#include "quantities/MeshConvergence.h"

#include <cmath>
#include <limits>

namespace TVR::Study {

namespace {

/// A difference between meshes that counts as none.
double resolutionOf(Quantity quantity) {
  using namespace Quantities;
  switch (kindOf(quantity)) {
  case QuantityKind::Area:
    return Resolution::extent * Resolution::extent;
  case QuantityKind::Drawdown:
    return Resolution::drawdown;
  case QuantityKind::Temperature:
    return Resolution::temperature;
  case QuantityKind::Extent:
    break;
  }
  return Resolution::extent;
}

} // namespace

std::vector<double> meshBands(const std::vector<Scalar>& scalars,
                              const std::array<MeshAnswers, 3>& coarseToFine) {
  const auto& [coarse, middle, fine] = coarseToFine;
  std::vector<double> bands;
  for (std::size_t i = 0; i < scalars.size(); ++i) {
    const bool isKnown = std::isfinite(coarse.scalars[i]) && std::isfinite(middle.scalars[i]) &&
                         std::isfinite(fine.scalars[i]);
    bands.push_back(isKnown ? Quantities::gridConvergence({{{coarse.scalars[i], coarse.cells},
                                                            {middle.scalars[i], middle.cells},
                                                            {fine.scalars[i], fine.cells}}},
                                                          resolutionOf(scalars[i].quantity))
                                  .band
                            : std::numeric_limits<double>::quiet_NaN());
  }
  return bands;
}

} // namespace TVR::Study
