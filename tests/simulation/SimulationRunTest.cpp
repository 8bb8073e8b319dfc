#include "simulation/SimulationRun.h"

#include "data/MessageLog.h"
#include "simulation/Simulation.h"
#include "simulator/FVGeothermSite.h"
#include "simulator/SolverErrors.h"
#include "support/EventWait.h"
#include "support/ProjectTest.h"

#include <QPointer>

#include <functional>
#include <optional>
#include <utility>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

constexpr double year = secondsPerYear;

/// Notes what a run tells, and lets a test look at the run in the middle of a step.
class Recorder final : public RunObserver {
public:
  void initialising(bool batch) override {
    events << QStringLiteral("initialising %1").arg(batch ? "batch" : "interactive");
  }
  void outputTimesMade() override { events << "times"; }
  void starting(int cells, int outputTimes) override {
    EXPECT_GT(cells, 0);
    events << QStringLiteral("starting %1").arg(outputTimes);
  }
  void stepReached(int step, int count, double time) override {
    events << QStringLiteral("step %1/%2 %3").arg(step).arg(count).arg(time / year);
    steps.push_back(step);
    if (atStep)
      atStep(step);
  }
  void setOff() override { events << "set off"; }
  void headsReached() override { events << "heads"; }
  void temperaturesReached(double time) override {
    events << QStringLiteral("temperatures %1").arg(time / year);
  }
  void resultsReached() override {
    events << "results";
    if (atEvent)
      atEvent();
  }
  void completing() override {
    events << "completing";
    if (atEvent)
      atEvent();
  }
  void beginCellTables() override { events << "begin tables"; }
  void continueCellTables(double time) override {
    events << QStringLiteral("tables %1").arg(time / year);
  }
  void failed(double time, const QString& text) override {
    events << QStringLiteral("failed %1").arg(time / year);
    error = text;
  }
  void finished(const RunSummary& result) override {
    events << "finished";
    summary = result;
  }

  bool isOver() const { return summary || !error.isEmpty(); }

  QStringList events;
  std::vector<int> steps;
  std::function<void(int)> atStep;
  std::function<void()> atEvent; ///< the last results, and their completion
  std::optional<RunSummary> summary;
  QString error;
};

class SimulationRunTest : public ProjectTest {
protected:
  SimulationRunTest() { run.addObserver(&seen); }

  void runInteractively() {
    ASSERT_TRUE(run.runSimulation(false));
    ASSERT_TRUE(waitUntil([this] { return seen.isOver(); }));
  }

  /// Wide cells keep the runs short.
  QString read(const BatchProject& project) {
    const QString file = ProjectTest::read(project);
    store.setValue(MinElementLength, 8.0);
    return file;
  }

  Recorder seen;
  SimulationRun run{store, [this] { return path("."); }};
};

} // namespace

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

// Batch runs

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
  EXPECT_TRUE(run.isBatch());
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

TEST_F(SimulationRunTest, aBatchRunWithoutAnOutputNameWritesBesideItsInput) {
  const QString file = read(BatchProject::doublet());
  run.runSimulation(true);
  EXPECT_EQ(seen.summary->tableFile, path("project.out"));
  EXPECT_TRUE(contentOf(path("project.out")).startsWith("Time [s]\tTime [a]\tPump\tReturn\t\n"));
}

