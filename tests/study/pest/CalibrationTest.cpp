#include "study/pest/CalibrationFiles.h"
#include "support/SmallDoublet.h"
#include "support/TestDirectory.h"

#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace TVR::Study;

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

  void calibrate() { EXPECT_EQ(run({"pest", "s.tstudy", "o.csv"}), 0) << said.toStdString(); }

  /// What a calibration does: puts numbers into the marked file, runs the command of the control
  /// file and reads the results where the instructions say.
  QMap<QString, double> answersAt(const QMap<QString, double>& numbers) {
    QString text = QString::fromUtf8(contentOf(path("s.pest/site.tpl")));
    const QString mark = text.section('\n', 0, 0).section(' ', 1);
    text = text.section('\n', 1);
    const QRegularExpression marked(QStringLiteral("%1 *(\\w+) *%1").arg(mark));
    for (auto match = marked.match(text); match.hasMatch(); match = marked.match(text)) {
      const QString number = QString::number(numbers.value(match.captured(1)), 'g', 17);
      EXPECT_LE(number.size(), match.capturedLength());
      text.replace(match.capturedStart(), match.capturedLength(), number);
    }
    write("s.pest/site.tbat", text.toUtf8());
    const QStringList command = sectionOf("model command line").first().split(' ');
    EXPECT_EQ(command.first(), "tevrane-study");
    EXPECT_EQ(run(command.mid(1), "s.pest"), 0) << said.toStdString();
    return read();
  }

  QMap<QString, double> read() const {
    QMap<QString, double> values;
    const QList<QByteArray> lines = contentOf(path("s.pest/site.obs")).split('\n');
    const QRegularExpression form("^l1 \\[(\\w+)\\](\\d+):(\\d+)$");
    QStringList orders =
        QString::fromUtf8(contentOf(path("s.pest/site.ins"))).trimmed().split('\n');
    EXPECT_EQ(orders.takeFirst(), "pif @");
    for (int i = 0; i < orders.size(); ++i) {
      const auto order = form.match(orders[i]);
      const int first = order.captured(2).toInt();
      bool isNumber = false;
      values[order.captured(1)] = lines[i]
                                      .mid(first - 1, order.captured(3).toInt() - first + 1)
                                      .trimmed()
                                      .toDouble(&isNumber);
      EXPECT_TRUE(isNumber);
    }
    return values;
  }

  /// The lines of a section of the control file.
  QStringList sectionOf(const QString& name) const {
    const QString text = QString::fromUtf8(contentOf(path("s.pest/site.pst")));
    return text.section("* " + name + "\n", 1).section("\n*", 0, 0).trimmed().split('\n');
  }
  /// Name and number at the start of each parameter.
  QMap<QString, double> start() const {
    QMap<QString, double> numbers;
    for (const QString& line : sectionOf("parameter data"))
      numbers[line.section(' ', 0, 0)] = line.section(' ', 3, 3).toDouble();
    return numbers;
  }

  QString said;
};

} // namespace

TEST_F(CalibrationTest, aCalibrationBeginsAtTheBaseOrInTheMiddleOfADistributionThatLacksIt) {
  calibrate();
  EXPECT_EQ(
      start(),
      (QMap<QString, double>{
          {"kf", 0.002}, {"groundwater_", 0.2}, {"groundwater2", 90}, {"well_model_2", -5.5}}));
}

TEST_F(CalibrationTest, theFilesWorkTogether) {
  calibrate();
  QMap<QString, double> numbers = start();
  const QMap<QString, double> before = answersAt(numbers);
  EXPECT_EQ(before.keys(), (QStringList{"s_pump", "t_return"}));
  EXPECT_NEAR(before["t_return"], 10 - 5.5, 1.5); // the water that is injected
  EXPECT_GT(before["s_pump"], 0);
  numbers["kf"] *= 2;
  EXPECT_NEAR(answersAt(numbers)["s_pump"] / before["s_pump"], 0.5, 0.1);
}

TEST_F(CalibrationTest, aParameterOverDecadesIsALogarithmAndOneOfEitherSignChangesRelatively) {
  calibrate();
  const QStringList lines = sectionOf("parameter data");
  EXPECT_TRUE(lines[0].startsWith("kf log factor 0.002 0.0010"));
  EXPECT_TRUE(lines[1].startsWith("groundwater_ none factor 0.2 "));
  EXPECT_TRUE(lines[3].startsWith("well_model_2 none relative -5.5 "));
}

TEST_F(CalibrationTest, theControlFileCountsWhatItHolds) {
  calibrate();
  EXPECT_EQ(sectionOf("control data")[1], "4 2 1 0 2");
  EXPECT_EQ(sectionOf("observation data"),
            (QStringList{"t_return 7.5 10 temperature", "s_pump 0.25 100 drawdown"}));
  EXPECT_EQ(sectionOf("observation groups"), (QStringList{"temperature", "drawdown"}));
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

TEST_F(CalibrationTest, aRunThatFailsLeavesNoOlderResult) {
  calibrate();
  answersAt(start());
  EXPECT_EQ(run({"observe", "missing.tbat", "observations.csv", "site.obs"}, "s.pest"), 2);
  EXPECT_TRUE(QFile::exists(path("s.pest/site.obs"))); // nothing was run
  write("s.pest/observations.csv", QByteArray(measured).replace(",1,drawdown", ",50,drawdown"));
  EXPECT_EQ(run({"observe", "site.tbat", "observations.csv", "site.obs"}, "s.pest"), 1);
  EXPECT_FALSE(QFile::exists(path("s.pest/site.obs")));
}
