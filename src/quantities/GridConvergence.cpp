#include "quantities/GridConvergence.h"

#include <algorithm>
#include <cmath>

namespace TVR::Quantities {

namespace {

constexpr double leastOrder = 0.5;
constexpr double largestOrder = 3;
constexpr double safetyOfThreeMeshes = 1.25;
constexpr double safetyWithoutOrder = 3;

/// How much wider the cells of one mesh are than those of another.
double ratioOfWidths(int cells, int finerCells) {
  return std::sqrt(double(finerCells) / cells);
}

/// The order p of errors that shrink as the p-th power of the width of the cells: the fixed point
/// of p ln(rFine) = |ln(ratio) + ln((rFine^p - 1) / (rCoarse^p - 1))|.
double observedOrder(double ratioOfDifferences, double rCoarse, double rFine) {
  constexpr int mostRounds = 50;
  double order = std::abs(std::log(ratioOfDifferences)) / std::log(rFine);
  for (int round = 0; round < mostRounds && order > 0; ++round) {
    const double correction =
        std::log((std::pow(rFine, order) - 1) / (std::pow(rCoarse, order) - 1));
    order = std::abs(std::log(ratioOfDifferences) + correction) / std::log(rFine);
  }
  return order;
}

} // namespace

GridConvergence gridConvergence(const std::array<MeshValue, 3>& coarseToFine, double resolution) {
  const auto& [coarse, middle, fine] = coarseToFine;
  const double before = middle.value - coarse.value;
  const double after = fine.value - middle.value;
  const double larger = std::max(std::abs(before), std::abs(after));

  GridConvergence result{.value = middle.value,
                         .extrapolated = std::nullopt,
                         .order = std::nullopt,
                         .band = safetyWithoutOrder * larger,
                         .behaviour = Behaviour::Oscillating};
  if (larger <= resolution) {
    result.behaviour = Behaviour::Settled;
    result.band = std::max(larger, resolution);
  } else if (before * after > 0) {
    result.behaviour = Behaviour::Monotone;
    const double rFine = ratioOfWidths(middle.cells, fine.cells);
    const double order =
        observedOrder(before / after, ratioOfWidths(coarse.cells, middle.cells), rFine);
    result.order = order;
    if (before / after > 1 && order >= leastOrder && order <= largestOrder) {
      const double limit = fine.value + after / (std::pow(rFine, order) - 1);
      result.extrapolated = limit;
      result.band = safetyOfThreeMeshes * std::abs(limit - middle.value);
    }
  }
  return result;
}

} // namespace TVR::Quantities
