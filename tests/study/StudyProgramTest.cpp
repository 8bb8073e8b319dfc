#include "study/StudyProgram.h"

#include "study/plan/Plan.h"
#include "study/plan/RunFile.h"

#include <QDir>
#include <QProcess>

#include <gtest/gtest.h>

#include <csignal>

using namespace TVR;
using namespace TVR::Study;

TEST_F(StudyProgramTest, aStudyBecomesATableOfAllRuns) {
  writeStudy(12);
  const Outcome outcome = study("run");
  EXPECT_EQ(outcome.exitCode, 0) << outcome.err.toStdString();
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(rows().size(), 12);
  EXPECT_TRUE(
      table().startsWith("run,repeats,outcome,kf [m/s],groundwater_flow_direction [degrees],"
                         "plume_length -1 K 1 a [m],"));
  for (const QByteArrayList& row : rows())
    EXPECT_EQ(row[2], "done");
}

TEST_F(StudyProgramTest, aRunIsWhatTheBatchProgramComputes) {
  writeStudy(2);
  ASSERT_EQ(study("run").exitCode, 0);
  const QByteArrayList head = table().split('\n').first().split(',');
  const QByteArrayList row = rows().first();
  const QString file = write(
      "run.tbat", runFile(smallDoublet, {*studyKey("kf"), *studyKey("groundwater_flow_direction")},
                          {row[3].toDouble(), row[4].toDouble()}));
  ASSERT_EQ(run({"--output", path("run.out"), file}, TEVRANE_BATCH_PROGRAM).exitCode, 0);
  const QByteArrayList last = contentOf(path("run.out")).trimmed().split('\n').last().split('\t');
  // columns of the batch program: seconds, years, and the wells in their order, to ten digits
  for (int well = 0; well < 2; ++well) {
    const int column = head.indexOf(QByteArray("temperature ") + (well == 0 ? "Pump" : "Return") +
                                    " 2 a [\u00b0C]");
    ASSERT_GE(column, 0);
    EXPECT_NEAR(row[column].toDouble(), last[2 + well].toDouble(), 1e-7);
  }
}

TEST_F(StudyProgramTest, workersAndShardsChangeNoByte) {
  writeStudy(23);
  ASSERT_EQ(study("run", {"--workers", "1"}).exitCode, 0);
  for (const char* workers : {"2", "4"}) {
    const QString name = QStringLiteral("w") + workers;
    ASSERT_EQ(study("run", {"--workers", workers, "--folder", folder(name)}).exitCode, 0);
    EXPECT_EQ(differing(name), "");
  }
  for (const int shards : {2, 3, 7}) { // of five parts: some shards have nothing to do
    QStringList folders;
    for (int i = 1; i <= shards; ++i) {
      folders << folder(QStringLiteral("s%1-%2").arg(i).arg(shards));
      ASSERT_EQ(study("run", {"--shard", QStringLiteral("%1/%2").arg(i).arg(shards), "--folder",
                              folders.last()})
                    .exitCode,
                0);
      EXPECT_EQ(contentOf(folders.last() + "/runs.csv"), "");
    }
    const QString all = QStringLiteral("all%1").arg(shards);
    EXPECT_EQ(study("collect", folders + QStringList{"--folder", folder(all)}).exitCode, 0);
    EXPECT_EQ(differing(all), "");
  }
}

TEST_F(StudyProgramTest, aRunThatFailsStopsNothingAndIsCounted) {
  write("runs.csv", "well_model\\1\\3,well_model\\2\\3\n-0.001,0.001\n0,0\n-0.002,0.002\n");
  write("a.tstudy", "[study]\nbase=base.tbat\nsampler=table\ntable=runs.csv\n");
  const Outcome outcome = study("run");
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_TRUE(outcome.err.endsWith("1 of 3 runs failed\n")) << outcome.err.toStdString();
  int failed = 0;
  for (const QByteArrayList& row : rows())
    if (row[2] == "failed") {
      ++failed;
      EXPECT_TRUE(row.last().contains("no well has a rate")) << row.last().constData();
    }
  EXPECT_EQ(rows().size(), 3);
  EXPECT_EQ(failed, 1);
}

TEST_F(StudyProgramTest, aRunThatTakesTooLongIsCountedAsFailed) {
  QByteArray slow = smallDoublet;
  write("base.tbat", slow.replace("cell_increase_factor=60", "cell_increase_factor=3"));
  write("runs.csv", "max_number_of_fv_elements,simulation_time\n200,2\n1000000,900\n");
  write("a.tstudy", "[study]\nbase=base.tbat\nsampler=table\ntable=runs.csv\ntime_limit=2\n"
                    "[answers]\ntimes=2\n");
  const Outcome outcome = study("run");
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_TRUE(table().contains("took longer than 2 s")) << table().constData();
}

