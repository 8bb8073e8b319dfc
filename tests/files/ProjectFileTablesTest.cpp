#include "files/ProjectFiles.h"
#include "tables/DemandModel.h"
#include "tables/WellDemandModel.h"
#include "tables/WellModel.h"

namespace TVR::Data {
namespace {

using namespace Parameter;

class ProjectFileTablesTest : public ProjectFileTest {
protected:
  QVariant wellCell(int row, int column) {
    const WellModel& model = *store.wellModel();
    return model.index(row, column).data(Qt::EditRole);
  }
  QVariant rateCell(int row, int column) {
    const WellDemandModel& model = *store.wellDemandModel();
    return model.index(row, column).data(Qt::EditRole);
  }
  /// A table of wells with these mean rates.
  static QByteArray wellsWithRates(const QByteArrayList& rates) {
    QByteArray cells;
    for (int row = 0; row < rates.size(); ++row)
      cells += cell(row, WellModel::Rate, rates[row]);
    return table("well_model", rates.size(), 5, cells);
  }
};

TEST_F(ProjectFileTablesTest, theWellTableGivesTheNumberOfWells) {
  readParameters(parameter("_number_of_wells", "2") + table("well_model", 3, 5));
  EXPECT_EQ(store.count(NumberOfWells), 3);
  EXPECT_EQ(store.wellPositions().size(), 3);
}

TEST_F(ProjectFileTablesTest, wellCellsComeBack) {
  readParameters(table("well_model", 2, 5,
                       cell(0, 0, "F&amp;ouml;rderbrunnen") + cell(0, 1, "10.5") +
                           cell(0, 2, "-3") + cell(0, 3, "-0.01") + cell(1, 3, "0.01") +
                           cell(1, 4, "-4.5")));
  EXPECT_EQ(wellCell(0, 0), QVariant(QStringLiteral("Förderbrunnen")));
  EXPECT_EQ(store.wellPositions().at(0), QPointF(10.5, -3));
  EXPECT_EQ(wellCell(0, 3).toDouble(), -0.01);
  EXPECT_EQ(wellCell(1, 4).toDouble(), -4.5);
}

TEST_F(ProjectFileTablesTest, cellsAreWrittenWithEntities) {
  store.setValue(NumberOfWells, 2);
  store.wellModel()->setData(store.wellModel()->index(1, WellModel::Name),
                             QStringLiteral("Schluckbrunnen Süd"));
  const QDomElement table = element(written(), "well_model");
  QStringList texts;
  for (QDomElement cell = table.firstChildElement("value"); !cell.isNull();
       cell = cell.nextSiblingElement("value"))
    texts << cell.text();
  EXPECT_TRUE(texts.contains("Schluckbrunnen S&uuml;d"));
}

TEST_F(ProjectFileTablesTest, aTableWithFewerRowsThanTheModelFillsItsRows) {
  readParameters(table("well_model", 3, 5) + table("demand_model", 2, 1) +
                 table("well_demand_model", 2, 2, cell(0, 2, "-0.5") + cell(1, 2, "-0.25")));
  EXPECT_EQ(rateCell(0, 2).toDouble(), -0.5);
  EXPECT_EQ(rateCell(1, 2).toDouble(), -0.25);
  EXPECT_EQ(store.wellDemandModel()->rowCount(), 6);
}

TEST_F(ProjectFileTablesTest, aTableWithFewerColumnsThanTheModelFillsItsColumns) {
  readParameters(table("well_model", 2, 2, cell(1, 1, "7")));
  EXPECT_EQ(store.wellPositions().at(1).x(), 7);
}

TEST_F(ProjectFileTablesTest, theUsedDistanceFollowsTheLastCoordinate) {
  readParameters(parameter("_v_", "0.01") +
                 table("well_model", 2, 5,
                       cell(0, 1, "0") + cell(0, 2, "0") + cell(1, 1, "30") + cell(1, 2, "40")));
  EXPECT_EQ(number(DMinUsed), 50);
}

TEST_F(ProjectFileTablesTest, cellsBeyondTheTableArePassedOver) {
  EXPECT_TRUE(readParameters(table("well_model", 2, 5,
                                   cell(2, 1, "7") + cell(-1, 1, "7") + cell(0, 5, "7") +
                                       cell(0, -1, "7") + cell(1, 1, "8"))));
  EXPECT_EQ(store.wellPositions().at(1).x(), 8);
}

TEST_F(ProjectFileTablesTest, aTableWithMoreColumnsThanTheModelIsSkipped) {
  readParameters(parameter("_default_well_position", "") +
                 table("well_model", 2, 6, cell(0, 1, "7")));
  EXPECT_EQ(store.count(NumberOfWells), 2);
  EXPECT_EQ(store.wellPositions().at(0).x(), 0);
}

TEST_F(ProjectFileTablesTest, theDemandTableTakesTheNumberOfRows) {
  readParameters(table("demand_model", 3, 1, cell(0, 0, "100") + cell(2, 0, "300")));
  const DemandModel& demand = *store.demandModel();
  EXPECT_EQ(demand.rowCount(), 3);
  EXPECT_EQ(demand.durations().value(0), 100);
  EXPECT_EQ(demand.durations().value(2), 300);
}

TEST_F(ProjectFileTablesTest, ratesStandFromTheThirdColumnOn) {
  readParameters(table("well_model", 2, 5) + table("demand_model", 2, 1) +
                 table("well_demand_model", 4, 2, cell(1, 2, "-0.5") + cell(3, 3, "4")));
  EXPECT_EQ(rateCell(1, 2).toDouble(), -0.5);
  EXPECT_EQ(store.wellModel()->stepRate(0, 1, Qt::EditRole), -0.5);
  EXPECT_EQ(rateCell(3, 3).toDouble(), 4);
}

TEST_F(ProjectFileTablesTest, ratesOfMoreColumnsThanThereAreAreSkipped) {
  readParameters(table("well_model", 2, 5) + table("demand_model", 1, 1) +
                 table("well_demand_model", 2, 3, cell(0, 2, "-0.5")));
  EXPECT_NE(rateCell(0, 2).toDouble(), -0.5);
}

TEST_F(ProjectFileTablesTest, ratesOfMoreWellsThanThereAreAreSkipped) {
  readParameters(table("well_model", 2, 5) + table("demand_model", 1, 1) +
                 table("well_demand_model", 3, 2, cell(0, 2, "-0.5")));
  EXPECT_NE(rateCell(0, 2).toDouble(), -0.5);
}

TEST_F(ProjectFileTablesTest, anOldVersionCountsPairsAndRatesWithoutSign) {
  readParameters(
      parameter("_number_of_wells", "2") + wellsWithRates({"0.01", "0.02", "0.03", "0.04"}), "1.1");
  EXPECT_EQ(store.count(NumberOfWells), 4);
  EXPECT_EQ(wellCell(0, 3).toDouble(), -0.01);
  EXPECT_EQ(wellCell(1, 3).toDouble(), -0.02);
  EXPECT_EQ(wellCell(2, 3).toDouble(), 0.03);
  EXPECT_EQ(wellCell(3, 3).toDouble(), 0.04);
}

TEST_F(ProjectFileTablesTest, anOldVersionDoublesTheWellsWithoutATable) {
  readParameters(parameter("_number_of_wells", "2"), "1.1");
  EXPECT_EQ(store.count(NumberOfWells), 4);
  EXPECT_EQ(store.wellPositions().size(), 4);
}

TEST_F(ProjectFileTablesTest, anOldVersionHasOneDemandPeriod) {
  readParameters(parameter("number_of_demands_per_year", "4"), "1.19");
  EXPECT_EQ(store.count(NumberOfDemandsPerYear), 1);
  EXPECT_EQ(store.demandModel()->rowCount(), 1);
}

TEST_F(ProjectFileTablesTest, ratesOfPeriodsTurnWithTheVersionAsWell) {
  readParameters(wellsWithRates({"0.01", "0.02"}) + table("demand_model", 1, 1) +
                     table("well_demand_model", 2, 2, cell(0, 2, "0.5") + cell(1, 2, "0.6")),
                 "1.0");
  EXPECT_EQ(rateCell(0, 2).toDouble(), -0.5);
  EXPECT_EQ(rateCell(1, 2).toDouble(), 0.6);
}

TEST_F(ProjectFileTablesTest, theMiddleRowOfAnOddNumberDoesNotTurn) {
  readParameters(wellsWithRates({"0.01", "0.02", "0.03", "0.04", "0.05"}) +
                     table("demand_model", 1, 1) +
                     table("well_demand_model", 5, 2,
                           cell(1, 2, "0.2") + cell(2, 2, "0.3") + cell(3, 2, "0.4")),
                 "1.1");
  EXPECT_EQ(wellCell(1, 3).toDouble(), -0.02);
  EXPECT_EQ(wellCell(2, 3).toDouble(), 0.03);
  EXPECT_EQ(wellCell(3, 3).toDouble(), 0.04);
  EXPECT_EQ(rateCell(1, 2).toDouble(), -0.2);
  EXPECT_EQ(rateCell(2, 2).toDouble(), 0.3);
  EXPECT_EQ(rateCell(3, 2).toDouble(), 0.4);
}

TEST_F(ProjectFileTablesTest, versionOnePointTwoIsNew) {
  readParameters(parameter("_number_of_wells", "2") + wellsWithRates({"0.01", "0.02"}), "1.2");
  EXPECT_EQ(store.count(NumberOfWells), 2);
  EXPECT_EQ(wellCell(0, 3).toDouble(), 0.01);
}

TEST_F(ProjectFileTablesTest, onlyThreeCharactersOfTheVersionCount) {
  readParameters(wellsWithRates({"0.01", "0.02"}), "1.10");
  EXPECT_EQ(wellCell(0, 3).toDouble(), -0.01);
}

TEST_F(ProjectFileTablesTest, aFileWithoutVersionIsOld) {
  readText("<TVR><__parameter_set>" + wellsWithRates({"0.01", "0.02"}) +
           "</__parameter_set></TVR>");
  EXPECT_EQ(wellCell(0, 3).toDouble(), -0.01);
  EXPECT_EQ(wellCell(1, 3).toDouble(), 0.02);
}

} // namespace
} // namespace TVR::Data
