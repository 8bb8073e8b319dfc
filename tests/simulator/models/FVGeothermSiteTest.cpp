#include "simulator/SiteFixtures.h"
#include "simulator/mesh/MeshGeneration.h"
#include "simulator/solvers/FVCvodeSolver.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using SiteFixtures::day;
using SiteFixtures::makeSite;
using SiteFixtures::SiteOptions;

namespace {

SiteOptions withExchange(double factor) {
  SiteOptions options;
  options.exchangeFactor = factor;
  return options;
}

/// A doublet 40 m apart on the x axis in standing water, 2 l/s, injecting 5 K warmer.
class DoubletRun : public testing::Test {
protected:
  static void SetUpTestSuite() {
    std::vector<Well> wells{Well(0, -20.0, 0.0, -0.002), Well(1, 20.0, 0.0, 0.002, 5.0)};
    std::vector<Well*> pointers{&wells[0], &wells[1]};
    const auto mesh =
        makeWellDiscretisation(10.0, 150.0, 150.0, pointers, 1.0, 20.0, 1.3, 2000, false);
    SiteOptions options;
    options.gradient = 0.0;
    site = makeSite(*mesh, wells, options);
    for (const double t : {10 * day, 60 * day, 180 * day}) {
      site->solveGroundwater(t, 1e-6, 1e-6);
      site->solveHeat(t, true, 1e-6, 1e-6);
    }
  }
  static void TearDownTestSuite() { site.reset(); }

  static std::size_t cell(double x, double y) { return site->mesh().findElement(x, y); }
  static std::unique_ptr<FVGeothermSite> site;
};

std::unique_ptr<FVGeothermSite> DoubletRun::site;

} // namespace

TEST(FVGeothermSite, initialPressureFallsFromTheFirstElementAlongTheGradient) {
  const auto site = makeSite(SiteFixtures::gradedMesh(), {});
  const FVMesh& mesh = site->mesh();
  for (std::size_t i = 0; i < mesh.elements.size(); ++i)
    EXPECT_DOUBLE_EQ(site->groundwater.elements[i]->pressure,
                     (mesh.elements[i].x - mesh.elements[0].x) * -20.0);
  for (std::size_t i = 0; i < mesh.boundaryElements.size(); ++i)
    EXPECT_DOUBLE_EQ(site->groundwater.boundaryElements[i]->pressure,
                     (mesh.boundaryElements[i].x - mesh.elements[0].x) * -20.0);
}

TEST(FVGeothermSite, bothModelsHaveTheCellsAndLinksOfTheMesh) {
  const FVMesh mesh = SiteFixtures::gradedMesh();
  const auto site = makeSite(mesh, {});
  EXPECT_EQ(site->groundwater.elements.size(), mesh.elements.size());
  EXPECT_EQ(site->heat.elements.size(), mesh.elements.size());
  EXPECT_EQ(site->heat.boundaryElements.size(), mesh.boundaryElements.size());
  EXPECT_EQ(site->groundwater.connections.size(), mesh.connections.size());
  EXPECT_EQ(site->heat.connections.size(), mesh.connections.size());
  EXPECT_EQ(site->heat.boundaryConnections.size(), mesh.boundaryConnections.size());
  EXPECT_EQ(site->groundwater.bandwidth, mesh.nx);
  EXPECT_EQ(site->heat.bandwidth, mesh.nx);
}

TEST(FVGeothermSite, temperatureStartsAtTheReference) {
  const auto site = makeSite(SiteFixtures::gradedMesh(), {});
  EXPECT_EQ(site->temperature(3), 10.0);
  EXPECT_EQ(site->heat.referenceValue, 10.0);
  EXPECT_EQ(site->energy(3, 10.0), 0.0);
}

TEST(FVGeothermSite, wellsAreCopied) {
  std::vector<Well> wells{Well(4, 14.5, 6.5, -0.001)};
  const auto site = makeSite(SiteFixtures::gradedMesh(), wells);
  wells[0].setRate(0, 99.0);
  ASSERT_EQ(site->wells().size(), 1u);
  EXPECT_EQ(site->wells()[0]->id(), 4);
  EXPECT_EQ(site->wells()[0]->rate(0), -0.001);
  EXPECT_NE(site->wells()[0], &wells[0]);
}

