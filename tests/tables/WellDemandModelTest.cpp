#include "tables/WellDemandModel.h"

#include "project/Units.h"
#include "support/ContextTranslator.h"
#include "support/MethodsOf.h"
#include "tables/DemandModel.h"
#include "tables/WellModel.h"
#include "tables/WellParameters.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <limits>

namespace TVR {
namespace {

const Qt::ItemFlags readOnly = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
const Qt::ItemFlags editable = readOnly | Qt::ItemIsEditable;

/// Two wells and three demand periods: rows 0 to 2 belong to the withdrawal well, 3 to 5 to the
/// injection well.
class WellDemandModelTest : public testing::Test {
protected:
  QVariant cell(int row, int column, int role = Qt::EditRole) {
    return model.data(model.index(row, column), role);
  }
  double number(int row, int column, int role = Qt::EditRole) {
    return cell(row, column, role).toDouble();
  }
  bool set(int row, int column, const QVariant& value, int role = Qt::EditRole) {
    return model.setData(model.index(row, column), value, role);
  }
  Qt::ItemFlags flags(int row, int column) { return model.flags(model.index(row, column)); }

  MapParameters parameters = wellParameters(2);
  Wells entered = wellsAt({{0.0, 0.0}, {10.0, 0.0}});
  WellModel wells{entered, parameters};
  ByPeriod durations;
  DemandModel demand{durations, 3};
  WellDemandModel model{&wells, &demand};
};

TEST_F(WellDemandModelTest, hasOneRowPerWellAndPeriodAndFourColumns) {
  EXPECT_EQ(model.rowCount(), 6);
  EXPECT_EQ(model.columnCount(), 4);
}

TEST_F(WellDemandModelTest, cellsHaveNoRowsOrColumnsBelowThem) {
  EXPECT_EQ(model.rowCount(model.index(0, 0)), 0);
  EXPECT_EQ(model.columnCount(model.index(0, 0)), 0);
}

TEST_F(WellDemandModelTest, hasNoRowsWithoutDemandPeriods) {
  demand.resize(0);
  EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(WellDemandModelTest, hasNoRowsForANegativeNumberOfWells) {
  parameters.values[Parameter::NumberOfWells] = -2.0;
  EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(WellDemandModelTest, rowsThatNoIntCountsAreTheLargestInt) {
  constexpr int largest = std::numeric_limits<int>::max();
  parameters.values[Parameter::NumberOfWells] = largest;
  EXPECT_EQ(model.rowCount(), largest);
  parameters.values[Parameter::NumberOfWells] = largest / 3;
  EXPECT_EQ(model.rowCount(), largest / 3 * 3);
}

TEST_F(WellDemandModelTest, rowWithoutDemandPeriodsIsTheFirstStepOfTheWellOfThatRow) {
  const QModelIndex name = model.index(1, 0);
  const QModelIndex duration = model.index(1, 1);
  const QModelIndex rate = model.index(1, 2);
  const QModelIndex temperatureChange = model.index(1, 3);
  EXPECT_EQ(name.data(), QVariant("Well 1"));
  demand.resize(0);
  EXPECT_EQ(model.data(name), QVariant("Well 2"));
  EXPECT_FALSE(model.data(duration).isValid());
  EXPECT_DOUBLE_EQ(model.data(rate, Qt::EditRole).toDouble(), meanFlowRate);
  EXPECT_EQ(model.data(temperatureChange).toDouble(), usedTemperatureChange);
}

TEST_F(WellDemandModelTest, valueOfARowWithoutDemandPeriodsIsKeptForTheFirstStep) {
  const QModelIndex duration = model.index(1, 1);
  const QModelIndex rate = model.index(1, 2);
  demand.resize(0);
  EXPECT_TRUE(model.setData(rate, 0.25));
  EXPECT_EQ(wells.wellStepRates(), (QMap<int, WellModel::ByStep>{{1, {{0, 0.25}}}}));
  EXPECT_FALSE(model.setData(duration, 3600.0));
}

TEST_F(WellDemandModelTest, rowsOfOneWellAreAdjacent) {
  wells.setData(wells.index(0, 0), "North");
  const QStringList names{"North", "North", "North", "Well 2", "Well 2", "Well 2"};
  for (int row = 0; row < names.size(); ++row) {
    EXPECT_EQ(cell(row, 0, Qt::DisplayRole), names[row]);
    EXPECT_EQ(cell(row, 0, Qt::EditRole), names[row]);
  }
}

TEST_F(WellDemandModelTest, durationIsThatOfThePeriodOfTheRow) {
  for (int period = 0; period < 3; ++period)
    demand.setData(demand.index(period, 0), 3600.0 * (period + 1));
  for (int row = 0; row < 6; ++row) {
    EXPECT_EQ(number(row, 1, Qt::DisplayRole), row % 3 + 1.0);
    EXPECT_EQ(number(row, 1, Qt::EditRole), 3600.0 * (row % 3 + 1.0));
  }
}

TEST_F(WellDemandModelTest, firstRowOfAWellHasTheMeanRateAndTheOthersNone) {
  const QList<double> expected{-meanFlowRate, 0.0, 0.0, meanFlowRate, 0.0, 0.0};
  for (int row = 0; row < 6; ++row) {
    EXPECT_DOUBLE_EQ(number(row, 2, Qt::EditRole), expected[row]);
    EXPECT_DOUBLE_EQ(number(row, 2, Qt::DisplayRole), expected[row] * 3600.0);
  }
}

TEST_F(WellDemandModelTest, temperatureChangeIsThatOfWellAndPeriod) {
  wells.setStepTemperatureChange(1, 1, -3.0);
  for (int role : {Qt::DisplayRole, Qt::EditRole}) {
    EXPECT_EQ(number(3, 3, role), usedTemperatureChange);
    EXPECT_EQ(number(4, 3, role), -3.0);
    EXPECT_EQ(number(5, 3, role), 0.0);
  }
}

TEST_F(WellDemandModelTest, withdrawalShowsNoTemperatureChange) {
  wells.setStepTemperatureChange(0, 0, -3.0);
  EXPECT_EQ(cell(0, 3, Qt::DisplayRole), QVariant(0.0));
  EXPECT_EQ(cell(0, 3, Qt::EditRole), QVariant(0.0));
}

TEST_F(WellDemandModelTest, otherRolesAndInvalidIndicesGiveNothing) {
  for (int column = 0; column < 4; ++column)
    EXPECT_FALSE(cell(0, column, Qt::ToolTipRole).isValid());
  EXPECT_FALSE(model.data(QModelIndex()).isValid());
}

TEST_F(WellDemandModelTest, horizontalHeadersNameTheColumns) {
  const QStringList expected{"Name", "Duration", "Mean rate", "Temperature change"};
  for (int column = 0; column < expected.size(); ++column)
    EXPECT_EQ(model.headerData(column, Qt::Horizontal), QVariant(expected[column]));
  EXPECT_FALSE(model.headerData(expected.size(), Qt::Horizontal).isValid());
}

TEST_F(WellDemandModelTest, headersAreTranslatedInTheContextWellDemandModel) {
  const ContextTranslator translator;
  EXPECT_EQ(model.headerData(2, Qt::Horizontal), QVariant("WellDemandModel/Mean rate"));
}

TEST_F(WellDemandModelTest, verticalHeaderIsTheSectionNumberFromZero) {
  EXPECT_EQ(model.headerData(4, Qt::Vertical), QVariant(4));
}

TEST_F(WellDemandModelTest, headersHaveNothingForOtherRoles) {
  EXPECT_FALSE(model.headerData(0, Qt::Horizontal, Qt::EditRole).isValid());
  EXPECT_FALSE(model.headerData(0, Qt::Vertical, Qt::EditRole).isValid());
}

TEST_F(WellDemandModelTest, nameIsReadOnlyAndTheRestCanBeEdited) {
  EXPECT_EQ(flags(3, 0), readOnly);
  for (int column = 1; column < 4; ++column)
    EXPECT_EQ(flags(3, column), editable);
  EXPECT_EQ(model.flags(QModelIndex()), readOnly);
}

TEST_F(WellDemandModelTest, temperatureChangeOfAWithdrawalIsReadOnly) {
  EXPECT_EQ(flags(0, 1), editable);
  EXPECT_EQ(flags(0, 2), editable);
  EXPECT_EQ(flags(0, 3), readOnly);
  EXPECT_EQ(flags(1, 3), editable);
  set(4, 2, -0.1);
  EXPECT_EQ(flags(4, 3), readOnly);
}

TEST_F(WellDemandModelTest, durationIsPassedToThePeriodOfTheRow) {
  EXPECT_TRUE(set(4, 1, QString("7200.5")));
  EXPECT_EQ(demand.durations(),
            (QMap<int, double>{{0, secondsPerYear / 3}, {1, 7200.5}, {2, secondsPerYear / 3}}));
}

TEST_F(WellDemandModelTest, rateIsPassedToWellAndPeriod) {
  EXPECT_TRUE(set(4, 2, QString("0.0035")));
  EXPECT_EQ(wells.wellStepRates(), (QMap<int, WellModel::ByStep>{{1, {{1, 0.0035}}}}));
}

TEST_F(WellDemandModelTest, temperatureChangeIsPassedToWellAndPeriod) {
  EXPECT_TRUE(set(5, 3, -2.5));
  EXPECT_EQ(wells.wellStepTemperatureChanges(), (QMap<int, WellModel::ByStep>{{1, {{2, -2.5}}}}));
}

TEST_F(WellDemandModelTest, missingValueIsStoredAsZero) {
  EXPECT_TRUE(set(3, 1, QVariant()));
  EXPECT_TRUE(set(3, 2, QVariant()));
  EXPECT_TRUE(set(3, 3, QVariant()));
  EXPECT_EQ(demand.durations()[0], 0.0);
  EXPECT_EQ(wells.wellStepRates(), (QMap<int, WellModel::ByStep>{{1, {{0, 0.0}}}}));
  EXPECT_EQ(wells.wellStepTemperatureChanges(), (QMap<int, WellModel::ByStep>{{1, {{0, 0.0}}}}));
}

TEST_F(WellDemandModelTest, refusesTheNameOtherRolesAndInvalidIndices) {
  EXPECT_FALSE(set(0, 0, "North"));
  EXPECT_TRUE(wells.wellNames().isEmpty());
  for (int column = 1; column < 4; ++column)
    EXPECT_FALSE(set(3, column, 1.0, Qt::DisplayRole));
  EXPECT_FALSE(model.setData(QModelIndex(), 1.0));
  EXPECT_EQ(demand.durations()[0], secondsPerYear / 3);
  EXPECT_TRUE(wells.wellStepRates().isEmpty());
  EXPECT_TRUE(wells.wellStepTemperatureChanges().isEmpty());
}

TEST_F(WellDemandModelTest, refusesRatesAndTemperatureChangesWhileTheWellsAreNotEditable) {
  wells.setEditable(false);
  EXPECT_FALSE(set(3, 2, 1.0));
  EXPECT_FALSE(set(3, 3, 1.0));
  EXPECT_TRUE(set(3, 1, 1.0));
}

TEST_F(WellDemandModelTest, resetOfTheWellsResetsIt) {
  QSignalSpy aboutToReset(&model, &WellDemandModel::modelAboutToBeReset);
  QSignalSpy reset(&model, &WellDemandModel::modelReset);
  wells.revert();
  EXPECT_EQ(aboutToReset.size(), 1);
  EXPECT_EQ(reset.size(), 1);
}

TEST_F(WellDemandModelTest, resetOfTheDemandPeriodsResetsIt) {
  QSignalSpy reset(&model, &WellDemandModel::modelReset);
  demand.resize(2);
  EXPECT_EQ(reset.size(), 1);
  EXPECT_EQ(model.rowCount(), 4);
}

TEST(WellDemandModelMetaObject, declaresTheSlotResetModelAlone) {
  const QMetaObject& meta = WellDemandModel::staticMetaObject;
  EXPECT_STREQ(meta.className(), "TVR::WellDemandModel");
  EXPECT_EQ(methodsOf(meta), QStringList{"slot resetModel()"});
}

} // namespace
} // namespace TVR
