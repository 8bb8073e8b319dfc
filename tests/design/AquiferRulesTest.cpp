#include "design/RuleTest.h"

namespace TVR::Rules {
namespace {

class AquiferRule : public RuleTest {};

const Ids distances{BMin, AMin, DMin};
const Ids wellResults{MaximumFlowRateOfOneWell, Drawdown,     RadiusOfInfluence,
                      FilterDiameter,           FilterLength, WellRadius};

TEST_F(AquiferRule, effectivePorosityIsMirroredAndWritesThePlumeLength) {
  EXPECT_EQ(after(EffectivePorosity, 0.15), Ids{AMin});
  EXPECT_EQ(v(AquiferPorosity), 0.15);
  EXPECT_EQ(target.events, Events{"mirror 90"});
  EXPECT_EQ(v(AMin), expectedAMin(10.0, 0.15));
}

TEST_F(AquiferRule, emptyEffectivePorosityIsFilledFromTheOther) {
  EXPECT_EQ(after(EffectivePorosity, 0.0), Ids{AMin});
  EXPECT_EQ(v(EffectivePorosity), 0.3);
  EXPECT_EQ(target.events, Events{"mirror 34"});
}

TEST_F(AquiferRule, twoEmptyPorositiesStayEmpty) {
  target.numbers[AquiferPorosity] = 0.0;
  EXPECT_EQ(after(EffectivePorosity, 0.0), Ids{AMin});
  EXPECT_EQ(target.events, Events{});
}

TEST_F(AquiferRule, porosityRunsTheDesignBeforeThePlumeLength) {
  designing();
  EXPECT_EQ(again(EffectivePorosity), wellResults + Ids{AMin});
}

TEST_F(AquiferRule, aquiferPorosityIsMirroredAndWritesThePlumeLength) {
  EXPECT_EQ(after(AquiferPorosity, 0.15), Ids{AMin});
  EXPECT_EQ(v(EffectivePorosity), 0.15);
  EXPECT_EQ(target.events, Events{"mirror 34"});
  EXPECT_EQ(v(AMin), expectedAMin(10.0, 0.15));
}

TEST_F(AquiferRule, emptyAquiferPorosityIsFilledFromTheOther) {
  EXPECT_EQ(after(AquiferPorosity, 0.0), Ids{AMin});
  EXPECT_EQ(v(AquiferPorosity), 0.2);
  EXPECT_EQ(target.events, Events{"mirror 90"});
}

class PorosityRule : public AquiferRule, public testing::WithParamInterface<std::pair<int, int>> {
protected:
  PorosityRule() { designing(); }
  const int written = GetParam().first;
  const int other = GetParam().second;
};

TEST_P(PorosityRule, mirrorsBeforeTheDesign) {
  EXPECT_EQ(logAfter(written, 0.15),
            Events{"mirror " + std::to_string(other)} + writesOf(wellResults + Ids{AMin}));
}

TEST_P(PorosityRule, fillsAnEmptyPorosityBeforeTheDesign) {
  EXPECT_EQ(logAfter(written, 0.0),
            Events{"mirror " + std::to_string(written)} + writesOf(wellResults + Ids{AMin}));
}

INSTANTIATE_TEST_SUITE_P(Ids, PorosityRule,
                         testing::Values(std::pair<int, int>(EffectivePorosity, AquiferPorosity),
                                         std::pair<int, int>(AquiferPorosity, EffectivePorosity)));

TEST_F(AquiferRule, plumeLengthAfterAPorosityUsesTheEnteredThicknessEvenIfUnconfined) {
  unconfined();
  target.numbers[GroundwaterVelocity] = 2e-8;
  after(AquiferPorosity, 0.15);
  EXPECT_EQ(v(AMin), expectedAMin(10.0, 0.15));
}

TEST_F(AquiferRule, plumeLengthAfterTheGroundwaterTableUsesTheWaterFilledThickness) {
  unconfined();
  target.numbers[GroundwaterVelocity] = 2e-8;
  after(GroundwaterTable, 6.0);
  EXPECT_EQ(v(AMin), expectedAMin(15.0, 0.3));
}

TEST_F(AquiferRule, radiusOfInfluenceWritesTheStripWidth) {
  EXPECT_EQ(after(RadiusOfInfluence, 500.0), Ids{BMin});
  EXPECT_EQ(v(BMin), 500.0);
}

TEST_F(AquiferRule, stripWidthUsesTheWaterFilledThickness) {
  unconfined();
  after(RadiusOfInfluence, 1.0);
  EXPECT_EQ(v(BMin), expectedBMin(17.0));
}

TEST_F(AquiferRule, materialConductivityIsCopiedAndDrivesTheGroundwater) {
  EXPECT_EQ(after(HydraulicConductivity, 5e-3),
            (Ids{HydraulicConductivityUsed, GroundwaterVelocity}));
  EXPECT_EQ(v(HydraulicConductivityUsed), 5e-3);
  EXPECT_EQ(v(GroundwaterVelocity), formulas.darcyVelocity(5e-3, 0.3));
}

TEST_F(AquiferRule, materialConductivityRunsTheDesign) {
  designing();
  EXPECT_EQ(again(HydraulicConductivity),
            Ids{HydraulicConductivityUsed} + wellResults + Ids{GroundwaterVelocity});
}

TEST_F(AquiferRule, numberOfWellsResizesTheWellsAndIsTheNumberProvided) {
  EXPECT_EQ(after(NumberOfWells, 4.0), Ids{NumberOfWellsProvided});
  EXPECT_EQ(target.events, Events{"wells 4"});
  EXPECT_EQ(v(NumberOfWellsProvided), 4.0);
}

TEST_F(AquiferRule, wellsAreResizedBeforeTheNumberProvidedIsWritten) {
  EXPECT_EQ(logAfter(NumberOfWells, 4.0), Events{"wells 4"} + writesOf({NumberOfWellsProvided}));
}

TEST_F(AquiferRule, meanFlowWritesTheDistancesAndForgetsRatesOfWells) {
  EXPECT_EQ(after(MeanFlowRate, 1e-3), distances);
  EXPECT_EQ(target.events, Events{"clearWells"});
  expectDistances(10.0, 0.2);
}

TEST_F(AquiferRule, meanFlowWritesTheDistancesBeforeItClearsTheWells) {
  EXPECT_EQ(logAfter(MeanFlowRate, 1e-3), writesOf(distances) + Events{"clearWells"});
}

TEST_F(AquiferRule, meanFlowUsesTheWaterFilledThickness) {
  unconfined();
  after(MeanFlowRate, 1e-3);
  expectDistances(17.0, 0.2);
}

TEST_F(AquiferRule, groundwaterVelocityWritesTheDistances) {
  EXPECT_EQ(after(GroundwaterVelocity, 5e-6), distances);
  EXPECT_EQ(target.events, Events{});
  expectDistances(10.0, 0.2);
}

TEST_F(AquiferRule, operationTimeWritesTheDistances) {
  unconfined();
  EXPECT_EQ(after(SimulationTime, 6e7), distances);
  expectDistances(17.0, 0.2);
}

class GeometryRule : public AquiferRule, public testing::WithParamInterface<int> {};

TEST_P(GeometryRule, writesReachAndDistancesWithTheAquiferPorosity) {
  EXPECT_EQ(after(GetParam(), 12.0), Ids{RadiusOfInfluence} + distances);
  const double thickness = v(AquiferThickness);
  EXPECT_EQ(v(RadiusOfInfluence), formulas.reach(thickness, 2e-3));
  expectDistances(thickness, 0.3);
}

TEST_P(GeometryRule, usesTheWaterFilledThicknessIfUnconfined) {
  unconfined();
  after(GetParam(), 12.0);
  const double thickness = v(AquiferBasis) - v(GroundwaterTable);
  EXPECT_EQ(v(RadiusOfInfluence), formulas.reach(thickness, 2e-3));
  expectDistances(thickness, 0.3);
}

TEST_P(GeometryRule, overwritesTheReachOfTheDesign) {
  designing();
  EXPECT_EQ(again(GetParam()), wellResults + Ids{RadiusOfInfluence} + distances);
  EXPECT_EQ(v(RadiusOfInfluence), formulas.reach(10.0, 2e-3));
}

INSTANTIATE_TEST_SUITE_P(Ids, GeometryRule,
                         testing::Values(AquiferBasis, AquiferThickness, GroundwaterTable));

TEST_F(AquiferRule, materialWritesItsRowConductivityAndPorosity) {
  target.tableRows[{"Grundwasserleitermaterial", 2}] = {
      {HydraulicConductivityMin, 1e-5}, {HydraulicConductivityMax, 1e-3}, {MaterialPorosity, 12.0}};
  EXPECT_EQ(after(AquiferMaterial, 2.0),
            (Ids{HydraulicConductivityMin, HydraulicConductivityMax, MaterialPorosity,
                 HydraulicConductivity, EffectivePorosity}));
  EXPECT_DOUBLE_EQ(v(HydraulicConductivity), 1e-4);
  EXPECT_DOUBLE_EQ(v(EffectivePorosity), 0.12);
}

TEST_F(AquiferRule, materialAppliesItsRowBeforeItWritesAndDesignsLast) {
  designing();
  EXPECT_EQ(logAfter(AquiferMaterial, 2.0),
            Events{"row Grundwasserleitermaterial 2"} +
                writesOf(Ids{HydraulicConductivity, EffectivePorosity} + wellResults));
}

TEST_F(AquiferRule, noMaterialChangesNothingButRunsTheDesign) {
  designing();
  EXPECT_EQ(after(AquiferMaterial, 0.0), wellResults);
  EXPECT_EQ(target.events, Events{});
  EXPECT_EQ(v(HydraulicConductivity), 1e-3);
  EXPECT_EQ(v(EffectivePorosity), 0.2);
}

TEST_F(AquiferRule, wellConstructionIsDesignedOrChecked) {
  target.filterDiameters.assign(9, 300.0);
  EXPECT_EQ(after(CalculateWellConstruction, 1.0), wellResults);
  target.written.clear();
  EXPECT_EQ(after(CalculateWellConstruction, 0.0), Ids{ProvidedWellConfigurationOk});
}

class CheckRule : public AquiferRule, public testing::WithParamInterface<int> {};

TEST_P(CheckRule, checksTheConstructionThatIsGiven) {
  EXPECT_EQ(after(GetParam(), 1.0), Ids{ProvidedWellConfigurationOk});
}

INSTANTIATE_TEST_SUITE_P(Ids, CheckRule,
                         testing::Values(CheckWellConstruction, DistanceBetweenWells,
                                         FilterDiameterProvided, FilterLengthProvided,
                                         NumberOfWellsProvided, SuperposeDrawdown, WellDepth));

TEST_F(AquiferRule, gradientDesignsAndWritesTheGroundwaterVelocity) {
  designing();
  EXPECT_EQ(after(GroundwaterGradient, 0.7), wellResults + Ids{GroundwaterVelocity});
  EXPECT_EQ(v(GroundwaterVelocity), formulas.darcyVelocity(2e-3, 0.7));
}

TEST_F(AquiferRule, conductivityWritesReachAndGroundwaterVelocity) {
  EXPECT_EQ(after(HydraulicConductivityUsed, 4e-4), (Ids{RadiusOfInfluence, GroundwaterVelocity}));
  EXPECT_EQ(v(RadiusOfInfluence), formulas.reach(10.0, 4e-4));
  EXPECT_EQ(v(GroundwaterVelocity), formulas.darcyVelocity(4e-4, 0.3));
}

TEST_F(AquiferRule, conductivityOverwritesTheReachOfTheDesign) {
  designing();
  EXPECT_EQ(after(HydraulicConductivityUsed, 4e-4),
            wellResults + Ids({RadiusOfInfluence, GroundwaterVelocity}));
  EXPECT_EQ(v(RadiusOfInfluence), formulas.reach(10.0, 4e-4));
}

/// A project whose design takes the material's row, which makes the aquifer thicker.
class ThickeningDesign : public RuleTest {
protected:
  ThickeningDesign() {
    designing();
    target.numbers[UseProvidedAquiferProperties] = 1.0;
    target.numbers[AquiferMaterial] = 1.0;
    target.tableRows[{"Grundwasserleitermaterial", 1}] = {{AquiferThickness, 20.0}};
  }
};

TEST_F(ThickeningDesign, comesTooLateForTheReachOfTheConductivity) {
  again(HydraulicConductivityUsed);
  EXPECT_EQ(v(RadiusOfInfluence), formulas.reach(10.0, 2e-3));
}

TEST_F(ThickeningDesign, countsForTheReachOfTheGeometry) {
  again(GroundwaterTable);
  EXPECT_EQ(v(RadiusOfInfluence), formulas.reach(20.0, 2e-3));
}

TEST_F(AquiferRule, nextDesignOverwritesTheReachWithItsOwn) {
  designing();
  after(HydraulicConductivityUsed, 4e-4);
  const double reach = v(RadiusOfInfluence);
  target.written.clear();
  target.write(CalculateWellConstruction, 1.0);
  EXPECT_NEAR(v(RadiusOfInfluence), 0.15 * reach, 1e-9);
}

} // namespace
} // namespace TVR::Rules
