#include "simulator/SiteFixtures.h"
#include "simulator/solvers/FVCvodeSolver.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using SiteFixtures::day;
using SiteFixtures::lineOf;
using SiteFixtures::makeSite;
using SiteFixtures::SiteOptions;

namespace {

constexpr double tolerance = 1e-6;
constexpr double undefined = std::numeric_limits<double>::quiet_NaN();

std::vector<Well> doublet() {
  return {Well(0, 9.0, 2.0, -0.001), Well(1, 20.0, 11.0, 0.001, 5.0)};
}

std::unique_ptr<FVGeothermSite> doubletSite(const SiteOptions& options = {}) {
  return makeSite(SiteFixtures::gradedMesh(), doublet(), options);
}

std::vector<double> heatDerivativeOf(FVGeothermSite& site) {
  std::vector<double> y;
  site.heat.getState(y);
  std::vector<double> dydt(y.size(), 0.0);
  site.heat.evaluate(0.0, y.data(), dydt.data());
  return dydt;
}

/// Time that updateHeatFlows keeps when only the temperature of cell 0 differs, by this much.
double travelTimeWithDifference(double difference) {
  SiteOptions options;
  options.temperature = 0.0;
  const auto site = doubletSite(options);
  site->heat.elements[0]->temperature = difference;
  site->updateHeatFlows();
  return site->heat.shortestTravelTime;
}

} // namespace

TEST(SiteWiring, dispersivityReachesAllLinksOfTheAquiferButNoChain) {
  SiteOptions options;
  options.dispersivity = 5.0;
  options.exchangeFactor = 1.0;
  const auto site = doubletSite(options);
  const std::size_t aquiferLinks = site->groundwater.connections.size();
  ASSERT_GT(site->heat.connections.size(), aquiferLinks);
  for (std::size_t k = 0; k < site->heat.connections.size(); ++k)
    EXPECT_EQ(site->heat.connections[k]->dispersivity, k < aquiferLinks ? 5.0 : 0.0);
  ASSERT_FALSE(site->heat.boundaryConnections.empty());
  for (const auto& link : site->heat.boundaryConnections)
    EXPECT_EQ(link->dispersivity, 5.0);
}

TEST(SiteWiring, directionalFlowsReachTheHeatLinksEachInItsOwnField) {
  const auto site = doubletSite();
  site->solveGroundwater(day, tolerance, tolerance);
  site->updateHeatFlows();
  const std::size_t links = site->groundwater.connections.size();
  std::vector<double> qx(links);
  std::vector<double> qy(links);
  site->groundwater.computeDirectionalFlows(qx, qy);
  for (std::size_t k = 0; k < links; ++k) {
    EXPECT_EQ(site->heat.connections[k]->Q_x, qx[k]) << "link " << k;
    EXPECT_EQ(site->heat.connections[k]->Q_y, qy[k]) << "link " << k;
    EXPECT_NE(qx[k], qy[k]) << "link " << k;
  }
}

TEST(SiteWiring, closedLoopFlagReachesTheHeatModel) {
  SiteOptions options;
  options.closedLoop = false;
  EXPECT_FALSE(doubletSite(options)->heat.closedLoop);
  options.closedLoop = true;
  EXPECT_TRUE(doubletSite(options)->heat.closedLoop);
}

TEST(SiteWiring, modelAndIntegratorsBeginAtTheStartTime) {
  SiteOptions options;
  options.startTime = 1000.0;
  const auto site = doubletSite(options);
  EXPECT_EQ(site->time(), 1000.0);
  site->solveGroundwater(5000.0, tolerance, tolerance);
  site->solveHeat(4000.0, true, tolerance, tolerance);
  EXPECT_EQ(site->groundwaterSolver()->startTime(), 1000.0);
  EXPECT_EQ(site->heatSolver()->startTime(), 1000.0);
  EXPECT_GT(site->wells()[0]->times().front(), 1000.0);
}

TEST(SiteWiring, integratorCreatedLaterBeginsAtTheTimeThatTheHeatModelHasReached) {
  const auto site = doubletSite();
  site->solveHeat(day, false, tolerance, tolerance);
  site->solveGroundwater(2 * day, tolerance, tolerance);
  EXPECT_EQ(site->groundwaterSolver()->startTime(), day);
}

TEST(SiteWiring, referenceTemperatureReachesCellsBoundariesChainsAndMixing) {
  SiteOptions options;
  options.temperature = 14.0;
  options.exchangeFactor = 1.0;
  const auto site = doubletSite(options);
  EXPECT_EQ(site->heat.referenceValue, 14.0);
  ASSERT_GT(site->heat.elements.size(), site->mesh().elements.size());
  for (const auto& element : site->heat.elements)
    EXPECT_EQ(element->temperature, 14.0);
  for (const auto& element : site->heat.boundaryElements)
    EXPECT_EQ(element->temperature, 14.0);
}

