#include "simulator/models/FVGroundwaterModel.h"

#include "simulator/SiteFixtures.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <stdexcept>

using SiteFixtures::lineOf;
using SiteFixtures::makeSite;

namespace {

/// Three columns and two rows of unit cells in a uniform flow along +x; by hand the flow through
/// every x link is -Q0, with Q0 = permeability / viscosity * 1 Pa/m * 1 m2.
std::unique_ptr<FVGeothermSite> uniformSite() {
  SiteFixtures::SiteOptions options;
  options.gradient = -1.0;
  return makeSite(FVMesh(lineOf({1.0, 1.0, 1.0}), lineOf({1.0, 1.0}), 1.0), {}, options);
}

double uniformFlow() {
  return SiteFixtures::gravel().permeability / SiteFixtures::viscosity;
}

std::vector<double> derivativeOf(FVGroundwaterModel& model, const std::vector<double>& y) {
  std::vector<double> dydt(y.size(), 0.0);
  model.evaluate(0.0, y.data(), dydt.data());
  return dydt;
}

/// Two cells of different rock and length with one link of area 6.
FVGroundwaterModel& twoCells(FVGroundwaterModel& model) {
  model.addElement(10.0, 0.2, 1e-8, 1e-10, 300.0);
  model.addElement(20.0, 0.1, 1e-8, 4e-10, 100.0);
  model.addConnection(1.0, 2.0, 6.0, 6.0, 0.0, 0, 1);
  return model;
}

} // namespace

TEST(FVGroundwaterElement, storesVolumeTimesPorosityTimesCompressibility) {
  const FVGroundwaterElement element(10.0, 0.2, 1e-8, 1e-10, 1e-3, 5.0);
  EXPECT_DOUBLE_EQ(element.storage, 2e-8);
  EXPECT_EQ(element.pressure, 5.0);
  EXPECT_EQ(element.initialPressure, 5.0);
}

TEST(FVGroundwaterElement, pressureChangeCountsFromTheInitialPressure) {
  FVGroundwaterElement element(10.0, 0.2, 1e-8, 1e-10, 1e-3, 5.0);
  EXPECT_EQ(element.pressureChange(), 0.0);
  const double y = 3.0;
  element.setPressure(&y);
  EXPECT_EQ(element.pressureChange(), -2.0);
}

TEST(FVGroundwaterConnection, meansAreArithmeticAndWeightedWithTheOwnDistance) {
  FVGroundwaterElement e1(1.0, 0.2, 1e-8, 1e-10, 1e-3, 0.0);
  FVGroundwaterElement e2(1.0, 0.2, 1e-8, 4e-10, 2e-3, 0.0);
  const FVGroundwaterConnection link(1.0, 2.0, 6.0, 6.0, 0.0, &e1, &e2);
  const double k = (1e-10 * 1.0 + 4e-10 * 2.0) / 3.0;
  const double mu = (1e-3 * 1.0 + 2e-3 * 2.0) / 3.0;
  EXPECT_DOUBLE_EQ(link.coefficient, -(k * 6.0 / mu / 3.0));
}

TEST(FVGroundwaterConnection, flowIsNegativeWhenWaterLeavesTheFirstElement) {
  FVGroundwaterModel model(1e-3);
  twoCells(model);
  EXPECT_DOUBLE_EQ(model.flow(0), -(3e-10 * 6.0 / 1e-3 / 3.0) * 200.0);
  EXPECT_LT(derivativeOf(model, {300.0, 100.0})[0], 0.0);
  EXPECT_GT(derivativeOf(model, {100.0, 300.0})[0], 0.0);
}

TEST(FVGroundwaterModel, coefficientStaysWhenThePermeabilityIsChangedLater) {
  FVGroundwaterModel model(1e-3);
  twoCells(model);
  const double flow = model.flow(0);
  model.elements[0]->permeability = 1.0;
  EXPECT_EQ(model.flow(0), flow);
}

TEST(FVGroundwaterModel, travelTimeHasTheSignOfTheFlow) {
  FVGroundwaterModel model(1e-3);
  twoCells(model);
  EXPECT_DOUBLE_EQ(model.travelTime(0), 3.0 * 6.0 / model.flow(0));
  EXPECT_LT(model.travelTime(0), 0.0);
}