TEST_F(StudyProgramTest, aMistakeIsToldBeforeAnythingRuns) {
  write("a.tstudy", "[study]\nbase=base.tbat\n[vary]\nkf=uniform(1, 99)\n");
  const Outcome outcome = study("run");
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_EQ(outcome.err, "tevrane-study: " + path("a.tstudy") +
                             ": line 4, [vary] kf: expected values within 1e-08 to 10 m/s, found "
                             "\"uniform(1, 99)\"\n");
  EXPECT_FALSE(QFile::exists(path("a.study")));
  EXPECT_EQ(study("check").exitCode, 2);
}

TEST_F(StudyProgramTest, aBaseThatIsAtFaultIsTold) {
  QByteArray base = smallDoublet;
  write("base.tbat", base.replace("groundwater_gradient=0.2", "groundwater_gradient=steep"));
  writeStudy(3);
  const Outcome outcome = study("check");
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_TRUE(
      outcome.err.contains("base.tbat: [hydraulic] groundwater_gradient: expected a number"))
      << outcome.err.toStdString();
}

TEST_F(StudyProgramTest, aTimeAtWhichTheBaseHasNoResultsIsTold) {
  writeStudy(3);
  QByteArray content = contentOf(path("a.tstudy"));
  write("a.tstudy", content.replace("times=1, 2", "times=1, 5"));
  const Outcome outcome = study("check");
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_TRUE(outcome.err.contains("[answers] times: expected times at which the base has results, "
                                   "up to 2 years, found \"5\""))
      << outcome.err.toStdString();
}

TEST_F(StudyProgramTest, aKeyThatMakesTheSiteImpossibleIsToldBeforeAnythingRuns) {
  write("a.tstudy", "[study]\nbase=base.tbat\nruns=10\n[vary]\nwell_model\\2\\1=list(0, 40)\n");
  const Outcome outcome = run({"check", path("a.tstudy")});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_TRUE(outcome.err.contains("warning: well_model\\2\\1: with 0 the site can't be computed: "
                                   "[installation] well_model: \"Pump\" and \"Return\" stand at "
                                   "one place"))
      << outcome.err.toStdString();
}

