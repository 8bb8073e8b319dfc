#include "simulator/SiteFixtures.h"
#include "simulator/solvers/FVCvodeSolver.h"
#include "simulator/solvers/SolverErrors.h"
#include "support/IntegratorTolerance.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <thread>

using SiteFixtures::day;
using SiteFixtures::makeSite;

namespace {

constexpr double tolerance = 1e-6;

std::vector<Well> doublet() {
  Well production(0, 9.0, 6.5, -0.001);
  Well injection(1, 20.0, 6.5, 0.001, 5.0);
  production.setRate(0, -0.001);
  injection.setRate(0, 0.001);
  return {production, injection};
}

std::unique_ptr<FVGeothermSite> doubletSite() {
  return makeSite(SiteFixtures::gradedMesh(), doublet());
}

void solveTo(FVGeothermModel& model, double t, bool updateFlows = true) {
  model.solveGroundwater(t, tolerance, tolerance);
  model.solveHeat(t, updateFlows, tolerance, tolerance);
}

std::string errorOfHeatSolve(FVGeothermModel& model) {
  try {
    model.solveHeat(day, true, tolerance, tolerance);
  } catch (const KinsolError& error) {
    return error.what();
  }
  return "no error";
}

} // namespace

TEST(FVGeothermModel, integratorsAreCreatedOnFirstUse) {
  const auto site = doubletSite();
  EXPECT_EQ(site->groundwaterSolver(), nullptr);
  EXPECT_EQ(site->heatSolver(), nullptr);
  EXPECT_EQ(site->groundwaterSteps() + site->heatSteps(), 0);
  solveTo(*site, day);
  EXPECT_GT(site->groundwaterSteps(), 0);
  EXPECT_GT(site->heatSteps(), 0);
}

TEST(FVGeothermModel, timeFollowsTheHeatModelOnly) {
  const auto site = doubletSite();
  site->solveGroundwater(day, tolerance, tolerance);
  EXPECT_EQ(site->time(), 0.0);
  EXPECT_EQ(site->groundwater.lastStepTime, day);
  EXPECT_TRUE(site->groundwaterDone());
  site->solveHeat(day, true, tolerance, tolerance);
  EXPECT_EQ(site->time(), day);
}

/// The integrator takes no step over a difference of rounding.
TEST(FVGeothermModel, groundwaterIsAtTheTimeAskedForAlsoWithoutAStep) {
  const auto site = doubletSite();
  site->solveGroundwater(day, tolerance, tolerance);
  const long steps = site->groundwaterSteps();
  const double later = std::nextafter(day, 2.0 * day);
  site->solveGroundwater(later, tolerance, tolerance);
  EXPECT_EQ(site->groundwaterSteps(), steps);
  EXPECT_EQ(site->groundwater.lastStepTime, later);
}

TEST(FVGeothermModel, relativeToleranceGoesBeforeTheAbsoluteOne) {
  const auto site = doubletSite();
  const std::size_t last = site->groundwater.elementCount() - 1;
  site->solveGroundwater(day, 1e-3, 1e-5);
  site->solveHeat(day, true, 1e-4, 1e-8);
  const double ofPressure = 1e-3 * std::abs(site->groundwater.elements[last]->pressure) + 1e-5;
  EXPECT_NEAR(toleranceIn(site->groundwater, last), ofPressure, 0.1 * ofPressure);
  const double ofTemperature = 1e-4 * site->temperature(last) + 1e-8;
  EXPECT_NEAR(toleranceIn(site->heat, last), ofTemperature, 0.1 * ofTemperature);
}

TEST(FVGeothermModel, presentDemandStepRestartsNothing) {
  const auto site = doubletSite();
  solveTo(*site, day);
  site->setDemandStep(0);
  EXPECT_EQ(site->groundwaterSolver()->restarts(), 0);
  EXPECT_EQ(site->heatSolver()->restarts(), 0);
}

