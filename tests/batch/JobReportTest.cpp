#include "DriverTest.h"
#include "design/ParameterId.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

class JobReportTest : public DriverTest {
protected:
  /// The report of a run of the driver with these arguments.
  QJsonObject reportOf(const QStringList& arguments, int exitCode) {
    outcome = run(QStringList{"--json", path("report.json")} + arguments);
    EXPECT_EQ(outcome.exitCode, exitCode) << outcome.err.toStdString();
    QJsonParseError error{};
    const QJsonObject report =
        QJsonDocument::fromJson(contentOf(path("report.json")), &error).object();
    EXPECT_EQ(error.error, QJsonParseError::NoError);
    EXPECT_EQ(report["exit_code"].toInt(-1), exitCode);
    return report;
  }
  static QByteArray with(const QByteArray& before, const QByteArray& after) {
    return QByteArray(smallDoublet).replace(before, after);
  }

  Outcome outcome;
};

} // namespace

TEST_F(JobReportTest, aRunIsReportedWithItsFormProgramAndFile) {
  const QString file = write("site.tbat", smallDoublet);
  const QJsonObject report = reportOf({file}, 0);
  EXPECT_EQ(report["schema"].toInt(), 1);
  EXPECT_EQ(report["program"].toObject()["name"].toString(), "tevrane-batch");
  EXPECT_EQ(report["program"].toObject()["version"].toString(), TEVRANE_VERSION);
  EXPECT_EQ(report["file"].toString(), file);
  EXPECT_EQ(report["status"].toString(), "ok");
  EXPECT_EQ(report["errors"].toArray(), QJsonArray());
}

TEST_F(JobReportTest, itHasTheParametersOfTheRunWithTheirUnits) {
  const QJsonObject report = reportOf({write("site.tbat", smallDoublet)}, 0);
  const QJsonObject gradient = report["parameters"].toArray()[120].toObject();
  EXPECT_EQ(gradient["key"].toString(), "groundwater_gradient");
  EXPECT_EQ(gradient["value"].toDouble(), 0.2);
  EXPECT_EQ(gradient["unit"].toString(), "m/100m");
}

TEST_F(JobReportTest, itTellsWhereTheValuesComeFrom) {
  const QJsonArray rows = reportOf({write("site.tbat", smallDoublet)}, 0)["parameters"].toArray();
  const auto originOf = [&](int id) { return rows[id].toObject()["origin"].toString(); };
  EXPECT_EQ(originOf(TVR::Parameter::GroundwaterGradient), "file");
  EXPECT_EQ(originOf(TVR::Parameter::SpecificHeatDemand), "default");
  EXPECT_EQ(originOf(TVR::Parameter::GroundwaterVelocity), "computed");
}

TEST_F(JobReportTest, itHasTheWellsAsTheyAreRun) {
  const QJsonArray wells = reportOf({write("site.tbat", smallDoublet)}, 0)["wells"].toArray();
  ASSERT_EQ(wells.size(), 2);
  EXPECT_EQ(wells[1].toObject(), (QJsonObject{{"name", "Return"},
                                              {"x", 40.0},
                                              {"y", 0.0},
                                              {"rate", 0.001},
                                              {"temperature_change", -3.0}}));
}

TEST_F(JobReportTest, itHasTheTemperaturesOfTheTable) {
  const QJsonObject report = reportOf({write("site.tbat", smallDoublet)}, 0);
  const QJsonObject well = report["results"].toObject()["wells"].toArray()[1].toObject();
  const QList<QByteArray> lines = contentOf(path("site.out")).trimmed().split('\n');
  EXPECT_EQ(well["name"].toString(), "Return");
  ASSERT_EQ(well["time"].toArray().size(), lines.size() - 1);
  const QList<QByteArray> last = lines.last().split('\t');
  EXPECT_DOUBLE_EQ(well["time"].toArray().last().toDouble(), last[0].toDouble());
  EXPECT_NEAR(well["temperature"].toArray().last().toDouble(), last[3].toDouble(), 1e-6);
}

TEST_F(JobReportTest, itCountsWhatTheSolversDid) {
  const QJsonObject report = reportOf({write("site.tbat", smallDoublet)}, 0);
  const QJsonObject solver = report["solver"].toObject();
  EXPECT_TRUE(outcome.out.contains(
      QStringLiteral("%1 cells, %2 output times, %3 groundwater steps, %4 heat steps")
          .arg(solver["cells"].toInt())
          .arg(solver["output_times"].toInt())
          .arg(solver["groundwater_steps"].toInt())
          .arg(solver["heat_steps"].toInt())))
      << outcome.out.toStdString();
}

TEST_F(JobReportTest, itNamesTheFilesOfTheRun) {
  const QString file = write("site.tbat", smallDoublet);
  const QJsonObject results =
      reportOf({"--dxf", path("site.dxf"), "--output", path("t.out"), file}, 0)["results"]
          .toObject();
  EXPECT_EQ(results["table"].toString(), path("t.out"));
  EXPECT_EQ(results["files"].toArray(), QJsonArray{path("site.dxf")});
}

TEST_F(JobReportTest, aRefusedFileIsReportedWithAllItsErrors) {
  const QString file =
      write("site.tbat", with("groundwater_gradient=0.2", "groundwater_gradient=steep\nkf=fast"));
  const QJsonObject report = reportOf({file}, 2);
  EXPECT_EQ(report["status"].toString(), "refused");
  const QJsonArray errors = report["errors"].toArray();
  ASSERT_EQ(errors.size(), 2);
  for (const QJsonValue& error : errors)
    EXPECT_TRUE(outcome.err.contains(error.toString())) << error.toString().toStdString();
  EXPECT_FALSE(report.contains("results"));
}

