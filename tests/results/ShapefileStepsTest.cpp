#include "data/MessageLog.h"
#include "results/ShapefileTest.h"

#include <QDir>

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
