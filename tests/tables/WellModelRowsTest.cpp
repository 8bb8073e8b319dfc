#include "support/MapParameters.h"
#include "tables/WellModel.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <optional>

namespace TVR {
namespace {

/// What becomes of the entries of the rows, which all five maps hold here, when their number
/// changes.
class WellRowsTest : public testing::Test {
protected:
  WellModel& makeModel(int rows) {
    wells.positions = QVector<QPointF>(rows);
    parameters.values[Parameter::NumberOfWells] = rows;
    return model.emplace(wells, parameters);
  }

  /// Sets entries for the first `rows` rows, which may be more than the polygon has points.
  void fillRows(int rows) {
    parameters.values[Parameter::NumberOfWells] = rows;
    for (int row = 0; row < rows; ++row) {
      model->setData(model->index(row, WellModel::Name), nameOf(row));
      model->setData(model->index(row, WellModel::Rate), row + 0.1);
      model->setData(model->index(row, WellModel::TemperatureChange), row + 0.2);
      model->setStepRate(row, 1, row + 0.3);
      model->setStepTemperatureChange(row, 1, row + 0.4);
    }
    parameters.values[Parameter::NumberOfWells] = wells.positions.size();
  }

  void changeTo(int rows) {
    const int before = wells.positions.size();
    QPolygonF changed = wells.positions;
    changed.resize(rows);
    parameters.values[Parameter::NumberOfWells] = rows;
    model->revert(changed, before);
  }

  static QString nameOf(int row) { return QString("Name of %1").arg(row); }

  /// Each pair is a key that all five maps hold now and the row that its entries were set for.
  void expectEntries(const QMap<int, int>& rowOfKey) {
    QMap<int, QString> names;
    QMap<int, double> rates;
    QMap<int, double> changes;
    QMap<int, WellModel::ByStep> stepRates;
    QMap<int, WellModel::ByStep> stepChanges;
    for (const int key : rowOfKey.keys()) {
      const int row = rowOfKey[key];
      names[key] = nameOf(row);
      rates[key] = row + 0.1;
      changes[key] = row + 0.2;
      stepRates[key] = {{1, row + 0.3}};
      stepChanges[key] = {{1, row + 0.4}};
    }
    EXPECT_EQ(model->wellNames(), names);
    EXPECT_EQ(model->wellRates(), rates);
    EXPECT_EQ(model->wellTemperatureChanges(), changes);
    EXPECT_EQ(model->wellStepRates(), stepRates);
    EXPECT_EQ(model->wellStepTemperatureChanges(), stepChanges);
  }

