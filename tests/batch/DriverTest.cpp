#include "DriverTest.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

TEST_F(DriverTest, aBatchFileBecomesATableBesideIt) {
  const Outcome outcome = run({write("site.tbat", smallDoublet)});
  EXPECT_EQ(outcome.exitCode, 0) << outcome.err.toStdString();
  const QList<QByteArray> lines = contentOf(path("site.out")).split('\n');
  ASSERT_GT(lines.size(), 10);
  EXPECT_EQ(lines[0], "Time [s]\tTime [a]\tPump\tReturn\t");
  const QList<QByteArray> last = lines[lines.size() - 2].split('\t');
  EXPECT_DOUBLE_EQ(last[0].toDouble(), 2 * 31557600.0);
  EXPECT_DOUBLE_EQ(last[1].toDouble(), 2);
  EXPECT_NEAR(last[3].toDouble(), 7, 0.1);
}

TEST_F(DriverTest, theSummaryTellsWhatTheRunWas) {
  const Outcome outcome = run({write("site.tbat", smallDoublet)});
  EXPECT_TRUE(outcome.out.contains(QRegularExpression(
      "site\\.tbat: \\d+ cells, 2 output times, \\d+ groundwater steps, \\d+ heat steps, "
      "\\d+\\.\\d s CPU\n  Pump: \\d+\\.\\d\\d to \\d+\\.\\d\\d °C\n  Return: .*\n  table: "
      ".*site\\.out\n")))
      << outcome.out.toStdString();
}

TEST_F(DriverTest, aSimulatedTimeThatTheRunDoesNotMeetIsWarnedOf) {
  const auto checked = [&](const QByteArray& years, const QStringList& options) {
    QByteArray text = smallDoublet;
    text.replace("simulation_time=2", "simulation_time=" + years);
    return run(QStringList{"--check", write("site.tbat", text)} + options).err;
  };
  EXPECT_TRUE(checked("127.1", {})
                  .contains("warning: the run ends after 126.10 years instead of 127.10, at its "
                            "last output time"));
  EXPECT_EQ(checked("127.1", {"--quiet"}), "");
  EXPECT_FALSE(checked("127", {}).contains("the run ends"));
}

TEST_F(DriverTest, lettersInTheNamesOfWellsReachTheTable) {
  QByteArray text = smallDoublet;
  text.replace("=Pump", "=Förderbrunnen");
  run({write("utf8.tbat", text)});
  EXPECT_TRUE(contentOf(path("utf8.out")).contains("\tFörderbrunnen\t"));
  run({write("latin1.tbat", QString::fromUtf8(text).toLatin1())});
  EXPECT_TRUE(contentOf(path("latin1.out")).contains("\tFörderbrunnen\t"));
}

TEST_F(DriverTest, theOutputOptionNamesTheTable) {
  const Outcome outcome = run({"--output", path("result.xml"), write("site.tbat", smallDoublet)});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_TRUE(contentOf(path("result.xml")).startsWith("<?xml"));
  EXPECT_FALSE(QFile::exists(path("site.out")));
}

TEST_F(DriverTest, bothLinearSolversGiveTheSameTable) {
  const QString file = write("site.tbat", smallDoublet);
  const Outcome structured = run({"--solver", "structured", "--output", path("a.out"), file});
  const Outcome reference = run({"--solver", "reference", "--output", path("b.out"), file});
  EXPECT_EQ(structured.exitCode, 0);
  EXPECT_EQ(reference.exitCode, 0) << reference.err.toStdString();
  // Rounding shows that they differ at all.
  EXPECT_NE(contentOf(path("a.out")), contentOf(path("b.out")));
  EXPECT_EQ(structured.out.section("Pump:", 1).section("table:", 0, 0),
            reference.out.section("Pump:", 1).section("table:", 0, 0));
}

TEST_F(DriverTest, quietSaysNothingOfARunThatGoesWell) {
  const Outcome outcome = run({"--quiet", write("site.tbat", smallDoublet)});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, "");
}