TEST_F(StudyProgramTest, aStudyThatIsToldToStopKeepsWhatItHas) {
  writeStudy(200);
  QProcess program;
  program.start(TEVRANE_STUDY_PROGRAM, {"run", path("a.tstudy")});
  program.setReadChannel(QProcess::StandardError);
  ASSERT_TRUE(program.waitForStarted());
  while (program.state() == QProcess::Running && !program.canReadLine())
    program.waitForReadyRead(60'000);
  program.terminate();
  ASSERT_TRUE(program.waitForFinished(60'000));
  EXPECT_EQ(program.exitCode(), 128 + SIGTERM);
  EXPECT_TRUE(program.readAllStandardError().endsWith("stopped by SIGTERM\n"));
  EXPECT_FALSE(study("status").out.contains(": 0 of 200 runs"));
}

TEST_F(StudyProgramTest, aFolderKeepsToItsBase) {
  writeStudy(3);
  ASSERT_EQ(study("run").exitCode, 0);
  QByteArray base = smallDoublet;
  write("base.tbat", base.replace("=40", "=50"));
  const Outcome outcome = study("run");
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_TRUE(outcome.err.contains("[study] base: expected the base that the results in"));
  EXPECT_EQ(study("status").exitCode, 2);
  EXPECT_EQ(study("page", {"--page", path("a.svg")}).exitCode, 2);
}

TEST_F(StudyProgramTest, whatIsNoFolderOfAStudyIsNeitherCollectedNorCounted) {
  writeStudy(5);
  ASSERT_EQ(study("run").exitCode, 0);
  for (const char* command : {"collect", "status"})
    for (const QString& other : {path("nowhere"), directory.path()}) {
      const Outcome outcome = study(command, {other});
      EXPECT_EQ(outcome.exitCode, 2) << command;
      EXPECT_TRUE(outcome.err.contains(other + ": expected the folder of a study"))
          << outcome.err.toStdString();
    }
}

TEST_F(StudyProgramTest, aStudyWithMoreRunsTakesOverThoseThatAreThere) {
  writeStudy(10, "sampler=sobol\n");
  ASSERT_EQ(study("run").exitCode, 0);
  const QStringList parts = QDir(path("a.study/parts")).entryList(QDir::Files);
  writeStudy(20, "sampler=sobol\n");
  EXPECT_TRUE(study("status").out.contains(": 10 of 20 runs, 0 failed"));
  ASSERT_EQ(study("run").exitCode, 0);
  EXPECT_EQ(rows().size(), 20);
  for (const QString& part : parts)
    EXPECT_TRUE(QFile::exists(path("a.study/parts/" + part)));
}

TEST_F(StudyProgramTest, noRunIsComputedAgainWhereAStudyGrows) {
  // Neither by the default size of parts nor by a number that does not divide the runs.
  const QByteArray head = "[study]\nbase=base.tbat\nsampler=sobol\nruns=";
  const QByteArray rest = "\n[vary]\nkf=log-uniform(0.0005, 0.005)\n[answers]\ntimes=2\n";
  for (const auto& [size, runs, more] :
       {std::tuple{"", "30", "40"}, std::tuple{"runs_per_part=4\n", "6", "9"}}) {
    QDir(path("a.study")).removeRecursively();
    write("a.tstudy", head + runs + '\n' + size + rest);
    ASSERT_EQ(study("run").exitCode, 0);
    write("a.tstudy", head + more + '\n' + size + rest);
    EXPECT_TRUE(study("status").out.contains(QStringLiteral(": %1 of %2 runs").arg(runs, more)));
    EXPECT_FALSE(study("status").out.contains("of other runs"));
    ASSERT_EQ(study("run").exitCode, 0);
    const QByteArray grown = table();
    ASSERT_EQ(study("run", {"--folder", path("anew")}).exitCode, 0);
    EXPECT_TRUE(grown == table("anew"));
    EXPECT_TRUE(contentOf(path("a.study/summary.json")) == contentOf(path("anew/summary.json")));
    QDir(path("anew")).removeRecursively();
  }
}

TEST_F(StudyProgramTest, statusSaysThatAFolderHoldsResultsOfSomethingElse) {
  writeStudy(5);
  ASSERT_EQ(study("run").exitCode, 0);
  writeStudy(10, "seed=2\n");
  const QString status = study("status").out;
  EXPECT_TRUE(status.contains(": 0 of 10 runs")) << status.toStdString();
  EXPECT_TRUE(status.contains(": parts of other runs or other answers: 1"));
}

TEST_F(StudyProgramTest, theTemplateIsAStudyOfTheTemplateOfTheBatchProgram) {
  ASSERT_EQ(run({"template", path("a.tstudy")}).exitCode, 0);
  ASSERT_EQ(run({"--template", path("doublet.tbat")}, TEVRANE_BATCH_PROGRAM).exitCode, 0);
  const Outcome outcome = study("check");
  EXPECT_EQ(outcome.exitCode, 0) << outcome.err.toStdString();
  EXPECT_EQ(run({"template", path("a.tstudy")}).exitCode, 2);
}

TEST_F(StudyProgramTest, thePlanSaysHowManyRunsAndHowLong) {
  writeStudy(12);
  const Outcome outcome = study("plan", {"--workers", "2"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_TRUE(outcome.out.contains("12 runs in 3 parts, about ")) << outcome.out.toStdString();
  EXPECT_TRUE(outcome.out.endsWith(" with 2 workers\n"));
}

TEST_F(StudyProgramTest, thePlanIsWrittenAsATableThatMakesTheSameRuns) {
  writeStudy(12);
  ASSERT_EQ(study("plan", {"--table", path("sample.csv")}).exitCode, 0);
  ASSERT_EQ(study("run").exitCode, 0);
  const QByteArray undisturbed = table();
  write("a.tstudy", "[study]\nbase=base.tbat\nsampler=table\ntable=sample.csv\n"
                    "[answers]\ntimes=1, 2\nlevels=-1, -0.5\n");
  ASSERT_EQ(study("run", {"--folder", path("read")}).exitCode, 0);
  EXPECT_EQ(table("read"), undisturbed);
  const Outcome refused = study("plan", {"--table", path("nowhere/sample.csv")});
  EXPECT_EQ(refused.exitCode, 2);
  EXPECT_TRUE(refused.err.contains("nowhere/sample.csv can't be written: no directory that can be "
                                   "written to"));
}

TEST_F(StudyProgramTest, theCommandLineIsChecked) {
  writeStudy(3);
  EXPECT_EQ(run({}).exitCode, 2);
  EXPECT_EQ(run({"fly", path("a.tstudy")}).exitCode, 2);
  EXPECT_EQ(study("run", {"--shard", "3/2"}).exitCode, 2);
  EXPECT_EQ(study("run", {"--workers", "0"}).exitCode, 2);
  EXPECT_EQ(study("run", {"--table", path("sample.csv")}).exitCode, 2);
  EXPECT_EQ(study("collect", {"--retry-failed"}).exitCode, 2);
  EXPECT_EQ(run({"--help"}).exitCode, 0);
}
