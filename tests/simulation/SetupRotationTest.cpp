#include "simulation/SiteSetupTest.h"
#include "simulator/mesh/MeshRequest.h"

using namespace TVR;
using namespace TVR::Parameter;
using MeshRequests::widths;

TEST_F(SiteSetupTest, aFlowToTheEastNeedsNoRotation) {
  read(BatchProject::doublet());
  const SiteSetup setup = setUp();
  ASSERT_EQ(setup.wells.size(), 2u);
  EXPECT_EQ(setup.wells[0]->x(), 0);
  EXPECT_EQ(setup.wells[0]->y(), 0);
  EXPECT_EQ(setup.wells[1]->x(), 40);
  EXPECT_EQ(setup.wells[1]->y(), 0);
}

TEST_F(SiteSetupTest, aFlowToTheNorthIsTurnedOntoTheAxis) {
  BatchProject project;
  project.set("hydraulic", "groundwater_flow_direction", 0);
  project.addWell("Pump", 0, 0, -0.001);
  project.addWell("Return", 0, 40, 0.001);
  read(project);
  const SiteSetup setup = setUp();
  EXPECT_NEAR(setup.wells[0]->x(), -20, 1e-9);
  EXPECT_NEAR(setup.wells[0]->y(), 20, 1e-9);
  EXPECT_NEAR(setup.wells[1]->x(), 20, 1e-9);
  EXPECT_NEAR(setup.wells[1]->y(), 20, 1e-9);
}

TEST_F(SiteSetupTest, wellsInLineStayInLineInEveryMainDirection) {
  for (const double direction : {0.0, 90.0, 180.0, 270.0, 360.0}) {
    BatchProject project;
    project.set("hydraulic", "groundwater_flow_direction", direction);
    project.addWell("West", 681020.3, 226950.7, -0.001);
    project.addWell("East", 681075.1, 226950.7, 0.001);
    project.addWell("North", 681020.3, 226985.9, 0.001);
    read(project, QStringLiteral("towards_%1.tbat").arg(direction));
    const SiteSetup setup = setUp();
    const bool isTurned = direction == 0.0 || direction == 180.0 || direction == 360.0;
    const Well& west = *setup.wells[0];
    const Well& east = *setup.wells[1];
    const Well& north = *setup.wells[2];
    EXPECT_EQ(isTurned ? west.x() : west.y(), isTurned ? east.x() : east.y()) << direction;
    EXPECT_EQ(isTurned ? west.y() : west.x(), isTurned ? north.y() : north.x()) << direction;
    for (const FVGridLine* line : {&setup.mesh->xLine, &setup.mesh->yLine})
      for (const double width : widths(*line))
        EXPECT_GT(width, 0.05) << direction;
  }
}

TEST_F(SiteSetupTest, wellsAreTurnedAroundTheMeanOfTheirPositions) {
  BatchProject project = BatchProject::doublet();
  project.set("hydraulic", "groundwater_flow_direction", 120);
  read(project);
  const SiteSetup setup = setUp();
  EXPECT_EQ(setup.frame.origin, QPointF(20, 0));
  EXPECT_NEAR(setup.wells[1]->x(), 37.32050807568877, 1e-9);
  EXPECT_NEAR(setup.wells[1]->y(), 10, 1e-9);
  EXPECT_NEAR(setup.wells[0]->x(), 2.67949192431123, 1e-9);
  EXPECT_NEAR(setup.wells[0]->y(), -10, 1e-9);
}

TEST_F(SiteSetupTest, wellsWithoutARateCountForTheCentreOfTheRotation) {
  BatchProject project;
  project.addWell("Idle", 0, 90, 0);
  project.addWell("Pump", 0, 0, -0.001);
  project.addWell("Return", 30, 0, 0.001);
  read(project);
  EXPECT_EQ(setUp().frame.origin, QPointF(10, 30));
}

TEST_F(SiteSetupTest, withoutARegionalFlowNothingIsTurned) {
  BatchProject project = BatchProject::doublet();
  project.set("hydraulic", "groundwater_flow_direction", 30);
  project.set("hydraulic", "groundwater_gradient", 0);
  read(project);
  const SiteSetup setup = setUp();
  EXPECT_EQ(setup.wells[1]->x(), 40);
  EXPECT_EQ(setup.wells[1]->y(), 0);
  EXPECT_EQ(setup.input.pressureGradient, 0);
}