TEST_F(DriverTest, aFileThatNamesNoWellsIsToldWhichOnesItGets) {
  const QString file = write("site.tbat", "[main]\nsimulation_time=2\n[hydraulic]\n");
  const QString line = "site.tbat: names no wells: 2 of the design around (0, 0), withdrawal ";
  EXPECT_TRUE(run({"--check", file})
                  .err.contains(QRegularExpression(
                      QRegularExpression::escape(line) +
                      "\\d+\\.\\d m upstream of injection; what is injected is 3 K colder\n")));
  EXPECT_EQ(run({"--check", "--quiet", file}).err, "");
  EXPECT_EQ(run({"--check", write("own.tbat", smallDoublet)}).err, "");
}

TEST_F(DriverTest, aSingleWellOfTheDesignIsUpstreamOfNone) {
  const Outcome outcome =
      run({"--check", write("site.tbat", "[hydraulic]\n[installation]\nnumber_of_wells=1\n")});
  EXPECT_TRUE(
      outcome.err.contains("names no wells: 1 of the design around (0, 0); what is injected"))
      << outcome.err.toStdString();
}

TEST_F(DriverTest, verboseShowsTheDiagnosticLines) {
  const Outcome outcome = run({"--verbose", write("site.tbat", smallDoublet)});
  EXPECT_TRUE(outcome.err.contains("Simulation: started on main thread"));
}

TEST_F(DriverTest, progressOffATerminalIsALineATenth) {
  const Outcome outcome = run({write("site.tbat", smallDoublet)});
  EXPECT_TRUE(outcome.err.contains("50 %, year 1.0 of 2.0\n"));
  EXPECT_TRUE(outcome.err.contains("100 %, year 2.0 of 2.0\n"));
}

TEST_F(DriverTest, checkReadsAndSimulatesNothing) {
  const Outcome outcome = run({"--check", write("site.tbat", smallDoublet)});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_TRUE(outcome.out.endsWith("site.tbat: ok\n"));
  EXPECT_FALSE(QFile::exists(path("site.out")));
}

TEST_F(DriverTest, aMissingFileIsOneLineAndExitCodeTwo) {
  const Outcome outcome = run({path("none.tbat")});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_EQ(outcome.err, "tevrane-batch: " + path("none.tbat") +
                             ": no such file; expected a batch file or a project file\n");
}

TEST_F(DriverTest, aProblemOfTheSiteNamesTheKey) {
  QByteArray text = smallDoublet;
  text.replace("groundwater_gradient=0.2", "groundwater_gradient=0.2\naquifer_porosity=20");
  const Outcome outcome = run({write("site.tbat", text)});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_TRUE(
      outcome.err.endsWith("[hydraulic] aquifer_porosity: expected 0.001 to 1, found \"20\"\n"));
}

TEST_F(DriverTest, aProblemOfTheWellsNamesTheTable) {
  QByteArray text = smallDoublet;
  text.replace("well_model\\2\\1=40", "well_model\\2\\1=0");
  const Outcome outcome = run({write("site.tbat", text)});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_TRUE(outcome.err.endsWith(
      "[installation] well_model: \"Pump\" and \"Return\" stand at one place (0 0)\n"));
}

TEST_F(DriverTest, anUnusualValueIsAWarningAndTheRunGoesOn) {
  QByteArray text = smallDoublet;
  text.replace("groundwater_gradient=0.2", "groundwater_gradient=0.2\naquifer_h=250");
  const QString file = write("site.tbat", text);
  const Outcome outcome = run({"--check", file});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.err, "tevrane-batch: " + file +
                             ": warning: [hydraulic] aquifer_h: usual is 1 to 200 m, found "
                             "\"250\"\n");
  EXPECT_EQ(run({"--check", "--quiet", file}).err, "");
}

TEST_F(DriverTest, thousandsOfProblemsAreTwentyLinesAndTheirNumber) {
  QByteArray text = "[installation]\nwell_model\\size=3000\n";
  for (int well = 1; well <= 3000; ++well)
    text += "well_model\\" + QByteArray::number(well) + "\\3=fast\n";
  const Outcome outcome = run({write("site.tbat", text)});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_EQ(outcome.err.count('\n'), 21);
  EXPECT_TRUE(outcome.err.endsWith("site.tbat: 2980 more of this kind\n"));
}

TEST_F(DriverTest, xmlThatIsNoProjectIsRefused) {
  const QString file = write("site.tvr", "<a/>");
  const Outcome outcome = run({file});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_EQ(outcome.err, "tevrane-batch: " + file +
                             ": is no project file: it holds no parameter of a project\n");
  EXPECT_FALSE(QFile::exists(path("site.out")));
}

