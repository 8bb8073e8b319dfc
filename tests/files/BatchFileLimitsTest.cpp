#include "files/BatchFile.h"
#include "files/BatchFiles.h"
#include "project/ProjectLimits.h"
#include "tables/DemandModel.h"

#include <QElapsedTimer>
#include <QSettings>

namespace TVR::Data {
namespace {

using namespace Parameter;

class BatchFileLimitsTest : public BatchFileTest {
protected:
  ~BatchFileLimitsTest() override {
    store.setValue(NumberOfWells, 2);
    store.setValue(NumberOfDemandsPerYear, 1);
  }
  /// Whether a file with these contents is read at all.
  bool isTaken(const QByteArray& contents) {
    read(contents + "\n[hydraulic]\naquifer_h=4711\n");
    return number(AquiferThickness) == 4711;
  }
};

TEST_F(BatchFileLimitsTest, hugeNumbersOfWellsAreCut) {
  for (const char* const wells : {"20001", "2147483647", "9223372036854775807", "1e300", "inf"}) {
    read(QByteArray("[installation]\nnumber_of_wells=") + wells + '\n');
    EXPECT_EQ(store.wellPositions().size(), ProjectLimits::maxWells) << wells;
  }
}

TEST_F(BatchFileLimitsTest, hugeTablesAreCut) {
  for (const char* const size : {"2147483647", "9223372036854775807", "1e300", "-1"})
    for (const char* const name : {"well_model", "demand_model", "well_demand_model"}) {
      read(QByteArray("[installation]\n") + name + "\\size=" + size + '\n' + name + "\\1\\1=7\n");
      EXPECT_LE(store.wellPositions().size(), ProjectLimits::maxWells) << name << size;
    }
}

TEST_F(BatchFileLimitsTest, hugeNumbersOfPeriodsAreCut) {
  read("[installation]\nnumber_of_demands_per_year=2147483647\n");
  EXPECT_EQ(store.demandModel()->rowCount(), ProjectLimits::maxPeriods);
}

TEST_F(BatchFileLimitsTest, pairsOfWellAndPeriodAreCut) {
  read("[installation]\nnumber_of_demands_per_year=10000\nnumber_of_wells=20000\n");
  EXPECT_EQ(store.wellPositions().size(),
            ProjectLimits::maxWellPeriods / ProjectLimits::maxPeriods);
}

TEST_F(BatchFileLimitsTest, aCutIsTold) {
  const MessageLog log;
  read("[installation]\nnumber_of_demands_per_year=8760\nnumber_of_wells=40\n");
  EXPECT_EQ(log.lines(), QStringList{"Tevrane: expected at most 200000 pairs of well and demand "
                                     "period, found 350400; the rest is left out"});
}

TEST_F(BatchFileLimitsTest, aNumberOfWellsThatTheTableOverridesIsNoExcess) {
  const MessageLog log;
  read("[installation]\nnumber_of_demands_per_year=8760\nnumber_of_wells=40\n"
       "well_model\\size=2\n");
  EXPECT_EQ(log.lines(), QStringList());
  EXPECT_EQ(store.count(NumberOfWells), 2);
}

TEST_F(BatchFileLimitsTest, aLongLineIsNotRead) {
  EXPECT_TRUE(isTaken("[main]\na=" + QByteArray(16'000, 'x')));
  EXPECT_FALSE(isTaken("[main]\na=" + QByteArray(17'000, 'x')));
}

TEST_F(BatchFileLimitsTest, aLineThatGoesOnIsALongLine) {
  EXPECT_FALSE(isTaken("[main]\na=" + QByteArray("xxxxxxxxx\\\n").repeated(2000)));
  EXPECT_FALSE(isTaken("[main]\na=" + QByteArray("xxxxxxxxx\\\r\n").repeated(2000)));
  EXPECT_FALSE(isTaken("[main]\na=\"" + QByteArray("xxxxxxxxx\n").repeated(2000) + '"'));
}

TEST_F(BatchFileLimitsTest, manyShortLinesAreRead) {
  EXPECT_TRUE(isTaken("[main]\n" + QByteArray("a=\"x\"\r\n").repeated(10'000)));
  EXPECT_TRUE(isTaken("[main]\n" + QByteArray(" ; it's \"one quote\n").repeated(10'001)));
}

TEST_F(BatchFileLimitsTest, tooManyLinesAreNotRead) {
  EXPECT_FALSE(isTaken("[main]\n" + QByteArray("a\n").repeated(2'000'001)));
}

TEST_F(BatchFileLimitsTest, valuesInsideValuesWithoutEndAreNotRead) {
  const QByteArray level("\\0\\0\\0\\t\\0\\0\\0\\x1");
  EXPECT_FALSE(isTaken("[main]\nsimulation_time=@Variant(" + level.repeated(300'000) + ")"));
}

TEST_F(BatchFileLimitsTest, aFileWithoutEndIsNotReadToItsEnd) {
  const QString name = path("zero.tbat");
  ASSERT_TRUE(QFile::link("/dev/zero", name));
  EXPECT_FALSE(BatchFile::open(name));
  EXPECT_TRUE(readFile(name));
}

TEST_F(BatchFileLimitsTest, anEmptyFileIsReadable) {
  const QString name = path("empty.tbat");
  QFile file(name);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.close();
  EXPECT_TRUE(BatchFile::open(name));
  EXPECT_FALSE(BatchFile::open(path("missing.tbat")));
}

} // namespace
} // namespace TVR::Data
