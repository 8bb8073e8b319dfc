#include "batch/OutputNames.h"

#include "DriverTest.h"

#include <sys/stat.h>
#include <unistd.h>

#include <future>

namespace {

/// Names of results: what the command line may name, and what a file may.
class OutputNamesTest : public DriverTest {
protected:
  /// The small doublet with a name for its table.
  QString siteWith(const QString& outputFile, const QString& name = "site.tbat") const {
    QByteArray text = smallDoublet;
    text.replace("simulation_time=2", "simulation_time=2\noutput_file=" + outputFile.toUtf8());
    return write(name, text);
  }

  QString site() const { return write("site.tbat", smallDoublet); }

  /// The run ends before it begins, and says why in a line.
  void expectRefusal(const QStringList& arguments, const QString& reason) const {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.exitCode, 2) << outcome.err.toStdString();
    EXPECT_TRUE(outcome.err.contains(reason)) << outcome.err.toStdString();
    EXPECT_EQ(outcome.err.count('\n'), 1) << outcome.err.toStdString();
  }
};

} // namespace

// Names that stand in a file

TEST_F(OutputNamesTest, aNameInAFileReplacesNoOtherFile) {
  write("notes.txt", "mine");
  expectRefusal({siteWith("notes.txt")}, "notes.txt is not written: what is there is no table");
  EXPECT_EQ(contentOf(path("notes.txt")), "mine");
}

TEST_F(OutputNamesTest, theNameMadeOfTheInputReplacesNoOtherFileEither) {
  write("site.out", "mine");
  expectRefusal({site()}, "what is there is no table");
  EXPECT_EQ(contentOf(path("site.out")), "mine");
}

TEST_F(OutputNamesTest, aNameInAFileMakesNoFileThatEndsAsNoTableDoes) {
  for (const QString& name :
       {QString(".bashrc"), QString("run.sh"), QString("table.out.desktop")}) {
    expectRefusal({siteWith(name)}, "a table ends in .out");
    EXPECT_FALSE(QFile::exists(path(name)));
  }
}

TEST_F(OutputNamesTest, aNameInAFileFollowsNoLinkToNothing) {
  ASSERT_TRUE(QFile::link(path("later"), path("table.out")));
  expectRefusal({siteWith("table.out")}, "it is a link that leads nowhere");
  EXPECT_FALSE(QFile::exists(path("later")));
}

TEST_F(OutputNamesTest, aNameInAFileOpensNoPipe) {
  ASSERT_EQ(mkfifo(path("pipe.out").toUtf8().constData(), 0600), 0);
  expectRefusal({siteWith("pipe.out")}, "what is there is no table");
}

TEST_F(OutputNamesTest, anOlderTableIsReplacedInBothForms) {
  for (const QString& name : {QString("table.out"), QString("table.xml")}) {
    const QString file = siteWith(name);
    ASSERT_EQ(run({"--quiet", file}).exitCode, 0);
    const QByteArray table = contentOf(path(name));
    QFile(path(name)).resize(table.size() - 10);
    EXPECT_EQ(run({"--quiet", file}).exitCode, 0) << name.toStdString();
    EXPECT_EQ(contentOf(path(name)), table);
  }
}

TEST_F(OutputNamesTest, anotherProgramsSpreadsheetIsNoTable) {
  write("table.xml", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Workbook "
                     "xmlns=\"urn:schemas-microsoft-com:office:spreadsheet\"></Workbook>\n");
  expectRefusal({siteWith("table.xml")}, "what is there is no table");
}

TEST_F(OutputNamesTest, tablesOfAllCellsReplaceNoOtherFile) {
  QByteArray text = smallDoublet;
  text.replace("simulation_time=2", "simulation_time=2\nwrite_tecplot_output=true");
  write("xy_export_temperature.csv", "mine");
  const Outcome outcome = run({"--quiet", "--page", "page.png", write("site.tbat", text)});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_TRUE(outcome.err.contains("xy_export_temperature.csv could not be written"));
  EXPECT_EQ(contentOf(path("xy_export_temperature.csv")), "mine");
}

// Names of the command line

TEST_F(OutputNamesTest, theCommandLineReplacesWhateverIsThere) {
  write("notes", "mine");
  EXPECT_EQ(run({"--quiet", "--output", "notes", siteWith("other.out")}).exitCode, 0);
  EXPECT_TRUE(contentOf(path("notes")).startsWith("Time [s]\t"));
  EXPECT_FALSE(QFile::exists(path("other.out")));
}

TEST_F(OutputNamesTest, aPipeOfTheCommandLineIsWrittenToAndStays) {
  ASSERT_EQ(mkfifo(path("pipe").toUtf8().constData(), 0600), 0);
  auto reader = std::async(std::launch::async, [this] { return contentOf(path("pipe")); });
  EXPECT_EQ(run({"--quiet", "--output", "pipe", site()}).exitCode, 0);
  EXPECT_TRUE(reader.get().startsWith("Time [s]\t"));
  struct stat state {};
  ASSERT_EQ(stat(path("pipe").toUtf8().constData(), &state), 0);
  EXPECT_TRUE(S_ISFIFO(state.st_mode));
}

TEST_F(OutputNamesTest, theOwnInputIsNotReplacedUnderAnyOfItsNames) {
  const QString file = site();
  ASSERT_TRUE(QFile::link(file, path("link")));
  ASSERT_EQ(link(file.toUtf8().constData(), path("second").toUtf8().constData()), 0);
  for (const QString& name : {file, QString("./site.tbat"), QString("link"), QString("second")})
    expectRefusal({"--output", name, file}, "would take the place of the input");
  EXPECT_EQ(contentOf(file), smallDoublet);
}

TEST_F(OutputNamesTest, twoResultsOfOneRunHaveTwoNames) {
  const QString file = site();
  const QString reason = "two results would be written to";
  expectRefusal({"-o", "same.pdf", "--page", "same.pdf", file}, reason);
  expectRefusal({"-o", "same.pdf", "--page", "./same.pdf", file}, reason);
  expectRefusal({"--page", "same.svg", "--page", "same.svg", file}, reason);
  expectRefusal({"--dxf", "site.out", file}, reason);
  EXPECT_FALSE(QFile::exists(path("site.out")));
}

TEST_F(OutputNamesTest, twoJobsHaveTwoTables) {
  const QString reason = "two results would be written to";
  write("x.tvr", "<TVR><__parameter_set/></TVR>");
  expectRefusal({write("x.tbat", smallDoublet), "x.tvr"}, reason);
  expectRefusal({"x.tbat", "./x.tbat"}, reason);
  expectRefusal({siteWith("one.out", "a.tbat"), siteWith("one.out", "b.tbat")}, reason);
  EXPECT_FALSE(QFile::exists(path("x.out")));
  EXPECT_FALSE(QFile::exists(path("one.out")));
}

TEST_F(OutputNamesTest, aJobDoesNotReplaceTheInputOfAnother) {
  expectRefusal({siteWith("b.tbat", "a.tbat"), write("b.tbat", smallDoublet)},
                "b.tbat would take the place of the input");
}