TEST_F(DriverTest, namesFromAFileGiveNoCommandsToTheTerminal) {
  QByteArray text = smallDoublet;
  text.replace("=Pump", "=\"P\\x1b[2J\\nforged: ok\"");
  const QString file = write("site.tbat", text);
  const Outcome outcome = run({file});
  EXPECT_EQ(outcome.exitCode, 0) << outcome.err.toStdString();
  EXPECT_FALSE(outcome.out.contains('\x1b'));
  EXPECT_FALSE(outcome.out.contains("\nforged"));
  EXPECT_TRUE(outcome.out.contains("  P\\u001b[2J\\u000aforged: ok: "))
      << outcome.out.toStdString();

  text.replace("well_model\\2\\1=40", "well_model\\2\\1=0");
  const Outcome refused = run({write("refused.tbat", text)});
  EXPECT_EQ(refused.exitCode, 2);
  EXPECT_EQ(refused.err.count('\n'), 1);
  EXPECT_FALSE(refused.err.contains('\x1b'));
}

TEST_F(DriverTest, aListOfParametersGivesNoCommandsToTheTerminal) {
  const QString file = write(
      "site.tvr", "<TVR><__application_version><__version>2.0.7</__version></__application_version>"
                  "<__parameter_set>"
                  "<parameter><name>project_name</name><value>a&#x9b;2J&#10;b</value></parameter>"
                  "<parameter><name>_number_of_wells</name><value>1</value></parameter>"
                  "</__parameter_set></TVR>");
  for (const char* const form : {"table", "json"}) {
    const Outcome outcome = run({"--print-parameters", "--format", form});
    const Outcome ofFile = run({"--print-parameters", "--format", form, file});
    EXPECT_FALSE(ofFile.out.contains(QChar(0x9b))) << form;
    EXPECT_EQ(ofFile.out.count('\n'), outcome.out.count('\n')) << form;
  }
}

TEST_F(DriverTest, wellsThatStandNearAreWarnedOfAndRun) {
  QByteArray text = smallDoublet;
  text.replace("well_model\\2\\1=40", "well_model\\2\\1=0.75");
  const QString file = write("site.tbat", text);
  const Outcome outcome = run({file});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_TRUE(outcome.err.contains("warning: [installation] well_model: \"Pump\" and \"Return\" "
                                   "stand only 0.75 m apart\n"));
  EXPECT_TRUE(QFile::exists(path("site.out")));
  EXPECT_FALSE(run({"--quiet", file}).err.contains("warning"));
}

TEST_F(DriverTest, wellsThatShareACellAreAProblem) {
  QByteArray text = smallDoublet;
  text.replace("well_model\\2\\1=40", "well_model\\2\\1=0.25");
  const Outcome outcome = run({write("site.tbat", text)});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_TRUE(outcome.err.endsWith("which the cells of 1 m around wells cannot tell apart\n"));
}

TEST_F(DriverTest, aTableThatCanNotBeWrittenEndsWithOneAndBeforeTheRun) {
  const Outcome outcome =
      run({"--output", "/nonexistent/place/table.out", write("site.tbat", smallDoublet)});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_TRUE(outcome.err.contains("the table /nonexistent/place/table.out can't be written"));
  EXPECT_FALSE(outcome.err.contains("%"));
}

TEST_F(DriverTest, aSolverFailureIsOneLineAndKeepsTheOlderTable) {
  QByteArray text = smallDoublet;
  text.replace("simulation_time=2", "simulation_time=2\nreltol_thermic=1e-16\n"
                                    "abstol_thermic=1e-16");
  const QByteArray older = "Time [s]\tTime [a]\tPump\t\n";
  write("site.out", older);
  const Outcome outcome = run({"--quiet", write("site.tbat", text)});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_TRUE(outcome.err.contains("the simulation failed after 0.00 years: "));
  EXPECT_TRUE(outcome.err.contains("heat model")) << outcome.err.toStdString();
  EXPECT_TRUE(outcome.err.contains("; likely at fault: [main] reltol_thermic: usual is 1e-12 to "
                                   "0.001, found \"1e-16\"; [main] abstol_thermic: "))
      << outcome.err.toStdString();
  EXPECT_EQ(outcome.err.count('\n'), 1);
  EXPECT_EQ(contentOf(path("site.out")), older);
}

