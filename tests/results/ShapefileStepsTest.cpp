#include "results/ShapefileTest.h"
#include "support/FullDisk.h"
#include "support/MessageLog.h"

#include <QDir>
#include <QFileInfo>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <new>

namespace {

/// The largest block of memory that this program gets.
std::size_t largestBlock = std::numeric_limits<std::size_t>::max();

} // namespace

void* operator new(std::size_t size) {
  void* const memory = size <= largestBlock ? std::malloc(size ? size : 1) : nullptr;
  if (!memory)
    throw std::bad_alloc();
  return memory;
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return size <= largestBlock ? std::malloc(size ? size : 1) : nullptr;
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

namespace TVR {
namespace {

using namespace Sketra_lib;

class ShapefileStepsTest : public ShapefileTest {
protected:
  using Files = QMap<QString, QByteArray>;

  ~ShapefileStepsTest() override { largestBlock = std::numeric_limits<std::size_t>::max(); }

  void addManyLines() {
    for (int i = 0; i < 20; ++i)
      page.addLine(Property::Drawdowns, i, pointsInARow(30));
  }
  Files files() const {
    Files contents;
    for (const QString& name : QDir(path(".")).entryList(QDir::Files))
      contents[name] = contentOf(path(name));
    return contents;
  }
  /// Fifty lengths at which a disk or a process may end while the files are written.
  std::vector<qint64> lengthsOfAWrite() const {
    qint64 largest = 0;
    for (const QByteArray& content : files())
      largest = std::max<qint64>(largest, content.size());
    std::vector<qint64> lengths;
    for (int part = 0; part < 50; ++part)
      lengths.push_back(part * largest / 50);
    return lengths;
  }
};

TEST_F(ShapefileStepsTest, theMonthOfAStepNamesItsFile) {
  page.addLine(Property::Drawdowns, 1, pointsInARow(3));
  page.addLine(Property::Temperature, 2, pointsInARow(3));
  shapefile().writeStep(3944700, path("."));
  EXPECT_EQ(QDir(path(".")).entryList(QDir::Files, QDir::Name),
            (QStringList{"2_month_isolines.cpg", "2_month_isolines.dbf", "2_month_isolines.shp",
                         "2_month_isolines.shx"}));
  EXPECT_EQ(valuesOf(readBack(path("2_month_isolines.shp")), "value"),
            (QStringList{"1.000", "2.000"}));
}

TEST_F(ShapefileStepsTest, aStepThatCanNotBeWrittenIsTold) {
  const MessageLog log;
  shapefile().writeStep(2629800, path("none"));
  EXPECT_EQ(log.lines(),
            QStringList{"Tevrane: Unable to create:" + path("none/1_month_isolines.shp")});
}

TEST_F(ShapefileStepsTest, aLineThatMemoryDoesNotHoldEndsTheExport) {
  page.addLine(Property::Drawdowns, 1, pointsInARow(3));
  page.addLine(Property::Drawdowns, 2, pointsInARow(100000));
  page.addLine(Property::Drawdowns, 3, pointsInARow(3));
  page.addLine(Property::Temperature, 4, pointsInARow(3));
  ASSERT_TRUE(shapefile().write(path("lines"), false, true));
  const MessageLog log;
  largestBlock = 400000;
  EXPECT_FALSE(shapefile().write(path("lines")));
  EXPECT_EQ(log.lines(), QStringList{"Tevrane: Out of memory"});
  EXPECT_EQ(valuesOf(readBack(path("lines.shp")), "value"), QStringList{"4.000"});
}

TEST_F(ShapefileStepsTest, aDiskThatIsFullAtAnyMomentIsToldAndTheOlderFilesStay) {
  addManyLines();
  ASSERT_TRUE(shapefile().write(path("lines")));
  const Files older = files();
  for (const qint64 length : lengthsOfAWrite()) {
    const MessageLog log;
    {
      const FullDisk disk(length);
      EXPECT_FALSE(shapefile().write(path("lines"))) << length;
    }
    EXPECT_EQ(log.lines(), QStringList{"Tevrane: Unable to create:" + path("lines")}) << length;
    EXPECT_EQ(files(), older) << length;
  }
}

TEST_F(ShapefileStepsTest, aKillAtAnyMomentOfAWriteLeavesTheOlderFiles) {
  addManyLines();
  ASSERT_TRUE(shapefile().write(path("lines")));
  const Files older = files();
  store.setValue(Parameter::ProjectName, "another text in every record");
  for (const qint64 length : lengthsOfAWrite()) {
    const pid_t child = ::fork();
    if (child == 0) {
      const rlimit limit{rlim_t(length), RLIM_INFINITY};
      setrlimit(RLIMIT_FSIZE, &limit); // the write that goes beyond it kills
      shapefile().write(path("lines"));
      ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status)) << length;
    EXPECT_EQ(files(), older) << length;
  }
  ASSERT_TRUE(shapefile().write(path("lines")));
  EXPECT_NE(files(), older);
  EXPECT_EQ(QDir(path(".")).entryList(QDir::AllDirs | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList())
      << "what was killed has left nothing";
}

TEST_F(ShapefileStepsTest, aDiskThatIsJustLargeEnoughIsNotFull) {
  page.addLine(Property::Drawdowns, 1, pointsInARow(30));
  shapefile().write(path("lines"));
  const MessageLog log;
  const FullDisk disk(QFileInfo(path("lines.shp")).size());
  shapefile().write(path("lines"));
  EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(ShapefileStepsTest, oneLineMayBeAppendedOnItsOwn) {
  const int id = page.addLine(Property::Drawdowns, 1, pointsInARow(12), {5, 9});
  const QByteArray file = QFile::encodeName(path("one"));
  const DBFHandle table = DBFCreate(file);
  for (const char* column : {"a", "b", "c", "d", "e"})
    DBFAddField(table, column, FTString, 20, 0);
  const SHPHandle shapes = SHPCreate(file, SHPT_ARC);
  int shape = 0;
  EXPECT_TRUE(shapefile().writeIsoline(id, shape, shapes, table, "drawdown", "ft"));
  EXPECT_EQ(shape, 3);
  EXPECT_TRUE(shapefile().writeIsoline(0, shape, shapes, table, "drawdown", "ft"));
  EXPECT_TRUE(ShapefileExport(accessWithoutWindow())
                  .writeIsoline(id, shape, shapes, table, "drawdown", "ft"));
  EXPECT_EQ(shape, 3);
  SHPClose(shapes);
  DBFClose(table);
  EXPECT_EQ(valuesOf(readBack(path("one.shp")), "e"), (QStringList{"ft", "ft", "ft"}));
}

} // namespace
} // namespace TVR
