#include "design/WellDesign.h"

#include "design/DesignFormulas.h"
#include "design/FilterTable.h"
#include "design/MapTarget.h"
#include "design/ParameterId.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace TVR {
namespace {

using namespace Parameter;

/// A confined aquifer of 10 m with kf 0.001 m/s, for which 0.03 m³/s need a filter of 300 mm.
class WellDesign : public testing::Test {
protected:
  WellDesign() {
    target.filterDiameters.assign(filters.begin(), filters.end());
    target.nested = false;
    target.numbers = {{CalculateWellConstruction, 1.0},
                      {MaximumFlowRate, 0.02},
                      {AquiferThickness, 10.0},
                      {AquiferBasis, 12.0},
                      {GroundwaterTable, 4.0},
                      {HydraulicConductivityUsed, 1e-3},
                      {WellDepth, 15.0},
                      {NumberOfWells, 1.0}};
    target.written.push_back(-1); // the write that the recalculation belongs to
  }

  Ids design() {
    recalculateWellDesign(target);
    return {target.written.begin() + 1, target.written.end()};
  }
  bool check() {
    recalculateWellCheck(target);
    return target.flag(ProvidedWellConfigurationOk);
  }

  MapTarget target;
};

const Ids results{MaximumFlowRateOfOneWell, Drawdown,     RadiusOfInfluence,
                  FilterDiameter,           FilterLength, WellRadius};

TEST_F(WellDesign, writesNothingWhenItIsSwitchedOff) {
  target.numbers[CalculateWellConstruction] = 0.0;
  EXPECT_EQ(design(), Ids{});
}

TEST_F(WellDesign, writesItsResultsInOrder) {
  EXPECT_EQ(design(), results);
}

TEST_F(WellDesign, writesTheDesignOfTheSearch) {
  target.numbers[MaximumFlowRate] = 0.03;
  target.numbers[NumberOfWells] = 9.0;
  design();
  // 0.03 m³/s exceed the capacity of 0.02815 m³/s of the first estimate: two wells.
  EXPECT_EQ(target.number(MaximumFlowRateOfOneWell), 0.015);
  // Each row carries 0.015 m³/s, so the last one stands with the reach of the design drawdown.
  EXPECT_EQ(target.number(FilterDiameter), 150.0);
  EXPECT_NEAR(target.number(Drawdown), 3.166514027014734 / 2.0, 1e-12);
  EXPECT_NEAR(target.number(RadiusOfInfluence), 142.30249470757707, 1e-9);
  EXPECT_EQ(target.number(FilterLength), 8.5);
  EXPECT_EQ(target.number(WellRadius), 0.1875);
}

TEST_F(WellDesign, deepensAWellThatEndsWithinTheAquiferFirst) {
  target.numbers[WellDepth] = 9.0;
  Ids expected{WellDepth};
  expected.insert(expected.end(), results.begin(), results.end());
  EXPECT_EQ(design(), expected);
  EXPECT_EQ(target.number(WellDepth), 10.0);
}

TEST_F(WellDesign, leavesTheDepthOfAWellThatEndsAtTheBaseOfTheAquifer) {
  target.numbers[WellDepth] = 10.0;
  EXPECT_EQ(design(), results);
}

TEST_F(WellDesign, takesOneWellForAFlowOfExactlyItsCapacity) {
  const DesignFormulas formulas;
  const double capacity =
      formulas.wellCapacity(formulas.startRadius, formulas.filterLength(10.0), 1e-3);
  target.numbers[MaximumFlowRate] = capacity;
  design();
  EXPECT_EQ(target.number(NumberOfWells), 1.0);
  target.numbers[MaximumFlowRate] = std::nextafter(capacity, 1.0);
  recalculateWellDesign(target);
  EXPECT_EQ(target.number(NumberOfWells), 2.0);
}

TEST_F(WellDesign, raisesTheNumberOfWells) {
  target.numbers[MaximumFlowRate] = 0.03;
  Ids expected{NumberOfWells};
  expected.insert(expected.end(), results.begin(), results.end());
  EXPECT_EQ(design(), expected);
  EXPECT_EQ(target.number(NumberOfWells), 2.0);
}

TEST_F(WellDesign, neverLowersTheNumberOfWells) {
  target.numbers[NumberOfWells] = 6.0;
  EXPECT_EQ(design(), results);
  EXPECT_EQ(target.number(NumberOfWells), 6.0);
}

TEST_F(WellDesign, takesTheThicknessFromTheTableInAnUnconfinedAquifer) {
  target.numbers[AquiferUnconfined] = 1.0;
  target.numbers[MaximumFlowRate] = 0.001;
  design();
  EXPECT_EQ(target.number(FilterLength), 0.85 * 8.0);
}

TEST_F(WellDesign, takesTheConductivityOfTheMaterialWhereThatIsWanted) {
  target.numbers[UseProvidedAquiferProperties] = 1.0;
  target.numbers[AquiferMaterial] = 3.0;
  target.tableRows[{"Grundwasserleitermaterial", 3}] = {{HydraulicConductivityMin, 1e-3},
                                                        {HydraulicConductivityMax, 1e-1}};
  target.numbers[MaximumFlowRate] = 0.005;
  design();
  EXPECT_EQ(target.events, std::vector<std::string>{"row Grundwasserleitermaterial 3"});
  // kf = 0.01 m/s: ten times less drawdown, and a reach that is wider by √10.
  EXPECT_NEAR(target.number(RadiusOfInfluence), 450.0, 1e-9);
  EXPECT_EQ(target.number(HydraulicConductivityUsed), 1e-3);
}

TEST_F(WellDesign, deepensTheWellThenTakesTheMaterialThenRaisesTheWellsThenWritesResults) {
  target.numbers[WellDepth] = 9.0;
  target.numbers[UseProvidedAquiferProperties] = 1.0;
  target.numbers[AquiferMaterial] = 3.0;
  target.numbers[MaximumFlowRate] = 0.03;
  target.tableRows[{"Grundwasserleitermaterial", 3}] = {{HydraulicConductivityMin, 1e-3},
                                                        {HydraulicConductivityMax, 1e-3}};
  design();
  EXPECT_EQ(target.log,
            writesOf({WellDepth}) + Events{"row Grundwasserleitermaterial 3"} +
                writesOf(Ids{HydraulicConductivityMin, HydraulicConductivityMax, NumberOfWells} +
                         results));
}

TEST_F(WellDesign, infiniteFlowIsStoredAndAddsNoWells) {
  target.numbers[MaximumFlowRate] = std::numeric_limits<double>::infinity();
  EXPECT_EQ(design(), results);
  EXPECT_EQ(target.number(NumberOfWells), 1.0);
}

TEST_F(WellDesign, flowThatIsNotANumberIsStored) {
  target.numbers[MaximumFlowRate] = std::nan("");
  EXPECT_EQ(design(), results);
  EXPECT_TRUE(std::isnan(target.number(MaximumFlowRateOfOneWell)));
  EXPECT_TRUE(std::isnan(target.number(Drawdown)));
}

TEST_F(WellDesign, zeroConductivityEnds) {
  target.numbers[HydraulicConductivityUsed] = 0.0;
  EXPECT_EQ(design(), results);
}

TEST_F(WellDesign, checkWritesTheVerdictOnly) {
  target.numbers[NumberOfWellsProvided] = 1.0;
  target.numbers[FilterDiameterProvided] = 300.0;
  const auto before = target.numbers;
  EXPECT_TRUE(check());
  auto after = target.numbers;
  after.erase(ProvidedWellConfigurationOk);
  EXPECT_EQ(after, before);
  EXPECT_EQ(target.written, (Ids{-1, ProvidedWellConfigurationOk}));
}

TEST_F(WellDesign, checkOfATooNarrowFilterFails) {
  target.numbers[MaximumFlowRate] = 0.03;
  target.numbers[NumberOfWellsProvided] = 1.0;
  target.numbers[FilterDiameterProvided] = 250.0;
  EXPECT_FALSE(check());
  target.numbers[FilterDiameterProvided] = 300.0;
  EXPECT_TRUE(check());
}

TEST_F(WellDesign, checkRunsEvenWhenTheConstructionIsNotCalculated) {
  target.numbers[CalculateWellConstruction] = 0.0;
  target.numbers[NumberOfWellsProvided] = 1.0;
  target.numbers[FilterDiameterProvided] = 300.0;
  EXPECT_TRUE(check());
}

TEST_F(WellDesign, checkWithoutWellsFails) {
  target.numbers[FilterDiameterProvided] = 300.0;
  EXPECT_FALSE(check());
}

/// Four wells of 0.03 m³/s at 20 m whose filter of 350 mm only fails when they are superposed.
class CloseWells : public WellDesign {
protected:
  CloseWells() {
    target.numbers[MaximumFlowRate] = 0.12;
    target.numbers[NumberOfWellsProvided] = 4.0;
    target.numbers[FilterDiameterProvided] = 350.0;
    target.numbers[DistanceBetweenWells] = 20.0;
  }
};

TEST_F(CloseWells, passTheCheckWithoutSuperposition) {
  EXPECT_TRUE(check());
}

TEST_F(CloseWells, failTheCheckWithSuperposition) {
  target.numbers[SuperposeDrawdown] = 1.0;
  EXPECT_FALSE(check());
}

TEST_F(CloseWells, areSuperposedFromTwoOn) {
  target.numbers[SuperposeDrawdown] = 1.0;
  target.numbers[MaximumFlowRate] = 0.06;
  target.numbers[NumberOfWellsProvided] = 2.0;
  target.numbers[DistanceBetweenWells] = 1.0;
  EXPECT_FALSE(check());
}

TEST_F(CloseWells, passTheCheckOutsideEachOthersReach) {
  target.numbers[SuperposeDrawdown] = 1.0;
  target.numbers[DistanceBetweenWells] = 150.0;
  EXPECT_TRUE(check());
}

TEST(WholeNumber, truncatesTowardsZero) {
  EXPECT_EQ(wholeNumber(2.9), 2);
  EXPECT_EQ(wholeNumber(-2.9), -2);
}

TEST(WholeNumber, valueThatNoIntHoldsIsZero) {
  EXPECT_EQ(wholeNumber(std::nan("")), 0);
  EXPECT_EQ(wholeNumber(INFINITY), 0);
  EXPECT_EQ(wholeNumber(-1e300), 0);
}

} // namespace
} // namespace TVR
