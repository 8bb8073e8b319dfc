#include "results/PointTable.h"

#include "project/RunFrame.h"
#include "simulator/mesh/FVMesh.h"
#include "support/TestDirectory.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace TVR;

namespace {

constexpr double month = 2629800; // [s]

QByteArray column(const std::vector<double>& values) {
  return PointTable::withColumn("Element,X,Y\n0,1,2\n1,3,4\n2,5,6\n", month, values);
}

FVMesh twoByTwoCells() {
  FVGridLine x;
  x.append(0, 10);
  x.append(10, 20);
  FVGridLine y;
  y.append(100, 2);
  y.append(102, 4);
  return FVMesh(x, y, 5);
}

class PointTableFile : public testing::Test, protected TestDirectory {};

} // namespace

TEST(PointTable, filesHaveTheirNames) {
  EXPECT_STREQ(PointTable::temperatureFile, "xy_export_temperature.csv");
  EXPECT_STREQ(PointTable::drawdownFile, "xy_export_drawdown.csv");
}

TEST(PointTable, cellsAreListedRowByRow) {
  const auto positions = PointTable::cellPositions(twoByTwoCells(), {});
  EXPECT_EQ(positions, (std::vector<QPointF>{{5, 101}, {20, 101}, {5, 104}, {20, 104}}));
}

TEST(PointTable, cellsAreTurnedAroundTheModelOrigin) {
  const auto positions = PointTable::cellPositions(twoByTwoCells(), {{5, 101}, 180, true});
  ASSERT_EQ(positions.size(), 4u);
  EXPECT_EQ(positions[0], QPointF(5, 101));
  EXPECT_NEAR(positions[1].x(), 5, 1e-9);
  EXPECT_NEAR(positions[1].y(), 101 - 15, 1e-9);
  EXPECT_NEAR(positions[2].x(), 5 + 3, 1e-9);
  EXPECT_NEAR(positions[2].y(), 101, 1e-9);
}

TEST(PointTable, positionsStandBehindTheNumberOfTheCell) {
  EXPECT_EQ(PointTable::tableOfPositions({{1.5, -2}, {30, 40}}),
            "Element,X,Y\n0,1.5,-2\n1,30,40\n");
}

TEST(PointTable, aTableOfNoCellsIsItsHeading) {
  EXPECT_EQ(PointTable::tableOfPositions({}), "Element,X,Y\n");
}

TEST(PointTable, aCoordinateIsCutToSevenCharacters) {
  EXPECT_EQ(PointTable::tableOfPositions({{681234.5678, 1000000.25}}),
            "Element,X,Y\n0,681234.,1000000\n");
  EXPECT_EQ(PointTable::tableOfPositions({{-123.456789, 0.125}}), "Element,X,Y\n0,-123.45,0.125\n");
}

TEST(PointTable, eachStepAddsAColumnHeadedByItsMonth) {
  QByteArray table = PointTable::tableOfPositions({{1, 2}, {3, 4}});
  table = PointTable::withColumn(table, 2629800, {0.5, -1});
  table = PointTable::withColumn(table, 5259600, {0.25, -2});
  EXPECT_EQ(table, "Element,X,Y,T=1_month,T=2_month\n"
                   "0,1,2,0.5,0.25\n"
                   "1,3,4,-1,-2\n");
}

TEST(PointTable, monthsAreRoundedToTheNearest) {
  const auto heading = [](double time) {
    return PointTable::withColumn("Element,X,Y\n", time, {}).toStdString();
  };
  EXPECT_EQ(heading(1.49 * month), "Element,X,Y,T=1_month\n");
  EXPECT_EQ(heading(1.51 * month), "Element,X,Y,T=2_month\n");
  EXPECT_EQ(heading(0), "Element,X,Y,T=0_month\n");
  EXPECT_EQ(heading(1200 * month), "Element,X,Y,T=1200_month\n");
}

TEST(PointTable, valuesKeepThreeSignificantDigits) {
  EXPECT_EQ(column({0.123456, 1234.5, -0.000012345}), "Element,X,Y,T=1_month\n"
                                                      "0,1,2,0.123\n"
                                                      "1,3,4,1.23e+03\n"
                                                      "2,5,6,-1.23e-05\n");
}

TEST(PointTable, valuesAreRoundedToSinglePrecisionFirst) {
  // As a double 1.065 lies below the middle of 1.06 and 1.07, in single precision above it.
  EXPECT_TRUE(column({1.065}).endsWith(",1.07\n"));
}

TEST(PointTable, roundValuesStandWithoutTrailingZeros) {
  EXPECT_EQ(column({0, 100, -4.5}), "Element,X,Y,T=1_month\n"
                                    "0,1,2,0\n"
                                    "1,3,4,100\n"
                                    "2,5,6,-4.5\n");
}

TEST(PointTable, aTableKeepsAsManyLinesAsThereAreValues) {
  EXPECT_EQ(column({1}), "Element,X,Y,T=1_month\n0,1,2,1\n");
}

TEST_F(PointTableFile, positionsReplaceAnOlderFile) {
  PointTable::writePositions(path("t.csv"), {{1, 2}, {3, 4}});
  PointTable::addColumn(path("t.csv"), month, {5, 6});
  PointTable::writePositions(path("t.csv"), {{7, 8}});
  EXPECT_EQ(contentOf(path("t.csv")), "Element,X,Y\n0,7,8\n");
}

TEST_F(PointTableFile, columnsAreKeptInTheFileOnly) {
  PointTable::writePositions(path("t.csv"), {{1, 2}, {3, 4}});
  PointTable::addColumn(path("t.csv"), month, {5, 6});
  PointTable::addColumn(path("t.csv"), 2 * month, {7, 8});
  EXPECT_EQ(contentOf(path("t.csv")), "Element,X,Y,T=1_month,T=2_month\n0,1,2,5,7\n1,3,4,6,8\n");
}

TEST_F(PointTableFile, aColumnForAFileThatIsNotThereIsLost) {
  PointTable::addColumn(path("t.csv"), month, {5});
  EXPECT_FALSE(QFile::exists(path("t.csv")));
}

TEST_F(PointTableFile, aPlaceThatCanNotBeWrittenIsPassedOver) {
  PointTable::writePositions(path("missing/t.csv"), {{1, 2}});
  EXPECT_FALSE(QDir(path("missing")).exists());
}
