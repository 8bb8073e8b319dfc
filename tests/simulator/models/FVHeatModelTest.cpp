#include "simulator/models/FVHeatModel.h"

#include "simulator/SiteFixtures.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>
#include <random>
#include <stdexcept>

using SiteFixtures::makeSite;

namespace {

constexpr double waterCapacity = SiteFixtures::waterDensity * SiteFixtures::waterHeatCapacity;

FVHeatElement cell(double temperature, double conductivity = 2.0) {
  return {10.0,
          temperature,
          0.25,
          2600.0,
          800.0,
          SiteFixtures::waterDensity,
          SiteFixtures::waterHeatCapacity,
          conductivity};
}

/// Two cells at 12 and 8 deg C with a link of area 2 and the given dispersivity.
struct LinkedCells {
  explicit LinkedCells(double dispersivity, bool alongX = true)
      : link(1.0, 3.0, 2.0, alongX ? 2.0 : 0.0, alongX ? 0.0 : 2.0, 0.0, dispersivity, &e1, &e2) {}
  double flux() const {
    std::vector<double> out(1);
    link.flux(out, 0);
    return out[0];
  }
  FVHeatElement e1 = cell(12.0, 1.0);
  FVHeatElement e2 = cell(8.0, 5.0);
  FVHeatConnection link;
};

std::vector<double> derivativeOf(FVHeatModel& model, const std::vector<double>& y) {
  std::vector<double> dydt(y.size(), 0.0);
  model.evaluate(0.0, y.data(), dydt.data());
  return dydt;
}

FVHeatModel heatModel(bool closedLoop) {
  return FVHeatModel(10.0, SiteFixtures::waterDensity, SiteFixtures::waterHeatCapacity, closedLoop);
}

void addCell(FVHeatModel& model, double temperature) {
  model.addElement(10.0, temperature, 0.25, 2600.0, 800.0, 2.0);
}

double sourceTerm(FVHeatModel& model, std::size_t k, double inflow) {
  std::vector<double> out(1);
  model.sources.at(k)->flux(out, model.demandStep, inflow);
  return out[0];
}

} // namespace

TEST(FVHeatElement, capacityWeighsRockAndWaterWithThePorosity) {
  const FVHeatElement element = cell(11.0);
  EXPECT_DOUBLE_EQ(element.capacity, 0.75 * 2600.0 * 800.0 + 0.25 * waterCapacity);
  EXPECT_DOUBLE_EQ(element.waterCapacity, waterCapacity);
  EXPECT_DOUBLE_EQ(element.enthalpy(), waterCapacity * 11.0);
  EXPECT_DOUBLE_EQ(element.energy(10.0), element.capacity * 10.0);
}

TEST(FVHeatElement, derivativeIsClearedBeforeAndScaledAfter) {
  const FVHeatElement element = cell(11.0);
  double dydt = 5.0;
  element.initDerivative(&dydt, 0.0, 0.0);
  EXPECT_EQ(dydt, 0.0);
  dydt = element.capacity * 10.0;
  element.scaleDerivative(&dydt);
  EXPECT_DOUBLE_EQ(dydt, 1.0);
}

TEST(FVHeatConnection, conductionRunsFromWarmToCold) {
  const LinkedCells cells(0.0);
  const double meanConductivity = (1.0 * 1.0 + 5.0 * 3.0) / 4.0;
  EXPECT_DOUBLE_EQ(cells.link.conduction(), -(2.0 / 4.0 * meanConductivity) * 4.0);
  EXPECT_DOUBLE_EQ(cells.flux(), cells.link.conduction());
}

TEST(FVHeatConnection, flowIsTakenUpwindFromTheElementThatItLeaves) {
  LinkedCells cells(0.0);
  cells.link.setFlow(-0.1, 0.25, 0.0, 0.0);
  EXPECT_EQ(cells.link.upwind, &cells.e1);
  EXPECT_DOUBLE_EQ(cells.link.advection(), -0.1 * waterCapacity * 12.0);
  cells.link.setFlow(0.1, 0.25, 0.0, 0.0);
  EXPECT_EQ(cells.link.upwind, &cells.e2);
  EXPECT_DOUBLE_EQ(cells.link.advection(), 0.1 * waterCapacity * 8.0);
}