TEST(FVGeothermSite, wellOutsideTheMeshThrowsThePlainText) {
  EXPECT_THROW(makeSite(SiteFixtures::gradedMesh(), {Well(0, -5.0, 0.5)}), const char*);
}

TEST(FVGeothermSite, undefinedSurroundingTakesTheRockOfTheAquifer) {
  SiteOptions options = withExchange(1.0);
  options.surrounding.name = "undefined";
  const auto site = makeSite(SiteFixtures::gradedMesh(), {}, options);
  EXPECT_EQ(site->surrounding().name, "gravel");
  EXPECT_EQ(site->heat.elements.back()->conductivity, SiteFixtures::gravel().conductivity);
}

TEST(FVGeothermSite, namedSurroundingIsUsedForTheChains) {
  const auto site = makeSite(SiteFixtures::gradedMesh(), {}, withExchange(1.0));
  EXPECT_EQ(site->surrounding().name, "clay");
  EXPECT_EQ(site->heat.elements.back()->conductivity, SiteFixtures::clay().conductivity);
}

TEST(FVGeothermSite, withoutExchangeFactorThereAreNoChains) {
  const auto site = makeSite(SiteFixtures::gradedMesh(), {}, withExchange(0.0));
  EXPECT_EQ(site->heat.elements.size(), site->mesh().elements.size());
}

TEST(FVGeothermSite, cellsWithAWellHaveNoChainAlsoAtRateZero) {
  const FVMesh mesh = SiteFixtures::gradedMesh();
  const auto site =
      makeSite(mesh, {Well(0, 14.5, 6.5, 0.0), Well(1, 14.6, 6.4, 0.1), Well(2, 20.0, 2.0, -0.1)},
               withExchange(1.0));
  const std::size_t cells = mesh.elements.size();
  EXPECT_EQ(site->heat.elements.size(), cells + 5 * (cells - 2));
  std::vector<std::size_t> chained;
  for (std::size_t k = mesh.connections.size(); k < site->heat.connections.size(); ++k)
    if (site->heat.connectionIndices[k].first < cells)
      chained.push_back(site->heat.connectionIndices[k].first);
  EXPECT_EQ(chained.size(), cells - 2);
  EXPECT_EQ(std::count(chained.begin(), chained.end(), mesh.findElement(14.5, 6.5)), 0);
  EXPECT_EQ(std::count(chained.begin(), chained.end(), mesh.findElement(20.0, 2.0)), 0);
}

TEST(FVGeothermSite, chainsLeaveTheBandOneMeshRowWide) {
  const auto site = makeSite(SiteFixtures::gradedMesh(), {}, withExchange(2.0));
  EXPECT_EQ(site->heat.bandwidth, site->mesh().nx);
}

TEST(FVGeothermSite, exchangeFactorEnlargesTheAreaOfTheChain) {
  const FVMesh mesh = SiteFixtures::gradedMesh();
  const auto one = makeSite(mesh, {}, withExchange(1.0));
  const auto two = makeSite(mesh, {}, withExchange(2.0));
  const std::size_t first = mesh.connections.size();
  EXPECT_DOUBLE_EQ(one->heat.connections[first]->a, mesh.elements[0].volume / mesh.H);
  EXPECT_DOUBLE_EQ(two->heat.connections[first]->a, 2.0 * one->heat.connections[first]->a);
}

TEST(FVGeothermSite, restingSiteStaysAsItIs) {
  const auto site =
      makeSite(SiteFixtures::gradedMesh(), {Well(0, 14.5, 6.5, 0.0)}, withExchange(1.0));
  site->solveGroundwater(100 * day, 1e-6, 1e-6);
  site->solveHeat(100 * day, true, 1e-6, 1e-6);
  for (std::size_t i = 0; i < site->mesh().elements.size(); ++i) {
    EXPECT_NEAR(site->pressureChange(i), 0.0, 1e-6);
    EXPECT_NEAR(site->temperature(i), 10.0, 1e-6);
  }
}

