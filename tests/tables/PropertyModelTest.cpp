#include "tables/PropertyModel.h"

#include "design/ParameterId.h"
#include "support/ContextTranslator.h"
#include "support/MethodsOf.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace TVR {
namespace {

/// Parameters in a map, each called by its id; takes any valid value.
class MapSource : public PropertySource {
public:
  QString label(int id) const override { return QString("Parameter %1").arg(id); }
  QVariant value(int id) const override { return values.value(id); }
  bool setValue(int id, const QVariant& value) override {
    if (value.isValid())
      values[id] = value;
    return value.isValid();
  }

  QMap<int, QVariant> values;
};

class PropertyModelTest : public testing::Test {
protected:
  PropertyModelTest() {
    source.values = {{Parameter::ProjectStreet, "Quellweg 3"},
                     {Parameter::ProjectZip, "12345"},
                     {Parameter::EnergyDemand, 18234.7}};
  }

  QVariant cell(int row, int column, int role = Qt::DisplayRole) {
    return model.data(model.index(row, column), role);
  }

  const QVector<int> ids{Parameter::ProjectStreet, Parameter::ProjectZip, Parameter::EnergyDemand};
  MapSource source;
  PropertyModel model{ids, source, true};
  PropertyModel fixed{ids, source, false};
};

TEST_F(PropertyModelTest, hasOneRowPerParameterAndThreeColumns) {
  EXPECT_EQ(model.rowCount(), 3);
  EXPECT_EQ(model.columnCount(), 3);
}

TEST_F(PropertyModelTest, cellsHaveNoRowsOrColumnsBelowThem) {
  EXPECT_EQ(model.rowCount(model.index(0, 0)), 0);
  EXPECT_EQ(model.columnCount(model.index(0, 0)), 0);
}

TEST_F(PropertyModelTest, firstColumnNamesTheParameterInBothRoles) {
  EXPECT_EQ(cell(1, 0, Qt::DisplayRole), QVariant("Parameter 143"));
  EXPECT_EQ(cell(1, 0, Qt::EditRole), QVariant("Parameter 143"));
}

TEST_F(PropertyModelTest, secondColumnHasTheValueInBothRoles) {
  EXPECT_EQ(cell(0, 1, Qt::DisplayRole), QVariant("Quellweg 3"));
  EXPECT_EQ(cell(0, 1, Qt::EditRole), QVariant("Quellweg 3"));
}

TEST_F(PropertyModelTest, energyDemandIsShownWithoutDecimals) {
  EXPECT_EQ(cell(2, 1, Qt::DisplayRole), QVariant("18235"));
  EXPECT_EQ(cell(2, 1, Qt::EditRole), QVariant(18234.7));
}

TEST_F(PropertyModelTest, largeEnergyDemandIsShownInFull) {
  source.values[Parameter::EnergyDemand] = 12345678.0;
  EXPECT_EQ(cell(2, 1, Qt::DisplayRole), QVariant("12345678"));
}

TEST_F(PropertyModelTest, unitColumnIsEmpty) {
  EXPECT_FALSE(cell(0, 2, Qt::DisplayRole).isValid());
  EXPECT_FALSE(cell(0, 2, Qt::EditRole).isValid());
}

TEST_F(PropertyModelTest, otherRolesAndInvalidIndicesGiveNothing) {
  EXPECT_FALSE(cell(0, 0, Qt::ToolTipRole).isValid());
  EXPECT_FALSE(cell(0, 1, Qt::ToolTipRole).isValid());
  EXPECT_FALSE(model.data(QModelIndex()).isValid());
}

TEST_F(PropertyModelTest, headersNameTheColumnsAndCountTheRowsFromZero) {
  EXPECT_EQ(model.headerData(0, Qt::Horizontal), QVariant("Parameter"));
  EXPECT_EQ(model.headerData(1, Qt::Horizontal), QVariant("Value"));
  EXPECT_EQ(model.headerData(2, Qt::Horizontal), QVariant("Unit"));
  EXPECT_FALSE(model.headerData(3, Qt::Horizontal).isValid());
  EXPECT_EQ(model.headerData(2, Qt::Vertical), QVariant(2));
  EXPECT_FALSE(model.headerData(0, Qt::Horizontal, Qt::EditRole).isValid());
  EXPECT_FALSE(model.headerData(0, Qt::Vertical, Qt::EditRole).isValid());
}

TEST_F(PropertyModelTest, headersAreTranslatedInTheContextOfTheClass) {
  const ContextTranslator translator;
  EXPECT_EQ(model.headerData(1, Qt::Horizontal), QVariant("TVR::PropertyModel/Value"));
}

TEST_F(PropertyModelTest, onlyTheValueCanBeEdited) {
  EXPECT_EQ(model.flags(model.index(0, 0)), Qt::ItemIsEnabled);
  EXPECT_EQ(model.flags(model.index(0, 1)),
            Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsEnabled);
  EXPECT_EQ(model.flags(model.index(0, 2)), Qt::ItemIsEnabled);
}

TEST_F(PropertyModelTest, nothingCanBeEditedUnlessEditable) {
  EXPECT_EQ(fixed.flags(fixed.index(0, 1)), Qt::ItemIsEnabled);
  EXPECT_FALSE(fixed.setData(fixed.index(0, 1), "Feldweg 1"));
  EXPECT_EQ(source.values[Parameter::ProjectStreet], QVariant("Quellweg 3"));
}

TEST_F(PropertyModelTest, valueIsWrittenToTheSource) {
  EXPECT_TRUE(model.setData(model.index(1, 1), "54321"));
  EXPECT_EQ(source.values[Parameter::ProjectZip], QVariant("54321"));
}

TEST_F(PropertyModelTest, refusesOtherColumnsRolesAndInvalidIndices) {
  const QMap<int, QVariant> before = source.values;
  EXPECT_FALSE(model.setData(model.index(0, 0), "x"));
  EXPECT_FALSE(model.setData(model.index(0, 2), "x"));
  EXPECT_FALSE(model.setData(model.index(0, 1), "x", Qt::DisplayRole));
  EXPECT_FALSE(model.setData(QModelIndex(), "x"));
  EXPECT_EQ(source.values, before);
}

TEST_F(PropertyModelTest, refusesWhatTheSourceRefuses) {
  EXPECT_FALSE(model.setData(model.index(0, 1), QVariant()));
}

TEST_F(PropertyModelTest, revertResetsOnce) {
  QSignalSpy aboutToReset(&model, &PropertyModel::modelAboutToBeReset);
  QSignalSpy reset(&model, &PropertyModel::modelReset);
  model.revert();
  EXPECT_EQ(aboutToReset.size(), 1);
  EXPECT_EQ(reset.size(), 1);
}

TEST(PropertyModelMetaObject, declaresTheSlotRevertAlone) {
  const QMetaObject& meta = PropertyModel::staticMetaObject;
  EXPECT_STREQ(meta.className(), "TVR::PropertyModel");
  EXPECT_EQ(methodsOf(meta), QStringList{"slot revert()"});
}

} // namespace
} // namespace TVR
