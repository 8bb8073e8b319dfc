#include "simulation/SimulationRunTest.h"
#include "support/MessageLog.h"

using namespace TVR;
using namespace TVR::Parameter;

// Of a batch

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

TEST_F(SimulationRunTest, aBatchOfNoLengthOverAGivenExtentWritesATableWithoutLines) {
  read(BatchProject::doublet().set("main", "simulation_time", 0));
  store.setValue(MeanFlowRate, 0.001); // no well has more
  store.setValue(AMin, 60.0);
  store.setValue(BMin, 30.0);
  EXPECT_TRUE(run.runSimulation(true));
  EXPECT_TRUE(seen.steps.empty());
  EXPECT_EQ(contentOf(path("project.out")), "Time [s]\tTime [a]\tWell 1\tWell 2\t\n");
}

TEST_F(SimulationRunTest, theTableOfTheWellsIsWrittenBetweenResultsAndCompletion) {
  read(BatchProject::doublet());
  const QString table = path("project.out");
  std::vector<bool> wasThere;
  seen.atEvent = [&] { wasThere.push_back(QFile::exists(table)); };
  run.runSimulation(true);
  EXPECT_EQ(wasThere, (std::vector<bool>{false, true}));
}

// Of an interactive run

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

// Of a request

TEST_F(SimulationRunTest, theTableOfARequestGoesBeforeEveryNameOfTheProject) {
  read(BatchProject::doublet());
  store.setValue(WellOutputFile, path("settings.txt"));
  run.run({.isInteractive = false, .tableFile = path("asked.out")});
  EXPECT_EQ(seen.summary->tableFile, path("asked.out"));
  EXPECT_TRUE(contentOf(path("asked.out")).startsWith("Time [s]\t"));
  EXPECT_FALSE(QFile::exists(path("project.out")));
  EXPECT_FALSE(QFile::exists(path("settings.txt")));
}

TEST_F(SimulationRunTest, anInteractiveRunWritesTheTableOfItsRequestUnasked) {
  read(BatchProject::doublet());
  store.setValue(WriteWellOutput, false);
  ASSERT_TRUE(run.run({.tableFile = path("asked.xml")}));
  ASSERT_TRUE(waitUntil([this] { return seen.isOver(); }));
  EXPECT_TRUE(contentOf(path("asked.xml")).contains("<Workbook "));
}

TEST_F(SimulationRunTest, theNamesOfARequestAreNotTheProjects) {
  read(BatchProject::doublet());
  const std::vector<int> names{BatchOutputFile, WellOutputFile, WriteWellOutput};
  std::vector<QVariant> before;
  for (const int id : names)
    before.push_back(store.stored(id));
  run.run({.isInteractive = false, .tableFile = path("asked.out")});
  for (std::size_t i = 0; i < names.size(); ++i)
    EXPECT_EQ(store.stored(names[i]), before[i]) << names[i];
}

TEST_F(SimulationRunTest, aTableThatTheUserNamedReplacesWhateverIsThere) {
  read(BatchProject::doublet());
  for (const NamedBy who : {NamedBy::File, NamedBy::User}) {
    QFile file(path("letter.txt"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("Dear all");
    file.close();
    run.run({.isInteractive = false, .tableFile = path("letter.txt"), .tableNamedBy = who});
    EXPECT_EQ(seen.summary->tableWritten, who == NamedBy::User);
    EXPECT_EQ(contentOf(path("letter.txt")) == "Dear all", who == NamedBy::File);
  }
}

TEST_F(SimulationRunTest, theNextRunKnowsNothingOfAnOlderRequest) {
  read(BatchProject::doublet());
  run.run({.isInteractive = false, .tableFile = path("asked.out")});
  run.runSimulation(true);
  EXPECT_EQ(seen.summary->tableFile, path("project.out"));
}