TEST_F(DriverTest, severalFilesRunInOrderAndOneThatFailsStopsNoOther) {
  const QString good = write("a.tbat", smallDoublet);
  const QString other = write("c.tbat", smallDoublet);
  const Outcome outcome = run({"--jobs", "2", good, path("missing.tbat"), other});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_LT(outcome.out.indexOf("a.tbat:"), outcome.out.indexOf("c.tbat:"));
  EXPECT_GE(outcome.out.indexOf("a.tbat:"), 0);
  EXPECT_TRUE(outcome.err.contains("missing.tbat: no such file"));
  EXPECT_EQ(contentOf(path("a.out")), contentOf(path("c.out")));
  EXPECT_FALSE(contentOf(path("a.out")).isEmpty());
}

TEST_F(DriverTest, theTemplateIsACompleteFileThatPassesTheCheck) {
  EXPECT_EQ(run({"--template", path("new.tbat")}).exitCode, 0);
  const Outcome outcome = run({"--check", path("new.tbat")});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.err, "");
}

TEST_F(DriverTest, theTemplateReplacesNoFile) {
  const QString file = write("mine.tbat", "mine");
  const Outcome outcome = run({"--template", file});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_EQ(contentOf(file), "mine");
}

TEST_F(DriverTest, theParametersAreListedAsATable) {
  const Outcome outcome = run({"--print-parameters"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out.count('\n'), 174);
  EXPECT_TRUE(outcome.out.contains(
      QRegularExpression(" 20  __g +9\\.81 +m/s² +1 to 30 +9\\.7 to 9\\.9\n")));
}

TEST_F(DriverTest, theParametersOfAFileAreListedAsJson) {
  const Outcome outcome =
      run({"--print-parameters", "--format", "json", write("site.tbat", smallDoublet)});
  EXPECT_EQ(outcome.exitCode, 0);
  const QJsonArray rows = QJsonDocument::fromJson(outcome.out.toUtf8()).array();
  ASSERT_EQ(rows.size(), 173);
  const QJsonObject gradient = rows[120].toObject();
  EXPECT_EQ(gradient["id"].toInt(), 120);
  EXPECT_EQ(gradient["key"].toString(), "groundwater_gradient");
  EXPECT_EQ(gradient["value"].toDouble(), 0.2);
  EXPECT_EQ(gradient["unit"].toString(), "m/100m");
  EXPECT_EQ(gradient["possible"].toArray(), (QJsonArray{0, 100}));
  EXPECT_EQ(gradient["usual"].toArray(), (QJsonArray{0, 5}));
  EXPECT_FALSE(rows[141].toObject().contains("possible"));
  EXPECT_FALSE(rows[141].toObject().contains("shown"));
  EXPECT_EQ(rows[34].toObject()["shown"].toObject(),
            (QJsonObject{{"unit", "%"}, {"factor", 100}, {"decimals", 2}}));
  const QJsonObject demand = rows[68].toObject(); // the store converts it
  EXPECT_EQ(demand["unit"].toString(), "kWh/(m²·a)");
  EXPECT_EQ(demand["shown"].toObject()["factor"].toDouble(), 1);
}

TEST_F(DriverTest, helpShowsAnExampleAndVersionTheNumber) {
  const Outcome help = run({"--help"});
  EXPECT_EQ(help.exitCode, 0);
  EXPECT_TRUE(help.out.contains("Example:\n  tevrane-batch --template doublet.tbat"));
  const Outcome version = run({"--version"});
  EXPECT_EQ(version.out, QString("tevrane-batch %1\n").arg(TEVRANE_VERSION));
}

TEST_F(DriverTest, aMistakeOnTheCommandLineEndsWithTwo) {
  for (const QStringList& arguments :
       {QStringList{}, QStringList{"--jobs", "none", "a.tbat"}, QStringList{"--unheard-of"},
        QStringList{"--solver", "magic", "a.tbat"}, QStringList{"--language", "it", "a.tbat"},
        QStringList{"--output", "x.out", "a.tbat", "b.tbat"},
        QStringList{"--print-parameters", "--format", "xml"}}) {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.exitCode, 2) << arguments.join(' ').toStdString();
    EXPECT_EQ(outcome.err.count('\n'), 1) << outcome.err.toStdString();
  }
}