TEST(FVHeatConnection, constructorChoosesTheUpwindElementToo) {
  FVHeatElement e1 = cell(12.0);
  FVHeatElement e2 = cell(8.0);
  EXPECT_EQ(FVHeatConnection(1.0, 1.0, 2.0, 2.0, 0.0, -1.0, 0.0, &e1, &e2).upwind, &e1);
  EXPECT_EQ(FVHeatConnection(1.0, 1.0, 2.0, 2.0, 0.0, 1.0, 0.0, &e1, &e2).upwind, &e2);
  EXPECT_EQ(FVHeatConnection(1.0, 1.0, 2.0, 2.0, 0.0, 0.0, 0.0, &e1, &e2).upwind, nullptr);
}

TEST(FVHeatConnection, zeroFlowHasNoUpwindElementAndNoAdvection) {
  LinkedCells cells(0.0);
  cells.link.setFlow(-0.1, 0.25, 0.0, 0.0);
  cells.link.setFlow(0.0, 0.25, 0.0, 0.0);
  EXPECT_EQ(cells.link.upwind, nullptr);
  EXPECT_EQ(cells.link.advection(), 0.0);
}

TEST(FVHeatConnection, vanishingFlowTakesTheMeanOfBothElements) {
  LinkedCells cells(0.0);
  const double Q = 1e-310;
  cells.link.setFlow(Q, 0.25, 0.0, 0.0);
  EXPECT_EQ(cells.link.upwind, nullptr);
  EXPECT_EQ(cells.link.advection(), (cells.e2.enthalpy() + cells.e1.enthalpy()) * Q * 0.5);
  EXPECT_NE(cells.link.advection(), 0.0);
}

TEST(FVHeatConnection, dispersionCoefficientFollowsTheTensorInTheDirectionOfTheFace) {
  // Pore velocity (3, 4): Dxx = 21.2, Dyy = 33.8, Dxy = 21.6 for a dispersivity of 10 m.
  LinkedCells alongX(10.0, true);
  alongX.link.setFlow(1.0, 0.5, 3.0, 4.0);
  EXPECT_DOUBLE_EQ(alongX.link.velocity, 5.0);
  EXPECT_DOUBLE_EQ(alongX.link.D, std::sqrt(21.2 * 21.2 + 21.6 * 21.6));
  LinkedCells alongY(10.0, false);
  alongY.link.setFlow(1.0, 0.5, 3.0, 4.0);
  EXPECT_DOUBLE_EQ(alongY.link.D, std::sqrt(21.6 * 21.6 + 33.8 * 33.8));
}

TEST(FVHeatConnection, dispersionRunsFromWarmToCold) {
  LinkedCells cells(10.0);
  cells.link.setFlow(0.0, 0.5, 3.0, 4.0);
  EXPECT_DOUBLE_EQ(cells.link.dispersion(), -(2.0 / 4.0 * cells.link.D * waterCapacity * 4.0));
  EXPECT_DOUBLE_EQ(cells.flux(), cells.link.conduction() + cells.link.dispersion());
}

TEST(FVHeatConnection, withoutDispersivityThereIsNoDispersion) {
  LinkedCells cells(0.0);
  cells.link.setFlow(1.0, 0.5, 3.0, 4.0);
  EXPECT_EQ(cells.link.velocity, 5.0);
  EXPECT_EQ(cells.link.D, 0.0);
  cells.link.D = 1.0;
  EXPECT_EQ(cells.link.dispersion(), 0.0);
}

TEST(FVHeatConnection, standingWaterClearsTheDispersionCoefficient) {
  LinkedCells cells(10.0);
  cells.link.setFlow(1.0, 0.5, 3.0, 4.0);
  cells.link.setFlow(1.0, 0.5, 0.0, 0.0);
  EXPECT_EQ(cells.link.velocity, 0.0);
  EXPECT_EQ(cells.link.D, 0.0);
}

TEST(FVHeatModel, openLoopInjectsAtTheReferencePlusTheChangeOfTheWell) {
  FVHeatModel model = heatModel(false);
  addCell(model, 20.0);
  addCell(model, 20.0);
  Well production(0, 0.0, 0.0, -0.01);
  Well injection(1, 0.0, 0.0, 0.01, 5.0);
  model.addSource(&production, 0);
  model.addSource(&injection, 1);
  const std::vector<double> dTdt = derivativeOf(model, {20.0, 20.0});
  const double cellCapacity = model.elements[0]->capacity * 10.0;
  EXPECT_DOUBLE_EQ(dTdt[0], -0.01 * waterCapacity * 20.0 / cellCapacity);
  EXPECT_DOUBLE_EQ(dTdt[1], 0.01 * waterCapacity * 15.0 / cellCapacity);
}

