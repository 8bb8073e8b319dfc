#include "design/WellDesign.h"

#include "design/DesignFormulas.h"
#include "design/ParameterId.h"

#include <limits>

namespace TVR {

using namespace Parameter;

int wholeNumber(double value) {
  constexpr double lowest = std::numeric_limits<int>::min();
  constexpr double highest = std::numeric_limits<int>::max();
  return value >= lowest && value <= highest ? static_cast<int>(value) : 0;
}

double aquiferThickness(const ParameterReader& project) {
  if (!project.flag(AquiferUnconfined))
    return project.number(AquiferThickness);
  return DesignFormulas().thickness(project.number(GroundwaterTable), project.number(AquiferBasis));
}

void recalculateWellDesign(RuleTarget& target) {
  if (!target.flag(CalculateWellConstruction))
    return;
  const DesignFormulas formulas([&target](int row) { return target.providedFilterDiameter(row); });

  const double totalFlow = target.number(MaximumFlowRate);
  const bool unconfined = target.flag(AquiferUnconfined);
  const double h = aquiferThickness(target);
  if (target.number(WellDepth) < h)
    target.write(WellDepth, h);

  double kf = target.number(HydraulicConductivityUsed);
  if (target.flag(UseProvidedAquiferProperties)) {
    target.applyReferenceRow("Grundwasserleitermaterial",
                             wholeNumber(target.number(AquiferMaterial)));
    kf = formulas.geometricMean(target.number(HydraulicConductivityMin),
                                target.number(HydraulicConductivityMax));
  }

  double filterLength = formulas.filterLength(h);
  const double capacity = formulas.wellCapacity(formulas.startRadius, filterLength, kf);
  double wells = 1.0;
  double flow = totalFlow;
  if (totalFlow > capacity) {
    wells = formulas.wellCount(totalFlow, capacity);
    flow = formulas.flowPerWell(totalFlow, wells);
  }
  double drawdown = 0.0;
  double radiusOfInfluence = 0.0;
  double filterDiameter = 0.0;
  double wellRadius = 0.0;
  formulas.designWells(unconfined, h, kf, totalFlow, wells, flow, drawdown, radiusOfInfluence,
                       filterDiameter, filterLength, wellRadius);

  const int designedWells = wholeNumber(wells);
  if (wholeNumber(target.number(NumberOfWells)) < designedWells)
    target.write(NumberOfWells, designedWells);
  target.write(MaximumFlowRateOfOneWell, flow);
  target.write(Drawdown, drawdown);
  target.write(RadiusOfInfluence, radiusOfInfluence);
  target.write(FilterDiameter, filterDiameter);
  target.write(FilterLength, filterLength);
  target.write(WellRadius, wellRadius);
}

void recalculateWellCheck(RuleTarget& target) {
  const DesignFormulas formulas([&target](int row) { return target.providedFilterDiameter(row); });

  const bool unconfined = target.flag(AquiferUnconfined);
  double wells = wholeNumber(target.number(NumberOfWellsProvided));
  double filterDiameter = target.number(FilterDiameterProvided);
  const double totalFlow = target.number(MaximumFlowRate);
  const double h = aquiferThickness(target);
  const double kf = target.number(HydraulicConductivityUsed);

  double radiusOfInfluence = formulas.reach(formulas.designDrawdown(h), kf);
  double distance = target.number(DistanceBetweenWells);
  const bool withoutSuperposition = !target.flag(SuperposeDrawdown) || wells < 2.0;
  if (withoutSuperposition && !(distance > radiusOfInfluence))
    distance = radiusOfInfluence;

  double filterLength = target.number(FilterLengthProvided);
  double flow = 0.0;
  double drawdown = 0.0;
  double wellRadius = 0.0;
  const bool holds =
      formulas.checkWells(unconfined, h, kf, totalFlow, distance, wells, flow, drawdown,
                          radiusOfInfluence, filterDiameter, filterLength, wellRadius);
  target.writeFlag(ProvidedWellConfigurationOk, holds);
}

} // namespace TVR
