#include "simulation/Simulation.h"
#include "simulation/SimulationRunTest.h"
#include "support/MessageLog.h"

#include <QPointer>

#include <thread>
#include <utility>

using namespace TVR;
using namespace TVR::Parameter;

// Times of the output steps

TEST_F(SimulationRunTest, aNegativeStepMakesTheTimesAnew) {
  read(BatchProject::seasons());
  EXPECT_EQ(run.timeOfSimulationStep(-1), -1);
  EXPECT_EQ(run.outputTimes().times.size(), 24u);
  EXPECT_EQ(seen.events, QStringList{"times"});
}

TEST_F(SimulationRunTest, theTimeOfAStepIsKnownDuringARunOnly) {
  read(BatchProject::doublet());
  run.timeOfSimulationStep(-1);
  EXPECT_EQ(run.timeOfSimulationStep(1), -1);
  std::vector<double> during;
  seen.atStep = [&](int) {
    during = {run.timeOfSimulationStep(0), run.timeOfSimulationStep(1), run.timeOfSimulationStep(2),
              run.timeOfSimulationStep(3)};
  };
  run.runSimulation(true);
  EXPECT_EQ(during, (std::vector<double>{-1, year, 2 * year, -1}));
  EXPECT_EQ(run.timeOfSimulationStep(1), -1);
}

TEST_F(SimulationRunTest, theTimesFollowTheLengthOfTheCycle) {
  read(BatchProject::seasons());
  EXPECT_EQ(run.cycleLength(), 12);
  run.setCycleLength(4);
  run.timeOfSimulationStep(-1);
  EXPECT_EQ(run.outputTimes().times.size(), 8u);
}

TEST_F(SimulationRunTest, settingsAreLoggedInTheirOrder) {
  read(BatchProject::seasons());
  const MessageLog log;
  run.timeOfSimulationStep(-1);
  EXPECT_EQ(log.lines(), (QStringList{
                             "TVR::exchange_bedrock:  false",
                             "TVR::exchange_caprock:  false",
                             "TVR::beta_T:  0",
                             "Data::Manager::demandModel()->rowCount():  2",
                             "TVR::exchange_bedrock:  false",
                             "TVR::wells_used_closed_loop:  false",
                         }));
}

// What advances to a step

TEST_F(SimulationRunTest, withoutExchangeBothModelsAdvance) {
  read(BatchProject::doublet());
  runInteractively();
  EXPECT_EQ(seen.steps, (std::vector<int>{0, 1}));
}

TEST_F(SimulationRunTest, aConstantFlowWithExchangeRunsOnAFrozenFlowField) {
  for (const char* rock : {"exchange_caprock", "exchange_bedrock"}) {
    seen = Recorder();
    read(BatchProject::doublet().set("thermic", rock, "true"));
    runInteractively();
    EXPECT_EQ(seen.steps, (std::vector<int>{0, 0, 1})) << rock;
  }
}

TEST_F(SimulationRunTest, aFrozenFlowFieldHasItsDrawdownsBeforeTheTemperatures) {
  read(BatchProject::doublet().set("thermic", "exchange_caprock", "true"));
  runInteractively();
  EXPECT_EQ(seen.events.mid(4),
            (QStringList{"step 0/2 1", "drawdowns", "step 0/2 1", "temperatures 1", "step 1/2 2",
                         "temperatures 2", "results", "completing", "finished"}));
}

TEST_F(SimulationRunTest, aSingleOutputTimeNeedsNoFrozenFlowField) {
  read(BatchProject::doublet()
           .set("thermic", "exchange_caprock", "true")
           .set("main", "simulation_time", 1));
  runInteractively();
  EXPECT_EQ(seen.steps, std::vector<int>{0});
}

TEST_F(SimulationRunTest, periodsKeepBothModelsGoing) {
  read(BatchProject::seasons()
           .set("thermic", "exchange_caprock", "true")
           .set("main", "simulation_time", 1));
  run.setCycleLength(2);
  runInteractively();
  EXPECT_EQ(seen.steps, (std::vector<int>{0, 1}));
}

TEST_F(SimulationRunTest, dispersionKeepsBothModelsGoing) {
  read(BatchProject::doublet()
           .set("thermic", "exchange_caprock", "true")
           .set("main", "simulation_time", 1));
  store.setValue(ThermalDispersivity, 20.0);
  run.setCycleLength(2);
  runInteractively();
  EXPECT_EQ(seen.steps, (std::vector<int>{0, 1}));
}

// Words of the thread

TEST_F(SimulationRunTest, aStepOfAnUnknownModeShowsNoValues) {
  read(BatchProject::doublet().set("main", "simulation_time", 1));
  bool isFirst = true;
  seen.atStep = [&](int) {
    if (!std::exchange(isFirst, false))
      return;
    run.simulationStepFinished(0, 3, false, false);
    EXPECT_EQ(seen.events.last(), "step 0/1 1");
    EXPECT_TRUE(run.simulation()->isDone());
  };
  runInteractively();
  EXPECT_EQ(seen.events.count("drawdowns"), 1);
}

TEST_F(SimulationRunTest, aLateWordOfARunThatIsGoneIsIgnored) {
  EXPECT_NO_THROW(run.simulationStepFinished(0, 2, false, false));
  EXPECT_NO_THROW(run.simulationStepFinished(0, 2, true, true));
  EXPECT_NO_THROW(run.simulationFinishedSuccessful());
  EXPECT_TRUE(seen.events.isEmpty());
}

TEST_F(SimulationRunTest, anErrorOfAStepBehindTheLastTimeIsToldWithTheLastTime) {
  read(BatchProject::doublet());
  ASSERT_TRUE(run.runSimulation(false));
  const QPointer<QObject> thread = run.simulation()->parent();
  run.simulationStepFinished(7, Simulation::Coupled, true, true);
  EXPECT_EQ(seen.events.last(), "failed 2");
  EXPECT_FALSE(run.isRunning());
  EXPECT_TRUE(waitUntil([&] { return !thread; }));
}

TEST_F(SimulationRunTest, aStepThatComesWhileAnotherIsTakenIsDropped) {
  read(BatchProject::doublet());
  seen.atStep = [&](int step) {
    if (step == 0)
      std::thread([&] { run.simulationStepFinished(1, Simulation::Coupled, false, false); }).join();
  };
  runInteractively();
  EXPECT_EQ(seen.steps, (std::vector<int>{0, 1}));
}
