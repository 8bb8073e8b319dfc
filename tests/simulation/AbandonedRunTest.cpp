#include "simulation/SimulationRunTest.h"

using namespace TVR;
using namespace TVR::Parameter;

TEST_F(SimulationRunTest, aBatchThatIsAbandonedAtAStepLeavesNoTable) {
  read(BatchProject::doublet());
  seen.atStep = [this](int) { run.abandon(); };
  EXPECT_THROW(run.runSimulation(true), RunAbandoned);
  EXPECT_EQ(seen.steps.size(), 1u);
  EXPECT_FALSE(run.isRunning());
  EXPECT_FALSE(QFile::exists(path("project.out")));
}

TEST_F(SimulationRunTest, aBatchThatIsAbandonedAtItsLastStepLeavesNoTableEither) {
  read(BatchProject::doublet().set("main", "simulation_time", 1));
  seen.atStep = [this](int) { run.abandon(); };
  EXPECT_THROW(run.runSimulation(true), RunAbandoned);
  EXPECT_FALSE(QFile::exists(path("project.out")));
}

TEST_F(SimulationRunTest, aBatchAfterAnAbandonedOneEndsAtOnce) {
  read(BatchProject::doublet());
  run.abandon();
  EXPECT_THROW(run.runSimulation(true), RunAbandoned);
  EXPECT_TRUE(seen.steps.empty());
}

TEST_F(SimulationRunTest, anInteractiveRunThatIsAbandonedShowsAndWritesNothing) {
  read(BatchProject::doublet());
  store.setValue(WriteWellOutput, true);
  store.setValue(WellOutputFile, path("settings.txt"));
  seen.atStep = [this](int) { run.abandon(); };
  runInteractively();
  EXPECT_EQ(seen.events.last(), "abandoned");
  EXPECT_FALSE(seen.events.contains("results"));
  EXPECT_FALSE(run.isRunning());
  EXPECT_EQ(run.simulation(), nullptr);
  EXPECT_FALSE(QFile::exists(path("settings.txt")));
}