TEST(FVHeatModel, closedLoopInjectsTheMixedProductionPlusTheChangeOfTheWell) {
  FVHeatModel model = heatModel(true);
  for (int i = 0; i < 3; ++i)
    addCell(model, 10.0);
  Well weak(0, 0.0, 0.0, -0.01);
  Well strong(1, 0.0, 0.0, -0.03);
  Well injection(2, 0.0, 0.0, 0.04, 5.0);
  model.addSource(&weak, 0);
  model.addSource(&strong, 1);
  model.addSource(&injection, 2);
  const std::vector<double> dTdt = derivativeOf(model, {10.0, 14.0, 9.0});
  const double cellCapacity = model.elements[0]->capacity * 10.0;
  EXPECT_DOUBLE_EQ(dTdt[2], 0.04 * waterCapacity * 18.0 / cellCapacity);
}

TEST(FVHeatModel, productionWellWithRateZeroAddsNothingAndIsNotMixed) {
  FVHeatModel model = heatModel(true);
  addCell(model, 30.0);
  addCell(model, 14.0);
  Well idle(0, 0.0, 0.0, 0.0, 5.0);
  Well production(1, 0.0, 0.0, -0.01);
  model.addSource(&idle, 0);
  model.addSource(&production, 1);
  EXPECT_EQ(derivativeOf(model, {30.0, 14.0})[0], 0.0);
  EXPECT_EQ(sourceTerm(model, 0, 12.0), 0.0);
  EXPECT_DOUBLE_EQ(model.mixedProductionValue(), 14.0);
}

TEST(FVHeatModel, acceptedStepRecordsTheTemperatureOfEveryWell) {
  FVHeatModel model = heatModel(true);
  addCell(model, 30.0);
  addCell(model, 14.0);
  Well first(0, 0.0, 0.0);
  Well second(1, 0.0, 0.0);
  model.addSource(&first, 1);
  model.addSource(&second, 0);
  model.stepAccepted(100.0);
  EXPECT_EQ(first.times(), (std::vector<double>{100.0}));
  EXPECT_EQ(first.temperatures(), (std::vector<double>{14.0}));
  EXPECT_EQ(second.temperatures(), (std::vector<double>{30.0}));
}

TEST(FVHeatModel, temperatureDifferenceIsAMagnitude) {
  FVHeatModel model = heatModel(true);
  addCell(model, 30.0);
  addCell(model, 14.0);
  model.addConnection(1.0, 1.0, 2.0, 2.0, 0.0, 0.0, 0.0, 1, 0);
  EXPECT_EQ(model.temperatureDifference(0), 16.0);
}

TEST(FVHeatModel, exchangeStacksFiveLayersOfRockOnACell) {
  FVHeatModel model = heatModel(true);
  addCell(model, 12.0);
  addCell(model, 12.0);
  model.addExchange(0, 6.0, 5.0, 2.0, 2700.0, 900.0, 1.5, 20.0, 9.0);
  ASSERT_EQ(model.elements.size(), 7u);
  const std::vector<double> thickness{0.2, 0.6, 1.0, 4.0, 20.0};
  for (std::size_t k = 0; k < 5; ++k) {
    const FVHeatElement& layer = *model.elements[2 + k];
    EXPECT_DOUBLE_EQ(layer.volume, 10.0 * thickness[k]);
    EXPECT_EQ(layer.temperature, 9.0);
    EXPECT_DOUBLE_EQ(layer.capacity, 2700.0 * 900.0);
    EXPECT_EQ(layer.conductivity, 1.5);
    EXPECT_DOUBLE_EQ(layer.waterCapacity, k == 0 ? 0.0 : waterCapacity);
  }
}

