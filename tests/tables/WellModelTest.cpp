#include "tables/WellModel.h"

#include "support/ContextTranslator.h"
#include "support/MethodsOf.h"
#include "tables/WellParameters.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <cmath>
#include <optional>

namespace TVR {
namespace {

const Qt::ItemFlags allFlags = Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsEnabled;

class WellModelTest : public testing::Test {
protected:
  WellModel& makeModel(const QVector<QPointF>& positions) {
    wells.positions = positions;
    parameters.values[Parameter::NumberOfWells] = positions.size();
    return model.emplace(wells, parameters);
  }

  QVariant cell(int row, int column, int role = Qt::EditRole) {
    return model->data(model->index(row, column), role);
  }
  double number(int row, int column, int role = Qt::EditRole) {
    return cell(row, column, role).toDouble();
  }
  bool set(int row, int column, const QVariant& value, int role = Qt::EditRole) {
    return model->setData(model->index(row, column), value, role);
  }
  Qt::ItemFlags flags(int row, int column) { return model->flags(model->index(row, column)); }
  double usedDistance() { return parameters.number(Parameter::DMinUsed); }

  MapParameters parameters = wellParameters(0);
  Wells wells;
  std::optional<WellModel> model;
};

const QVector<QPointF> twoWells{{10.0, 20.0}, {13.0, 24.0}};
const QVector<QPointF> fourWells{{0.0, 0.0}, {1.0, 0.0}, {4.0, 0.0}, {10.0, 0.0}};

TEST_F(WellModelTest, hasFiveColumns) {
  EXPECT_EQ(makeModel(twoWells).columnCount(), 5);
}

TEST_F(WellModelTest, rowCountFollowsTheParameterAndNotThePolygon) {
  makeModel(twoWells);
  parameters.values[Parameter::NumberOfWells] = 6.0;
  EXPECT_EQ(model->rowCount(), 6);
}

TEST_F(WellModelTest, rowCountIsTheIntegerPartOfTheParameter) {
  makeModel(twoWells);
  parameters.values[Parameter::NumberOfWells] = 2.9;
  EXPECT_EQ(model->rowCount(), 2);
}

TEST_F(WellModelTest, negativeNumberOfWellsGivesNoRows) {
  makeModel(twoWells);
  parameters.values[Parameter::NumberOfWells] = -3.0;
  EXPECT_EQ(model->rowCount(), 0);
}

TEST_F(WellModelTest, cellsHaveNoRowsOrColumnsBelowThem) {
  makeModel(twoWells);
  EXPECT_EQ(model->rowCount(model->index(0, 0)), 0);
  EXPECT_EQ(model->columnCount(model->index(0, 0)), 0);
}

TEST_F(WellModelTest, horizontalHeadersNameTheColumns) {
  makeModel(twoWells);
  const QStringList expected{"Well", "X coordinate", "Y coordinate", "Mean annual rate",
                             "Temperature change"};
  for (int column = 0; column < expected.size(); ++column)
    EXPECT_EQ(model->headerData(column, Qt::Horizontal), expected[column]);
  EXPECT_FALSE(model->headerData(expected.size(), Qt::Horizontal).isValid());
}

TEST_F(WellModelTest, headersAreTranslatedInTheContextWellModel) {
  makeModel(twoWells);
  const ContextTranslator translator;
  EXPECT_EQ(model->headerData(3, Qt::Horizontal), QString("WellModel/Mean annual rate"));
}

TEST_F(WellModelTest, verticalHeaderIsTheSectionNumberFromZero) {
  const QVariant header = makeModel(twoWells).headerData(1, Qt::Vertical);
  EXPECT_EQ(header.type(), QVariant::Int);
  EXPECT_EQ(header.toInt(), 1);
}

TEST_F(WellModelTest, headersHaveNothingForOtherRoles) {
  makeModel(twoWells);
  EXPECT_FALSE(model->headerData(0, Qt::Horizontal, Qt::EditRole).isValid());
  EXPECT_FALSE(model->headerData(0, Qt::Vertical, Qt::ToolTipRole).isValid());
}

TEST_F(WellModelTest, unnamedWellIsCountedFromOne) {
  makeModel(twoWells);
  EXPECT_EQ(cell(1, 0, Qt::DisplayRole), QString("Well 2"));
  EXPECT_EQ(cell(1, 0, Qt::EditRole), QString("Well 2"));
}

TEST_F(WellModelTest, givenNameReplacesTheCountedOne) {
  makeModel(twoWells);
  EXPECT_TRUE(set(1, 0, "Garden"));
  EXPECT_EQ(cell(1, 0, Qt::DisplayRole), QString("Garden"));
  EXPECT_EQ(cell(1, 0, Qt::EditRole), QString("Garden"));
  EXPECT_EQ(cell(0, 0), QString("Well 1"));
}

TEST_F(WellModelTest, givenNameMayBeEmptiedAgain) {
  makeModel(twoWells);
  set(1, 0, "Garden");
  EXPECT_TRUE(set(1, 0, ""));
  EXPECT_EQ(cell(1, 0), QString(""));
}

TEST_F(WellModelTest, emptyNameForAnUnnamedWellChangesNothing) {
  makeModel(twoWells);
  EXPECT_TRUE(set(1, 0, ""));
  EXPECT_EQ(cell(1, 0), QString("Well 2"));
}

TEST_F(WellModelTest, coordinatesAreThoseOfThePolygonInBothRoles) {
  makeModel(twoWells);
  for (int role : {Qt::DisplayRole, Qt::EditRole}) {
    EXPECT_EQ(number(1, 1, role), 13.0);
    EXPECT_EQ(number(1, 2, role), 24.0);
  }
}

TEST_F(WellModelTest, otherRolesGiveNothing) {
  makeModel(twoWells);
  for (int column = 0; column < 5; ++column)
    EXPECT_FALSE(cell(0, column, Qt::ToolTipRole).isValid());
}

TEST_F(WellModelTest, invalidIndexGivesNothing) {
  EXPECT_FALSE(makeModel(twoWells).data(QModelIndex()).isValid());
}

QString lastDebugText;
void keepDebugText(QtMsgType, const QMessageLogContext&, const QString& text) {
  lastDebugText = text;
}

TEST_F(WellModelTest, rowWithoutAPointHasNoCoordinatesAndLogsItsRow) {
  makeModel(twoWells);
  parameters.values[Parameter::NumberOfWells] = 3.0;
  for (int column : {1, 2}) {
    lastDebugText.clear();
    const QtMessageHandler before = qInstallMessageHandler(keepDebugText);
    const QVariant coordinate = cell(2, column, Qt::DisplayRole);
    qInstallMessageHandler(before);
    EXPECT_FALSE(coordinate.isValid());
    EXPECT_EQ(lastDebugText, QString("ERROR: no information for pumping well 2"));
  }
}

TEST_F(WellModelTest, rowWithoutAPointRefusesCoordinates) {
  makeModel(twoWells);
  parameters.values[Parameter::NumberOfWells] = 3.0;
  EXPECT_FALSE(set(2, 1, 1.0));
  EXPECT_EQ(wells.positions, twoWells);
}

TEST_F(WellModelTest, twoWellsShareTheMeanRateWithOppositeSigns) {
  makeModel(twoWells);
  EXPECT_DOUBLE_EQ(number(0, 3, Qt::EditRole), -0.004);
  EXPECT_DOUBLE_EQ(number(1, 3, Qt::EditRole), 0.004);
  EXPECT_DOUBLE_EQ(number(0, 3, Qt::DisplayRole), -14.4);
  EXPECT_DOUBLE_EQ(number(1, 3, Qt::DisplayRole), 14.4);
}

TEST_F(WellModelTest, middleWellOfThreeInjects) {
  makeModel(QVector<QPointF>(3));
  EXPECT_DOUBLE_EQ(number(0, 3), -2.0 * meanFlowRate / 3.0);
  EXPECT_DOUBLE_EQ(number(1, 3), 2.0 * meanFlowRate / 3.0);
  EXPECT_DOUBLE_EQ(number(2, 3), 2.0 * meanFlowRate / 3.0);
}

TEST_F(WellModelTest, setRateReplacesTheDerivedOne) {
  makeModel(twoWells);
  EXPECT_TRUE(set(0, 3, 0.5));
  EXPECT_EQ(number(0, 3, Qt::EditRole), 0.5);
  EXPECT_EQ(number(0, 3, Qt::DisplayRole), 1800.0);
}

TEST_F(WellModelTest, numbersAreTakenAsTextWithAPoint) {
  makeModel(twoWells);
  EXPECT_TRUE(set(0, 3, QString("0.0035")));
  EXPECT_EQ(number(0, 3), 0.0035);
}

TEST_F(WellModelTest, withdrawalWellShowsNoTemperatureChangeAndItCanNotBeEdited) {
  makeModel(twoWells);
  for (int role : {Qt::DisplayRole, Qt::EditRole})
    EXPECT_EQ(cell(0, 4, role), QVariant(0.0));
  EXPECT_EQ(flags(0, 4), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
}

TEST_F(WellModelTest, injectionWellHasTheUsedTemperatureChange) {
  makeModel(twoWells);
  for (int role : {Qt::DisplayRole, Qt::EditRole})
    EXPECT_EQ(number(1, 4, role), usedTemperatureChange);
}

TEST_F(WellModelTest, setRateWithoutSetTemperatureChangeHasTheUsedOne) {
  makeModel(twoWells);
  set(0, 3, 0.1);
  EXPECT_EQ(number(0, 4), usedTemperatureChange);
}

TEST_F(WellModelTest, setTemperatureChangeCountsOnceTheRateIsSet) {
  makeModel(twoWells);
  set(1, 3, 0.0);
  EXPECT_TRUE(set(1, 4, -3.0));
  EXPECT_EQ(number(1, 4), -3.0);
}

TEST_F(WellModelTest, setTemperatureChangeIsNotLookedAtWhileTheRateIsDerived) {
  makeModel(twoWells);
  set(1, 4, -3.0);
  EXPECT_EQ(number(1, 4), usedTemperatureChange);
}

TEST_F(WellModelTest, negativeRateHidesTheSetTemperatureChangeWithoutErasingIt) {
  makeModel(twoWells);
  set(1, 3, 0.1);
  set(1, 4, -3.0);
  set(1, 3, -0.1);
  EXPECT_EQ(number(1, 4), 0.0);
  EXPECT_FALSE(flags(1, 4).testFlag(Qt::ItemIsEditable));
  set(1, 3, 0.1);
  EXPECT_EQ(number(1, 4), -3.0);
}

TEST_F(WellModelTest, cellsCanBeSelectedAndEdited) {
  makeModel(twoWells);
  for (int column = 0; column < 4; ++column)
    EXPECT_EQ(flags(0, column), allFlags);
  EXPECT_EQ(flags(1, 4), allFlags);
}

TEST_F(WellModelTest, rateOfZeroCountsAsInjection) {
  makeModel(twoWells);
  set(0, 3, 0.0);
  EXPECT_EQ(number(0, 4), usedTemperatureChange);
  EXPECT_EQ(flags(0, 4), allFlags);
}

TEST_F(WellModelTest, isEditableAtConstruction) {
  EXPECT_TRUE(makeModel(twoWells).isEditable());
}

TEST_F(WellModelTest, refusesEverythingWhileNotEditable) {
  makeModel(twoWells).setEditable(false);
  for (int column = 0; column < 5; ++column) {
    EXPECT_FALSE(set(1, column, 1.0));
    EXPECT_EQ(flags(1, column), Qt::NoItemFlags);
  }
  EXPECT_FALSE(model->setStepRate(1, 0, 1.0));
  EXPECT_FALSE(model->setStepTemperatureChange(1, 0, 1.0));
  EXPECT_EQ(wells.positions, twoWells);
  EXPECT_DOUBLE_EQ(model->stepRate(1, 0, Qt::EditRole), meanFlowRate);
  EXPECT_EQ(model->stepTemperatureChange(1, 0, Qt::EditRole), usedTemperatureChange);
}

TEST_F(WellModelTest, refusesNullValues) {
  makeModel(twoWells);
  for (int column = 0; column < 5; ++column) {
    EXPECT_FALSE(set(0, column, QVariant()));
    EXPECT_FALSE(set(0, column, QVariant(QVariant::Double)));
    EXPECT_FALSE(set(0, column, QString()));
  }
}

TEST_F(WellModelTest, refusesOtherRolesAndInvalidIndices) {
  makeModel(twoWells);
  EXPECT_FALSE(set(0, 3, 1.0, Qt::DisplayRole));
  EXPECT_FALSE(model->setData(QModelIndex(), 1.0));
  EXPECT_DOUBLE_EQ(number(0, 3), -meanFlowRate);
}

TEST_F(WellModelTest, setCoordinateMovesTheWellInThePolygon) {
  makeModel(twoWells);
  EXPECT_TRUE(set(1, 1, 40.0));
  EXPECT_TRUE(set(1, 2, "60.5"));
  EXPECT_EQ(wells.positions[1], QPointF(40.0, 60.5));
  EXPECT_EQ(wells.positions[0], twoWells[0]);
}

TEST_F(WellModelTest, setCoordinateUpdatesTheUsedDistance) {
  makeModel(twoWells);
  set(1, 1, 10.0);
  EXPECT_DOUBLE_EQ(usedDistance(), 4.0);
  set(1, 2, 27.0);
  EXPECT_DOUBLE_EQ(usedDistance(), 7.0);
}

class WellModelSignals : public WellModelTest {
protected:
  WellModelSignals()
      : graphic(&makeModel(twoWells), &WellModel::updateGraphic),
        rates(&*model, &WellModel::ratesModified), changes(&*model, &WellModel::dataChanged) {}

  QSignalSpy graphic;
  QSignalSpy rates;
  QSignalSpy changes;
};

TEST_F(WellModelSignals, coordinatesUpdateTheGraphic) {
  set(0, 1, 1.0);
  EXPECT_EQ(graphic.size(), 1);
  set(0, 2, 1.0);
  EXPECT_EQ(graphic.size(), 2);
  EXPECT_EQ(rates.size() + changes.size(), 0);
}

TEST_F(WellModelSignals, rateTellsThatRatesWereModified) {
  set(0, 3, 1.0);
  EXPECT_EQ(rates.size(), 1);
  EXPECT_EQ(graphic.size() + changes.size(), 0);
}

TEST_F(WellModelSignals, nameAndTemperatureChangeAreSilent) {
  EXPECT_TRUE(set(1, 0, "Garden"));
  EXPECT_TRUE(set(1, 4, -2.0));
  EXPECT_EQ(graphic.size() + rates.size() + changes.size(), 0);
}

TEST_F(WellModelSignals, valuesByDemandPeriodAreSilent) {
  EXPECT_TRUE(model->setStepRate(1, 1, 1.0));
  EXPECT_TRUE(model->setStepTemperatureChange(1, 1, 1.0));
  EXPECT_EQ(graphic.size() + rates.size() + changes.size(), 0);
}

TEST_F(WellModelSignals, refusedValuesAreSilent) {
  set(0, 1, QVariant());
  set(0, 3, QVariant());
  EXPECT_EQ(graphic.size() + rates.size() + changes.size(), 0);
}

TEST_F(WellModelSignals, revertResetsOnceAndChangesNothing) {
  set(0, 3, 1.0);
  QSignalSpy aboutToReset(&*model, &WellModel::modelAboutToBeReset);
  QSignalSpy reset(&*model, &WellModel::modelReset);
  model->revert();
  EXPECT_EQ(aboutToReset.size(), 1);
  EXPECT_EQ(reset.size(), 1);
  EXPECT_EQ(number(0, 3), 1.0);
}

TEST(WellModelMetaObject, listsSignalsThenSlotsInOrder) {
  EXPECT_EQ(methodsOf(WellModel::staticMetaObject),
            (QStringList{"signal updateGraphic()", "signal ratesModified()", "slot revert()",
                         "slot calculateMinDistance()", "slot revert(QPolygonF&,int)",
                         "slot revert(QPolygonF&)"}));
}

TEST(WellModelMetaObject, isCalledByItsFullName) {
  EXPECT_STREQ(WellModel::staticMetaObject.className(), "TVR::WellModel");
}

TEST_F(WellModelTest, constructionWritesTheUsedDistance) {
  makeModel(twoWells);
  EXPECT_DOUBLE_EQ(usedDistance(), 5.0);
}

TEST_F(WellModelTest, usedDistanceIsThatOfTheFarthestPair) {
  makeModel(fourWells);
  EXPECT_DOUBLE_EQ(usedDistance(), 10.0);
}

TEST_F(WellModelTest, wellsOfOneKindDoNotCountForTheUsedDistance) {
  makeModel({{0.0, 0.0}, {0.0, 100.0}, {3.0, 0.0}, {3.0, 100.0}});
  EXPECT_DOUBLE_EQ(usedDistance(), std::hypot(3.0, 100.0));
}

TEST_F(WellModelTest, usedDistanceIsZeroWithoutWithdrawalWells) {
  makeModel(twoWells);
  set(0, 3, 0.0);
  model->calculateMinDistance();
  EXPECT_EQ(parameters.values.at(Parameter::DMinUsed), 0.0);
}

TEST_F(WellModelTest, usedDistanceIsZeroWithoutInjectionWells) {
  makeModel(twoWells);
  set(1, 3, -0.1);
  model->calculateMinDistance();
  EXPECT_EQ(parameters.values.at(Parameter::DMinUsed), 0.0);
}

TEST_F(WellModelTest, usedDistanceIsZeroWithoutWells) {
  makeModel({});
  EXPECT_EQ(parameters.values.at(Parameter::DMinUsed), 0.0);
}

TEST_F(WellModelTest, pointBeyondTheRowsCountsAsInjectionWhateverRateWasSetForIt) {
  makeModel(fourWells);
  set(3, 3, -0.1);
  parameters.values[Parameter::NumberOfWells] = 2.0;
  model->calculateMinDistance();
  EXPECT_DOUBLE_EQ(usedDistance(), 10.0);
}

TEST_F(WellModelTest, usedDistanceIsZeroWhereAllWellsStandOnOnePoint) {
  makeModel({{7.0, 7.0}, {7.0, 7.0}});
  EXPECT_EQ(parameters.values.at(Parameter::DMinUsed), 0.0);
}

TEST_F(WellModelTest, rateAloneLeavesTheUsedDistanceAlone) {
  makeModel(twoWells);
  set(0, 3, 0.0);
  EXPECT_DOUBLE_EQ(usedDistance(), 5.0);
}

} // namespace
} // namespace TVR
