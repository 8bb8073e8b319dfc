#include "design/DependencyRules.h"
#include "design/DesignFormulas.h"
#include "design/FilterTable.h"
#include "design/MapTarget.h"
#include "design/ParameterId.h"

#include <gtest/gtest.h>

namespace TVR {
namespace {

using namespace Parameter;

const Ids spacing{BMin, AMin, DMin};
const Ids meanFlow = Ids{MeanFlowRate} + spacing;
const Ids power{Power, MaximumFlowRate};
const Ids energyDemand =
    Ids{EnergyDemand} + power + Ids{HeatingPeriodDemand, MeanFlowRateHeatingPeriod} + meanFlow;
const Ids temperatureChange =
    Ids{UsedTemperatureChange} + meanFlow + Ids{MeanFlowRateHeatingPeriod, MaximumFlowRate};
const Ids energies = energyDemand + temperatureChange + power;
const Ids reach{RadiusOfInfluence, BMin};
const Ids velocity = Ids{GroundwaterVelocity} + spacing;
const Ids design =
    Ids{MaximumFlowRateOfOneWell, Drawdown} + reach + Ids{FilterDiameter, FilterLength, WellRadius};

/// A coherent project; every write runs the rules of what it reaches.
class Cascade : public testing::Test {
protected:
  Cascade() {
    target.filterDiameters.assign(filters.begin(), filters.end());
    target.numbers = {{EnergyDemandType, 2.0},
                      {CoolingDemand, 3000.0},
                      {CoolingPower, 2.0},
                      {CoolingTemperatureChange, 2.5},
                      {HeatingTemperatureChange, 4.0},
                      {SystemCop, 4.0},
                      {HeatingPeriod, 200.0},
                      {PeakLoadDuration, 2000.0},
                      {SimulationTime, 9.46728e8},
                      {GroundwaterGradient, 0.5},
                      {HydraulicConductivityUsed, 1e-3},
                      {GroundwaterVelocity, 5e-6},
                      {EffectivePorosity, 0.2},
                      {AquiferPorosity, 0.2},
                      {AquiferThickness, 10.0},
                      {DensityWater, 1000.0},
                      {DensityAquifer, 2200.0},
                      {HeatCapacityWater, 4186.0},
                      {HeatCapacityStone, 800.0},
                      {NumberOfWells, 2.0},
                      {WellDepth, 15.0}};
  }

  Ids after(int id, double value) {
    target.written.clear();
    target.write(id, value);
    return target.written;
  }
  double v(int id) const { return target.number(id); }

