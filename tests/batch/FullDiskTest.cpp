#include "DriverTest.h"
#include "support/SmallDisk.h"

#include <QDir>

namespace {

/// A file that a run makes on request.
struct Kind {
  const char* option;
  const char* file;
  QByteArray older = "older";
};

const std::vector<Kind> kinds{
    {"--output", "table.out"}, {"--output", "table.xml"},
    {"--page", "page.svg"},    {"--page", "page.pdf"},
    {"--page", "page.png"},    {"--shapefile", "lines.shp"},
    {"--dxf", "lines.dxf"},    {"--save-project", "project.tvr"},
};

/// Results in a directory "disk" that takes half of one.
class FullDiskTest : public DriverTest {
protected:
  FullDiskTest() {
    qputenv("ASAN_OPTIONS", "detect_leaks=0"); // of the off-screen platform
    EXPECT_TRUE(QDir(directory.path()).mkpath("disk"));
    EXPECT_TRUE(QDir(directory.path()).mkpath("room"));
    write("site.tbat", QByteArray(smallDoublet).replace("simulation_time=2", "simulation_time=30"));
  }
  ~FullDiskTest() override { qunsetenv("ASAN_OPTIONS"); }

  static QStringList optionsFor(const Kind& kind, const QString& place) {
    const QString name = QString(kind.file).remove(".shp");
    return {"--quiet", kind.option, place + '/' + name, "site.tbat"};
  }

  /// How large the file becomes where there is room.
  qint64 sizeOf(const Kind& kind) const {
    const Outcome outcome = run(optionsFor(kind, "room"));
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err.toStdString();
    return QFileInfo(path("room/") + kind.file).size();
  }

  QStringList namesOnDisk() const {
    return QDir(path("disk")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }

  void expectTheOlderFile(const Kind& kind, const Outcome& outcome) const {
    EXPECT_EQ(outcome.exitCode, 1) << kind.file;
    EXPECT_TRUE(outcome.err.contains(QString(kind.file).remove(".shp")))
        << outcome.err.toStdString();
    EXPECT_EQ(contentOf(path("disk/") + kind.file), kind.older) << kind.file;
  }
};

} // namespace

TEST_F(FullDiskTest, everyKindOfResultStaysAsItWasAndIsNamed) {
  const SmallDisk disk(path("disk"));
  if (!disk.isMounted)
    GTEST_SKIP() << "only the administrator can mount a file system of two megabytes";
  for (const Kind& kind : kinds) {
    const qint64 size = sizeOf(kind);
    write(QString("disk/") + kind.file, kind.older);
    for (const qint64 room : {qint64(0), size / 2}) {
      disk.fillBut(room);
      expectTheOlderFile(kind, run(optionsFor(kind, "disk")));
      EXPECT_EQ(namesOnDisk(), (QStringList{"filling", kind.file}));
    }
    QFile::remove(path("disk/filling"));
    QFile::remove(path("disk/") + kind.file);
  }
}

TEST_F(FullDiskTest, aLimitOfTheSizeOfFilesIsLikeAFullDisk) {
  for (const Kind& kind : kinds) {
    const qint64 blocks = sizeOf(kind) / 2 / 512;
    write(QString("disk/") + kind.file, kind.older);
    const QString limited = QStringLiteral("trap '' XFSZ; ulimit -f %1; exec \"$@\"").arg(blocks);
    const QStringList program{"-c", limited, "sh", TEVRANE_BATCH_PROGRAM};
    expectTheOlderFile(kind, runProgram("sh", program + optionsFor(kind, "disk")));
    EXPECT_EQ(namesOnDisk(), QStringList(kind.file));
    QFile::remove(path("disk/") + kind.file);
  }
}

TEST_F(FullDiskTest, aTableAndAPageThatFailAreBothNamed) {
  const SmallDisk disk(path("disk"));
  if (!disk.isMounted)
    GTEST_SKIP() << "only the administrator can mount a file system of two megabytes";
  disk.fillBut(0);
  const Outcome outcome =
      run({"--quiet", "-o", "disk/table.out", "--page", "disk/page.svg", "site.tbat"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_TRUE(outcome.err.contains("the table disk/table.out could not be written"));
  EXPECT_TRUE(outcome.err.contains("disk/page.svg could not be written"));
}

TEST_F(FullDiskTest, tablesOfAllCellsThatCanNotBeWrittenEndWithOne) {
  const SmallDisk disk(path("disk"));
  if (!disk.isMounted)
    GTEST_SKIP() << "only the administrator can mount a file system of two megabytes";
  QByteArray text = smallDoublet;
  text.replace("simulation_time=2", "simulation_time=2\nwrite_tecplot_output=true");
  const QString site = write("cells.tbat", text);
  write("disk/xy_export_drawdown.csv", "Element,X,Y\nolder\n");
  disk.fillBut(0);
  const Outcome outcome =
      runIn(path("disk"), TEVRANE_BATCH_PROGRAM, {"--quiet", "--page", path("page.png"), site});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_TRUE(outcome.err.contains("xy_export_temperature.csv could not be written"))
      << outcome.err.toStdString();
  EXPECT_EQ(contentOf(path("disk/xy_export_drawdown.csv")), "Element,X,Y\nolder\n");
}

TEST_F(FullDiskTest, aListOfParametersThatIsCutEndsWithOne) {
  const SmallDisk disk(path("disk"));
  if (!disk.isMounted)
    GTEST_SKIP() << "only the administrator can mount a file system of two megabytes";
  disk.fillBut(0);
  const Outcome outcome = runProgram(
      "sh", {"-c", "exec \"$1\" --print-parameters >disk/list", "sh", TEVRANE_BATCH_PROGRAM});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_TRUE(outcome.err.contains("the standard output could not be written"));
}

TEST_F(FullDiskTest, aTemplateThatCanNotBeWrittenLeavesNothing) {
  const SmallDisk disk(path("disk"));
  if (!disk.isMounted)
    GTEST_SKIP() << "only the administrator can mount a file system of two megabytes";
  disk.fillBut(0);
  const Outcome outcome = run({"--template", "disk/new.tbat"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_TRUE(outcome.err.contains("disk/new.tbat: can't be written"));
  EXPECT_EQ(namesOnDisk(), QStringList("filling"));
}
