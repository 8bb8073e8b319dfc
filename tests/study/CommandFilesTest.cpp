#include "study/CommandFiles.h"

#include "study/StudyProgram.h"

#include <QDir>

namespace {

class CommandFilesTest : public StudyProgramTest {
protected:
  /// The command ends before anything is computed, and says why in a line.
  void expectRefusal(const QStringList& arguments, const QString& reason) const {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.exitCode, 2) << outcome.err.toStdString();
    EXPECT_TRUE(outcome.err.contains(reason)) << outcome.err.toStdString();
    EXPECT_EQ(outcome.err.count('\n'), 1) << outcome.err.toStdString();
    EXPECT_EQ(QDir(path("a.study/parts")).entryList(QDir::Files), QStringList());
  }
  void expectRefusalOfStudy(const QString& command, const QStringList& more,
                            const QString& reason) const {
    expectRefusal(QStringList{command, path("a.tstudy")} + more, reason);
  }

  const QString clash = "would take the place of the input";
};

} // namespace

TEST_F(CommandFilesTest, aSummaryTakesThePlaceOfNoInput) {
  writeStudy(3);
  const QByteArray content = contentOf(path("a.tstudy"));
  ASSERT_TRUE(QFile::link(path("base.tbat"), path("link")));
  for (const char* command : {"run", "collect"})
    for (const char* name : {"a.tstudy", "base.tbat", "link"})
      expectRefusalOfStudy(command, {"--json", path(name)}, clash);
  expectRefusalOfStudy("submit", {"--parallel", "--json", path("base.tbat")}, clash);
  write("hosts", ":\n");
  expectRefusalOfStudy(
      "submit", {"--parallel", "--hosts", '@' + path("hosts"), "--json", path("hosts")}, clash);
  EXPECT_EQ(contentOf(path("hosts")), ":\n");
  EXPECT_EQ(contentOf(path("a.tstudy")), content);
  EXPECT_EQ(contentOf(path("base.tbat")), smallDoublet);
}

TEST_F(CommandFilesTest, aPlanTakesThePlaceOfNoInputAndOfNoResult) {
  writeStudy(3);
  for (const char* name : {"a.tstudy", "base.tbat"})
    expectRefusalOfStudy("plan", {"--table", path(name)}, clash);
  ASSERT_TRUE(QDir(path("")).mkdir("a.study"));
  write("a.study/runs.csv", "computed");
  expectRefusalOfStudy("plan", {"--table", path("a.study/runs.csv")}, clash);
  EXPECT_EQ(contentOf(path("a.study/runs.csv")), "computed");
}

TEST_F(CommandFilesTest, aPageTakesThePlaceOfNoInput) {
  writeStudy(3);
  for (const char* name : {"page.png", "bands.dbf"})
    ASSERT_TRUE(QFile::link(path("base.tbat"), path(name)));
  expectRefusalOfStudy("page", {"--page", path("page.png")}, clash);
  expectRefusalOfStudy("page", {"--shapefile", path("bands")}, clash);
  EXPECT_EQ(contentOf(path("base.tbat")), smallDoublet);
}

TEST_F(CommandFilesTest, theTableOfResultsTakesNotThePlaceOfTheTableOfValues) {
  const QByteArray values = "kf\n0.002\n";
  write("runs.csv", values);
  write("a.tstudy", "[study]\nbase=base.tbat\nsampler=table\ntable=runs.csv\n");
  expectRefusalOfStudy("run", {"--folder", path("")}, clash);
  EXPECT_EQ(contentOf(path("runs.csv")), values);
}

TEST_F(CommandFilesTest, theSummaryIsNoOtherResultOfTheStudy) {
  writeStudy(3);
  expectRefusalOfStudy("run", {"--json", path("a.study/runs.csv")},
                       "two results would be written to");
}

TEST_F(CommandFilesTest, aFolderThatIsAFileIsTold) {
  writeStudy(3);
  const QString reason = "expected a folder for the results, but ";
  for (const char* command : {"run", "status", "collect"})
    expectRefusalOfStudy(command, {"--folder", path("base.tbat")}, reason);
  expectRefusalOfStudy("collect", {path("base.tbat")}, reason);
  expectRefusalOfStudy("run", {"--folder", path("base.tbat/below")},
                       "base.tbat/below can't be made: Not a directory");
  write("a.study", contentOf(path("a.tstudy")));
  expectRefusal({"run", path("a.study")}, reason);
}

TEST_F(CommandFilesTest, aNameThatCanNotBeWrittenIsToldBeforeTheRuns) {
  writeStudy(3);
  for (const char* command : {"run", "collect"}) {
    expectRefusalOfStudy(command, {"--json", path("nowhere/s.json")},
                         "nowhere/s.json can't be written: no directory that can be written to");
    expectRefusalOfStudy(command, {"--json", path("")}, "can't be written: it is a directory");
  }
  expectRefusalOfStudy("page", {"--page", path("nowhere/a.svg")}, "can't be written: no directory");
  expectRefusalOfStudy("page", {"--shapefile", path("nowhere/b")},
                       "can't be written: no directory");
}

TEST_F(CommandFilesTest, theSummaryMayStandInTheNewFolder) {
  writeStudy(3);
  EXPECT_EQ(study("run", {"--json", path("a.study/copy.json")}).exitCode, 0);
  EXPECT_EQ(contentOf(path("a.study/copy.json")), contentOf(path("a.study/summary.json")));
}

TEST_F(CommandFilesTest, anOptionThatACommandHasNoUseForIsRefused) {
  writeStudy(3);
  const QString json = path("s.json");
  const QList<QStringList> stray{
      {"template", "--json", json}, {"check", "--json", json},     {"plan", "--shard", "1/2"},
      {"status", "--shard", "1/2"}, {"collect", "--shard", "1/2"}, {"collect", "--workers", "2"},
      {"status", "--workers", "2"}, {"page", "--json", json},      {"run", "--table", json},
      {"run", "--page", "a.svg"},   {"check", "--shapefile", "b"}, {"run", "--shards", "3"},
      {"pest", "--workers", "2"},   {"observe", "--folder", "f"},  {"plan", "--folder", "f"},
      {"submit", "--shard", "1/2"}, {"template", "--folder", "f"}};
  for (const QStringList& words : stray) {
    const QStringList files = words[0] == "pest"      ? QStringList{path("a.tstudy"), "o.csv"}
                              : words[0] == "observe" ? QStringList{path("base.tbat"), "o", "r"}
                                                      : QStringList{path("a.tstudy")};
    expectRefusal(words + files,
                  QStringLiteral("%1 does not take %2 (see --help)").arg(words[0], words[1]));
  }
  EXPECT_FALSE(QFile::exists(json));
}

TEST_F(CommandFilesTest, aShardWritesNoSummary) {
  writeStudy(3);
  expectRefusalOfStudy("run", {"--shard", "1/2", "--json", path("s.json")},
                       "--json expects a whole study");
}