TEST(SiteWiring, firstLinkOfAChainStartsInTheMiddleOfTheAquifer) {
  SiteOptions options;
  options.exchangeFactor = 1.0;
  options.exchangeLength = 20.0;
  const FVMesh mesh(lineOf({2.0, 1.0, 2.0}), lineOf({1.0, 1.0}), 6.0);
  const auto site = makeSite(mesh, {}, options);
  for (std::size_t chain = 0; chain < mesh.elements.size(); ++chain)
    EXPECT_EQ(site->heat.connections.at(mesh.connections.size() + 5 * chain)->d1, 3.0);
}

TEST(SiteWiring, travelTimeIsKeptForDifferencesAboveATenthOfAMillikelvinOnly) {
  EXPECT_EQ(travelTimeWithDifference(0.0001), 0.0);
  EXPECT_GT(travelTimeWithDifference(0.000101), 0.0);
}

TEST(SiteWiring, stoppedGroundwaterStillShowsTheTimeWanted) {
  const auto site = doubletSite();
  site->stop();
  site->solveGroundwater(day, tolerance, tolerance);
  EXPECT_EQ(site->groundwater.lastStepTime, day);
  EXPECT_EQ(site->groundwaterSolver()->time(), 0.0);
  EXPECT_TRUE(site->groundwaterDone());
}

TEST(SiteWiring, wellsRecordAndCellsShowTheAcceptedState) {
  SiteOptions options;
  options.exchangeFactor = 1.0;
  const auto site = doubletSite(options);
  for (int step = 1; step <= 3; ++step) {
    site->solveGroundwater(step * day, tolerance, tolerance);
    site->solveHeat(step * day, true, tolerance, tolerance);
    const std::vector<double>& accepted = site->heatSolver()->state();
    for (std::size_t i = 0; i < accepted.size(); ++i)
      ASSERT_EQ(site->heat.elements[i]->temperature, accepted[i]) << i;
    for (std::size_t k = 0; k < site->wells().size(); ++k)
      EXPECT_EQ(site->wells()[k]->temperatures().back(), accepted[site->heat.sourceElements[k]]);
    const std::vector<double>& pressures = site->groundwaterSolver()->state();
    for (std::size_t i = 0; i < pressures.size(); ++i)
      ASSERT_EQ(site->groundwater.elements[i]->pressure, pressures[i]) << i;
  }
}

TEST(SiteWiring, heatModelKeepsNoTimeOfItsLastStep) {
  const auto site = doubletSite();
  site->heat.stepAccepted(100.0);
  EXPECT_EQ(site->heat.lastStepTime, 0.0);
  EXPECT_EQ(site->wells()[0]->times(), (std::vector<double>{100.0}));
}

TEST(SiteWiring, idleWellAddsNothingAlsoInACellOfUndefinedTemperature) {
  const auto site =
      makeSite(SiteFixtures::gradedMesh(), {Well(0, 9.0, 2.0, 0.0), Well(1, 20.0, 11.0, -0.001)});
  site->heat.sources[0]->element->temperature = undefined;
  std::vector<double> out(1, 9.0);
  site->heat.sources[0]->flux(out, 0, site->heat.mixedProductionValue());
  EXPECT_EQ(out[0], 0.0);
  EXPECT_DOUBLE_EQ(site->heat.mixedProductionValue(), 10.0);
}

TEST(SiteWiring, undefinedDispersionCoefficientIsIdleWithoutDispersivity) {
  // A single row has no mean flow across it, so that the coefficient of its links is undefined.
  const auto site =
      makeSite(FVMesh(lineOf({4.0, 2.0, 4.0}), lineOf({2.0}), 10.0), {Well(0, 5.0, 1.0, 0.001)});
  site->updateHeatFlows();
  EXPECT_TRUE(std::isnan(site->heat.connections[0]->D));
  for (const double rate : heatDerivativeOf(*site))
    EXPECT_TRUE(std::isfinite(rate));
}

TEST(SiteWiring, presetDispersionCoefficientIsIdleWithoutDispersivity) {
  const auto site = doubletSite();
  site->heat.elements[3]->temperature = 20.0;
  const std::vector<double> before = heatDerivativeOf(*site);
  for (const auto& link : site->heat.connections)
    link->D = 1.0;
  EXPECT_EQ(heatDerivativeOf(*site), before);
}
