#include "data/MessageLog.h"
#include "results/ShapefileTest.h"

#include <QDir>
#include <QFileInfo>

#include <sys/resource.h>

#include <algorithm>
#include <csignal>
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

/// Lets no file of this program grow beyond a length while it lives.
class FullDisk {
public:
  explicit FullDisk(rlim_t length) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{length, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

private:
  rlimit before_{};
  void (*handler_)(int);
};

class ShapefileStepsTest : public ShapefileTest {
protected:
  ~ShapefileStepsTest() override { largestBlock = std::numeric_limits<std::size_t>::max(); }
};

TEST_F(ShapefileStepsTest, theMonthOfAStepNamesItsFile) {
  page.addLine(Property::Head, 1, pointsInARow(3));
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
  page.addLine(Property::Head, 1, pointsInARow(3));
  page.addLine(Property::Head, 2, pointsInARow(100000));
  page.addLine(Property::Head, 3, pointsInARow(3));
  page.addLine(Property::Temperature, 4, pointsInARow(3));
  const MessageLog log;
  largestBlock = 400000;
  shapefile().write(path("lines"));
  EXPECT_EQ(log.lines(), QStringList{"Tevrane: Out of memory"});
  EXPECT_EQ(valuesOf(readBack(path("lines.shp")), "value"), QStringList{"1.000"});
}

TEST_F(ShapefileStepsTest, aDiskThatIsFullAtAnyMomentIsTold) {
  for (int i = 0; i < 20; ++i)
    page.addLine(Property::Head, i, pointsInARow(30));
  shapefile().write(path("lines"));
  qint64 largest = 0;
  for (const char* file : {"lines.shp", "lines.shx", "lines.dbf"})
    largest = std::max(largest, QFileInfo(path(file)).size());
  for (qint64 length = 0; length < largest; length += largest / 50) {
    const MessageLog log;
    {
      const FullDisk disk(length);
      shapefile().write(path("lines"));
    }
    EXPECT_EQ(log.lines(), QStringList{"Tevrane: Unable to create:" + path("lines")}) << length;
  }
}

TEST_F(ShapefileStepsTest, aDiskThatIsJustLargeEnoughIsNotFull) {
  page.addLine(Property::Head, 1, pointsInARow(30));
  shapefile().write(path("lines"));
  const MessageLog log;
  const FullDisk disk(QFileInfo(path("lines.shp")).size());
  shapefile().write(path("lines"));
  EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(ShapefileStepsTest, oneLineMayBeAppendedOnItsOwn) {
  const int id = page.addLine(Property::Head, 1, pointsInARow(12), {5, 9});
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
