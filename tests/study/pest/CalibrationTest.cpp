#include "CalibrationProgram.h"
#include "support/SmallDoublet.h"
#include "support/TestDirectory.h"

#include <QDir>
#include <QProcess>

#include <gtest/gtest.h>

namespace {

const QByteArray site =
    QByteArray(smallDoublet).replace("[installation]", "kf=0.002\n[installation]");

const QByteArray study = R"([study]
base=site.tbat
[vary]
kf=log-uniform(0.001, 0.01)
groundwater_gradient=uniform(0.1, 0.3)
groundwater_flow_direction=uniform(80, 100)
well_model\2\4=uniform(-6, -5)
)";

const QByteArray measured = "name,well,time,quantity,value,weight\n"
                            "t_return,Return,2,temperature,7.5,10\n"
                            "s_pump,Pump,1,drawdown,0.25,100\n";

/// A study of a small doublet with two observations, in a directory of its own.
class CalibrationTest : public testing::Test, protected TestDirectory {
protected:
  CalibrationTest() {
    write("site.tbat", site);
    write("s.tstudy", study);
    write("o.csv", measured);
  }

  void write(const QString& name, const QByteArray& content) const {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }

  int run(const QStringList& arguments, const QString& place = {}) {
    QProcess process;
    process.setWorkingDirectory(path(place));
    process.start(TEVRANE_STUDY_PROGRAM, arguments);
    EXPECT_TRUE(process.waitForFinished(120000));
    said = QString::fromUtf8(process.readAllStandardError());
    return process.exitCode();
  }

  bool isRefused(const QString& reason) {
    return run({"pest", "s.tstudy", "o.csv"}) == 2 && said.contains(reason) &&
           !QFile::exists(path("s.pest"));
  }

  void calibrate() { EXPECT_EQ(run({"pest", "s.tstudy", "o.csv"}), 0) << said.toStdString(); }

  const CalibrationProgram program{path("s.pest"), TEVRANE_STUDY_PROGRAM};
  QString said;
};

} // namespace

TEST_F(CalibrationTest, aCalibrationBeginsAtTheBaseOrInTheMiddleOfADistributionThatLacksIt) {
  calibrate();
  EXPECT_EQ(
      program.start(),
      (QMap<QString, double>{
          {"kf", 0.002}, {"groundwater_", 0.2}, {"groundwater2", 90}, {"well_model_2", -5.5}}));
}

TEST_F(CalibrationTest, theLastKeyBeginsAtTheBaseToo) {
  write("s.tstudy", "[study]\nbase=site.tbat\nruns=10\n[vary]\nwell_model\\2\\4=uniform(-6, -2)\n");
  calibrate();
  EXPECT_EQ(program.start(), (QMap<QString, double>{{"well_model_2", -3}}));
}

TEST_F(CalibrationTest, aCellThatTheBaseHasNotIsRefused) {
  write("s.tstudy", QByteArray(study).replace("well_model\\2", "well_model\\3"));
  EXPECT_TRUE(isRefused("[vary] well_model\\3\\4: expected a row of well_model in the base"));
}

TEST_F(CalibrationTest, theFilesWorkTogether) {
  calibrate();
  QMap<QString, double> numbers = program.start();
  const QMap<QString, double> before = program.answersAt(numbers);
  EXPECT_EQ(before.keys(), (QStringList{"s_pump", "t_return"}));
  EXPECT_NEAR(before["t_return"], 10 - 5.5, 1.5); // the water that is injected
  EXPECT_GT(before["s_pump"], 0);
  numbers["kf"] *= 2;
  EXPECT_NEAR(program.answersAt(numbers)["s_pump"] / before["s_pump"], 0.5, 0.1);
}

TEST_F(CalibrationTest, aCalibrationFindsTheNumbersThatMadeItsObservations) {
  // The mark of other bases stands in this one, in a comment and in the name of a well.
  write("site.tbat", "; about ~ 40 m apart\n" + QByteArray(site).replace("Pump", "Pump ~1"));
  write("s.tstudy", "[study]\nbase=site.tbat\n[vary]\nkf=log-uniform(0.0005, 0.02)\n"
                    "well_model\\2\\4=uniform(-6, -1)\n");
  QByteArray table = QByteArray(measured).replace("Pump", "Pump ~1");
  write("o.csv", table);
  calibrate();
  EXPECT_EQ(program.start(), (QMap<QString, double>{{"kf", 0.002}, {"well_model_2", -3}}));

  const QMap<QString, double> truth{{"kf", 0.0047}, {"well_model_2", -4.25}};
  const QMap<QString, double> answers = program.answersAt(truth);
  table.replace("7.5", QByteArray::number(answers["t_return"], 'g', 17));
  write("o.csv", table.replace("0.25", QByteArray::number(answers["s_pump"], 'g', 17)));
  EXPECT_TRUE(QDir(path("s.pest")).removeRecursively());
  calibrate();
  const QMap<QString, double> found = program.estimate();
  EXPECT_NEAR(found["kf"] / truth["kf"], 1, 1e-4);
  EXPECT_NEAR(found["well_model_2"], truth["well_model_2"], 1e-4);
}

