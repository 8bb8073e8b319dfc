#include "design/DesignFormulas.h"
#include "files/BatchFile.h"
#include "files/BatchFiles.h"
#include "tables/WellModel.h"

#include <cmath>

namespace TVR::Data {
namespace {

using namespace Parameter;

/// Which wells a batch file leads to.
class BatchFileWellsTest : public BatchFileTest {
protected:
  QPointF well(int row) const { return store.wellPositions().at(row); }
  double cell(int row, int column) const {
    const WellModel& wells = *store.wellModel();
    return wells.index(row, column).data(Qt::EditRole).toDouble();
  }
};

TEST_F(BatchFileWellsTest, aFileThatNamesNoWellsGetsADoubletAlongTheFlow) {
  read("[main]\n[thermic]\n[hydraulic]\ngroundwater_flow_direction=180\n[installation]\n");
  ASSERT_EQ(store.wellPositions().size(), 2);
  EXPECT_GT(number(DMin), 5);
  EXPECT_EQ(well(0), QPointF(0, number(DMin) / 2)) << "withdrawal upstream";
  EXPECT_EQ(well(1), QPointF(0, -number(DMin) / 2));
  EXPECT_EQ(cell(0, WellModel::Rate), -number(MeanFlowRate));
  EXPECT_EQ(cell(1, WellModel::Rate), number(MeanFlowRate));
}

TEST_F(BatchFileWellsTest, aHeatingReturnsColderWater) {
  read("[main]\n");
  EXPECT_EQ(cell(1, WellModel::TemperatureChange), -3.0);
}

TEST_F(BatchFileWellsTest, wellsOfTheDesignLieAroundTheDefaultPosition) {
  read("[hydraulic]\ngroundwater_gradient=0\ngroundwater_flow_direction=180\n");
  EXPECT_EQ(well(0), QPointF(-number(DMin) / 2, 0)) << "without a flow from west to east";
}

TEST_F(BatchFileWellsTest, wellsOfTheDesignStayWhenTheDefaultPositionMoves) {
  read("[main]\n");
  const QPolygonF before = store.wellPositions();
  store.setValue(DefaultWellPosition, QPointF(5, 5));
  EXPECT_EQ(store.wellPositions(), before);
}

TEST_F(BatchFileWellsTest, theNumberOfAFileIsKept) {
  read("[hydraulic]\nkf=1e-5\naquifer_h=3\n[installation]\nnumber_of_wells=3\n");
  ASSERT_EQ(store.wellPositions().size(), 3);
  EXPECT_LT(well(0).x(), 0);
  EXPECT_NEAR(well(2).y() - well(1).y(), number(RadiusOfInfluence), 1e-9);
  EXPECT_EQ(number(DMin), DesignFormulas().dMin(1.5, number(MeanFlowRate), number(SimulationTime),
                                                3.0, number(GroundwaterVelocity)));
}

TEST_F(BatchFileWellsTest, theDesignsNumberCountsInPairsWhereAFileHasNone) {
  read("[hydraulic]\nkf=1e-5\naquifer_h=3\n[installation]\nfilter_h=2\n");
  const int wells = store.count(NumberOfWells);
  EXPECT_GT(wells, 2);
  EXPECT_EQ(wells % 2, 0);
  EXPECT_EQ(store.wellPositions().size(), wells);
  EXPECT_NEAR(well(wells / 2).x() - well(0).x(), number(DMin), 1e-9)
      << "the distance of as many wells";
}

TEST_F(BatchFileWellsTest, aDesignThatFindsNothingGivesOnePair) {
  read("[hydraulic]\nkf=1e-12\n");
  EXPECT_EQ(store.wellPositions().size(), 2);
}

TEST_F(BatchFileWellsTest, aWellWhoseCoordinatesAreLeftOutStandsAtTheOrigin) {
  read("[installation]\nwell_model\\size=2\nwell_model\\1\\3=-0.001\nwell_model\\2\\1=40\n");
  store.setValue(DefaultWellPosition, QPointF(38, 37));
  EXPECT_EQ(store.wellPositions(), (QVector<QPointF>{{0, 0}, {40, 0}}));
}

TEST_F(BatchFileWellsTest, aFileThatNamesItsWellsKeepsThem) {
  read("[installation]\nwell_model\\size=2\nwell_model\\1\\1=7\nwell_model\\2\\4=5\n"
       "well_model\\2\\3=0.002\n");
  EXPECT_EQ(store.wellPositions(), (QVector<QPointF>{{7, 0}, {0, 0}}));
  EXPECT_EQ(cell(1, WellModel::TemperatureChange), 5);
}

TEST_F(BatchFileWellsTest, periodsOfAFileAreKeptBesideTheWellsOfTheDesign) {
  read("[installation]\nnumber_of_demands_per_year=2\nwell_demand_model\\size=4\n"
       "well_demand_model\\4\\2=0.004\n");
  EXPECT_EQ(store.wellModel()->stepRate(1, 1, Qt::EditRole), 0.004);
  EXPECT_GT(well(1).x(), well(0).x());
}

TEST_F(BatchFileWellsTest, aFileThatCanNotBeReadPlacesNothing) {
  EXPECT_TRUE(readFile(path("missing.tbat")));
  EXPECT_TRUE(store.wellPositions().isEmpty());
}

TEST_F(BatchFileWellsTest, aFileTellsWhetherItNamesWells) {
  const auto names = [this](const QByteArray& contents) {
    QFile file(path("names.tbat"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(contents);
    file.close();
    const auto settings = BatchFile::open(file.fileName());
    return settings && BatchFile::namesWells(*settings);
  };
  EXPECT_TRUE(names("[installation]\nwell_model\\size=1\nwell_model\\1\\1=0\n"));
  EXPECT_FALSE(names("[installation]\nnumber_of_wells=4\n"));
  EXPECT_FALSE(names("[main]\nwell_model\\size=1\n"));
}

} // namespace
} // namespace TVR::Data