TEST(FVGroundwaterModel, indexOutsideItsListThrowsAndRegistersNothing) {
  FVGroundwaterModel model(1e-3);
  twoCells(model);
  Well well(0, 0.0, 0.0);
  EXPECT_THROW(model.addConnection(1.0, 1.0, 1.0, 1.0, 0.0, 0, 2), std::out_of_range);
  EXPECT_THROW(model.addBoundaryConnection(1.0, 0.0, 1.0, 1.0, 0.0, 0, 0), std::out_of_range);
  EXPECT_THROW(model.addSource(&well, 2), std::out_of_range);
  EXPECT_THROW(model.flow(1), std::out_of_range);
  EXPECT_THROW(model.pressureChange(2), std::out_of_range);
  EXPECT_EQ(model.connections.size(), 1u);
  EXPECT_EQ(model.connectionIndices.size(), 1u);
  EXPECT_TRUE(model.boundaryConnections.empty());
  EXPECT_TRUE(model.sources.empty());
}

TEST(FVGroundwaterModel, wellAddsItsRateWhateverTheStateIs) {
  FVGroundwaterModel model(1e-3);
  model.addElement(10.0, 0.2, 1e-8, 1e-10, 0.0);
  Well well(0, 0.0, 0.0, -0.5);
  well.setRate(0, 0.25);
  model.addSource(&well, 0);
  EXPECT_DOUBLE_EQ(derivativeOf(model, {7.0})[0], 0.25 / 2e-8);
  model.demandStep = 1;
  EXPECT_DOUBLE_EQ(derivativeOf(model, {7.0})[0], -0.5 / 2e-8);
}

TEST(FVGroundwaterModel, acceptedStepIsKept) {
  FVGroundwaterModel model(1e-3);
  model.stepAccepted(42.0);
  EXPECT_EQ(model.lastStepTime, 42.0);
}

TEST(FVGroundwaterModel, regionalFlowIsSteadyOnAGradedMesh) {
  const auto site = makeSite(SiteFixtures::gradedMesh(), {Well(0, 14.5, 6.5, 0.0)});
  FVGroundwaterModel& model = site->groundwater;
  std::vector<double> y;
  model.getState(y);
  const std::vector<double> dpdt = derivativeOf(model, y);
  const double rowFlow = std::abs(model.flow(0));
  for (std::size_t i = 0; i < y.size(); ++i)
    EXPECT_NEAR(dpdt[i] * model.elements[i]->storage / rowFlow, 0.0, 1e-12);
}

TEST(FVGroundwaterModel, everyLinkOfARowCarriesTheSameRegionalFlowAlongPlusX) {
  const auto site = makeSite(SiteFixtures::gradedMesh(), {});
  const FVGroundwaterModel& model = site->groundwater;
  const double darcyVelocity = 20.0 * uniformFlow();
  for (std::size_t k = 0; k < model.connections.size(); ++k) {
    const FVGroundwaterConnection& link = *model.connections[k];
    EXPECT_NEAR(model.flow(k), -darcyVelocity * link.ax, 1e-12 * darcyVelocity * link.a);
  }
}

TEST(FVGroundwaterModel, pressureChangeIsZeroEverywhereAtTheStart) {
  const auto site = makeSite(SiteFixtures::gradedMesh(), {});
  for (std::size_t i = 0; i < site->groundwater.elements.size(); ++i)
    EXPECT_EQ(site->pressureChange(i), 0.0);
}

TEST(FVGroundwaterModel, waterIsConservedInRandomStates) {
  const auto site =
      makeSite(SiteFixtures::gradedMesh(), {Well(0, 14.5, 6.5, -0.003), Well(1, 20.0, 2.0, 0.004)});
  FVGroundwaterModel& model = site->groundwater;
  std::mt19937 random(5);
  std::uniform_real_distribution<double> pressure(-1000.0, 1000.0);
  for (int trial = 0; trial < 50; ++trial) {
    std::vector<double> y(model.elementCount());
    for (double& value : y)
      value = pressure(random);
    const std::vector<double> dpdt = derivativeOf(model, y);
    double stored = 0.0;
    double magnitude = 0.0;
    for (std::size_t i = 0; i < y.size(); ++i) {
      stored += dpdt[i] * model.elements[i]->storage;
      magnitude += std::abs(dpdt[i] * model.elements[i]->storage);
    }
    double entering = -0.003 + 0.004;
    for (std::size_t k = 0; k < model.boundaryConnections.size(); ++k)
      entering += model.boundaryFlow(k);
    ASSERT_NEAR(stored, entering, 1e-13 * magnitude);
  }
}

