#include "tables/WellModel.h"
#include "tables/WellParameters.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <random>

namespace TVR {
namespace {

class WellModelCellsTest : public testing::Test {
protected:
  WellModelCellsTest() {
    parameters.values[Parameter::MeanFlowRate] = 0.01;
    parameters.values[Parameter::NumberOfWells] = 4;
  }
  double usedDistance() { return parameters.number(Parameter::DMinUsed); }

  Wells wells = wellsAt(QVector<QPointF>(4));
  MapParameters parameters;
  WellModel model{wells, parameters};
};

TEST_F(WellModelCellsTest, cellsAreSetInTheirOrder) {
  model.setCells({{0, WellModel::X, 1.0}, {0, WellModel::X, 2.0}, {1, WellModel::Name, "B"}});
  EXPECT_EQ(wells.positions[0].x(), 2.0);
  EXPECT_EQ(model.index(1, WellModel::Name).data(), QVariant("B"));
}

TEST_F(WellModelCellsTest, theGraphicIsUpdatedOnce) {
  const QSignalSpy updates(&model, &WellModel::updateGraphic);
  model.setCells({{0, WellModel::X, 1.0}, {0, WellModel::Y, 2.0}, {3, WellModel::X, 3.0}});
  EXPECT_EQ(updates.size(), 1);
}

TEST_F(WellModelCellsTest, withoutACoordinateTheGraphicIsNotUpdated) {
  const QSignalSpy updates(&model, &WellModel::updateGraphic);
  model.setCells({{0, WellModel::Name, "A"},
                  {0, WellModel::Rate, 1.0},
                  {9, WellModel::X, 1.0},
                  {0, WellModel::X, QVariant()}});
  EXPECT_EQ(updates.size(), 0);
}

TEST_F(WellModelCellsTest, laterChangesUpdateTheGraphicAgain) {
  model.setCells({{0, WellModel::X, 1.0}, {1, WellModel::X, 1.0}});
  const QSignalSpy updates(&model, &WellModel::updateGraphic);
  model.setData(model.index(0, WellModel::X), 5.0);
  EXPECT_EQ(updates.size(), 1);
}

TEST_F(WellModelCellsTest, cellsBeyondTheTableArePassedOver) {
  model.setCells({{4, WellModel::X, 1.0}, {-1, WellModel::Y, 1.0}, {0, 5, 1.0}, {0, -1, 1.0}});
  EXPECT_EQ(wells.positions, QVector<QPointF>(4));
}

TEST_F(WellModelCellsTest, theOutcomeIsThatOfSettingOneByOne) {
  std::mt19937 random(3);
  const auto upTo = [&](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
  for (int i = 0; i < 500; ++i) {
    std::vector<WellModel::Cell> cells;
    for (int count = upTo(12); count > 0; --count)
      cells.push_back(
          {upTo(5) - 1, upTo(6) - 1, upTo(9) == 0 ? QVariant() : QVariant(double(upTo(20) - 10))});
    Wells otherWells = wellsAt(QVector<QPointF>(4));
    MapParameters otherParameters = parameters;
    WellModel other(otherWells, otherParameters);
    for (const auto& [row, column, value] : cells)
      other.setData(other.index(row, column), value, Qt::EditRole);

    wells = wellsAt(QVector<QPointF>(4));
    model.clear();
    model.calculateMinDistance();
    model.setCells(cells);
    ASSERT_EQ(wells.positions, otherWells.positions) << i;
    ASSERT_EQ(usedDistance(), otherParameters.number(Parameter::DMinUsed)) << i;
    ASSERT_EQ(model.wellRates(), other.wellRates()) << i;
    ASSERT_EQ(model.wellTemperatureChanges(), other.wellTemperatureChanges()) << i;
  }
}

} // namespace
} // namespace TVR
