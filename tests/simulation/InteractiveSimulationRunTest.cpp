#include "simulation/Simulation.h"
#include "simulation/SimulationRunTest.h"
#include "support/MessageLog.h"

#include <QPointer>

using namespace TVR;
using namespace TVR::Parameter;

TEST_F(SimulationRunTest, anInteractiveRunGoesOnWhileTheCallerDoes) {
  read(BatchProject::doublet());
  const MessageLog log;
  ASSERT_TRUE(run.runSimulation(false));
  EXPECT_TRUE(run.isRunning());
  EXPECT_TRUE(run.request().isInteractive);
  EXPECT_TRUE(seen.steps.empty());
  EXPECT_TRUE(log.lines().contains("Simulation: started on a thread"));
  EXPECT_TRUE(waitUntil([this] { return seen.isOver(); }));
  EXPECT_EQ(seen.events,
            (QStringList{"initialising interactive", "times", "starting 2", "set off", "step 0/2 1",
                         "drawdowns", "temperatures 1", "step 1/2 2", "drawdowns", "temperatures 2",
                         "results", "completing", "finished"}));
  EXPECT_FALSE(run.isRunning());
  EXPECT_EQ(run.simulation(), nullptr);
}

TEST_F(SimulationRunTest, anInteractiveRunReleasesItsThread) {
  read(BatchProject::doublet());
  ASSERT_TRUE(run.runSimulation(false));
  const QPointer<QObject> simulation = run.simulation();
  const QPointer<QObject> thread = simulation->parent();
  EXPECT_TRUE(waitUntil([&] { return !thread; }));
  EXPECT_FALSE(simulation);
}

TEST_F(SimulationRunTest, aSecondInteractiveRunIsRefusedWhileThereIsOne) {
  read(BatchProject::doublet());
  ASSERT_TRUE(run.runSimulation(false));
  Simulation* const first = run.simulation();
  EXPECT_FALSE(run.runSimulation(false));
  EXPECT_EQ(run.simulation(), first);
  EXPECT_TRUE(waitUntil([this] { return seen.isOver(); }));
  seen = Recorder();
  runInteractively();
  EXPECT_TRUE(seen.summary);
}

TEST_F(SimulationRunTest, aBatchEndsAnInteractiveRunThatStillIsThere) {
  read(BatchProject::doublet().set("main", "simulation_time", 900));
  ASSERT_TRUE(run.runSimulation(false));
  const QPointer<QObject> thread = run.simulation()->parent();
  read(BatchProject::doublet());
  EXPECT_TRUE(run.runSimulation(true));
  EXPECT_FALSE(thread);
  EXPECT_TRUE(seen.summary);
  EXPECT_EQ(seen.steps, (std::vector<int>{0, 1}));
}

TEST_F(SimulationRunTest, aRunThatIsOnEndsWithItsOwner) {
  read(BatchProject::doublet().set("main", "simulation_time", 900));
  QPointer<QObject> simulation;
  {
    SimulationRun owner(store, [this] { return path("."); });
    ASSERT_TRUE(owner.runSimulation(false));
    simulation = owner.simulation();
  }
  EXPECT_FALSE(simulation);
}

TEST_F(SimulationRunTest, aStopEndsAnInteractiveRunWithTheResultsReached) {
  read(BatchProject::doublet().set("main", "simulation_time", 900));
  store.setValue(WriteWellOutput, true);
  seen.atStep = [this](int step) {
    if (step == 1)
      run.stop();
  };
  runInteractively();
  EXPECT_TRUE(seen.summary);
  EXPECT_FALSE(run.isRunning());
  EXPECT_EQ(run.simulation(), nullptr);
  EXPECT_LT(seen.steps.size(), 10u);
  EXPECT_FALSE(contentOf(path("temperature.xml")).isEmpty());
}

TEST_F(SimulationRunTest, aStopWithoutARunDoesNothing) {
  EXPECT_NO_THROW(run.stop());
  EXPECT_FALSE(run.isRunning());
}

TEST_F(SimulationRunTest, anErrorOfAnInteractiveRunIsToldAndTheRunIsOver) {
  read(BatchProject::doublet().set("main", "reltol_groundwater", -1));
  store.setValue(WriteWellOutput, true);
  ASSERT_TRUE(run.runSimulation(false));
  const QPointer<QObject> thread = run.simulation()->parent();
  EXPECT_TRUE(waitUntil([this] { return seen.isOver(); }));
  EXPECT_EQ(seen.events.last(), "failed 1");
  EXPECT_TRUE(seen.error.startsWith("One of the function inputs is illegal.<br>"));
  EXPECT_FALSE(run.isRunning());
  EXPECT_EQ(run.simulation(), nullptr);
  EXPECT_FALSE(QFile::exists(path("temperature.xml")));
  EXPECT_TRUE(waitUntil([&] { return !thread; }));
}

TEST_F(SimulationRunTest, anInteractiveRunCanFollowOneThatFailed) {
  read(BatchProject::doublet().set("main", "reltol_groundwater", -1));
  runInteractively();
  seen = Recorder();
  read(BatchProject::doublet());
  runInteractively();
  EXPECT_TRUE(seen.summary);
}

TEST_F(SimulationRunTest, anInteractiveRunOfNoLengthIsRefused) {
  read(BatchProject::doublet().set("main", "simulation_time", 0));
  EXPECT_THROW(run.runSimulation(false), SetupError);
  EXPECT_FALSE(run.isRunning());
}

TEST_F(SimulationRunTest, anInteractiveRunContinuesTheCellTablesAtEachStep) {
  read(BatchProject::doublet().set("main", "write_tecplot_output", "true"));
  runInteractively();
  EXPECT_EQ(seen.events,
            (QStringList{"initialising interactive", "times", "begin tables", "starting 2",
                         "set off", "tables 1", "step 0/2 1", "drawdowns", "temperatures 1",
                         "tables 2", "step 1/2 2", "drawdowns", "temperatures 2", "results",
                         "completing", "finished"}));
}

TEST_F(SimulationRunTest, aRunThatFailsHasNoResults) {
  read(BatchProject::doublet().set("main", "reltol_groundwater", -1));
  runInteractively();
  EXPECT_FALSE(seen.events.contains("results"));
  EXPECT_FALSE(seen.events.contains("completing"));
}
