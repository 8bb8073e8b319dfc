#include "design/DependencyRules.h"

#include "design/DesignFormulas.h"
#include "design/ParameterId.h"
#include "design/WellDesign.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace TVR {

using namespace Parameter;

namespace {

/// Separately entered heating and cooling: the balance has taken the heat pump into account.
bool isBalanced(const RuleTarget& t) {
  return t.number(EnergyDemandType) >= 2.0;
}

double heatPumpFactor(const RuleTarget& t) {
  return isBalanced(t) ? DesignFormulas::withoutHeatPump : t.number(SystemCop);
}

// Groups of writes that recur

double netDemand(const RuleTarget& t) {
  return DesignFormulas().netDemand(t.number(HeatingDemand), t.number(CoolingDemand),
                                    t.number(SystemCop));
}

double designPower(const RuleTarget& t) {
  return DesignFormulas().designPower(t.number(HeatingPower), t.number(CoolingPower),
                                      t.number(SystemCop));
}

double effectiveTemperatureChange(const RuleTarget& t) {
  return DesignFormulas().effectiveTemperatureChange(
      t.number(HeatingDemand), t.number(CoolingDemand), t.number(HeatingTemperatureChange),
      t.number(CoolingTemperatureChange), t.number(SystemCop));
}

void writeBalance(RuleTarget& t) {
  t.write(EnergyDemand, netDemand(t));
  t.write(UsedTemperatureChange, effectiveTemperatureChange(t));
  t.write(Power, designPower(t));
}

void writeBuildingDemand(RuleTarget& t) {
  t.write(EnergyDemand, DesignFormulas().demandFromBuilding(t.number(SpecificHeatDemand),
                                                            t.number(HeatedFootSpace),
                                                            t.number(HeatingDegreeDays)));
}

void writeHeatingPeriodDemand(RuleTarget& t) {
  t.write(HeatingPeriodDemand,
          DesignFormulas().heatingPeriodDemand(t.number(EnergyDemand), t.number(HeatingPeriod)));
}

void writePowerFromPeakLoad(RuleTarget& t) {
  t.write(Power, DesignFormulas().safeRatio(t.number(EnergyDemand), t.number(PeakLoadDuration)));
}

void writeMeanFlow(RuleTarget& t, double cop) {
  t.write(MeanFlowRate, DesignFormulas().meanFlowRate(cop, t.number(EnergyDemand),
                                                      t.number(UsedTemperatureChange)));
}

void writeHeatingPeriodFlow(RuleTarget& t, double cop) {
  t.write(MeanFlowRateHeatingPeriod,
          DesignFormulas().meanFlowRate(cop, t.number(HeatingPeriodDemand),
                                        t.number(UsedTemperatureChange)));
}

void writeMaximumFlow(RuleTarget& t, double cop) {
  t.write(MaximumFlowRate,
          DesignFormulas().peakFlowRate(cop, t.number(Power), t.number(UsedTemperatureChange)));
}

void writeFlows(RuleTarget& t, double cop) {
  writeMeanFlow(t, cop);
  writeHeatingPeriodFlow(t, cop);
  writeMaximumFlow(t, cop);
}

void writeStripWidth(RuleTarget& t, double thickness) {
  t.write(BMin, DesignFormulas().bMin(t.number(MeanFlowRate), t.number(SimulationTime), thickness,
                                      t.number(RadiusOfInfluence)));
}

void writePlumeLength(RuleTarget& t, double thickness, int porosity) {
  t.write(AMin, DesignFormulas().aMin(t.number(MeanFlowRate), t.number(SimulationTime), thickness,
                                      t.number(GroundwaterVelocity), t.number(porosity),
                                      t.number(DensityWater), t.number(DensityAquifer),
                                      t.number(HeatCapacityWater), t.number(HeatCapacityStone)));
}

void writeDistances(RuleTarget& t, double thickness, int porosity) {
  writeStripWidth(t, thickness);
  writePlumeLength(t, thickness, porosity);
  t.write(DMin, DesignFormulas().dMin(t.number(NumberOfWells) * 0.5, t.number(MeanFlowRate),
                                      t.number(SimulationTime), thickness,
                                      t.number(GroundwaterVelocity)));
}

void writeReach(RuleTarget& t, double thickness) {
  t.write(RadiusOfInfluence,
          DesignFormulas().reach(thickness, t.number(HydraulicConductivityUsed)));
}

void writeGroundwaterVelocity(RuleTarget& t, int conductivity) {
  t.write(GroundwaterVelocity,
          DesignFormulas().darcyVelocity(t.number(conductivity), t.number(GroundwaterGradient)));
}

/// The porosity written last also stands under its other id; an empty one is filled from it.
void mirrorPorosity(RuleTarget& t, int written, int other) {
  if (t.number(written) > 0.0)
    t.mirror(other, t.number(written));
  else if (t.number(other) > 0.0)
    t.mirror(written, t.number(other));
  recalculateWellDesign(t);
  writePlumeLength(t, t.number(AquiferThickness), written);
}

// `zipPrefix` stands in front of the postal code.
void writeAddress(RuleTarget& t, int address, int name, int street, int zip, int location,
                  const char* zipPrefix = "") {
  t.writeText(address, t.text(name) + "<br>" + t.text(street) + "<br>" + zipPrefix + t.text(zip) +
                           " " + t.text(location));
}

void writeUserAddress(RuleTarget& t, const char* zipPrefix = "") {
  writeAddress(t, UserAddress, UserName, UserStreet, UserZip, UserLocation, zipPrefix);
}

// One rule for each trigger

void onSimulationUpToDate(RuleTarget& t) {
  if (t.flag(SimulationUpToDate))
    t.emitUpdateCurrentGraphic();
  else
    t.emitStartSimulation();
}

void onHeatingPeriod(RuleTarget& t) {
  if (!isBalanced(t))
    writeHeatingPeriodDemand(t);
}

void onEffectivePorosity(RuleTarget& t) {
  mirrorPorosity(t, EffectivePorosity, AquiferPorosity);
}

void onRadiusOfInfluence(RuleTarget& t) {
  writeStripWidth(t, aquiferThickness(t));
}

void onPeakLoadDuration(RuleTarget& t) {
  if (!isBalanced(t))
    writePowerFromPeakLoad(t);
}

void onEnergyDemand(RuleTarget& t) {
  if (!isBalanced(t))
    t.mirrorStored(HeatingDemand, EnergyDemand);
  writePowerFromPeakLoad(t);
  writeHeatingPeriodDemand(t);
  writeMeanFlow(t, heatPumpFactor(t));
}

void onHydraulicConductivity(RuleTarget& t) {
  t.write(HydraulicConductivityUsed, t.number(HydraulicConductivity));
  recalculateWellDesign(t);
  writeGroundwaterVelocity(t, HydraulicConductivity);
}

void onNumberOfWells(RuleTarget& t) {
  t.resizeWells(wholeNumber(t.number(NumberOfWells)));
  t.write(NumberOfWellsProvided, t.number(NumberOfWells));
}

void onPower(RuleTarget& t) {
  if (!isBalanced(t))
    t.mirrorStored(HeatingPower, Power);
  writeMaximumFlow(t, heatPumpFactor(t));
}

void onSpecificHeatDemand(RuleTarget& t) {
  if (t.flag(CalculateEnergyDemand))
    writeBuildingDemand(t);
}

void onHeatingPeriodDemand(RuleTarget& t) {
  writeHeatingPeriodFlow(t, t.number(SystemCop));
}

void onMeanFlowRate(RuleTarget& t) {
  writeDistances(t, aquiferThickness(t), EffectivePorosity);
  t.clearWells();
}

void onPlumeCondition(RuleTarget& t) {
  writeDistances(t, aquiferThickness(t), EffectivePorosity);
}

void onAquiferGeometry(RuleTarget& t) {
  recalculateWellDesign(t);
  const double thickness = aquiferThickness(t);
  writeReach(t, thickness);
  writeDistances(t, thickness, AquiferPorosity);
}

void onAquiferMaterial(RuleTarget& t) {
  const int row = wholeNumber(t.number(AquiferMaterial));
  if (row > 0) {
    t.applyReferenceRow("Grundwasserleitermaterial", row);
    t.write(HydraulicConductivity,
            DesignFormulas().geometricMean(t.number(HydraulicConductivityMax),
                                           t.number(HydraulicConductivityMin)));
    t.write(EffectivePorosity, t.number(MaterialPorosity) / 100.0);
  }
  recalculateWellDesign(t);
}

void onAquiferPorosity(RuleTarget& t) {
  mirrorPorosity(t, AquiferPorosity, EffectivePorosity);
}

void onBuildingType(RuleTarget& t) {
  t.applyReferenceRow("Benutzungsstunden", wholeNumber(t.storedNumber(BuildingType)));
  t.write(PeakLoadDuration, t.number(PeakLoadDurationCold));
}

void onWellConstruction(RuleTarget& t) {
  if (t.flag(CalculateWellConstruction))
    recalculateWellDesign(t);
  else
    recalculateWellCheck(t);
}

void onClosestLocation(RuleTarget& t) {
  t.writeReferenceValue(HeatingDegreeDays, HeatingDegreeDays,
                        wholeNumber(t.storedNumber(ClosestLocation)));
}

void onCoolingOnly(RuleTarget& t) {
  if (!t.flag(CoolingOnly))
    return;
  for (const int id : {HeatingPower, HeatingDemand, HeatingTemperatureChange,
                       HeatingPeakLoadDuration, HeatingPower})
    t.write(id, 0.0);
}

void onCoolingPeakLoadDuration(RuleTarget& t) {
  t.write(CoolingPower, std::floor(DesignFormulas().safeRatio(t.number(CoolingDemand),
                                                              t.number(CoolingPeakLoadDuration))));
}

void onGasDemand(RuleTarget& t) {
  if (wholeNumber(t.number(ProvidedEnergyDemandType)) == 1)
    t.write(EnergyDemand, DesignFormulas().demandFromGas(t.storedNumber(GasDemand)));
}

void onGroundwaterGradient(RuleTarget& t) {
  recalculateWellDesign(t);
  writeGroundwaterVelocity(t, HydraulicConductivityUsed);
}

void onHeatingPeakLoadDuration(RuleTarget& t) {
  t.write(HeatingPower, std::floor(DesignFormulas().safeRatio(t.number(HeatingDemand),
                                                              t.number(HeatingPeakLoadDuration))));
}

void onHotWaterProvided(RuleTarget& t) {
  const int row = wholeNumber(t.storedNumber(BuildingType));
  if (t.flag(HotWaterProvided)) {
    t.writeReferenceValue(PeakLoadDuration, PeakLoadDurationWarm, row);
    t.writeReferenceValue(HotWaterDemand, HotWaterDemand, row);
    t.write(SpecificHeatDemand, t.number(HotWaterDemand) + t.storedNumber(SpecificHeatDemand));
  } else {
    t.writeReferenceValue(PeakLoadDuration, PeakLoadDurationCold, row);
    t.writeReferenceValue(SpecificHeatDemand, SpecificHeatDemand, row);
  }
  writeBuildingDemand(t);
}

void onHydraulicConductivityUsed(RuleTarget& t) {
  const double thickness = aquiferThickness(t);
  recalculateWellDesign(t);
  writeReach(t, thickness);
  writeGroundwaterVelocity(t, HydraulicConductivityUsed);
}

void onNumberOfDemands(RuleTarget& t) {
  t.resizeDemandPeriods(wholeNumber(t.number(NumberOfDemandsPerYear)));
}

void onOilDemand(RuleTarget& t) {
  if (wholeNumber(t.number(ProvidedEnergyDemandType)) == 0)
    t.write(EnergyDemand, DesignFormulas().demandFromOil(t.storedNumber(OilDemand)));
}

void onProjectAddressPart(RuleTarget& t) {
  writeAddress(t, ProjectAddress, ProjectName, ProjectStreet, ProjectZip, ProjectLocation);
}

void onSystemCop(RuleTarget& t) {
  if (!isBalanced(t)) {
    writeFlows(t, t.number(SystemCop));
    return;
  }
  t.write(EnergyDemand, netDemand(t));
  t.write(Power, designPower(t));
  t.write(UsedTemperatureChange, effectiveTemperatureChange(t));
  writeMaximumFlow(t, DesignFormulas::withoutHeatPump);
}

void onUserAddressPart(RuleTarget& t) {
  writeUserAddress(t);
}

// Required oddity: the name, and nothing else, brings an "n" in front of the postal code.
void onUserName(RuleTarget& t) {
  writeUserAddress(t, "n");
}

void onUsedTemperatureChange(RuleTarget& t) {
  if (!isBalanced(t))
    t.mirrorStored(HeatingTemperatureChange, UsedTemperatureChange);
  writeFlows(t, heatPumpFactor(t));
}

constexpr auto rules = std::to_array<DependencyRule>({
    {SimulationUpToDate, onSimulationUpToDate},
    {HeatingPeriod, onHeatingPeriod},
    {EffectivePorosity, onEffectivePorosity},
    {RadiusOfInfluence, onRadiusOfInfluence},
    {PeakLoadDuration, onPeakLoadDuration},
    {EnergyDemand, onEnergyDemand},
    {HeatingDegreeDays, writeBuildingDemand},
    {HydraulicConductivity, onHydraulicConductivity},
    {NumberOfWells, onNumberOfWells},
    {Power, onPower},
    {SpecificHeatDemand, onSpecificHeatDemand},
    {HeatingPeriodDemand, onHeatingPeriodDemand},
    {MeanFlowRate, onMeanFlowRate},
    {GroundwaterVelocity, onPlumeCondition},
    {AquiferBasis, onAquiferGeometry},
    {AquiferThickness, onAquiferGeometry},
    {AquiferMaterial, onAquiferMaterial},
    {AquiferPorosity, onAquiferPorosity},
    {BuildingType, onBuildingType},
    {CalculateEnergyDemand, onSpecificHeatDemand},
    {CalculateWellConstruction, onWellConstruction},
    {CheckWellConstruction, recalculateWellCheck},
    {ClosestLocation, onClosestLocation},
    {CoolingOnly, onCoolingOnly},
    {CoolingDemand, writeBalance},
    {CoolingPeakLoadDuration, onCoolingPeakLoadDuration},
    {CoolingPower, writeBalance},
    {CoolingTemperatureChange, writeBalance},
    {DistanceBetweenWells, recalculateWellCheck},
    {FilterDiameterProvided, recalculateWellCheck},
    {FilterLengthProvided, recalculateWellCheck},
    {GasDemand, onGasDemand},
    {GroundwaterGradient, onGroundwaterGradient},
    {GroundwaterTable, onAquiferGeometry},
    {HeatedFootSpace, writeBuildingDemand},
    {HeatingDemand, writeBalance},
    {HeatingPeakLoadDuration, onHeatingPeakLoadDuration},
    {HeatingPower, writeBalance},
    {HeatingTemperatureChange, writeBalance},
    {HotWaterProvided, onHotWaterProvided},
    {HydraulicConductivityUsed, onHydraulicConductivityUsed},
    {NumberOfWellsProvided, recalculateWellCheck},
    {NumberOfDemandsPerYear, onNumberOfDemands},
    {OilDemand, onOilDemand},
    {ProjectLocation, onProjectAddressPart},
    {ProjectName, onProjectAddressPart},
    {ProjectStreet, onProjectAddressPart},
    {ProjectZip, onProjectAddressPart},
    {SimulationTime, onPlumeCondition},
    {SystemCop, onSystemCop},
    {UserLocation, onUserAddressPart},
    {UserName, onUserName},
    {UserStreet, onUserAddressPart},
    {UserZip, onUserAddressPart},
    {SuperposeDrawdown, recalculateWellCheck},
    {UsedTemperatureChange, onUsedTemperatureChange},
    {WellDepth, recalculateWellCheck},
});

static_assert(std::ranges::adjacent_find(rules, std::ranges::greater_equal{},
                                         &DependencyRule::trigger) == rules.end());

} // namespace

void applyRule(int id, RuleTarget& target) {
  const auto rule = std::ranges::lower_bound(rules, id, {}, &DependencyRule::trigger);
  if (rule != rules.end() && rule->trigger == id)
    rule->run(target);
}

std::span<const DependencyRule> dependencyRules() {
  return rules;
}

} // namespace TVR
