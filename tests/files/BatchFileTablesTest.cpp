#include "files/BatchFiles.h"
#include "tables/DemandModel.h"
#include "tables/WellDemandModel.h"
#include "tables/WellModel.h"

namespace TVR::Data {
namespace {

using namespace Parameter;

/// The arrays of the section "installation".
class BatchFileTablesTest : public BatchFileTest {
protected:
  double wellCell(int row, int column) {
    return store.wellModel()->index(row, column).data(Qt::EditRole).toDouble();
  }
  double periodCell(int row, int column) {
    return store.wellDemandModel()->index(row, column).data(Qt::EditRole).toDouble();
  }
};

TEST_F(BatchFileTablesTest, durationsFillTheDemandPeriods) {
  read("[installation]\nnumber_of_demands_per_year=2\ndemand_model\\size=2\n"
       "demand_model\\1\\0=10000000\ndemand_model\\2\\0=2.5e6\n");
  EXPECT_EQ(store.demandModel()->durations(), (QMap<int, double>{{0, 1e7}, {1, 2.5e6}}));
}

TEST_F(BatchFileTablesTest, periodsWithoutAnArrayShareTheYear) {
  read("[installation]\nnumber_of_demands_per_year=4\n");
  EXPECT_EQ(store.demandModel()->durations().value(3), 3.15576e7 / 4);
}

TEST_F(BatchFileTablesTest, missingDurationCountsAsZero) {
  read("[installation]\nnumber_of_demands_per_year=2\ndemand_model\\size=2\n"
       "demand_model\\1\\0=1000\n");
  EXPECT_EQ(store.demandModel()->durations(), (QMap<int, double>{{0, 1000.0}, {1, 0.0}}));
}

TEST_F(BatchFileTablesTest, moreDurationsThanPeriodsAreDropped) {
  read("[installation]\nnumber_of_demands_per_year=1\ndemand_model\\size=3\n"
       "demand_model\\1\\0=1000\ndemand_model\\2\\0=2000\ndemand_model\\3\\0=3000\n");
  EXPECT_EQ(store.demandModel()->durations(), (QMap<int, double>{{0, 1000.0}}));
}

TEST_F(BatchFileTablesTest, fewerDurationsThanPeriodsLeaveTheRest) {
  read("[installation]\nnumber_of_demands_per_year=2\ndemand_model\\size=1\n"
       "demand_model\\1\\0=1000\n");
  EXPECT_EQ(store.demandModel()->durations(), (QMap<int, double>{{0, 1000.0}, {1, 3.15576e7 / 2}}));
}

TEST_F(BatchFileTablesTest, sizeOfTheWellArrayIsTheNumberOfWells) {
  read("[installation]\nnumber_of_wells=4\nwell_model\\size=6\nwell_model\\6\\1=12.5\n");
  EXPECT_EQ(store.count(NumberOfWells), 6);
  EXPECT_EQ(store.wellPositions().size(), 6);
  EXPECT_EQ(store.wellModel()->rowCount(), 6);
  EXPECT_EQ(store.wellPositions()[5], QPointF(12.5, 0));
}

TEST_F(BatchFileTablesTest, wellArrayFillsAllColumns) {
  read("[installation]\nwell_model\\size=2\n"
       "well_model\\1\\0=Nord\nwell_model\\1\\1=10\nwell_model\\1\\2=20.5\n"
       "well_model\\1\\3=-0.002\nwell_model\\1\\4=0\n"
       "well_model\\2\\0=S\xC3\xBC"
       "d\nwell_model\\2\\1=-30\nwell_model\\2\\2=40\n"
       "well_model\\2\\3=0.003\nwell_model\\2\\4=-4.5\n");
  const WellModel& wells = *store.wellModel();
  EXPECT_EQ(wells.wellNames(), (QMap<int, QString>{{0, "Nord"}, {1, "Süd"}}));
  EXPECT_EQ(store.wellPositions(), (QVector<QPointF>{{10, 20.5}, {-30, 40}}));
  EXPECT_EQ(wells.wellRates(), (QMap<int, double>{{0, -0.002}, {1, 0.003}}));
  EXPECT_EQ(wells.wellTemperatureChanges(), (QMap<int, double>{{0, 0.0}, {1, -4.5}}));
}

TEST_F(BatchFileTablesTest, namesInLatin1AreReadToo) {
  read("[installation]\nwell_model\\size=1\nwell_model\\1\\0=S\xFC"
       "d\n");
  EXPECT_EQ(store.wellModel()->wellNames().value(0), "Süd");
}

TEST_F(BatchFileTablesTest, missingCellsOfAWellStayDerived) {
  read("[installation]\nwell_model\\size=2\nwell_model\\1\\1=10\n");
  const WellModel& wells = *store.wellModel();
  EXPECT_TRUE(wells.wellNames().isEmpty());
  EXPECT_TRUE(wells.wellRates().isEmpty());
  EXPECT_EQ(wellCell(1, WellModel::Rate), number(MeanFlowRate));
}

TEST_F(BatchFileTablesTest, textsInPlaceOfNumbersCountAsZero) {
  read("[installation]\nwell_model\\size=1\nwell_model\\1\\1=left\nwell_model\\1\\3=0,5\n");
  EXPECT_EQ(store.wellPositions()[0].x(), 0.0);
  EXPECT_EQ(wellCell(0, WellModel::Rate), 0.0);
}

TEST_F(BatchFileTablesTest, ratesByPeriodStandInTheLastTwoColumns) {
  read("[installation]\nnumber_of_demands_per_year=2\nnumber_of_wells=2\n"
       "well_demand_model\\size=4\n"
       "well_demand_model\\1\\2=-0.001\nwell_demand_model\\2\\2=-0.002\n"
       "well_demand_model\\3\\2=0.001\nwell_demand_model\\3\\3=4\n"
       "well_demand_model\\4\\2=0.002\nwell_demand_model\\4\\3=-3\n");
  EXPECT_EQ(periodCell(0, WellDemandModel::Rate), -0.001);
  EXPECT_EQ(periodCell(1, WellDemandModel::Rate), -0.002);
  EXPECT_EQ(periodCell(2, WellDemandModel::Rate), 0.001);
  EXPECT_EQ(periodCell(2, WellDemandModel::TemperatureChange), 4.0);
  EXPECT_EQ(periodCell(3, WellDemandModel::TemperatureChange), -3.0);
}

TEST_F(BatchFileTablesTest, firstColumnsOfTheRatesByPeriodAreNotRead) {
  read("[installation]\nnumber_of_demands_per_year=1\nnumber_of_wells=1\n"
       "well_demand_model\\size=1\nwell_demand_model\\1\\0=Nord\n"
       "well_demand_model\\1\\1=77\nwell_demand_model\\1\\2=0.25\n");
  EXPECT_TRUE(store.wellModel()->wellNames().isEmpty());
  EXPECT_EQ(store.demandModel()->durations().value(0), 3.15576e7);
  EXPECT_EQ(periodCell(0, WellDemandModel::Rate), 0.25);
}

TEST_F(BatchFileTablesTest, missingRateOfAPeriodCountsAsZero) {
  read("[installation]\nnumber_of_demands_per_year=1\nnumber_of_wells=2\n"
       "well_demand_model\\size=2\nwell_demand_model\\1\\2=-0.001\n");
  EXPECT_EQ(store.wellModel()->wellStepRates(),
            (QMap<int, WellModel::ByStep>{{0, {{0, -0.001}}}, {1, {{0, 0.0}}}}));
}

TEST_F(BatchFileTablesTest, moreRatesThanRowsAreDropped) {
  read("[installation]\nnumber_of_demands_per_year=1\nnumber_of_wells=1\n"
       "well_demand_model\\size=3\nwell_demand_model\\1\\2=1\nwell_demand_model\\3\\2=3\n");
  EXPECT_EQ(store.wellModel()->wellStepRates().keys(), QList<int>{0});
}

TEST_F(BatchFileTablesTest, nothingOfAnEarlierFileIsLeft) {
  read("[installation]\nnumber_of_demands_per_year=3\nwell_model\\size=2\nwell_model\\1\\0=Nord\n"
       "well_model\\1\\1=10\nwell_demand_model\\size=1\nwell_demand_model\\1\\2=1\n");
  read("[installation]\nnumber_of_wells=2\n");
  EXPECT_TRUE(store.wellModel()->wellNames().isEmpty());
  EXPECT_TRUE(store.wellModel()->wellStepRates().isEmpty());
  EXPECT_EQ(store.wellPositions().size(), 2);
  EXPECT_FALSE(store.wellPositions().contains(QPointF(10, 0)));
  EXPECT_EQ(store.demandModel()->durations(), (QMap<int, double>{{0, 3.15576e7}}));
}

} // namespace
} // namespace TVR::Data
