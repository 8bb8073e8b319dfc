#include "simulation/Simulation.h"
#include "simulation/SimulationRunTest.h"
#include "simulator/models/FVGeothermSite.h"
#include "simulator/solvers/SolverErrors.h"
#include "support/IntegratorTolerance.h"
#include "support/MessageLog.h"

#include <cmath>
#include <fstream>
#include <string>

using namespace TVR;
using namespace TVR::Parameter;

TEST_F(SimulationRunTest, aBatchRunTellsItsObserversHowItGoes) {
  read(BatchProject::doublet());
  EXPECT_TRUE(run.runSimulation(true));
  EXPECT_EQ(seen.events, (QStringList{"initialising batch", "times", "starting 2", "step 0/2 1",
                                      "step 1/2 2", "results", "completing", "finished"}));
  ASSERT_TRUE(seen.summary);
  EXPECT_EQ(seen.summary->outputTimes, 2);
  EXPECT_EQ(seen.summary->cells, store.count(UsedNumberOfElements));
  EXPECT_GT(seen.summary->groundwaterSteps, 0);
  EXPECT_GT(seen.summary->heatSteps, 0);
  EXPECT_TRUE(seen.summary->tableWritten);
  ASSERT_EQ(seen.summary->wells.size(), 2u);
  EXPECT_EQ(seen.summary->wells[1].name, "Return");
  EXPECT_LT(seen.summary->wells[1].lowest, 8);
}

TEST_F(SimulationRunTest, aBatchRunNamesItsThreadInTheLog) {
  read(BatchProject::doublet());
  const MessageLog log;
  run.runSimulation(true);
  EXPECT_TRUE(log.lines().contains("Simulation: started on main thread"));
}

TEST_F(SimulationRunTest, anObserverThatWasRemovedHearsNothing) {
  read(BatchProject::doublet());
  run.removeObserver(&seen);
  run.runSimulation(true);
  EXPECT_TRUE(seen.events.isEmpty());
}

TEST_F(SimulationRunTest, aBatchRunIsOverWhenItReturns) {
  read(BatchProject::doublet());
  bool wasRunning = false;
  seen.atStep = [&](int) { wasRunning = run.isRunning(); };
  run.runSimulation(true);
  EXPECT_TRUE(wasRunning);
  EXPECT_FALSE(run.request().isInteractive);
  EXPECT_FALSE(run.isRunning());
  EXPECT_EQ(run.simulation(), nullptr);
}

TEST_F(SimulationRunTest, aBatchRunFollowsTheDemandPeriods) {
  read(BatchProject::seasons().set("main", "simulation_time", 1));
  std::vector<int> periods;
  seen.atStep = [&](int) { periods.push_back(run.simulation()->model()->groundwater.demandStep); };
  run.runSimulation(true);
  EXPECT_EQ(periods, (std::vector<int>{0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 1, 1}));
}

TEST_F(SimulationRunTest, aBatchLetsErrorsOfTheSolverThroughAndIsOver) {
  read(BatchProject::doublet().set("main", "reltol_thermic", -1));
  EXPECT_THROW(run.runSimulation(true), CvodeError);
  EXPECT_FALSE(run.isRunning());
  EXPECT_FALSE(seen.events.contains("finished"));
  EXPECT_FALSE(QFile::exists(path("project.out")));
}

TEST_F(SimulationRunTest, aBatchCanFollowOneThatFailed) {
  read(BatchProject::doublet().set("main", "reltol_thermic", -1));
  EXPECT_THROW(run.runSimulation(true), CvodeError);
  read(BatchProject::doublet());
  EXPECT_TRUE(run.runSimulation(true));
  EXPECT_TRUE(QFile::exists(path("project.out")));
}

TEST_F(SimulationRunTest, aBatchLetsErrorsOfTheSetUpThroughAndIsNotStarted) {
  read(BatchProject().set("installation", "number_of_wells", 0));
  EXPECT_THROW(run.runSimulation(true), SetupError);
  EXPECT_FALSE(run.isRunning());
  EXPECT_EQ(run.simulation(), nullptr);
}

TEST_F(SimulationRunTest, aBatchOfNoLengthHasNoExtent) {
  read(BatchProject::doublet().set("main", "simulation_time", 0));
  EXPECT_THROW(run.runSimulation(true), std::range_error);
  EXPECT_FALSE(run.isRunning());
}

TEST_F(SimulationRunTest, aBatchBeginsTheCellTablesAndWritesItsFramesNowhere) {
  read(BatchProject::doublet().set("main", "write_tecplot_output", "true"));
  run.runSimulation(true);
  EXPECT_EQ(seen.events,
            (QStringList{"initialising batch", "times", "begin tables", "starting 2", "step 0/2 1",
                         "step 1/2 2", "results", "completing", "finished"}));
  EXPECT_FALSE(run.tecplotStream().is_open());
  EXPECT_EQ(QDir(path(".")).entryList(QDir::Files, QDir::Name),
            (QStringList{"project.out", "project.tbat"}));
}

TEST_F(SimulationRunTest, aBatchHasOneFrameForEachOutputTimeWhereFramesGoSomewhere) {
  for (const bool isWanted : {true, false}) {
    read(BatchProject::doublet().set("main", "write_tecplot_output", isWanted ? "true" : "false"));
    const std::string file = path(isWanted ? "wanted.dat" : "unwanted.dat").toStdString();
    run.tecplotStream().open(file);
    run.runSimulation(true);
    run.tecplotStream().close();
    std::ifstream frames(file);
    QStringList titles;
    for (std::string line; std::getline(frames, line);)
      if (line.rfind("ZONE T=", 0) == 0)
        titles << QString::fromStdString(line.substr(0, line.find(',')));
    EXPECT_EQ(titles,
              isWanted ? (QStringList{"ZONE T=\"t=1 a\"", "ZONE T=\"t=2 a\""}) : QStringList{});
  }
}

TEST_F(SimulationRunTest, tolerancesOfABatchKeepTheirPlaces) {
  read(BatchProject::doublet()
           .set("main", "reltol_groundwater", 1e-3)
           .set("main", "abstol_groundwater", 1e-5)
           .set("main", "reltol_thermic", 1e-4)
           .set("main", "abstol_thermic", 1e-8));
  seen.atStep = [&](int) {
    const FVGeothermSite& model = *run.simulation()->model();
    const std::size_t last = model.groundwater.elementCount() - 1;
    const double ofPressure = 1e-3 * std::abs(model.groundwater.elements[last]->pressure) + 1e-5;
    EXPECT_NEAR(toleranceIn(model.groundwater, last), ofPressure, 0.1 * ofPressure);
    const double ofTemperature = 1e-4 * model.temperature(last) + 1e-8;
    EXPECT_NEAR(toleranceIn(model.heat, last), ofTemperature, 0.1 * ofTemperature);
  };
  run.runSimulation(true);
  EXPECT_EQ(seen.steps.size(), 2u);
}
