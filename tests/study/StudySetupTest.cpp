#include "study/work/StudySetup.h"

#include "study/StudyProgram.h"

namespace {

/// What is said of a study before anything runs.
class StudySetupTest : public StudyProgramTest {
protected:
  /// A study of some lines of the section [vary], and what stands behind it.
  void vary(const QByteArray& lines, const QByteArray& more = {}) const {
    write("a.tstudy", "[study]\nbase=" + base + "\nruns=10\n[vary]\n" + lines + '\n' + more);
  }
  /// The base as a project file.
  void saveBaseAsProject() {
    ASSERT_EQ(run({"--quiet", "--output", path("base.out"), "--save-project", path("base.tvr"),
                   path("base.tbat")},
                  TEVRANE_BATCH_PROGRAM)
                  .exitCode,
              0);
    base = "base.tvr";
  }

  /// What the command says beside its answer, with whether it finds the study fit.
  QString said(const QString& command, int exitCode) const {
    const Outcome outcome = run({command, path("a.tstudy")});
    EXPECT_EQ(outcome.exitCode, exitCode) << outcome.err.toStdString();
    return QString(outcome.err).remove("tevrane-study: " + path("a.tstudy") + ": ");
  }
  std::string refusal() const { return said("check", 2).toStdString(); }
  QString warning() const { return said("check", 0); }

  QByteArray base = "base.tbat";
};

} // namespace

TEST_F(StudySetupTest, aRowThatATableOfTheBaseHasNotIsTold) {
  const auto expectRefusals = [this] {
    vary("well_model\\9\\4=uniform(-4, -3)");
    EXPECT_EQ(refusal(), "[vary] well_model\\9\\4: expected a row of well_model in the base, which "
                         "has 2 of them\n");
    vary("demand_model\\9\\0=uniform(100, 200)");
    EXPECT_EQ(refusal(), "[vary] demand_model\\9\\0: expected a row of demand_model in the base, "
                         "which has 1 of them\n");
    vary("well_demand_model\\500\\2=list(0.001)");
    EXPECT_EQ(refusal(), "[vary] well_demand_model\\500\\2: expected a row of well_demand_model in "
                         "the base, which has 2 of them\n");
    vary("well_model\\2\\4=uniform(-4, -3)");
    EXPECT_EQ(warning(), "");
  };
  expectRefusals();
  saveBaseAsProject();
  expectRefusals();
}

TEST_F(StudySetupTest, soIsTheColumnOfATableOfValues) {
  write("v.csv", "kf,well_model\\3\\4\n0.002,-3\n");
  write("a.tstudy", "[study]\nbase=base.tbat\nsampler=table\ntable=v.csv\n");
  EXPECT_EQ(refusal(), "v.csv, line 1: well_model\\3\\4: expected a row of well_model in the base, "
                       "which has 2 of them\n");
}

TEST_F(StudySetupTest, soIsATableThatDoesNotStandInTheBase) {
  vary("demand_model\\1\\0=uniform(1e6, 2e6)");
  EXPECT_EQ(refusal(), "[vary] demand_model\\1\\0: expected a base in which the table demand_model "
                       "stands\n");
  const QByteArray wells = "well_model";
  write("base.tbat", smallDoublet.left(smallDoublet.indexOf(wells)) + "number_of_wells=2\n");
  vary("well_model\\2\\4=uniform(-4, -3)");
  EXPECT_EQ(refusal(), "[vary] well_model\\2\\4: expected a row of well_model in the base, which "
                       "has 0 of them\n");
}

TEST_F(StudySetupTest, aRunThatEndsTooEarlyForTheTimesIsWarnedOf) {
  vary("simulation_time=list(0.5, 3)", "[answers]\ntimes=2\n");
  EXPECT_EQ(warning(), "warning: simulation_time: with 0.5 the run has no results near 2 years\n");
  vary("simulation_time=list(2, 3)", "[answers]\ntimes=2\n");
  EXPECT_EQ(warning(), "");
}

TEST_F(StudySetupTest, aRunWithOtherWellsThanTheBaseIsWarnedOf) {
  vary("well_model\\1\\3=list(-0.001, 0)");
  EXPECT_EQ(warning(), "warning: well_model\\1\\3: with 0 the run has 1 wells that take part, not "
                       "2 like the base\n");
}

TEST_F(StudySetupTest, aValueThatIsTheOnlyOneOfItsKeyIsWarnedOfOnce) {
  vary("well_model\\2\\1=list(0)");
  EXPECT_EQ(warning().count("warning"), 1);
}

TEST_F(StudySetupTest, thePlanSaysHowManyOfItsTrialRunsFailedAndWhy) {
  vary("simulation_time=list(0.5, 3)", "[answers]\ntimes=2\n");
  EXPECT_TRUE(said("plan", 0).endsWith("warning: 1 of 2 trial runs failed: has no results near 2 "
                                       "years\n"));
  vary("simulation_time=list(0.5, 1)", "[answers]\ntimes=2\n");
  EXPECT_TRUE(said("plan", 0).endsWith("warning: 2 of 2 trial runs failed: has no results near 2 "
                                       "years\n"));
  EXPECT_EQ(study("plan").out, path("a.tstudy") + ": 2 runs in 1 parts\n");
}

TEST_F(StudySetupTest, aRasterWithoutAWellIsWarnedOf) {
  vary("kf=uniform(0.001, 0.002)", "[answers]\nraster=100, 0, 10, 10\n");
  EXPECT_EQ(warning(), "warning: [answers] raster: no well of the base lies in it\n");
  vary("kf=uniform(0.001, 0.002)", "[answers]\nraster=30, -5, 20, 10\n");
  EXPECT_EQ(warning(), "");
}

#ifndef __SANITIZE_ADDRESS__ // which ends the program when memory is short
TEST_F(StudySetupTest, aStudyThatDoesNotFitIntoTheMemoryIsTold) {
  write("a.tstudy", "[study]\nbase=base.tbat\nruns=10000000\n[vary]\nkf=uniform(1, 2)\n");
  const Outcome outcome = run({"-c", "ulimit -v 400000; exec \"$@\"", "limited",
                               TEVRANE_STUDY_PROGRAM, "check", path("a.tstudy")},
                              "bash");
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_TRUE(outcome.err.contains("a.tstudy: the memory of this machine is too small"))
      << outcome.err.toStdString();
}
#endif

TEST_F(StudySetupTest, theCellsOfAllMapsAreBoundedTogether) {
  const QByteArray raster = "[answers]\nraster=-500, -500, 1000, 1000\nraster_cell=0.5\n";
  vary("kf=uniform(0.001, 0.002)", raster + "times=1, 2\nlevels=-1\n");
  EXPECT_EQ(warning(), "");
  vary("kf=uniform(0.001, 0.002)", raster + "times=1, 2\nlevels=-1, -2, -3, -4\n");
  EXPECT_EQ(refusal(), "[answers] raster_cell: expected a raster of at most 2500000 cells for 4 "
                       "levels and 2 times, found 4000000 cells\n");
  vary("kf=uniform(0.001, 0.002)", "[answers]\nraster=0, 0, 1e9, 1e9\nraster_cell=0.001\n");
  EXPECT_NE(refusal().find("at most 4000000 cells for 4 levels and 1 times, found 1e+24 cells"),
            std::string::npos);
}