TEST(FVGroundwaterModel, uniformFlowLeavesOnlyTheRepeatedFirstLinksInTheDirectionalFlows) {
  const auto site = uniformSite();
  std::vector<double> qx(7, 9.0);
  std::vector<double> qy(7, 9.0);
  site->groundwater.computeDirectionalFlows(qx, qy);
  // Both sides of a cell cancel. The links 0, 1 and 3 count twice at their second cells 1, 2 and
  // 4, which then hold Q0 over three faces.
  const double q = uniformFlow();
  const std::vector<double> expected{q / 6, q / 3, 0.0, q / 6, q / 3, q / 6, q / 6};
  for (std::size_t k = 0; k < 7; ++k) {
    EXPECT_NEAR(qx[k], expected[k], 1e-12 * q) << "link " << k;
    EXPECT_NEAR(qy[k], 0.0, 1e-12 * q) << "link " << k;
  }
}

TEST(FVGroundwaterModel, directionalFlowsAreMeansOverTheFacesOfBothCells) {
  FVGroundwaterModel model(1e-3);
  for (const double pressure : {0.0, 3.0, 7.0, 4.0})
    model.addElement(1.0, 0.2, 1e-8, 1e-9, pressure);
  model.addConnection(0.5, 1.5, 2.0, 2.0, 0.0, 0, 1); // x link, F = 0 - 3
  model.addConnection(1.0, 1.0, 4.0, 0.0, 4.0, 0, 2); // y link
  model.addConnection(1.0, 1.0, 6.0, 0.0, 6.0, 1, 3); // y link
  model.addConnection(0.5, 1.5, 8.0, 8.0, 0.0, 2, 3); // x link
  std::vector<double> qx(4);
  std::vector<double> qy(4);
  model.computeDirectionalFlows(qx, qy);
  const double fx01 = model.flow(0);
  const double fx23 = model.flow(3);
  const double fy02 = model.flow(1);
  const double fy13 = model.flow(2);
  EXPECT_DOUBLE_EQ(qx[0], (-fx01 * 1.5 + fx01 * 0.5) / 2.0);
  EXPECT_DOUBLE_EQ(qy[0], (fy13 * 1.5 + fy02 * 0.5) / 2.0);
  EXPECT_DOUBLE_EQ(qx[1], (fx23 + fx01) / 2.0);
  EXPECT_DOUBLE_EQ(qy[2], 0.0);
}

TEST(FVGroundwaterModel, singleRowHasNoMeanInY) {
  const auto site = makeSite(FVMesh(lineOf({1.0, 1.0, 1.0}), lineOf({1.0}), 1.0), {});
  std::vector<double> qx(2);
  std::vector<double> qy(2);
  site->groundwater.computeDirectionalFlows(qx, qy);
  EXPECT_FALSE(std::isnan(qx[0]));
  EXPECT_TRUE(std::isnan(qy[0]));
  EXPECT_TRUE(std::isnan(qy[1]));
}

TEST(FVGroundwaterModel, singleColumnWithoutBoundaryHasNoMeanInX) {
  FVGroundwaterModel model(1e-3);
  model.addElement(1.0, 0.2, 1e-8, 1e-9, 1.0);
  model.addElement(1.0, 0.2, 1e-8, 1e-9, 0.0);
  model.addConnection(0.5, 0.5, 1.0, 0.0, 1.0, 0, 1);
  std::vector<double> qx(1);
  std::vector<double> qy(1);
  model.computeDirectionalFlows(qx, qy);
  EXPECT_TRUE(std::isnan(qx[0]));
  EXPECT_FALSE(std::isnan(qy[0]));
}
