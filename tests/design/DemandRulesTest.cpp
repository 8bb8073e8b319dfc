#include "design/RuleTest.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace TVR::Rules {
namespace {

class DemandRule : public RuleTest {};

constexpr double noHeatPump = 1000000.0;
const Ids flows{MeanFlowRate, MeanFlowRateHeatingPeriod, MaximumFlowRate};
const Ids balance{EnergyDemand, UsedTemperatureChange, Power};

TEST_F(DemandRule, outdatedSimulationAsksForARun) {
  EXPECT_EQ(after(SimulationUpToDate, 0.0), Ids{});
  EXPECT_EQ(target.events, Events{"startSimulation"});
}

TEST_F(DemandRule, currentSimulationAsksForAnUpdateOfTheGraphic) {
  EXPECT_EQ(after(SimulationUpToDate, 1.0), Ids{});
  EXPECT_EQ(target.events, Events{"updateCurrentGraphic"});
}

TEST_F(DemandRule, heatingPeriodWritesTheDemandOfThePeriod) {
  EXPECT_EQ(after(HeatingPeriod, 100.0), Ids{HeatingPeriodDemand});
  EXPECT_EQ(v(HeatingPeriodDemand), 14000.0 * 365.0 / 100.0);
}

TEST_F(DemandRule, heatingPeriodDoesNothingInABalancedProject) {
  balanced();
  EXPECT_EQ(after(HeatingPeriod, 100.0), Ids{});
}

TEST_F(DemandRule, peakLoadDurationWritesThePower) {
  EXPECT_EQ(after(PeakLoadDuration, 2000.0), Ids{Power});
  EXPECT_EQ(v(Power), 7.0);
  balanced();
  target.written.clear();
  EXPECT_EQ(after(PeakLoadDuration, 1000.0), Ids{});
}

TEST_F(DemandRule, zeroPeakLoadDurationGivesNoPower) {
  after(PeakLoadDuration, 0.0);
  EXPECT_EQ(v(Power), 0.0);
}

TEST_F(DemandRule, energyDemandIsMirroredIntoTheHeatingDemand) {
  EXPECT_EQ(after(EnergyDemand, 9500.0), (Ids{Power, HeatingPeriodDemand, MeanFlowRate}));
  EXPECT_EQ(target.events, Events{"mirror 125"});
  EXPECT_EQ(v(HeatingDemand), 9500.0);
  EXPECT_EQ(v(Power), 5.0);
  EXPECT_EQ(v(HeatingPeriodDemand), 9500.0 * 365.0 / 200.0);
  EXPECT_EQ(v(MeanFlowRate), formulas.meanFlowRate(4.5, 9500.0, 3.5));
}

TEST_F(DemandRule, energyDemandIsMirroredBeforeTheWrites) {
  EXPECT_EQ(logAfter(EnergyDemand, 9500.0),
            Events{"mirror 125"} + writesOf({Power, HeatingPeriodDemand, MeanFlowRate}));
}

TEST_F(DemandRule, energyDemandOfABalancedProjectIsNotReducedByTheHeatPump) {
  balanced();
  EXPECT_EQ(after(EnergyDemand, 9500.0), (Ids{Power, HeatingPeriodDemand, MeanFlowRate}));
  EXPECT_EQ(target.events, Events{});
  EXPECT_EQ(v(HeatingDemand), 20000.0);
  EXPECT_EQ(v(MeanFlowRate), formulas.meanFlowRate(noHeatPump, 9500.0, 3.5));
}

TEST_F(DemandRule, flowOfABalancedProjectDiffersFromThePlainRatioByOnePartInAMillion) {
  balanced();
  after(EnergyDemand, 9500.0);
  const double plain = 9500.0 / 8760.0 / (3.5 * 4186.0);
  EXPECT_NEAR(v(MeanFlowRate) / plain, 1.0 - 1e-6, 1e-12);
}

TEST_F(DemandRule, degreeDaysWriteTheBuildingDemand) {
  EXPECT_EQ(after(HeatingDegreeDays, 3587.0), Ids{EnergyDemand});
  EXPECT_DOUBLE_EQ(v(EnergyDemand), 80.0 * 140.0);
}

TEST_F(DemandRule, heatedSpaceWritesTheBuildingDemand) {
  EXPECT_EQ(after(HeatedFootSpace, 200.0), Ids{EnergyDemand});
  EXPECT_EQ(v(EnergyDemand), formulas.demandFromBuilding(80.0, 200.0, 3400.0));
}

TEST_F(DemandRule, specificDemandWritesTheBuildingDemandOnlyIfItIsCalculated) {
  EXPECT_EQ(after(SpecificHeatDemand, 360.0), Ids{});
  target.numbers[CalculateEnergyDemand] = 1.0;
  target.written.clear();
  EXPECT_EQ(after(SpecificHeatDemand, 360.0), Ids{EnergyDemand});
  EXPECT_EQ(v(EnergyDemand), formulas.demandFromBuilding(100.0, 140.0, 3400.0));
}

TEST_F(DemandRule, calculationOfTheDemandStartsWhenItIsSwitchedOn) {
  EXPECT_EQ(after(CalculateEnergyDemand, 0.0), Ids{});
  target.written.clear();
  EXPECT_EQ(after(CalculateEnergyDemand, 1.0), Ids{EnergyDemand});
}

TEST_F(DemandRule, powerIsMirroredIntoTheHeatingPower) {
  EXPECT_EQ(after(Power, 9.0), Ids{MaximumFlowRate});
  EXPECT_EQ(target.events, Events{"mirror 127"});
  EXPECT_EQ(v(HeatingPower), 9.0);
  EXPECT_EQ(v(MaximumFlowRate), formulas.peakFlowRate(4.5, 9.0, 3.5));
}

TEST_F(DemandRule, powerIsMirroredBeforeTheWrite) {
  EXPECT_EQ(logAfter(Power, 9.0), Events{"mirror 127"} + writesOf({MaximumFlowRate}));
}

TEST_F(DemandRule, powerOfABalancedProjectIsNotReducedByTheHeatPump) {
  balanced();
  EXPECT_EQ(after(Power, 9.0), Ids{MaximumFlowRate});
  EXPECT_EQ(target.events, Events{});
  EXPECT_EQ(v(MaximumFlowRate), formulas.peakFlowRate(noHeatPump, 9.0, 3.5));
}

TEST_F(DemandRule, heatingPeriodFlowIsReducedByTheHeatPumpWhateverTheType) {
  balanced();
  EXPECT_EQ(after(HeatingPeriodDemand, 8000.0), Ids{MeanFlowRateHeatingPeriod});
  EXPECT_EQ(v(MeanFlowRateHeatingPeriod), formulas.meanFlowRate(4.5, 8000.0, 3.5));
}

TEST_F(DemandRule, buildingTypeWritesItsRowAndTheColdPeakLoadDuration) {
  target.tableRows[{"Benutzungsstunden", 3}] = {{PeakLoadDurationCold, 1600.0},
                                                {SpecificHeatDemand, 250.0}};
  EXPECT_EQ(after(BuildingType, 3.0),
            (Ids{PeakLoadDurationCold, SpecificHeatDemand, PeakLoadDuration}));
  EXPECT_EQ(target.events, Events{"row Benutzungsstunden 3"});
  EXPECT_EQ(v(PeakLoadDuration), 1600.0);
}

TEST_F(DemandRule, buildingTypeAppliesItsRowBeforeTheWrite) {
  EXPECT_EQ(logAfter(BuildingType, 3.0),
            Events{"row Benutzungsstunden 3"} + writesOf({PeakLoadDuration}));
}

TEST_F(DemandRule, locationWritesItsDegreeDays) {
  target.references[HeatingDegreeDays] = {{5, 3600.0}};
  EXPECT_EQ(after(ClosestLocation, 5.0), Ids{HeatingDegreeDays});
  EXPECT_EQ(v(HeatingDegreeDays), 3600.0);
}

TEST_F(DemandRule, unknownLocationLeavesTheDegreeDays) {
  EXPECT_EQ(after(ClosestLocation, 0.0), Ids{});
  EXPECT_EQ(v(HeatingDegreeDays), 3400.0);
}

TEST_F(DemandRule, coolingOnlyZeroesTheHeatingInputs) {
  EXPECT_EQ(after(CoolingOnly, 1.0), (Ids{HeatingPower, HeatingDemand, HeatingTemperatureChange,
                                          HeatingPeakLoadDuration, HeatingPower}));
  for (const int id :
       {HeatingPower, HeatingDemand, HeatingTemperatureChange, HeatingPeakLoadDuration})
    EXPECT_EQ(v(id), 0.0);
}

TEST_F(DemandRule, coolingBesideHeatingChangesNothing) {
  EXPECT_EQ(after(CoolingOnly, 0.0), Ids{});
  EXPECT_EQ(v(HeatingPower), 11.0);
}

class BalanceRule : public DemandRule, public testing::WithParamInterface<int> {};

TEST_P(BalanceRule, writesDemandTemperatureChangeAndPower) {
  EXPECT_EQ(again(GetParam()), balance);
  EXPECT_EQ(v(EnergyDemand), formulas.netDemand(20000.0, 3000.0, 4.5));
  EXPECT_EQ(v(UsedTemperatureChange), 4.0);
  EXPECT_EQ(v(Power), formulas.designPower(11.0, 5.0, 4.5));
}

INSTANTIATE_TEST_SUITE_P(Ids, BalanceRule,
                         testing::Values(CoolingDemand, CoolingPower, CoolingTemperatureChange,
                                         HeatingDemand, HeatingPower, HeatingTemperatureChange));

TEST_F(DemandRule, peakLoadDurationsGiveWholeKilowatts) {
  EXPECT_EQ(after(CoolingPeakLoadDuration, 800.0), Ids{CoolingPower});
  EXPECT_EQ(v(CoolingPower), 3.0);
  target.written.clear();
  EXPECT_EQ(after(HeatingPeakLoadDuration, 1800.0), Ids{HeatingPower});
  EXPECT_EQ(v(HeatingPower), 11.0);
}

TEST_F(DemandRule, gasConsumptionGivesTheDemandWhereGasIsBurnt) {
  target.numbers[ProvidedEnergyDemandType] = 1.0;
  EXPECT_EQ(after(GasDemand, 1000.0), Ids{EnergyDemand});
  EXPECT_EQ(v(EnergyDemand), formulas.demandFromGas(1000.0));
}

TEST_F(DemandRule, oilConsumptionGivesTheDemandWhereOilIsBurnt) {
  target.numbers[ProvidedEnergyDemandType] = 0.0;
  EXPECT_EQ(after(OilDemand, 1000.0), Ids{EnergyDemand});
  EXPECT_EQ(v(EnergyDemand), formulas.demandFromOil(1000.0));
}

/// What the given demand is one of: 0 is oil, 1 gas and 2 electric power.
constexpr double kindsOfDemand[]{-1.0, 0.0, 1.0, 2.0, 3.0};

TEST_F(DemandRule, gasConsumptionCountsForNoOtherKindOfDemand) {
  for (const double kind : kindsOfDemand) {
    target.numbers[ProvidedEnergyDemandType] = kind;
    target.written.clear();
    EXPECT_EQ(after(GasDemand, 1000.0), kind == 1.0 ? Ids{EnergyDemand} : Ids{}) << kind;
  }
}

TEST_F(DemandRule, oilConsumptionCountsForNoOtherKindOfDemand) {
  for (const double kind : kindsOfDemand) {
    target.numbers[ProvidedEnergyDemandType] = kind;
    target.written.clear();
    EXPECT_EQ(after(OilDemand, 1000.0), kind == 0.0 ? Ids{EnergyDemand} : Ids{}) << kind;
  }
}

TEST_F(DemandRule, languageChangesNothing) {
  EXPECT_EQ(after(GuiLanguage, 0.0), Ids{});
}

TEST_F(DemandRule, hotWaterAddsItsDemandAndTakesTheWarmPeakLoadDuration) {
  target.numbers[BuildingType] = 2.0;
  target.references[PeakLoadDurationWarm] = {{2, 2300.0}};
  target.references[HotWaterDemand] = {{2, 72.0}};
  EXPECT_EQ(after(HotWaterProvided, 1.0),
            (Ids{PeakLoadDuration, HotWaterDemand, SpecificHeatDemand, EnergyDemand}));
  EXPECT_EQ(v(PeakLoadDuration), 2300.0);
  EXPECT_EQ(target.storedNumber(SpecificHeatDemand), 360.0);
  EXPECT_EQ(v(EnergyDemand), formulas.demandFromBuilding(100.0, 140.0, 3400.0));
}

TEST_F(DemandRule, hotWaterWrittenTwiceIsAddedTwice) {
  target.numbers[BuildingType] = 2.0;
  target.references[HotWaterDemand] = {{2, 72.0}};
  target.nested = true;
  target.write(HotWaterProvided, 1.0);
  target.write(HotWaterProvided, 1.0);
  EXPECT_EQ(target.storedNumber(SpecificHeatDemand), 288.0 + 72.0 + 72.0);
}

TEST_F(DemandRule, withoutHotWaterTheDemandOfTheBuildingTypeReturns) {
  target.numbers[BuildingType] = 2.0;
  target.references[PeakLoadDurationCold] = {{2, 2000.0}};
  target.references[SpecificHeatDemand] = {{2, 180.0}};
  EXPECT_EQ(after(HotWaterProvided, 0.0),
            (Ids{PeakLoadDuration, SpecificHeatDemand, EnergyDemand}));
  EXPECT_EQ(v(PeakLoadDuration), 2000.0);
  EXPECT_EQ(v(EnergyDemand), formulas.demandFromBuilding(50.0, 140.0, 3400.0));
}

TEST_F(DemandRule, hotWaterWithoutABuildingTypeStillWritesTheBuildingDemand) {
  EXPECT_EQ(after(HotWaterProvided, 0.0), Ids{EnergyDemand});
}

TEST_F(DemandRule, numberOfDemandsResizesThePeriods) {
  EXPECT_EQ(after(NumberOfDemandsPerYear, 3.0), Ids{});
  EXPECT_EQ(target.events, Events{"periods 3"});
}

TEST_F(DemandRule, copOfAHeatingProjectWritesTheFlowsButNotTheDemand) {
  EXPECT_EQ(after(SystemCop, 3.0), flows);
  EXPECT_EQ(v(EnergyDemand), 14000.0);
  expectFlows(3.0);
}

TEST_F(DemandRule, copOfABalancedProjectWritesTheBalanceAndTheMaximumFlow) {
  balanced();
  EXPECT_EQ(after(SystemCop, 3.0),
            (Ids{EnergyDemand, Power, UsedTemperatureChange, MaximumFlowRate}));
  EXPECT_EQ(v(EnergyDemand), formulas.netDemand(20000.0, 3000.0, 3.0));
  EXPECT_EQ(v(Power), formulas.designPower(11.0, 5.0, 3.0));
  EXPECT_EQ(v(UsedTemperatureChange), 4.0);
  EXPECT_EQ(v(MaximumFlowRate), formulas.peakFlowRate(noHeatPump, v(Power), 4.0));
}

TEST_F(DemandRule, temperatureChangeIsMirroredAndWritesTheFlows) {
  EXPECT_EQ(again(UsedTemperatureChange), flows);
  EXPECT_EQ(target.events, Events{"mirror 128"});
  EXPECT_EQ(v(HeatingTemperatureChange), 3.5);
  expectFlows(4.5);
}

TEST_F(DemandRule, temperatureChangeIsMirroredBeforeTheFlows) {
  EXPECT_EQ(logAfter(UsedTemperatureChange, 3.0), Events{"mirror 128"} + writesOf(flows));
}

TEST_F(DemandRule, temperatureChangeOfABalancedProjectWritesUnreducedFlows) {
  balanced();
  EXPECT_EQ(again(UsedTemperatureChange), flows);
  EXPECT_EQ(target.events, Events{});
  expectFlows(noHeatPump);
}

TEST_F(DemandRule, zeroTemperatureChangeStoresAnInfiniteFlow) {
  target.nested = true;
  target.write(UsedTemperatureChange, 0.0);
  EXPECT_EQ(v(MeanFlowRate), std::numeric_limits<double>::infinity());
  EXPECT_EQ(v(MaximumFlowRate), std::numeric_limits<double>::infinity());
  EXPECT_EQ(v(BMin), std::numeric_limits<double>::infinity());
}

TEST_F(DemandRule, demandThatIsNotANumberFlowsOn) {
  target.nested = true;
  target.write(EnergyDemand, std::nan(""));
  for (const int id : {Power, HeatingPeriodDemand, MeanFlowRate, MaximumFlowRate})
    EXPECT_TRUE(std::isnan(v(id))) << id;
}

/// A new system for heating: the last type without a balance of heating and cooling.
class HeatDemandOnlyRule : public DemandRule {
protected:
  HeatDemandOnlyRule() { target.numbers[EnergyDemandType] = 1.0; }
};

TEST_F(HeatDemandOnlyRule, heatingPeriodWritesTheDemandOfThePeriod) {
  EXPECT_EQ(after(HeatingPeriod, 100.0), Ids{HeatingPeriodDemand});
}

TEST_F(HeatDemandOnlyRule, peakLoadDurationWritesThePower) {
  EXPECT_EQ(after(PeakLoadDuration, 2000.0), Ids{Power});
}

TEST_F(HeatDemandOnlyRule, energyDemandIsMirroredAndReducedByTheHeatPump) {
  after(EnergyDemand, 9500.0);
  EXPECT_EQ(target.events, Events{"mirror 125"});
  EXPECT_EQ(v(MeanFlowRate), formulas.meanFlowRate(4.5, 9500.0, 3.5));
}

TEST_F(HeatDemandOnlyRule, powerIsMirroredAndReducedByTheHeatPump) {
  after(Power, 9.0);
  EXPECT_EQ(target.events, Events{"mirror 127"});
  EXPECT_EQ(v(MaximumFlowRate), formulas.peakFlowRate(4.5, 9.0, 3.5));
}

TEST_F(HeatDemandOnlyRule, copWritesTheFlowsButNotTheDemand) {
  EXPECT_EQ(after(SystemCop, 3.0), flows);
  expectFlows(3.0);
}

TEST_F(HeatDemandOnlyRule, temperatureChangeIsMirroredAndWritesTheFlows) {
  EXPECT_EQ(again(UsedTemperatureChange), flows);
  EXPECT_EQ(target.events, Events{"mirror 128"});
  expectFlows(4.5);
}

class ProjectAddressRule : public DemandRule, public testing::WithParamInterface<int> {};

TEST_P(ProjectAddressRule, writesTheAddress) {
  target.texts = {{ProjectName, "School"},
                  {ProjectStreet, "Lane 1"},
                  {ProjectZip, "8000"},
                  {ProjectLocation, "Zurich"}};
  target.writeText(GetParam(), target.text(GetParam()));
  EXPECT_EQ(target.written, (Ids{GetParam(), ProjectAddress}));
  EXPECT_EQ(target.text(ProjectAddress), "School<br>Lane 1<br>8000 Zurich");
}

INSTANTIATE_TEST_SUITE_P(Ids, ProjectAddressRule,
                         testing::Values(ProjectLocation, ProjectName, ProjectStreet, ProjectZip));

class UserAddressRule : public DemandRule, public testing::WithParamInterface<int> {
protected:
  UserAddressRule() {
    target.texts = {
        {UserName, "Office"}, {UserStreet, "Road 2"}, {UserZip, "3000"}, {UserLocation, "Bern"}};
  }
};

TEST_P(UserAddressRule, writesTheAddress) {
  target.writeText(GetParam(), target.text(GetParam()));
  EXPECT_EQ(target.written, (Ids{GetParam(), UserAddress}));
  EXPECT_EQ(target.text(UserAddress), "Office<br>Road 2<br>3000 Bern");
}

INSTANTIATE_TEST_SUITE_P(Ids, UserAddressRule, testing::Values(UserLocation, UserStreet, UserZip));

TEST_F(DemandRule, userNameWritesAnNInFrontOfThePostalCode) {
  target.texts = {{UserStreet, "Road 2"}, {UserZip, "3000"}, {UserLocation, "Bern"}};
  target.writeText(UserName, "Firm");
  EXPECT_EQ(target.written, (Ids{UserName, UserAddress}));
  EXPECT_EQ(target.text(UserAddress), "Firm<br>Road 2<br>n3000 Bern");
}

TEST_F(DemandRule, allOtherIdsHaveNoRule) {
  const std::vector<int> triggers{6,   24,  34,  38,  47,  50,  57,  59,  63,  64,  68,  69,
                                  77,  78,  87,  88,  89,  90,  101, 102, 103, 104, 105, 106,
                                  107, 108, 109, 110, 112, 116, 117, 118, 120, 121, 123, 125,
                                  126, 127, 128, 129, 130, 131, 132, 135, 140, 141, 142, 143,
                                  148, 149, 152, 153, 154, 155, 157, 159, 171};
  designing();
  for (int id = -1; id <= Count; ++id) {
    if (std::ranges::find(triggers, id) != triggers.end())
      continue;
    target.written.clear();
    EXPECT_EQ(after(id, 1.0), Ids{}) << id;
  }
  EXPECT_EQ(target.events, Events{});
}

} // namespace
} // namespace TVR::Rules