TEST(FVGeothermSite, chainTakesHeatFromAWarmAquifer) {
  SiteOptions options = withExchange(1.0);
  options.gradient = 0.0;
  const std::vector<Well> wells{Well(0, 9.0, 6.5, -0.0005), Well(1, 20.0, 6.5, 0.0005, 8.0)};
  const auto chained = makeSite(SiteFixtures::gradedMesh(), wells, options);
  options.exchangeFactor = 0.0;
  const auto insulated = makeSite(SiteFixtures::gradedMesh(), wells, options);
  for (FVGeothermSite* site : {chained.get(), insulated.get()}) {
    site->solveGroundwater(200 * day, 1e-6, 1e-6);
    site->solveHeat(200 * day, true, 1e-6, 1e-6);
  }
  const std::size_t between = chained->mesh().findElement(14.5, 6.5);
  EXPECT_GT(insulated->temperature(between), 10.5);
  EXPECT_LT(chained->temperature(between), insulated->temperature(between) - 0.05);
}

TEST_F(DoubletRun, pressureFallsAtTheProductionAndRisesAtTheInjection) {
  // A dipole in the plane: p = Q mu / (2 pi k H) ln(r1 / r2), at the well cell's equivalent radius
  // of one fifth of its width (Peaceman, 1978).
  const double expected =
      0.002 * SiteFixtures::viscosity / (2 * M_PI * 1e-10 * 10.0) * std::log(40.0 / 0.2);
  EXPECT_NEAR(site->pressureChange(cell(20.0, 0.0)), expected, 0.1 * expected);
  EXPECT_LT(site->pressureChange(cell(-20.0, 0.0)), 0.0);
}

TEST_F(DoubletRun, pressureIsAntisymmetricAboutTheMiddle) {
  const FVMesh& mesh = site->mesh();
  const double scale = site->pressureChange(cell(20.0, 0.0));
  for (std::size_t i = 0; i < mesh.elements.size(); ++i) {
    const std::size_t column = i % static_cast<std::size_t>(mesh.nx);
    const std::size_t mirror = i - 2 * column + static_cast<std::size_t>(mesh.nx) - 1;
    ASSERT_NEAR(site->pressureChange(i), -site->pressureChange(mirror), 1e-4 * scale);
  }
}

TEST_F(DoubletRun, stateIsSymmetricAboutTheAxisOfTheWells) {
  const FVMesh& mesh = site->mesh();
  const auto rows = static_cast<std::size_t>(mesh.ny);
  const auto columns = static_cast<std::size_t>(mesh.nx);
  for (std::size_t row = 0; row < rows; ++row)
    for (std::size_t column = 0; column < columns; ++column) {
      const std::size_t i = row * columns + column;
      const std::size_t mirror = (rows - 1 - row) * columns + column;
      ASSERT_NEAR(site->pressureChange(i), site->pressureChange(mirror), 0.1);
      ASSERT_NEAR(site->temperature(i), site->temperature(mirror), 1e-3);
    }
}

TEST_F(DoubletRun, injectionCellTakesTheTemperatureOfTheInjectedWater) {
  const double produced = site->temperature(cell(-20.0, 0.0));
  EXPECT_NEAR(site->temperature(cell(20.0, 0.0)), produced + 5.0, 0.01);
}

TEST_F(DoubletRun, temperaturesStayBetweenTheReferenceAndTheInjection) {
  const double warmest = site->temperature(cell(20.0, 0.0));
  for (std::size_t i = 0; i < site->mesh().elements.size(); ++i) {
    ASSERT_GE(site->temperature(i), 10.0 - 1e-3);
    ASSERT_LE(site->temperature(i), warmest + 1e-3);
  }
}

TEST_F(DoubletRun, everyHeatStepIsRecordedInEveryWell) {
  for (const Well* well : site->wells()) {
    EXPECT_EQ(static_cast<long>(well->times().size()), site->heatSteps());
    EXPECT_EQ(well->temperatures().size(), well->times().size());
    const std::vector<double> times = well->times();
    EXPECT_TRUE(std::is_sorted(times.begin(), times.end()));
    EXPECT_EQ(well->times().back(), 180 * day);
  }
}
