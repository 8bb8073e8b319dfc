#include "gui/editor/PropertyEdits.h"

#include "support/ProjectTest.h"

using namespace TVR;
using namespace TVR::Parameter;
using GUI::applyEdits;

namespace {

class PropertyEditsTest : public ProjectTest {};

} // namespace

TEST_F(PropertyEditsTest, theirRulesRun) {
  store.setValue(GroundwaterGradient, 0.5);
  applyEdits(store, {{HydraulicConductivity, 0.004}});
  EXPECT_EQ(number(HydraulicConductivity), 0.004);
  EXPECT_DOUBLE_EQ(number(GroundwaterVelocity), 0.004 * 0.5 / 100);
}

TEST_F(PropertyEditsTest, noWellsAreDesignedForThem) {
  store.setValue(CalculateWellConstruction, true);
  store.setValue(NumberOfWells, 2);
  const double filter = number(FilterLength);
  applyEdits(store, {{AquiferThickness, 40.0}, {EnergyDemand, 4e6}});
  EXPECT_FALSE(store.value(CalculateWellConstruction).toBool());
  EXPECT_EQ(number(NumberOfWells), 2);
  EXPECT_EQ(number(FilterLength), filter);
}

TEST_F(PropertyEditsTest, areWrittenInTheirOrder) {
  applyEdits(store, {{SimulationTime, 1e8}, {SimulationTime, 2e8}});
  EXPECT_EQ(number(SimulationTime), 2e8);
}

TEST_F(PropertyEditsTest, neverWriteTheDensityOfTheAquiferNorTheHeadingOfHeating) {
  const QVariant density = store.value(DensityAquifer);
  const QVariant heading = store.value(HeadingHeatingSpecification);
  applyEdits(store, {{DensityAquifer, 1234.0}, {HeadingHeatingSpecification, 5}});
  EXPECT_EQ(store.value(DensityAquifer), density);
  EXPECT_EQ(store.value(HeadingHeatingSpecification), heading);
}