TEST_F(CalibrationTest, aParameterOverDecadesIsALogarithmAndOneOfEitherSignChangesRelatively) {
  calibrate();
  const QStringList lines = program.section("parameter data");
  EXPECT_TRUE(lines[0].startsWith("kf log factor 0.002 0.0010"));
  EXPECT_TRUE(lines[1].startsWith("groundwater_ none factor 0.2 "));
  EXPECT_TRUE(lines[3].startsWith("well_model_2 none relative -5.5 "));
}

TEST_F(CalibrationTest, theControlFileCountsWhatItHolds) {
  calibrate();
  EXPECT_EQ(program.section("control data")[1], "4 2 1 0 2");
  EXPECT_EQ(program.section("observation data"),
            (QStringList{"t_return 7.5 10 temperature", "s_pump 0.25 100 drawdown"}));
  EXPECT_EQ(program.section("observation groups"), (QStringList{"temperature", "drawdown"}));
}

TEST_F(CalibrationTest, anUnknownWellIsRefused) {
  write("o.csv", QByteArray(measured).replace("Return", "Sink"));
  EXPECT_EQ(run({"pest", "s.tstudy", "o.csv"}), 2);
  EXPECT_TRUE(said.contains("expected one of the wells Pump, Return, found \"Sink\""));
  EXPECT_FALSE(QFile::exists(path("s.pest")));
}

TEST_F(CalibrationTest, whatWasEditedSinceIsNotReplaced) {
  calibrate();
  calibrate();
  const QByteArray edited = contentOf(path("s.pest/site.pst")) + "# mine";
  write("s.pest/site.pst", edited);
  EXPECT_EQ(run({"pest", "s.tstudy", "o.csv"}), 2);
  EXPECT_TRUE(said.contains("site.pst in ./s.pest would be replaced")) << said.toStdString();
  EXPECT_EQ(contentOf(path("s.pest/site.pst")), edited);
}

TEST_F(CalibrationTest, aCalibrationTakesThePlaceOfNoInput) {
  EXPECT_EQ(run({"pest", "s.tstudy", "o.csv", "--folder", "."}), 2);
  EXPECT_TRUE(said.contains("site.tbat would take the place of the input")) << said.toStdString();
  EXPECT_EQ(run({"pest", "s.tstudy", "o.csv", "--folder", "o.csv"}), 2);
  EXPECT_TRUE(said.contains("expected a folder, but o.csv is a file")) << said.toStdString();
  EXPECT_FALSE(QFile::exists(path("site.tpl")));
}

TEST_F(CalibrationTest, aResultTakesThePlaceOfNoInput) {
  for (const QString& result : {QString("site.tbat"), QString("./o.csv")}) {
    EXPECT_EQ(run({"observe", "site.tbat", "o.csv", result}), 2);
    EXPECT_TRUE(said.contains(result + " would take the place of the input"));
  }
  EXPECT_EQ(contentOf(path("site.tbat")), site);
  EXPECT_EQ(contentOf(path("o.csv")), measured);
  EXPECT_EQ(run({"observe", "site.tbat", "o.csv", "nowhere/site.obs"}), 2);
  EXPECT_TRUE(said.contains("nowhere/site.obs can't be written: no directory"));
}

TEST_F(CalibrationTest, anObservationAtATimeWithoutResultsIsRefused) {
  write("o.csv", QByteArray(measured).replace(",2,temperature", ",50,temperature"));
  EXPECT_TRUE(
      isRefused("the observation t_return: expected a time at which the base has results, up "
                "to 2 years, found \"50\""));
}

TEST_F(CalibrationTest, aTableOfRunsHasNoKeysToCalibrate) {
  write("runs.csv", "kf\n0.001\n0.002\n");
  write("s.tstudy", "[study]\nbase=site.tbat\nsampler=table\ntable=runs.csv\n");
  EXPECT_TRUE(isRefused("[study] sampler: expected one with keys in [vary]"));
}

TEST_F(CalibrationTest, aKeyOfSingleValuesIsRefused) {
  for (const QByteArray list : {"aquifer_porosity=list(0.2)", "aquifer_unconfined=list(0, 1)"}) {
    write("s.tstudy", study + list + "\n");
    EXPECT_TRUE(
        isRefused("[vary] " + list.split('=')[0] + ": expected a distribution with a range"));
  }
}

TEST_F(CalibrationTest, aBaseWithAllMarksIsRefused) {
  write("site.tbat", "; ~@$%&^?|\n" + site);
  EXPECT_TRUE(isRefused("[study] base: expected a file without one of the characters ~@$%&^?|"));
}

TEST_F(CalibrationTest, aTableOfObservationsThatIsNotThereIsTold) {
  EXPECT_EQ(run({"pest", "s.tstudy", "nix.csv"}), 2);
  EXPECT_TRUE(said.contains("nix.csv: expected a CSV table that can be read\n"));
}

TEST_F(CalibrationTest, aRunThatFailsLeavesNoOlderResult) {
  calibrate();
  program.answersAt(program.start());
  EXPECT_EQ(run({"observe", "missing.tbat", "observations.csv", "site.obs"}, "s.pest"), 2);
  EXPECT_TRUE(QFile::exists(path("s.pest/site.obs"))); // nothing was run
  write("s.pest/observations.csv", QByteArray(measured).replace(",1,drawdown", ",50,drawdown"));
  EXPECT_EQ(run({"observe", "site.tbat", "observations.csv", "site.obs"}, "s.pest"), 1);
  EXPECT_FALSE(QFile::exists(path("s.pest/site.obs")));
}