  MapTarget target;
};

TEST_F(Cascade, ofTheHeatingDemandRunsDepthFirst) {
  EXPECT_EQ(after(HeatingDemand, 20000.0), Ids{HeatingDemand} + energies);
}

TEST_F(Cascade, ofTheHeatingDemandEndsWithConsistentValues) {
  after(HeatingDemand, 20000.0);
  EXPECT_EQ(v(EnergyDemand), 12000.0);
  EXPECT_EQ(v(UsedTemperatureChange), 4.0);
  EXPECT_EQ(v(Power), 2.0);
  EXPECT_EQ(v(HeatingPeriodDemand), 12000.0 * 365.0 / 200.0);
  const DesignFormulas formulas;
  EXPECT_EQ(v(MeanFlowRate), formulas.meanFlowRate(1e6, 12000.0, 4.0));
  EXPECT_EQ(v(MeanFlowRateHeatingPeriod), formulas.meanFlowRate(1e6, 21900.0, 4.0));
  EXPECT_EQ(v(MaximumFlowRate), formulas.peakFlowRate(1e6, 2.0, 4.0));
}

TEST_F(Cascade, ofTheConductivityRunsTheDesignTwice) {
  target.numbers[CalculateWellConstruction] = 1.0;
  EXPECT_EQ(after(HydraulicConductivity, 1e-3),
            Ids({HydraulicConductivity, HydraulicConductivityUsed}) + design + reach + velocity +
                design + velocity);
}

TEST_F(Cascade, ofTheConductivityEndsWithTheReachOfTheSecondDesign) {
  target.numbers[CalculateWellConstruction] = 1.0;
  after(HydraulicConductivity, 1e-3);
  EXPECT_NEAR(v(RadiusOfInfluence), 142.30249470757707, 1e-9);
}

TEST_F(Cascade, ofADesignThatAddsWellsResizesAndChecksThem) {
  target.numbers[MaximumFlowRate] = 0.1;
  const Ids expected = Ids{CalculateWellConstruction, NumberOfWells, NumberOfWellsProvided,
                           ProvidedWellConfigurationOk} +
                       design;
  EXPECT_EQ(after(CalculateWellConstruction, 1.0), expected);
  EXPECT_EQ(target.events, std::vector<std::string>{"wells 4"});
}

TEST_F(Cascade, ofADesignDeepensTheWell) {
  target.numbers[WellDepth] = 5.0;
  EXPECT_EQ(after(CalculateWellConstruction, 1.0),
            Ids({CalculateWellConstruction, WellDepth, ProvidedWellConfigurationOk}) + design);
}

TEST_F(Cascade, ofCoolingOnlyBalancesFourTimes) {
  EXPECT_EQ(after(CoolingOnly, 1.0), Ids({CoolingOnly, HeatingPower}) + energies +
                                         Ids{HeatingDemand} + energies +
                                         Ids{HeatingTemperatureChange} + energies +
                                         Ids({HeatingPeakLoadDuration, HeatingPower}) + energies +
                                         Ids{HeatingPower} + energies);
}

TEST_F(Cascade, ofTheEnergyDemandDoesNotBalanceAHeatingProject) {
  target.numbers[EnergyDemandType] = 0.0;
  EXPECT_EQ(after(EnergyDemand, 20000.0), energyDemand);
  EXPECT_EQ(v(HeatingDemand), 20000.0);
  EXPECT_EQ(v(HeatingPower), 10.0);
}

TEST_F(Cascade, ofTheCopLeavesTheDemandOfAHeatingProject) {
  target.numbers[EnergyDemandType] = 0.0;
  target.numbers[EnergyDemand] = 1234.0;
  EXPECT_EQ(after(SystemCop, 3.0),
            Ids{SystemCop} + meanFlow + Ids({MeanFlowRateHeatingPeriod, MaximumFlowRate}));
  EXPECT_EQ(v(EnergyDemand), 1234.0);
}

TEST_F(Cascade, ofTheCopBalancesWithoutTheHeatingPeriod) {
  EXPECT_EQ(after(SystemCop, 3.0),
            Ids{SystemCop} + energyDemand + power + temperatureChange + Ids{MaximumFlowRate});
}

TEST_F(Cascade, ofTheAquiferMaterialReachesVelocityAndPlume) {
  target.tableRows[{"Grundwasserleitermaterial", 4}] = {
      {HydraulicConductivityMin, 1e-4}, {HydraulicConductivityMax, 1e-2}, {MaterialPorosity, 15.0}};
  EXPECT_EQ(after(AquiferMaterial, 4.0),
            Ids({AquiferMaterial, HydraulicConductivityMin, HydraulicConductivityMax,
                 MaterialPorosity, HydraulicConductivity, HydraulicConductivityUsed}) +
                reach + velocity + velocity + Ids({EffectivePorosity, AMin}));
  EXPECT_DOUBLE_EQ(v(HydraulicConductivityUsed), 1e-3);
  EXPECT_DOUBLE_EQ(v(AquiferPorosity), 0.15);
}

TEST_F(Cascade, ofTheBuildingTypeReachesTheFlows) {
  target.numbers[EnergyDemandType] = 0.0;
  target.tableRows[{"Benutzungsstunden", 1}] = {{PeakLoadDurationCold, 1800.0}};
  EXPECT_EQ(after(BuildingType, 1.0),
            Ids({BuildingType, PeakLoadDurationCold, PeakLoadDuration}) + power);
}

} // namespace
} // namespace TVR