TEST(FVGeothermModel, otherDemandStepRestartsBothIntegrators) {
  const auto site = doubletSite();
  solveTo(*site, day);
  site->setDemandStep(1);
  EXPECT_EQ(site->groundwater.demandStep, 1);
  EXPECT_EQ(site->heat.demandStep, 1);
  EXPECT_EQ(site->groundwaterSolver()->restarts(), 1);
  EXPECT_EQ(site->heatSolver()->restarts(), 1);
  site->setDemandStep(1);
  EXPECT_EQ(site->heatSolver()->restarts(), 1);
}

TEST(FVGeothermModel, demandStepBeforeTheFirstSolveIsOnlyStored) {
  const auto site = doubletSite();
  site->setDemandStep(3);
  EXPECT_EQ(site->heat.demandStep, 3);
  EXPECT_EQ(site->groundwaterSolver(), nullptr);
}

TEST(FVGeothermModel, demandStepChangesTheRatesThatAreSolved) {
  const auto site = doubletSite();
  for (Well* well : site->wells())
    well->setRate(1, 0.0);
  const std::size_t cell = site->mesh().findElement(9.0, 6.5);
  solveTo(*site, day);
  const double pumping = site->pressureChange(cell);
  site->setDemandStep(1);
  solveTo(*site, 30 * day);
  EXPECT_LT(pumping, -100.0);
  EXPECT_NEAR(site->pressureChange(cell), 0.0, 1e-3 * std::abs(pumping));
}

TEST(FVGeothermModel, heatAdvanceWithoutUpdateLeavesTheFlows) {
  const auto site = doubletSite();
  solveTo(*site, day, false);
  for (const auto& link : site->heat.connections)
    EXPECT_EQ(link->Q_F, 0.0);
  EXPECT_EQ(site->time(), day);
}

TEST(FVGeothermModel, heatTakesOverTheFlowsOfAllLinks) {
  const auto site = doubletSite();
  solveTo(*site, day);
  for (std::size_t k = 0; k < site->groundwater.connections.size(); ++k) {
    EXPECT_EQ(site->heat.connections[k]->Q_F, site->groundwater.flow(k));
    EXPECT_EQ(site->heat.connections[k]->porosity, SiteFixtures::gravel().porosity);
  }
  for (std::size_t k = 0; k < site->groundwater.boundaryConnections.size(); ++k) {
    EXPECT_EQ(site->heat.boundaryConnections[k]->Q_F, site->groundwater.boundaryFlow(k));
    EXPECT_EQ(site->heat.boundaryConnections[k]->Q_x, 0.0);
  }
}

TEST(FVGeothermModel, exchangeLinksKeepAFlowOfZero) {
  SiteFixtures::SiteOptions options;
  options.exchangeFactor = 1.0;
  const auto site = makeSite(SiteFixtures::gradedMesh(), doublet(), options);
  solveTo(*site, day);
  const std::size_t aquiferLinks = site->groundwater.connections.size();
  ASSERT_GT(site->heat.connections.size(), aquiferLinks);
  for (std::size_t k = aquiferLinks; k < site->heat.connections.size(); ++k)
    EXPECT_EQ(site->heat.connections[k]->Q_F, 0.0);
}

TEST(FVGeothermModel, shortestTravelTimeCountsOnlyLinksWithATemperatureDifference) {
  const auto site = doubletSite();
  site->updateHeatFlows();
  EXPECT_EQ(site->heat.shortestTravelTime, 0.0);
  site->heat.elements[0]->temperature += 1.0;
  site->updateHeatFlows();
  EXPECT_DOUBLE_EQ(site->heat.shortestTravelTime, std::abs(site->groundwater.travelTime(0)));
}

TEST(FVGeothermModel, heatBeforeGroundwaterEndsInTheErrorOfTheSteadySolve) {
  const auto site = doubletSite();
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  const std::string text = errorOfHeatSolve(*site);
  testing::internal::GetCapturedStderr();
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "KinsolError:: KINSol: -1\n");
  EXPECT_EQ(text, "KinsolError:: KINSol: -1");
  EXPECT_FALSE(site->groundwaterDone());
  EXPECT_EQ(site->time(), 0.0);
}

