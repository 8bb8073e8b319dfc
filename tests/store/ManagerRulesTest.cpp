#include "design/DesignFormulas.h"
#include "store/StoreTest.h"
#include "tables/DemandModel.h"
#include "tables/WellModel.h"

#include <cmath>
#include <limits>

namespace TVR::Data {
namespace {

using namespace Parameter;

const DesignFormulas formulas;

/// The rules at work in the real store with the reference database: a project that cools directly
/// with one well, whose construction the user provides.
class ManagerRulesTest : public StoreTest {
protected:
  ManagerRulesTest() {
    for (const int id : {HeatingDemand, HeatingPeakLoadDuration, HeatingPower,
                         HeatingTemperatureChange, SpecificHeatDemand, HotWaterDemand, BuildingType,
                         PeakLoadDurationCold, PeakLoadDurationWarm, DistanceBetweenWells})
      store.setStored(id, 0.0);
    const QMap<int, QVariant> cooling{{EnergyDemandType, 2},
                                      {CoolingOnly, true},
                                      {CoolingDemand, 30000.0},
                                      {CoolingPeakLoadDuration, 2000.0},
                                      {CoolingPower, 15.0},
                                      {SystemCop, 4.0},
                                      {HeatingPeriod, 220.0},
                                      {HeatedFootSpace, 150.0},
                                      {CalculateWellConstruction, false},
                                      {NumberOfWells, 1},
                                      {NumberOfWellsProvided, 1},
                                      {RadiusOfInfluence, formulas.reach(10.0, 0.001)},
                                      {AquiferBasis, 10.0},
                                      {GroundwaterTable, 0.0},
                                      {WellDepth, 10.0}};
    for (auto value = cooling.begin(); value != cooling.end(); ++value)
      store.setStored(value.key(), *value);
  }

