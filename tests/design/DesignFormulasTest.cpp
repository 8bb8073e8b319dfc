#include "design/DesignFormulas.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace TVR {
namespace {

constexpr double year = 3.15576e7; // [s]

const DesignFormulas formula;

TEST(DesignFormulas, holdsItsThreeConstants) {
  EXPECT_EQ(formula.startRadius, 0.25);
  EXPECT_EQ(formula.heatCapacityWater, 4186.0);
  EXPECT_EQ(formula.pi, 4.0 * std::atan(1.0));
}

TEST(DesignFormulas, thicknessIsBaseMinusTable) {
  EXPECT_EQ(formula.thickness(3.0, 12.5), 9.5);
}

TEST(DesignFormulas, filterTakesFifteenPercentOffTheThickness) {
  EXPECT_DOUBLE_EQ(formula.filterLength(20.0), 17.0);
  EXPECT_DOUBLE_EQ(formula.designDrawdown(20.0), 3.0);
}

TEST(DesignFormulas, reachFollowsSichardt) {
  EXPECT_DOUBLE_EQ(formula.reach(1.5, 1e-4), 45.0);
}

TEST(DesignFormulas, boreIsAQuarterWiderThanTheFilter) {
  EXPECT_DOUBLE_EQ(formula.wellRadius(200.0), 0.25);
}

TEST(DesignFormulas, wellCapacityFollowsSichardt) {
  EXPECT_NEAR(formula.wellCapacity(0.25, 8.5, 1e-3), 0.028148000086422282, 1e-15);
}

TEST(DesignFormulas, wellCountIsOneMoreThanTheTruncatedRatio) {
  EXPECT_EQ(formula.wellCount(10.0, 5.0), 3.0);
  EXPECT_EQ(formula.wellCount(11.0, 5.0), 3.0);
  EXPECT_EQ(formula.wellCount(4.0, 5.0), 1.0);
}

TEST(DesignFormulas, wellCountWithoutCapacityIsInfinite) {
  EXPECT_EQ(formula.wellCount(10.0, 0.0), std::numeric_limits<double>::infinity());
}

TEST(DesignFormulas, flowIsSplitEvenly) {
  EXPECT_EQ(formula.flowPerWell(0.06, 4.0), 0.015);
}

TEST(DesignFormulas, darcyVelocityTakesTheGradientInPercent) {
  EXPECT_DOUBLE_EQ(formula.darcyVelocity(2e-3, 0.5), 1e-5);
}

TEST(DesignFormulas, geometricMeanLiesBetweenPowersOfTen) {
  EXPECT_DOUBLE_EQ(formula.geometricMean(1e-2, 1e-4), 1e-3);
}

TEST(DesignFormulas, safeRatioIsZeroForAZeroDivisor) {
  EXPECT_EQ(formula.safeRatio(7.0, 0.0), 0.0);
  EXPECT_EQ(formula.safeRatio(7.0, 2.0), 3.5);
}

TEST(DesignFormulas, inchHas25Point4Millimetres) {
  EXPECT_DOUBLE_EQ(formula.inchToMillimetre(2.0), 50.8);
}

TEST(DesignFormulas, buildingDemandScalesWithTheDegreeDays) {
  EXPECT_DOUBLE_EQ(formula.demandFromBuilding(80.0, 150.0, 3587.0), 12000.0);
  EXPECT_DOUBLE_EQ(formula.demandFromBuilding(80.0, 150.0, 7174.0), 24000.0);
}

TEST(DesignFormulas, fuelDemandCarriesHeatingValueAndBoilerLosses) {
  EXPECT_NEAR(formula.demandFromGas(1000.0), 11294.117647058823, 1e-9);
  EXPECT_NEAR(formula.demandFromOil(1000.0), 12588.235294117647, 1e-9);
}

TEST(DesignFormulas, netDemandOfOneUseIsThatUse) {
  EXPECT_EQ(formula.netDemand(0.0, 500.0, 4.0), 500.0);
  EXPECT_EQ(formula.netDemand(1000.0, 0.0, 4.0), 750.0);
}

TEST(DesignFormulas, netDemandOfTwoUsesIsTheirDifference) {
  EXPECT_EQ(formula.netDemand(1000.0, 500.0, 4.0), 250.0);
  EXPECT_EQ(formula.netDemand(1000.0, 900.0, 4.0), 150.0);
}

TEST(DesignFormulas, netDemandBelowACopOfOneKeepsItsSign) {
  EXPECT_EQ(formula.netDemand(1000.0, 0.0, 0.5), -1000.0);
  EXPECT_EQ(formula.netDemand(1000.0, 500.0, 0.5), 1500.0);
}

TEST(DesignFormulas, netDemandOfEqualUsesAndOfACopOfOneIsNothing) {
  EXPECT_EQ(formula.netDemand(1000.0, 750.0, 4.0), 0.0);
  EXPECT_EQ(formula.netDemand(1000.0, 0.0, 1.0), 0.0);
  EXPECT_EQ(formula.netDemand(1000.0, 300.0, 1.0), 300.0);
}

TEST(DesignFormulas, coolingGovernsBelowACopOfOne) {
  EXPECT_EQ(formula.effectiveTemperatureChange(1000.0, 0.0, 5.0, 3.0, 0.5), 3.0);
  EXPECT_EQ(formula.designPower(100.0, 0.0, 0.5), 0.0);
}

TEST(DesignFormulas, temperatureChangeIsThatOfCoolingWithoutHeatingDemand) {
  EXPECT_EQ(formula.effectiveTemperatureChange(0.0, 100.0, 5.0, 3.0, 4.0), 3.0);
  EXPECT_EQ(formula.effectiveTemperatureChange(0.0, 0.0, 5.0, 3.0, 4.0), 3.0);
}

TEST(DesignFormulas, temperatureChangeIsThatOfTheGoverningUse) {
  EXPECT_EQ(formula.effectiveTemperatureChange(1000.0, 749.0, 5.0, 3.0, 4.0), 5.0);
  EXPECT_EQ(formula.effectiveTemperatureChange(1000.0, 750.0, 5.0, 3.0, 4.0), 3.0);
  EXPECT_EQ(formula.effectiveTemperatureChange(1000.0, 500.0, 0.0, 3.0, 4.0), 3.0);
}

TEST(DesignFormulas, designPowerIsThatOfTheGoverningUse) {
  EXPECT_EQ(formula.designPower(100.0, 74.0, 4.0), 75.0);
  EXPECT_EQ(formula.designPower(100.0, 75.0, 4.0), 75.0);
  EXPECT_EQ(formula.designPower(100.0, 90.0, 4.0), 90.0);
  EXPECT_EQ(formula.designPower(0.0, 12.0, 4.0), 12.0);
}

TEST(DesignFormulas, designPowerWithoutHeatingIsCoolingPowerEvenIfNegative) {
  EXPECT_EQ(formula.designPower(0.0, -1.0, 4.0), -1.0);
}

TEST(DesignFormulas, heatingPeriodDemandIsStretchedToAYear) {
  EXPECT_EQ(formula.heatingPeriodDemand(1000.0, 182.5), 2000.0);
}

TEST(DesignFormulas, heatingPeriodOfNoDaysLeavesTheDemand) {
  EXPECT_EQ(formula.heatingPeriodDemand(1000.0, 0.0), 1000.0);
  EXPECT_EQ(formula.heatingPeriodDemand(1000.0, -3.0), 1000.0);
}

TEST(DesignFormulas, flowsCarryPowerAndEnergyAtTheTemperatureChange) {
  EXPECT_NEAR(formula.peakFlowRate(4.0, 10.0, 3.0), 5.972288580984234e-4, 1e-17);
  EXPECT_NEAR(formula.meanFlowRate(4.0, 10000.0, 3.0), 6.817681028520814e-5, 1e-18);
}

TEST(DesignFormulas, zeroTemperatureChangeGivesAnInfiniteFlow) {
  EXPECT_TRUE(std::isinf(formula.peakFlowRate(4.0, 10.0, 0.0)));
  EXPECT_TRUE(std::isnan(formula.meanFlowRate(4.0, 0.0, 0.0)));
}

TEST(DesignFormulas, aMinIsTheWayOfTheFrontInAFastAquifer) {
  EXPECT_NEAR(formula.aMin(0.001, year, 10.0, 1e-5, 0.25, 1000.0, 2200.0, 4186.0, 800.0),
              614.029685020072, 1e-9);
}

TEST(DesignFormulas, aMinIsTheRadiusOfTheInjectedVolumeInASlowAquifer) {
  EXPECT_NEAR(formula.aMin(0.001, year, 10.0, 1e-6, 0.25, 1000.0, 2200.0, 4186.0, 800.0),
              77.63412676484586, 1e-9);
}

TEST(DesignFormulas, bMinIsTheLargerOfMovedVolumeAndReach) {
  EXPECT_NEAR(formula.bMin(0.001, year, 10.0, 40.0), 44.82208398598529, 1e-9);
  EXPECT_EQ(formula.bMin(0.001, year, 10.0, 50.0), 50.0);
}

TEST(DesignFormulas, dMinIsTheSmallerOfVolumeAndShortCircuit) {
  EXPECT_NEAR(formula.dMin(2.0, 0.001, year, 10.0, 1e-6), 109.7912349738371, 1e-9);
  EXPECT_NEAR(formula.dMin(2.0, 0.001, year, 10.0, 1e-5), 12.732395447351626, 1e-9);
}

TEST(DesignFormulas, drawdownOfASingleWellFollowsThiem) {
  EXPECT_NEAR(formula.drawdownSingleWell(0.01, 0.25, 142.30249470757707, 1e-3, 10.0),
              1.0097186518019563, 1e-12);
}

TEST(DesignFormulas, radiusAboveTheReachGivesTheWholeThickness) {
  EXPECT_EQ(formula.drawdownSingleWell(0.01, 20.0, 10.0, 1e-3, 12.0), 12.0);
  EXPECT_EQ(formula.drawdownSuperposed(0.01, 20.0, 10.0, 1e-3, 12.0, 30.0, 2.0), 12.0);
}

TEST(DesignFormulas, radiusOfExactlyTheReachGivesNoDrawdown) {
  EXPECT_EQ(formula.drawdownSingleWell(0.01, 10.0, 10.0, 1e-3, 12.0), 0.0);
  EXPECT_EQ(formula.drawdownSuperposed(0.01, 10.0, 10.0, 1e-3, 12.0, 10.0, 2.0), 0.0);
}

TEST(DesignFormulas, noReachMeansNoDrawdown) {
  EXPECT_EQ(formula.drawdownSingleWell(0.01, 0.25, 0.0, 1e-3, 10.0), 0.0);
  EXPECT_EQ(formula.drawdownSuperposed(0.01, 0.25, 0.0, 1e-3, 10.0, 50.0, 2.0), 0.0);
}

TEST(DesignFormulas, superposedDrawdownNeedsADistance) {
  EXPECT_EQ(formula.drawdownSuperposed(0.01, 0.25, 100.0, 1e-3, 10.0, 0.0, 2.0), 0.0);
}

TEST(DesignFormulas, superposedDrawdownAddsTheOtherWells) {
  EXPECT_NEAR(formula.drawdownSuperposed(0.01, 0.3125, 142.30249470757707, 1e-3, 10.0, 50.0, 2.0),
              1.1406695054374225, 1e-12);
  EXPECT_NEAR(formula.drawdownSuperposed(0.01, 0.3125, 142.30249470757707, 1e-3, 10.0, 50.0, 3.0),
              1.3071347582836255, 1e-12);
}

TEST(DesignFormulas, unconfinedDrawdownIsDeeperThanTheConfinedOne) {
  EXPECT_NEAR(formula.unconfinedDrawdown(10.0, 3.0), 3.675444679663241, 1e-12);
}

TEST(DesignFormulas, unconfinedDrawdownOfHalfTheThicknessIsTheThickness) {
  EXPECT_EQ(formula.unconfinedDrawdown(10.0, 5.0), 10.0);
  EXPECT_EQ(formula.unconfinedDrawdown(10.0, 5.1), 10.0);
}

TEST(DesignFormulas, rotationByAQuarterTurnsClockwiseAroundTheOrigin) {
  double x = 3.0;
  double y = 1.0;
  double angle = 90.0;
  formula.rotatePoint(x, y, angle, 1.0, 1.0);
  EXPECT_NEAR(x, 1.0, 1e-12);
  EXPECT_NEAR(y, -1.0, 1e-12);
  EXPECT_EQ(angle, 90.0);
}

TEST(DesignFormulas, rotationByRightAnglesIsExact) {
  struct Turn {
    double angle;
    double x;
    double y;
  };
  for (const Turn& turn :
       {Turn{90.0, 0.25, -3.0}, Turn{180.0, -3.0, -0.25}, Turn{270.0, -0.25, 3.0},
        Turn{360.0, 3.0, 0.25}, Turn{-90.0, -0.25, 3.0}, Turn{-270.0, 0.25, -3.0},
        Turn{-180.0, -3.0, -0.25}, Turn{-450.0, -0.25, 3.0}}) {
    double x = 3.0;
    double y = 0.25;
    double angle = turn.angle;
    formula.rotatePoint(x, y, angle, 0.0, 0.0);
    EXPECT_EQ(x, turn.x) << angle;
    EXPECT_EQ(y, turn.y) << angle;
  }
}

TEST(DesignFormulas, rotationNextToARightAngleFollowsTheFormula) {
  double x = 1.0;
  double y = 0.0;
  double angle = 90.0 + 1e-9;
  formula.rotatePoint(x, y, angle, 0.0, 0.0);
  EXPECT_NEAR(x, -1e-9 * 3.14159265358979 / 180.0, 1e-15);
  EXPECT_NEAR(y, -1.0, 1e-15);
}

TEST(DesignFormulas, rotationAndItsReverseGiveThePointBack) {
  double x = 3.5;
  double y = -7.0;
  double angle = 33.0;
  formula.rotatePoint(x, y, angle, 10.0, 20.0);
  EXPECT_NEAR(std::hypot(x - 10.0, y - 20.0), std::hypot(6.5, 27.0), 1e-12);
  double back = -33.0;
  formula.rotatePoint(x, y, back, 10.0, 20.0);
  EXPECT_NEAR(x, 3.5, 1e-12);
  EXPECT_NEAR(y, -7.0, 1e-12);
}

TEST(DesignFormulas, rotationByNothingLeavesThePointExactlyAsItIs) {
  double x = 0.1;
  double y = 0.2;
  double angle = 0.0;
  formula.rotatePoint(x, y, angle, 1e17, 1e17);
  EXPECT_EQ(x, 0.1);
  EXPECT_EQ(y, 0.2);
}

TEST(DesignFormulas, centroidIsTheMeanOfThePoints) {
  const std::array<PlanePoint, 3> polygon{{{0.0, 0.0}, {6.0, 0.0}, {3.0, 9.0}}};
  const PlanePoint centre = formula.centroid(polygon);
  EXPECT_EQ(centre.x, 3.0);
  EXPECT_EQ(centre.y, 3.0);
}

TEST(DesignFormulas, centroidOfNoPointsIsNotANumber) {
  const PlanePoint centre = formula.centroid({});
  EXPECT_TRUE(std::isnan(centre.x));
  EXPECT_TRUE(std::isnan(centre.y));
}

} // namespace
} // namespace TVR
