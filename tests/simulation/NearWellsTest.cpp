#include "project/NearWells.h"

#include "simulation/SiteSetupTest.h"

#include <cmath>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

class NearWellsTest : public SiteSetupTest {
protected:
  /// A doublet whose wells stand `distance` [m] apart, the second one `angle` [rad] north of east.
  void readDoublet(double distance, double angle = 0.0, double flowDirection = 90.0) {
    BatchProject project;
    project.set("hydraulic", "groundwater_flow_direction", flowDirection);
    project.addWell("Pump", 100, 200, -0.001);
    project.addWell("Return", 100 + distance * std::cos(angle), 200 + distance * std::sin(angle),
                    0.001, -3);
    read(project);
  }
};

} // namespace

TEST_F(NearWellsTest, wellsAreNearBelowAMetre) {
  readDoublet(1.001);
  EXPECT_TRUE(nearWells(store).empty());
  readDoublet(0.99); // the file has another size, or its reader may take it for the former one
  const std::vector<NearWells> pairs = nearWells(store);
  ASSERT_EQ(pairs.size(), 1u);
  EXPECT_EQ(pairs[0].one, 0);
  EXPECT_EQ(pairs[0].other, 1);
  EXPECT_NEAR(pairs[0].distance, 0.99, 1e-9);
  EXPECT_FALSE(pairs[0].shareACell);
}

TEST_F(NearWellsTest, wellsAtOnePlaceAreNoPair) {
  readDoublet(0.0);
  EXPECT_TRUE(nearWells(store).empty());
}

TEST_F(NearWellsTest, everyPairIsFoundWhereverItsWellsStandInTheTable) {
  BatchProject project;
  project.addWell("East", 50, 0, -0.001);
  project.addWell("West", 0, 0, 0.001);
  project.addWell("Beside the one in the east", 49.2, 0, 0.001);
  project.addWell("Far north of it", 49.2, 30, -0.001);
  project.addWell("Beside the one in the west", 0, -0.7, -0.001);
  read(project);
  const std::vector<NearWells> pairs = nearWells(store);
  ASSERT_EQ(pairs.size(), 2u);
  EXPECT_EQ(std::pair(pairs[0].one, pairs[0].other), std::pair(1, 4));
  EXPECT_EQ(std::pair(pairs[1].one, pairs[1].other), std::pair(0, 2));
}

TEST_F(NearWellsTest, aCellIsSharedWhereTheMeshHasOneForBoth) {
  int shared = 0;
  for (const double cell : {0.4, 1.0, 4.0})
    for (const double flowDirection : {90.0, 50.0})
      for (const double angle : {0.0, 0.3, 0.8, 1.57, 2.5})
        for (const double share : {0.1, 0.45, 0.55, 0.65, 0.9}) {
          readDoublet(share * cell, angle, flowDirection);
          store.setValue(MinElementLength, cell);
          const std::vector<NearWells> pairs = nearWells(store);
          const bool isShared = !pairs.empty() && pairs[0].shareACell;
          const SiteSetup setup = setUp();
          const auto cellOf = [&](int well) {
            return setup.mesh->findElement(setup.wells[well]->x(), setup.wells[well]->y());
          };
          EXPECT_EQ(isShared, cellOf(0) == cellOf(1))
              << cell << ' ' << flowDirection << ' ' << angle << ' ' << share;
          shared += isShared ? 1 : 0;
        }
  EXPECT_GT(shared, 40);
  EXPECT_LT(shared, 110);
}