TEST(FVHeatModel, exchangeLinksRunFromTheCellThroughTheLayers) {
  FVHeatModel model = heatModel(true);
  addCell(model, 12.0);
  addCell(model, 12.0);
  model.addExchange(1, 6.0, 5.0, 2.0, 2700.0, 900.0, 1.5, 20.0, 9.0);
  ASSERT_EQ(model.connections.size(), 5u);
  const std::vector<double> half{3.0, 0.1, 0.3, 0.5, 2.0, 10.0};
  for (std::size_t k = 0; k < 5; ++k) {
    const FVHeatConnection& link = *model.connections[k];
    EXPECT_DOUBLE_EQ(link.d1, half[k]);
    EXPECT_DOUBLE_EQ(link.d2, half[k + 1]);
    EXPECT_DOUBLE_EQ(link.a, 10.0);
    EXPECT_EQ(link.ax + link.ay + link.Q_F + link.dispersivity, 0.0);
    EXPECT_EQ(model.connectionIndices[k],
              (std::pair<std::size_t, std::size_t>{k == 0 ? 1 : k + 1, k + 2}));
  }
}

TEST(FVHeatModel, exchangeLinkToTheCellStaysOutsideTheBand) {
  FVHeatModel model = heatModel(true);
  for (int i = 0; i < 10; ++i)
    addCell(model, 12.0);
  model.addExchange(0, 6.0, 5.0, 1.0, 2700.0, 900.0, 1.5, 20.0, 9.0);
  EXPECT_EQ(model.bandwidth, 1);
  std::vector<double> y;
  model.getState(y);
  EXPECT_LT(derivativeOf(model, y)[0], 0.0);
}

TEST(FVHeatModel, exchangeOfAnUnknownCellAddsNothing) {
  FVHeatModel model = heatModel(true);
  addCell(model, 12.0);
  EXPECT_THROW(model.addExchange(1, 6.0, 5.0, 2.0, 2700.0, 900.0, 1.5, 20.0, 9.0),
               std::out_of_range);
  EXPECT_EQ(model.elements.size(), 1u);
  EXPECT_TRUE(model.connections.empty());
}

TEST(FVHeatModel, indexOutsideItsListThrows) {
  FVHeatModel model = heatModel(true);
  addCell(model, 12.0);
  Well well(0, 0.0, 0.0);
  EXPECT_THROW(model.addConnection(1, 1, 1, 1, 0, 0, 0, 0, 1), std::out_of_range);
  EXPECT_THROW(model.addBoundaryConnection(1, 0, 1, 1, 0, 0, 0, 0, 0), std::out_of_range);
  EXPECT_THROW(model.addSource(&well, 1), std::out_of_range);
  EXPECT_THROW(model.setFlow(0, 1.0, 0.2, 0.0, 0.0), std::out_of_range);
  EXPECT_THROW(model.setBoundaryFlow(0, 1.0, 0.2, 0.0, 0.0), std::out_of_range);
  EXPECT_THROW(model.temperature(1), std::out_of_range);
  EXPECT_THROW(model.energy(1, 0.0), std::out_of_range);
  EXPECT_TRUE(model.connections.empty());
}

TEST(FVHeatModel, heatIsConservedInRandomStatesWithChains) {
  SiteFixtures::SiteOptions options;
  options.dispersivity = 5.0;
  options.exchangeFactor = 2.0;
  const auto site = makeSite(SiteFixtures::gradedMesh(),
                             {Well(0, 14.5, 6.5, -0.003), Well(1, 20.0, 2.0, 0.004, 4.0)}, options);
  FVHeatModel& model = site->heat;
  site->updateHeatFlows();
  std::mt19937 random(7);
  std::uniform_real_distribution<double> temperature(0.0, 30.0);
  for (int trial = 0; trial < 50; ++trial) {
    std::vector<double> y(model.elementCount());
    for (double& value : y)
      value = temperature(random);
    const std::vector<double> dTdt = derivativeOf(model, y);
    double stored = 0.0;
    double magnitude = 0.0;
    for (std::size_t i = 0; i < y.size(); ++i) {
      const double power = dTdt[i] * model.elements[i]->capacity * model.elements[i]->volume;
      stored += power;
      magnitude += std::abs(power);
    }
    double entering = 0.0;
    for (std::size_t k = 0; k < model.sources.size(); ++k)
      entering += sourceTerm(model, k, model.mixedProductionValue());
    for (const auto& link : model.boundaryConnections)
      entering += link->conduction() + link->advection() + link->dispersion();
    ASSERT_NEAR(stored, entering, 1e-13 * magnitude);
  }
}