TEST_F(SimulationRunTest, anOutputNameThatEndsInXmlSelectsTheSpreadsheet) {
  read(BatchProject::doublet().set("main", "output_file", path("table.xml")));
  run.runSimulation(true);
  const QByteArray table = contentOf(path("table.xml"));
  EXPECT_TRUE(table.startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Workbook "));
  EXPECT_EQ(table.count("<Worksheet "), 2);
}

TEST_F(SimulationRunTest, anEndingThatDiffersInItsCaseSelectsTheText) {
  read(BatchProject::doublet().set("main", "output_file", path("table.XML")));
  run.runSimulation(true);
  EXPECT_TRUE(contentOf(path("table.XML")).startsWith("Time [s]\t"));
}

TEST_F(SimulationRunTest, theOutputNameOfABatchGoesBeforeTheNameOfTheSettings) {
  read(BatchProject::doublet());
  store.setValue(WellOutputFile, path("settings.txt"));
  run.runSimulation(true);
  EXPECT_EQ(seen.summary->tableFile, path("project.out"));
  EXPECT_FALSE(QFile::exists(path("settings.txt")));
}

TEST_F(SimulationRunTest, aBatchWithoutAnOutputNameTakesTheNameOfTheSettings) {
  read(BatchProject::doublet());
  store.setValue(BatchOutputFile, "");
  store.setValue(WellOutputFile, path("settings.txt"));
  run.runSimulation(true);
  EXPECT_TRUE(contentOf(path("settings.txt")).startsWith("Time [s]\t"));
}

TEST_F(SimulationRunTest, aTableWithoutAnyNameGoesIntoTheDataDirectory) {
  read(BatchProject::doublet());
  store.setValue(BatchOutputFile, "");
  store.setValue(WellOutputFile, "");
  run.runSimulation(true);
  EXPECT_EQ(seen.summary->tableFile, path(".") + "/temperature.xml");
  EXPECT_TRUE(contentOf(path("temperature.xml")).contains("<Workbook "));
}

TEST_F(SimulationRunTest, aBatchAlwaysWritesItsTable) {
  read(BatchProject::doublet());
  store.setValue(WriteWellOutput, false);
  run.runSimulation(true);
  EXPECT_TRUE(QFile::exists(path("project.out")));
}

TEST_F(SimulationRunTest, aTableThatCanNotBeWrittenIsLostWithoutAWord) {
  read(BatchProject::doublet().set("main", "output_file", path("missing/table.out")));
  const MessageLog log;
  EXPECT_NO_THROW(run.runSimulation(true));
  EXPECT_FALSE(seen.summary->tableWritten);
  EXPECT_EQ(log.lines().last(), "Simulation: started on main thread");
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

TEST_F(SimulationRunTest, aBatchOfNoLengthOverAGivenExtentWritesATableWithoutLines) {
  read(BatchProject::doublet().set("main", "simulation_time", 0));
  store.setValue(MeanFlowRate, 0.001); // no well has more
  store.setValue(AMin, 60.0);
  store.setValue(BMin, 30.0);
  EXPECT_TRUE(run.runSimulation(true));
  EXPECT_TRUE(seen.steps.empty());
  EXPECT_EQ(contentOf(path("project.out")), "Time [s]\tTime [a]\tWell 1\tWell 2\t\n");
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

// Interactive runs

TEST_F(SimulationRunTest, anInteractiveRunGoesOnWhileTheCallerDoes) {
  read(BatchProject::doublet());
  const MessageLog log;
  ASSERT_TRUE(run.runSimulation(false));
  EXPECT_TRUE(run.isRunning());
  EXPECT_FALSE(run.isBatch());
  EXPECT_TRUE(seen.steps.empty());
  EXPECT_TRUE(log.lines().contains("Simulation: started on a thread"));
  EXPECT_TRUE(waitUntil([this] { return seen.isOver(); }));
  EXPECT_EQ(seen.events,
            (QStringList{"initialising interactive", "times", "starting 2", "set off", "step 0/2 1",
                         "heads", "temperatures 1", "step 1/2 2", "heads", "temperatures 2",
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

TEST_F(SimulationRunTest, anInteractiveRunWritesNoTableUnlessAsked) {
  read(BatchProject::doublet());
  store.setValue(WriteWellOutput, false);
  runInteractively();
  EXPECT_EQ(QDir(path(".")).entryList(QDir::Files), QStringList{"project.tbat"});
  EXPECT_TRUE(seen.summary->tableFile.isEmpty());
  EXPECT_FALSE(seen.summary->tableWritten);
}

TEST_F(SimulationRunTest, anInteractiveRunWritesItsTableWhenAsked) {
  read(BatchProject::doublet());
  store.setValue(WriteWellOutput, true);
  runInteractively();
  EXPECT_TRUE(contentOf(path("temperature.xml")).contains("<Worksheet ss:Name=\"Return\">"));
  EXPECT_FALSE(QFile::exists(path("project.out"))) << "the output name is the batch's";
}

TEST_F(SimulationRunTest, anInteractiveRunWritesToTheNameOfTheSettings) {
  read(BatchProject::doublet());
  store.setValue(WriteWellOutput, true);
  store.setValue(WellOutputFile, path("settings.txt"));
  runInteractively();
  EXPECT_TRUE(contentOf(path("settings.txt")).startsWith("Time [s]\t"));
}

TEST_F(SimulationRunTest, bothWaysOfRunningGiveOneTable) {
  read(BatchProject::seasons().set("main", "simulation_time", 1));
  store.setValue(WriteWellOutput, true);
  store.setValue(WellOutputFile, path("interactive.txt"));
  run.runSimulation(true);
  seen = Recorder();
  runInteractively();
  ASSERT_FALSE(contentOf(path("project.out")).isEmpty());
  EXPECT_EQ(contentOf(path("interactive.txt")), contentOf(path("project.out")));
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
  EXPECT_EQ(seen.events, (QStringList{"initialising interactive", "times", "begin tables",
                                      "starting 2", "set off", "tables 1", "step 0/2 1", "heads",
                                      "temperatures 1", "tables 2", "step 1/2 2", "heads",
                                      "temperatures 2", "results", "completing", "finished"}));
}

TEST_F(SimulationRunTest, aConstantFlowWithExchangeRunsOnAFrozenFlowField) {
  for (const char* rock : {"exchange_caprock", "exchange_bedrock"}) {
    seen = Recorder();
    read(BatchProject::doublet().set("thermic", rock, "true"));
    runInteractively();
    EXPECT_EQ(seen.steps, (std::vector<int>{0, 0, 1})) << rock;
  }
}

TEST_F(SimulationRunTest, aFrozenFlowFieldHasItsHeadsBeforeTheTemperatures) {
  read(BatchProject::doublet().set("thermic", "exchange_caprock", "true"));
  runInteractively();
  EXPECT_EQ(seen.events.mid(4),
            (QStringList{"step 0/2 1", "heads", "step 0/2 1", "temperatures 1", "step 1/2 2",
                         "temperatures 2", "results", "completing", "finished"}));
}

TEST_F(SimulationRunTest, aRunThatFailsHasNoResults) {
  read(BatchProject::doublet().set("main", "reltol_groundwater", -1));
  runInteractively();
  EXPECT_FALSE(seen.events.contains("results"));
  EXPECT_FALSE(seen.events.contains("completing"));
}

TEST_F(SimulationRunTest, theTableOfTheWellsIsWrittenBetweenResultsAndCompletion) {
  read(BatchProject::doublet());
  const QString table = path("project.out");
  std::vector<bool> wasThere;
  seen.atEvent = [&] { wasThere.push_back(QFile::exists(table)); };
  run.runSimulation(true);
  EXPECT_EQ(wasThere, (std::vector<bool>{false, true}));
}

TEST_F(SimulationRunTest, withoutExchangeBothModelsAdvance) {
  read(BatchProject::doublet());
  runInteractively();
  EXPECT_EQ(seen.steps, (std::vector<int>{0, 1}));
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
  EXPECT_EQ(seen.events.count("heads"), 1);
}

TEST_F(SimulationRunTest, aLateWordOfARunThatIsGoneIsIgnored) {
  EXPECT_NO_THROW(run.simulationStepFinished(0, 2, false, false));
  EXPECT_NO_THROW(run.simulationStepFinished(0, 2, true, true));
  EXPECT_NO_THROW(run.simulationFinishedSuccessful());
  EXPECT_TRUE(seen.events.isEmpty());
}