  void write(const std::vector<std::pair<int, QVariant>>& values) {
    for (const auto& [id, value] : values)
      store.setValue(id, value);
  }
  void heatingOnly() { store.setValue(EnergyDemandType, 0); }
  double aMin(double thickness) const {
    return formulas.aMin(number(MeanFlowRate), number(SimulationTime), thickness,
                         number(GroundwaterVelocity), number(EffectivePorosity), 1000.0, 2200.0,
                         4186.0, 800.0);
  }
};

// Energy

TEST_F(ManagerRulesTest, heatingDemandReachesEighteenParameters) {
  store.setValue(CoolingDemand, 0.0);
  EXPECT_EQ(writesAfter(HeatingDemand, 20000.0), 1 + 18);
}

TEST_F(ManagerRulesTest, heatingDemandGivesDemandFlowsAndDistances) {
  write({{CoolingDemand, 0.0},
         {CoolingPower, 0.0},
         {HeatingTemperatureChange, 4.0},
         {HeatingPower, 12.0},
         {HeatingDemand, 20000.0}});
  EXPECT_EQ(number(EnergyDemand), 15000.0);
  EXPECT_EQ(number(UsedTemperatureChange), 4.0);
  EXPECT_EQ(number(Power), 9.0);
  EXPECT_EQ(number(HeatingPeriodDemand), 15000.0 * 365.0 / 220.0);
  EXPECT_DOUBLE_EQ(number(MeanFlowRate), (1.0 - 1e-6) * 15000.0 / (4.0 * 4186.0) / 8760.0);
  EXPECT_EQ(number(BMin),
            formulas.bMin(number(MeanFlowRate), 946728000.0, 10.0, number(RadiusOfInfluence)));
  EXPECT_EQ(number(AMin), aMin(10.0));
}

TEST_F(ManagerRulesTest, balancedProjectReducesFlowsByAMillionth) {
  write({{UsedTemperatureChange, 3.0}, {EnergyDemand, 30000.0}});
  const double plain = 30000.0 / 8760.0 / (3.0 * 4186.0);
  EXPECT_NE(number(MeanFlowRate), plain);
  EXPECT_NEAR(number(MeanFlowRate) / plain, 1.0 - 1e-6, 1e-12);
}

TEST_F(ManagerRulesTest, energyDemandIsMirroredIntoTheHeatingDemandWithoutABalance) {
  heatingOnly();
  EXPECT_EQ(writesAfter(EnergyDemand, "18000"), 9);
  EXPECT_EQ(stored(HeatingDemand), QVariant("18000"));
  EXPECT_EQ(storedType(HeatingDemand), QMetaType::QString);
  EXPECT_EQ(number(EnergyDemand), 18000.0);
}

TEST_F(ManagerRulesTest, balancedEnergyDemandLeavesTheHeatingDemand) {
  store.setValue(EnergyDemand, 18000.0);
  EXPECT_EQ(number(HeatingDemand), 0.0);
}

TEST_F(ManagerRulesTest, copOfAHeatingProjectLeavesTheDemand) {
  heatingOnly();
  write({{EnergyDemand, 18000.0}, {Power, 9.0}});
  EXPECT_EQ(writesAfter(SystemCop, 3.0), 7);
  EXPECT_EQ(number(EnergyDemand), 18000.0);
  EXPECT_EQ(number(MeanFlowRate), formulas.meanFlowRate(3.0, 18000.0, 3.0));
  EXPECT_EQ(number(MeanFlowRateHeatingPeriod),
            formulas.meanFlowRate(3.0, 18000.0 * 365.0 / 220.0, 3.0));
  EXPECT_EQ(number(MaximumFlowRate), formulas.peakFlowRate(3.0, 9.0, 3.0));
}

TEST_F(ManagerRulesTest, coolingOnlyZeroesTheHeatingInputsFiveTimes) {
  write({{HeatingDemand, 20000.0},
         {HeatingPower, 12.0},
         {HeatingTemperatureChange, 4.0},
         {HeatingPeakLoadDuration, 1500.0}});
  EXPECT_EQ(writesAfter(CoolingOnly, true), 1 + 4 * 19 + 20);
  for (const int id :
       {HeatingDemand, HeatingPower, HeatingTemperatureChange, HeatingPeakLoadDuration})
    EXPECT_EQ(stored(id), QVariant(0.0)) << id;
  EXPECT_EQ(number(EnergyDemand), 30000.0);
}

TEST_F(ManagerRulesTest, takingCoolingOnlyBackChangesNothingElse) {
  EXPECT_EQ(writesAfter(CoolingOnly, false), 1);
}

TEST_F(ManagerRulesTest, noTemperatureChangeGivesAnInfiniteFlow) {
  store.setValue(UsedTemperatureChange, 0.0);
  EXPECT_EQ(number(MaximumFlowRate), std::numeric_limits<double>::infinity());
}

TEST_F(ManagerRulesTest, fuelsCountByTheKindOfDemandProvided) {
  heatingOnly();
  store.setValue(OilDemand, "2000");
  EXPECT_DOUBLE_EQ(number(EnergyDemand), 2000 * 10.7 / 0.85);
  EXPECT_EQ(writesAfter(GasDemand, 1000.0), 1);
  write({{ProvidedEnergyDemandType, 1}, {GasDemand, "1000"}});
  EXPECT_DOUBLE_EQ(number(EnergyDemand), 1000 * 9.6 / 0.85);
  EXPECT_EQ(writesAfter(OilDemand, 2000.0), 1);
}

// Reference tables

TEST_F(ManagerRulesTest, buildingTypeFillsItsParametersFromTheDatabase) {
  store.setValue(BuildingType, 2);
  EXPECT_EQ(number(PeakLoadDurationWarm), 2300.0);
  EXPECT_EQ(number(PeakLoadDurationCold), 2000.0);
  EXPECT_EQ(number(PeakLoadDuration), 2000.0);
  EXPECT_EQ(stored(SpecificHeatDemand), QVariant(480.0));
  EXPECT_EQ(number(HotWaterDemand), 50.0);
  EXPECT_EQ(store.value(BuildingType, 2), QVariant(2));
}

TEST_F(ManagerRulesTest, hotWaterAddsUpUntilTheBuildingTypeChanges) {
  store.setValue(BuildingType, 2);
  store.setValue(HotWaterProvided, true);
  EXPECT_EQ(stored(SpecificHeatDemand), QVariant(530.0));
  EXPECT_EQ(number(PeakLoadDuration), 2300.0);
  store.setValue(HotWaterProvided, true);
  EXPECT_EQ(stored(SpecificHeatDemand), QVariant(580.0));
  store.setValue(BuildingType, 2);
  EXPECT_EQ(stored(SpecificHeatDemand), QVariant(480.0));
}

TEST_F(ManagerRulesTest, withoutHotWaterTheBuildingNeedsWhatTheDatabaseSays) {
  write({{BuildingType, 2}, {HotWaterProvided, true}, {HotWaterProvided, false}});
  EXPECT_EQ(stored(SpecificHeatDemand), QVariant(480.0));
  EXPECT_EQ(number(PeakLoadDuration), 2000.0);
  EXPECT_DOUBLE_EQ(number(EnergyDemand), 480.0 / 3.6 * 150.0);
}

TEST_F(ManagerRulesTest, closestLocationGivesTheDegreeDays) {
  store.setValue(ClosestLocation, "9");
  EXPECT_EQ(number(HeatingDegreeDays), 6200.0);
}

TEST_F(ManagerRulesTest, aquiferMaterialGivesConductivityAndPorosity) {
  store.setValue(AquiferMaterial, 4);
  EXPECT_EQ(number(HydraulicConductivityMin), 1e-4);
  EXPECT_EQ(number(HydraulicConductivityMax), 1e-3);
  EXPECT_DOUBLE_EQ(number(HydraulicConductivity), std::sqrt(1e-7));
  EXPECT_EQ(number(HydraulicConductivityUsed), number(HydraulicConductivity));
  EXPECT_EQ(number(MaterialPorosity), 18.0);
  EXPECT_EQ(number(EffectivePorosity), 0.18);
  EXPECT_EQ(number(AquiferPorosity), 0.18);
}

TEST_F(ManagerRulesTest, noAquiferMaterialOnlyRunsTheDesign) {
  write({{CalculateWellConstruction, true}, {HydraulicConductivity, 0.002}});
  write({{EffectivePorosity, 0.2}, {MaximumFlowRateOfOneWell, -1.0}});
  store.setValue(AquiferMaterial, 0);
  EXPECT_EQ(number(HydraulicConductivity), 0.002);
  EXPECT_EQ(number(EffectivePorosity), 0.2);
  EXPECT_EQ(number(MaximumFlowRateOfOneWell), number(MaximumFlowRate));
}

// Aquifer

TEST_F(ManagerRulesTest, conductivityReachesItsCopyReachAndVelocity) {
  EXPECT_EQ(writesAfter(HydraulicConductivity, 0.004), 12);
  EXPECT_EQ(number(HydraulicConductivityUsed), 0.004);
  EXPECT_EQ(number(RadiusOfInfluence), formulas.reach(10.0, 0.004));
  EXPECT_EQ(number(GroundwaterVelocity), 0.004 * 0.1 / 100.0);
}

TEST_F(ManagerRulesTest, conductivityEndsWithTheReachOfTheSecondDesign) {
  write({{CalculateWellConstruction, true}, {HydraulicConductivity, 0.001}});
  EXPECT_NEAR(number(RadiusOfInfluence), 0.15 * 948.6832980505137, 1e-9);
}

TEST_F(ManagerRulesTest, geometryAndGradientLeaveDifferentReaches) {
  write({{CalculateWellConstruction, true}, {AquiferThickness, 20.0}});
  EXPECT_NEAR(number(RadiusOfInfluence), 2 * 948.6832980505137, 1e-9);
  store.setValue(GroundwaterGradient, 0.2);
  EXPECT_NEAR(number(RadiusOfInfluence), 0.3 * 948.6832980505137, 1e-9);
}

TEST_F(ManagerRulesTest, plumeLengthIgnoresTheWaterTableAfterAChangeOfPorosity) {
  write({{GroundwaterGradient, 0.0}, {AquiferUnconfined, true}, {AquiferBasis, 12.0}});
  store.setValue(GroundwaterTable, 8.0);
  const double waterFilled = number(AMin);
  EXPECT_EQ(waterFilled, aMin(4.0));
  store.setValue(AquiferPorosity, 0.25);
  EXPECT_EQ(number(AMin), aMin(10.0));
  EXPECT_NE(number(AMin), waterFilled);
}

TEST_F(ManagerRulesTest, porosityInPercentIsMirroredUnchanged) {
  store.setValue(AquiferPorosity, 25);
  EXPECT_EQ(stored(EffectivePorosity).toDouble(), 25.0);
  EXPECT_EQ(store.value(EffectivePorosity, 2).toDouble(), 25.0);
}

TEST_F(ManagerRulesTest, effectivePorosityIsMirroredIntoTheOther) {
  store.setValue(EffectivePorosity, "0.3");
  EXPECT_EQ(stored(AquiferPorosity).toDouble(), 0.3);
}

TEST_F(ManagerRulesTest, porosityThatIsEmptiedReadsAsTheOther) {
  store.setValue(AquiferPorosity, 0.3);
  store.setValue(AquiferPorosity, 0.0);
  EXPECT_EQ(stored(AquiferPorosity), QVariant(0.0));
  EXPECT_EQ(store.value(AquiferPorosity).toDouble(), 0.3);
  EXPECT_EQ(store.value(AquiferPorosity, 2).toDouble(), 0.3);
  EXPECT_EQ(stored(EffectivePorosity).toDouble(), 0.3);
}

TEST_F(ManagerRulesTest, mirrorsEmitNoSignal) {
  EXPECT_EQ(writesAfter(EffectivePorosity, 0.3), 2);
}

// Wells

TEST_F(ManagerRulesTest, designTakesFiltersOfTheDatabase) {
  store.setValue(CalculateWellConstruction, true);
  EXPECT_EQ(number(FilterDiameter), 125.0);
  EXPECT_EQ(number(WellRadius), 125.0 * 1.25 / 1000.0);
  EXPECT_EQ(number(FilterLength), 8.5);
}

TEST_F(ManagerRulesTest, designRaisesTheNumberOfWellsAndNeverLowersIt) {
  write({{MaximumFlowRate, 0.1}, {CalculateWellConstruction, true}});
  const double many = number(NumberOfWells);
  EXPECT_GT(many, 1.0);
  EXPECT_EQ(number(NumberOfWellsProvided), many);
  write({{MaximumFlowRate, 1e-4}, {CalculateWellConstruction, true}});
  EXPECT_EQ(number(NumberOfWells), many);
}

TEST_F(ManagerRulesTest, designOfAnInfiniteFlowLeavesANumberOfWells) {
  write({{CalculateWellConstruction, true}, {UsedTemperatureChange, 0.0}, {AquiferThickness, 9.0}});
  EXPECT_GE(store.count(NumberOfWells), 1);
  EXPECT_LE(store.count(NumberOfWells), 1000);
}

TEST_F(ManagerRulesTest, designTakesTheConductivityOfTheMaterialWhereThatIsWanted) {
  write({{CalculateWellConstruction, true}, {AquiferMaterial, 7}, {HydraulicConductivity, 1e-4}});
  write({{UseProvidedAquiferProperties, true}, {GroundwaterGradient, 0.1}});
  EXPECT_NEAR(number(RadiusOfInfluence), formulas.reach(1.5, std::sqrt(1e-3 * 1e-2)), 1e-9);
}

TEST_F(ManagerRulesTest, inputsOfTheConstructionAreCheckedAtOnce) {
  for (const int id : {104, 112, 116, 117, 131, 157, 171}) {
    store.setValue(ProvidedWellConfigurationOk, "not checked");
    store.setValue(id, store.value(id));
    EXPECT_EQ(stored(ProvidedWellConfigurationOk), QVariant(true)) << id;
  }
}

TEST_F(ManagerRulesTest, tooSmallAFilterFailsTheCheck) {
  write({{MaximumFlowRate, 0.05}, {FilterDiameterProvided, 50.0}});
  EXPECT_EQ(stored(ProvidedWellConfigurationOk), QVariant(false));
}

TEST_F(ManagerRulesTest, newWellsStandOnTheDefaultPosition) {
  store.setValue(DefaultWellPosition, QPointF(3, 4));
  store.setValue(NumberOfWells, "2.0");
  EXPECT_EQ(store.wellPositions(), (QVector<QPointF>{{3, 4}, {3, 4}}));
  EXPECT_EQ(number(NumberOfWellsProvided), 2.0);
}

TEST_F(ManagerRulesTest, wellTableFollowsTheNumberOfWells) {
  store.setValue(NumberOfWells, 4);
  WellModel* const wells = store.wellModel();
  wells->setData(wells->index(3, WellModel::Name), "last");
  const QSignalSpy resets(wells, &WellModel::modelReset);
  store.setValue(NumberOfWells, 3);
  EXPECT_EQ(resets.size(), 1);
  EXPECT_TRUE(wells->wellNames().isEmpty());
  EXPECT_EQ(wells->rowCount(), 3);
}

TEST_F(ManagerRulesTest, usedDistanceIsThatOfTheFarthestPair) {
  store.setValue(NumberOfWells, 2);
  WellModel* const wells = store.wellModel();
  wells->setData(wells->index(0, WellModel::X), 30.0);
  wells->setData(wells->index(1, WellModel::Y), 40.0);
  EXPECT_EQ(number(DMinUsed), 50.0);
}

TEST_F(ManagerRulesTest, newMeanFlowForgetsWhatWasEnteredWellByWell) {
  store.setValue(NumberOfWells, 2);
  WellModel* const wells = store.wellModel();
  wells->setData(wells->index(0, WellModel::Rate), -0.5);
  store.setValue(MeanFlowRate, 1e-3);
  EXPECT_TRUE(wells->wellRates().isEmpty());
  EXPECT_EQ(wells->index(0, WellModel::Rate).data(Qt::EditRole), QVariant(-1e-3));
}

TEST_F(ManagerRulesTest, numberOfPeriodsMakesTheTablesAndResizesThem) {
  store.setValue(NumberOfDemandsPerYear, "3.0");
  ASSERT_TRUE(store.hasWellModel() && store.hasDemandModel() && store.hasWellDemandModel());
  EXPECT_EQ(store.demandModel()->rowCount(), 3);
  store.setValue(NumberOfDemandsPerYear, 1);
  EXPECT_EQ(store.demandModel()->rowCount(), 1);
}

// Addresses

TEST_F(ManagerRulesTest, projectAddressIsPutTogether) {
  write({{ProjectStreet, "Quellweg 3"}, {ProjectZip, "8000"}, {ProjectLocation, "Zürich"}});
  store.setValue(ProjectName, "Brunnen");
  EXPECT_EQ(stored(ProjectAddress), QVariant("Brunnen<br>Quellweg 3<br>8000 Zürich"));
}

TEST_F(ManagerRulesTest, userAddressHasALetterMoreAfterTheNameIsWritten) {
  write({{UserStreet, "Feldweg 1"}, {UserZip, "3000"}, {UserLocation, "Bern"}});
  store.setValue(UserName, "A. Rohr");
  EXPECT_EQ(stored(UserAddress), QVariant("A. Rohr<br>Feldweg 1<br>n3000 Bern"));
  for (const int id : {UserLocation, UserStreet, UserZip}) {
    store.setValue(UserName, "A. Rohr");
    store.setValue(id, store.value(id));
    EXPECT_EQ(stored(UserAddress), QVariant("A. Rohr<br>Feldweg 1<br>3000 Bern")) << id;
  }
}

TEST_F(ManagerRulesTest, parametersWithoutARuleChangeNothingElse) {
  for (const int id : {41, 60, 61, 65, 70, 74, 79, 81, 82, 113, 114, 119, 137, 151})
    EXPECT_EQ(writesAfter(id, 1.5), 1) << id;
}

} // namespace
} // namespace TVR::Data