TEST_F(JobReportTest, warningsAreReportedEvenIfTheTerminalIsSparedThem) {
  const QString file = write("site.tbat", with("simulation_time=2", "simulation_time=127.1"));
  const QJsonArray warnings = reportOf({"--quiet", "--check", file}, 0)["warnings"].toArray();
  EXPECT_EQ(outcome.err, "");
  ASSERT_FALSE(warnings.isEmpty());
  EXPECT_TRUE(warnings.last().toString().startsWith("the run ends after 126.10 years"));
}

TEST_F(JobReportTest, aReportThatCannotBeWrittenIsToldBeforeTheRun) {
  const Outcome refused =
      run({"--json", path("nowhere/report.json"), write("s.tbat", smallDoublet)});
  EXPECT_EQ(refused.exitCode, 1);
  EXPECT_TRUE(refused.err.contains("nowhere/report.json can't be written"));
  EXPECT_FALSE(QFile::exists(path("s.out")));
}

TEST_F(JobReportTest, aReportDoesNotReplaceTheFileThatIsRead) {
  const QString file = write("site.tbat", smallDoublet);
  const Outcome refused = run({"--json", file, file});
  EXPECT_EQ(refused.exitCode, 2);
  EXPECT_EQ(contentOf(file), smallDoublet);
}

TEST_F(JobReportTest, aReportDoesNotReplaceAnotherResult) {
  const QString table = write("t.out", "Time [s]\tTime [a]\t");
  const Outcome refused =
      run({"--json", table, "--output", table, write("site.tbat", smallDoublet)});
  EXPECT_EQ(refused.exitCode, 2);
  EXPECT_TRUE(refused.err.contains("two results would be written to"));
  EXPECT_EQ(contentOf(table), "Time [s]\tTime [a]\t");
}

TEST_F(JobReportTest, aReportGoesWithOneFile) {
  const QString file = write("site.tbat", smallDoublet);
  const Outcome refused = run({"--json", path("r.json"), file, file});
  EXPECT_EQ(refused.exitCode, 2);
  EXPECT_TRUE(refused.err.contains("--json goes with one file"));
}

// How good the mesh is

TEST_F(JobReportTest, theMeshIsJudgedOnACoarserAndAFinerOne) {
  const QJsonObject report = reportOf({"--convergence", write("site.tbat", smallDoublet)}, 0);
  const QJsonObject convergence = report["convergence"].toObject();
  const QJsonArray cells = convergence["cells"].toArray();
  ASSERT_EQ(cells.size(), 3);
  EXPECT_EQ(cells[1].toInt(), report["solver"].toObject()["cells"].toInt());
  EXPECT_LT(cells[0].toInt(), cells[1].toInt());
  EXPECT_GT(cells[2].toInt(), 3 * cells[1].toInt());
  QStringList names;
  for (const QJsonValue& figure : convergence["figures"].toArray())
    names << figure.toObject()["name"].toString();
  EXPECT_EQ(names,
            (QStringList{"plume of -1 K, length", "plume of -1 K, width", "temperature of Pump",
                         "temperature of Return", "greatest drawdown"}));
}

TEST_F(JobReportTest, theValueOfTheOwnMeshIsThatOfTheRun) {
  const QJsonObject report = reportOf({"--convergence", write("site.tbat", smallDoublet)}, 0);
  const QJsonObject well = report["results"].toObject()["wells"].toArray()[0].toObject();
  const QJsonObject figure = report["convergence"].toObject()["figures"].toArray()[2].toObject();
  EXPECT_NEAR(figure["value"].toDouble(), well["temperature"].toArray().last().toDouble(), 1e-4);
  EXPECT_EQ(figure["value"], figure["values"].toArray()[1]);
}

TEST_F(JobReportTest, theJudgementIsPrintedAndAMeshThatIsTooCoarseWarnedOf) {
  const QJsonObject report = reportOf({"--convergence", write("site.tbat", smallDoublet)}, 0);
  EXPECT_TRUE(outcome.out.contains(QRegularExpression(
      "  meshes of \\d+, \\d+ \\(its own\\) and \\d+ cells:\n.* order +band \\+-\n +plume of -1 K, "
      "length .* m\n")))
      << outcome.out.toStdString();
  int warned = 0;
  for (const QJsonValue& figure : report["convergence"].toObject()["figures"].toArray())
    warned += figure.toObject()["good_enough"].toBool() ? 0 : 1;
  EXPECT_GT(warned, 0);
  EXPECT_EQ(outcome.err.count("warning: the mesh is not good enough for "), warned);
}

TEST_F(JobReportTest, aMeshThatIsNotRunIsNotJudged) {
  const QString file = write("site.tbat", smallDoublet);
  for (const QStringList& arguments :
       {QStringList{"--convergence", "--check", file},
        QStringList{"--convergence", "--print-parameters", file},
        QStringList{"--convergence", "--template", path("new.tbat")}}) {
    outcome = run(arguments);
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_TRUE(outcome.err.contains("--convergence goes with files that are run"));
  }
}

TEST_F(JobReportTest, withoutTheWishNoOtherMeshIsRun) {
  EXPECT_FALSE(reportOf({write("site.tbat", smallDoublet)}, 0).contains("convergence"));
  EXPECT_FALSE(outcome.out.contains("meshes of"));
}
