#include "simulation/SiteSetupTest.h"

#include <cmath>

using namespace TVR;
using namespace TVR::Parameter;

TEST_F(SiteSetupTest, anAquiferWithoutThicknessIsARangeError) {
  read(BatchProject::doublet());
  store.setValue(AquiferThickness, -1.0);
  EXPECT_THROW(setUp(), std::range_error);
}

TEST_F(SiteSetupTest, theExchangeLengthIsNoDiffusionLength) {
  BatchProject project = BatchProject::doublet();
  project.set("thermic", "heat_conductivity_surrounding", 2.5);
  project.set("main", "density_surrounding", 2500);
  read(project);
  EXPECT_NEAR(setUp().input.exchangeLength, std::sqrt(2 * year / 2500), 1e-9);
}

TEST_F(SiteSetupTest, thePressureFallsAlongTheFlow) {
  BatchProject project = BatchProject::doublet();
  project.set("main", "density_water", 998);
  project.set("hydraulic", "groundwater_gradient", 0.25);
  read(project);
  EXPECT_NEAR(setUp().input.pressureGradient, -998 * 0.25 * 9.81 / 100, 1e-9);
}

TEST_F(SiteSetupTest, materialsComeFromTheParameters) {
  BatchProject project = BatchProject::doublet();
  project.set("main", "density_aquifer", 2300);
  project.set("main", "density_surrounding", 2500);
  project.set("thermic", "heat_conductivity_aquifer", 2.1);
  project.set("thermic", "heat_conductivity_surrounding", 2.7);
  project.set("thermic", "spezific_heat_capacity_stone", 850);
  project.set("hydraulic", "kf", 0.003);
  project.set("hydraulic", "aquifer_porosity", 0.2);
  read(project);
  const SimulationInput input = setUp().input;
  const double permeability = 0.00131 * 0.003 / number(Gravity) / 1000;

  EXPECT_EQ(input.aquifer.name, "material");
  EXPECT_EQ(input.aquifer.porosity, 0.2);
  EXPECT_EQ(input.aquifer.rockDensity, 2300);
  EXPECT_EQ(input.aquifer.rockHeatCapacity, 850);
  EXPECT_EQ(input.aquifer.conductivity, 2.1);
  EXPECT_DOUBLE_EQ(input.aquifer.permeability, permeability);
  EXPECT_EQ(input.aquifer.compressibility, 1e-7);

  EXPECT_EQ(input.surrounding.name, "material_surrounding");
  EXPECT_EQ(input.surrounding.porosity, 0.2);
  EXPECT_EQ(input.surrounding.rockDensity, 2500);
  EXPECT_EQ(input.surrounding.rockHeatCapacity, 850);
  EXPECT_EQ(input.surrounding.conductivity, 2.7);
  EXPECT_DOUBLE_EQ(input.surrounding.permeability, permeability);
  EXPECT_EQ(input.surrounding.compressibility, 1e-7);
}

TEST_F(SiteSetupTest, thePermeabilityFollowsTheParameterOfGravityAndThePressureDoesNot) {
  BatchProject project = BatchProject::doublet();
  project.set("hydraulic", "kf", 0.003);
  project.set("hydraulic", "groundwater_gradient", 0.25);
  read(project);
  store.setValue(Gravity, 1.62);
  const SimulationInput input = setUp().input;
  EXPECT_DOUBLE_EQ(input.aquifer.permeability, 0.00131 * 0.003 / 1.62 / 1000);
  EXPECT_NEAR(input.pressureGradient, -1000 * 0.25 * 9.81 / 100, 1e-9);
}

TEST_F(SiteSetupTest, theRestOfTheInputComesFromTheParameters) {
  BatchProject project = BatchProject::doublet();
  project.set("main", "reltol_groundwater", 1e-4);
  project.set("main", "abstol_groundwater", 2e-4);
  project.set("main", "reltol_thermic", 3e-4);
  project.set("main", "abstol_thermic", 4e-4);
  project.set("main", "dynamic_viscosity_water", 0.0012);
  project.set("thermic", "spezific_heat_capacity_water", 4190);
  project.set("thermic", "referenz_temperature", 12);
  project.set("thermic", "exchange_caprock", "true");
  project.set("thermic", "wells_used_closed_loop", 1);
  read(project);
  const SiteSetup setup = setUp();
  EXPECT_EQ(setup.input.mesh, setup.mesh.get());
  EXPECT_EQ(setup.input.viscosity, 0.0012);
  EXPECT_EQ(setup.input.waterHeatCapacity, 4190);
  EXPECT_EQ(setup.input.waterDensity, 1000);
  EXPECT_EQ(setup.input.referenceTemperature, 12);
  EXPECT_EQ(setup.input.caprock, 1);
  EXPECT_EQ(setup.input.bedrock, 0);
  EXPECT_TRUE(setup.input.closedLoop);
  EXPECT_EQ(setup.input.startTime, 0);
  EXPECT_EQ(setup.input.times, (std::vector<double>{year, 2 * year}));
  EXPECT_EQ(setup.input.demandSteps, (std::vector<int>{0, 0}));
  EXPECT_EQ(setup.tolerances.relativeGroundwater, 1e-4);
  EXPECT_EQ(setup.tolerances.absoluteGroundwater, 2e-4);
  EXPECT_EQ(setup.tolerances.relativeHeat, 3e-4);
  EXPECT_EQ(setup.tolerances.absoluteHeat, 4e-4);
}

TEST_F(SiteSetupTest, theExtentOfTheLastResultsIsCleared) {
  read(BatchProject::doublet());
  store.setValue(MaximumExtent3K, 55.0);
  store.setValue(TimeOfMaximumExtent3K, 66.0);
  setUp();
  EXPECT_EQ(number(MaximumExtent3K), 0);
  EXPECT_EQ(number(TimeOfMaximumExtent3K), 0);
}

TEST_F(SiteSetupTest, outputTimesDependOnTheProject) {
  read(BatchProject::seasons());
  store.setValue(ThermalDispersivity, 5.0);
  const OutputTimeInput input = outputTimeInput(store, 24);
  EXPECT_EQ(input.simulationTime, 2 * year);
  EXPECT_EQ(input.durations, (std::vector<double>{year / 2, year / 2}));
  EXPECT_EQ(input.cycleLength, 24);
  EXPECT_EQ(input.dispersivity, 5);
}