  MapParameters parameters;
  Wells wells;
  std::optional<WellModel> model;
};

TEST_F(WellRowsTest, clearForgetsAllEntries) {
  makeModel(2);
  fillRows(2);
  expectEntries({{0, 0}, {1, 1}});
  model->clear();
  expectEntries({});
}

TEST_F(WellRowsTest, clearKeepsThePositionsAndEmitsNothing) {
  makeModel(2);
  wells.positions[1] = QPointF(3.0, 4.0);
  QSignalSpy reset(&*model, &WellModel::modelReset);
  model->clear();
  EXPECT_EQ(wells.positions[1], QPointF(3.0, 4.0));
  EXPECT_TRUE(reset.isEmpty());
}

TEST_F(WellRowsTest, shrinkingDropsTheLastRows) {
  makeModel(4);
  fillRows(4);
  changeTo(2);
  expectEntries({{0, 0}, {1, 1}});
}

TEST_F(WellRowsTest, shrinkingToNothingDropsAllRows) {
  makeModel(4);
  fillRows(4);
  changeTo(0);
  expectEntries({});
}

TEST_F(WellRowsTest, shrinkingMovesEntriesBehindTheRowsDownUpToTwiceTheOldSize) {
  makeModel(4);
  fillRows(9);
  changeTo(2);
  expectEntries({{0, 0}, {1, 1}, {4, 6}, {5, 7}, {8, 8}});
}

TEST_F(WellRowsTest, shrinkingByOneRowRemovesWhatWasMovedIntoIt) {
  makeModel(4);
  fillRows(9);
  changeTo(3);
  expectEntries({{0, 0}, {1, 1}, {2, 2}, {4, 5}, {5, 6}, {6, 7}, {8, 8}});
}

TEST_F(WellRowsTest, growingKeepsTheRows) {
  makeModel(2);
  fillRows(2);
  changeTo(4);
  expectEntries({{0, 0}, {1, 1}});
}

TEST_F(WellRowsTest, growingMovesOnlyTheEntryBehindTheLastRow) {
  makeModel(3);
  fillRows(7);
  changeTo(5);
  expectEntries({{0, 0}, {1, 1}, {2, 2}, {4, 4}, {5, 3}, {6, 6}});
}

TEST_F(WellRowsTest, growingWithoutAnEntryBehindTheLastRowMovesNothing) {
  makeModel(2);
  fillRows(2);
  model->setStepRate(4, 1, 4.3);
  changeTo(4);
  EXPECT_EQ(model->wellStepRates().keys(), (QList<int>{0, 1, 4}));
}

TEST_F(WellRowsTest, growingWithAnEmptyNameRemovesTheNameAtTheTarget) {
  makeModel(2);
  fillRows(6);
  parameters.values[Parameter::NumberOfWells] = 6.0;
  model->setData(model->index(2, WellModel::Name), "");
  changeTo(4);
  EXPECT_EQ(model->wellNames(),
            (QMap<int, QString>{
                {0, nameOf(0)}, {1, nameOf(1)}, {2, ""}, {3, nameOf(3)}, {5, nameOf(5)}}));
}

TEST_F(WellRowsTest, growingWithoutANameBehindTheLastRowRemovesTheNameAtTheTarget) {
  makeModel(2);
  fillRows(2);
  parameters.values[Parameter::NumberOfWells] = 6.0;
  for (const int row : {3, 4, 5})
    model->setData(model->index(row, WellModel::Name), nameOf(row));
  changeTo(4);
  EXPECT_EQ(model->wellNames(),
            (QMap<int, QString>{{0, nameOf(0)}, {1, nameOf(1)}, {3, nameOf(3)}, {5, nameOf(5)}}));
}

TEST_F(WellRowsTest, equalSizeMovesNothing) {
  makeModel(2);
  fillRows(4);
  changeTo(2);
  expectEntries({{0, 0}, {1, 1}, {2, 2}, {3, 3}});
}

TEST_F(WellRowsTest, oldSizeIsZeroUnlessGiven) {
  makeModel(2);
  fillRows(3);
  QPolygonF same = wells.positions;
  model->revert(same);
  expectEntries({{1, 1}, {2, 0}});
}

TEST_F(WellRowsTest, splitBetweenWithdrawalAndInjectionFollowsTheNumberOfRows) {
  makeModel(2);
  parameters.values[Parameter::MeanFlowRate] = 1.0;
  EXPECT_EQ(model->data(model->index(1, WellModel::Rate), Qt::EditRole).toDouble(), 1.0);
  changeTo(4);
  EXPECT_EQ(model->data(model->index(1, WellModel::Rate), Qt::EditRole).toDouble(), -0.5);
}

TEST_F(WellRowsTest, revertTakesOverThePositions) {
  makeModel(1);
  QPolygonF changed{QVector<QPointF>{{1.0, 2.0}, {3.0, 4.0}}};
  model->revert(changed, 1);
  EXPECT_EQ(wells.positions, changed);
}

TEST_F(WellRowsTest, revertResetsAroundTheChangeOfPositionsAndDistance) {
  makeModel(2);
  parameters.values[Parameter::MeanFlowRate] = 1.0;
  QPolygonF changed{QVector<QPointF>{{0.0, 0.0}, {3.0, 4.0}}};
  std::optional<double> distanceBefore;
  std::optional<double> distanceAfter;
  QObject::connect(&*model, &WellModel::modelAboutToBeReset,
                   [&] { distanceBefore = parameters.number(Parameter::DMinUsed); });
  QObject::connect(&*model, &WellModel::modelReset,
                   [&] { distanceAfter = parameters.number(Parameter::DMinUsed); });
  model->revert(changed, 2);
  EXPECT_EQ(distanceBefore, 0.0);
  EXPECT_EQ(distanceAfter, 5.0);
}

} // namespace
} // namespace TVR