TEST(FVGeothermModel, stopIsSeenInBothModels) {
  const auto site = doubletSite();
  EXPECT_FALSE(site->isStopped());
  site->groundwater.stopRequested = true;
  EXPECT_FALSE(site->isStopped());
  site->stop();
  EXPECT_TRUE(site->isStopped());
  EXPECT_TRUE(site->heat.stopRequested);
}

TEST(FVGeothermModel, stopFromAnotherThreadEndsTheRun) {
  const auto site = doubletSite();
  std::thread other([&site] { site->stop(); });
  int days = 0;
  while (!site->isStopped())
    solveTo(*site, ++days * day);
  other.join();
  const long steps = site->groundwaterSteps() + site->heatSteps();
  solveTo(*site, (days + 1) * day);
  EXPECT_EQ(site->groundwaterSteps() + site->heatSteps(), steps);
}

TEST(FVGeothermModel, stoppedModelDoesNotAdvanceItsIntegrators) {
  const auto site = doubletSite();
  site->stop();
  solveTo(*site, day);
  EXPECT_EQ(site->groundwaterSteps() + site->heatSteps(), 0);
  EXPECT_EQ(site->heatSolver()->time(), 0.0);
}

TEST(FVGeothermModel, failedGroundwaterAdvanceIsNotDoneAndTheErrorNamesItsCode) {
  const auto site = doubletSite();
  solveTo(*site, 2 * day);
  EXPECT_THROW(site->solveGroundwater(day, tolerance, tolerance), CvodeError);
  EXPECT_FALSE(site->groundwaterDone());
  EXPECT_EQ(site->time(), 2 * day);
}

TEST(FVGeothermModel, failedHeatAdvanceLeavesTheTimeAndTheGroundwaterDone) {
  const auto site = doubletSite();
  solveTo(*site, 2 * day);
  EXPECT_THROW(site->solveHeat(day, true, tolerance, tolerance), CvodeError);
  EXPECT_TRUE(site->groundwaterDone());
  EXPECT_EQ(site->time(), 2 * day);
}

TEST(FVGeothermModel, connectionDumpHasOneLineOfLabelledValuesPerLink) {
  FVGeothermModel model(10.0, 1000.0, 4000.0, 1e-3, 0.0, true);
  const FVMaterial rock("rock", 0.5, 2000.0, 1000.0, 2.0, 1e-10, 1e-8);
  model.addElement(8.0, rock, 0.0, 12.0);
  model.addElement(8.0, rock, 0.0, 8.0);
  model.addConnection(1.0, 1.0, 2.0, 2.0, 0.0, 10.0, 0, 1);
  model.heat.setFlow(0, -0.5, 0.5, 3.0, 0.0);
  model.addExchange(1, 2.0, 4.0, 1.0, 2000.0, 1000.0, 2.0, 100.0, 8.0);
  std::ostringstream stream;
  model.writeConnections(stream);
  std::istringstream lines(stream.str());
  std::string line;
  std::getline(lines, line);
  EXPECT_EQ(line, "Connections: 6");
  std::getline(lines, line);
  EXPECT_EQ(line, "0: i1: 0, i2: 1, d1, 1, d2, 1, a, 2, ax, 2, ay, 0, Q_F, -0.5, Q_x, 3, Q_y, 0, "
                  "beta, 10, D, 30, Heatflow cond, -8, Heatflow adv, -2.4e+07, Heatflow disp, "
                  "-4.8e+08");
  std::getline(lines, line);
  EXPECT_EQ(line, "1: i1: 1, i2: 2, d1, 1, d2, 0.5, a, 4, ax, 0, ay, 0, Q_F, 0, Q_x, 0, Q_y, 0, "
                  "beta, 0, D, 0, Heatflow cond, -0, Heatflow adv, 0, Heatflow disp, 0");
}
