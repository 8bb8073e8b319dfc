#include "tables/DemandModel.h"

#include "project/Units.h"
#include "support/ContextTranslator.h"
#include "support/MethodsOf.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <numeric>

namespace TVR {
namespace {

QVariant duration(const DemandModel& model, int row, int role = Qt::EditRole) {
  return model.data(model.index(row, 0), role);
}

TEST(DemandModel, onePeriodLastsAYear) {
  ByPeriod kept;
  const DemandModel model(kept, 1);
  EXPECT_EQ(model.rowCount(), 1);
  EXPECT_EQ(duration(model, 0), QVariant(secondsPerYear));
}

TEST(DemandModel, periodsAreEquallyLongAtFirst) {
  ByPeriod kept;
  const DemandModel model(kept, 4);
  EXPECT_EQ(model.durations(), (QMap<int, double>{{0, secondsPerYear / 4},
                                                  {1, secondsPerYear / 4},
                                                  {2, secondsPerYear / 4},
                                                  {3, secondsPerYear / 4}}));
}

TEST(DemandModel, hasOneColumnAndCellsHaveNothingBelowThem) {
  ByPeriod kept;
  const DemandModel model(kept, 2);
  EXPECT_EQ(model.columnCount(), 1);
  EXPECT_EQ(model.columnCount(model.index(0, 0)), 0);
  EXPECT_EQ(model.rowCount(model.index(0, 0)), 0);
}

TEST(DemandModel, durationIsShownInHoursAndEditedInSeconds) {
  ByPeriod kept;
  const DemandModel model(kept, 1);
  EXPECT_EQ(duration(model, 0, Qt::DisplayRole), QVariant(8766.0));
  EXPECT_EQ(duration(model, 0, Qt::EditRole), QVariant(31557600.0));
}

TEST(DemandModel, otherRolesAndColumnsGiveNothing) {
  ByPeriod kept;
  const DemandModel model(kept, 1);
  EXPECT_FALSE(duration(model, 0, Qt::ToolTipRole).isValid());
  EXPECT_FALSE(model.data(QModelIndex()).isValid());
  EXPECT_FALSE(model.data(model.index(0, 1)).isValid());
}

TEST(DemandModel, rowThatIsGoneHasNoDuration) {
  ByPeriod kept;
  DemandModel model(kept, 2);
  const QModelIndex last = model.index(1, 0);
  model.resize(1);
  EXPECT_EQ(model.data(last), QVariant(0.0));
}

TEST(DemandModel, rowThatIsGoneRefusesADuration) {
  ByPeriod kept;
  DemandModel model(kept, 2);
  const QModelIndex last = model.index(1, 0);
  model.resize(1);
  EXPECT_FALSE(model.setData(last, 1.0));
  EXPECT_EQ(model.rowCount(), 1);
}

TEST(DemandModel, headersNameTheColumnAndCountTheRowsFromZero) {
  ByPeriod kept;
  const DemandModel model(kept, 2);
  EXPECT_EQ(model.headerData(0, Qt::Horizontal), QVariant("Duration"));
  EXPECT_FALSE(model.headerData(1, Qt::Horizontal).isValid());
  EXPECT_EQ(model.headerData(1, Qt::Vertical), QVariant(1));
  EXPECT_FALSE(model.headerData(0, Qt::Horizontal, Qt::EditRole).isValid());
  EXPECT_FALSE(model.headerData(1, Qt::Vertical, Qt::EditRole).isValid());
}

TEST(DemandModel, headerIsTranslatedInTheContextDemandModel) {
  ByPeriod kept;
  const DemandModel model(kept, 1);
  const ContextTranslator translator;
  EXPECT_EQ(model.headerData(0, Qt::Horizontal), QVariant("DemandModel/Duration"));
}

TEST(DemandModel, cellsCanBeEditedAndAnInvalidIndexOnlySelected) {
  ByPeriod kept;
  const DemandModel model(kept, 1);
  EXPECT_EQ(model.flags(model.index(0, 0)),
            Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsEnabled);
  EXPECT_EQ(model.flags(QModelIndex()), Qt::ItemIsSelectable);
}

TEST(DemandModel, takesADurationInSecondsAndTellsThatTheCellChanged) {
  ByPeriod kept;
  DemandModel model(kept, 2);
  QSignalSpy changes(&model, &DemandModel::dataChanged);
  const QModelIndex second = model.index(1, 0);
  EXPECT_TRUE(model.setData(second, 7200.0));
  EXPECT_EQ(duration(model, 1, Qt::DisplayRole), QVariant(2.0));
  EXPECT_EQ(duration(model, 0), QVariant(secondsPerYear / 2));
  ASSERT_EQ(changes.size(), 1);
  EXPECT_EQ(changes[0][0].toModelIndex(), second);
  EXPECT_EQ(changes[0][1].toModelIndex(), second);
}

TEST(DemandModel, takesADurationAsTextWithAPoint) {
  ByPeriod kept;
  DemandModel model(kept, 1);
  EXPECT_TRUE(model.setData(model.index(0, 0), QString("1.5e3")));
  EXPECT_EQ(duration(model, 0), QVariant(1500.0));
}

TEST(DemandModel, missingValueIsADurationOfZero) {
  ByPeriod kept;
  DemandModel model(kept, 1);
  EXPECT_TRUE(model.setData(model.index(0, 0), QVariant()));
  EXPECT_EQ(duration(model, 0), QVariant(0.0));
}

TEST(DemandModel, refusesOtherRolesAndInvalidIndices) {
  ByPeriod kept;
  DemandModel model(kept, 1);
  QSignalSpy changes(&model, &DemandModel::dataChanged);
  EXPECT_FALSE(model.setData(model.index(0, 0), 1.0, Qt::DisplayRole));
  EXPECT_FALSE(model.setData(QModelIndex(), 1.0));
  EXPECT_FALSE(model.setData(model.index(0, 1), 1.0));
  EXPECT_EQ(duration(model, 0), QVariant(secondsPerYear));
  EXPECT_TRUE(changes.isEmpty());
}

TEST(DemandModel, growingKeepsThePeriodsSoThatTheSumExceedsAYear) {
  ByPeriod kept;
  DemandModel model(kept, 1);
  model.resize(3);
  EXPECT_EQ(model.durations(),
            (QMap<int, double>{{0, secondsPerYear}, {1, 1.0519200e7}, {2, 1.0519200e7}}));
  const QList<double> durations = model.durations().values();
  EXPECT_DOUBLE_EQ(std::accumulate(durations.begin(), durations.end(), 0.0), 5.259600e7);
}

TEST(DemandModel, shrinkingKeepsTheFirstPeriods) {
  ByPeriod kept;
  DemandModel model(kept, 3);
  model.setData(model.index(1, 0), 5.0);
  model.resize(2);
  EXPECT_EQ(model.durations(), (QMap<int, double>{{0, secondsPerYear / 3}, {1, 5.0}}));
}

TEST(DemandModel, sizeOfZeroLeavesNoPeriod) {
  ByPeriod kept;
  DemandModel model(kept, 3);
  model.resize(0);
  EXPECT_EQ(model.rowCount(), 0);
}

TEST(DemandModel, negativeSizeLeavesNoPeriod) {
  ByPeriod kept;
  DemandModel model(kept, 3);
  model.resize(-1);
  EXPECT_EQ(model.rowCount(), 0);
}

TEST(DemandModel, resizingResetsOnce) {
  ByPeriod kept;
  DemandModel model(kept, 3);
  QSignalSpy aboutToReset(&model, &DemandModel::modelAboutToBeReset);
  QSignalSpy reset(&model, &DemandModel::modelReset);
  model.resize(2);
  EXPECT_EQ(aboutToReset.size(), 1);
  EXPECT_EQ(reset.size(), 1);
}

TEST(DemandModel, resizingToTheSameSizeDoesNothing) {
  ByPeriod kept;
  DemandModel model(kept, 3);
  model.setData(model.index(1, 0), 5.0);
  QSignalSpy reset(&model, &DemandModel::modelReset);
  model.resize(3);
  EXPECT_TRUE(reset.isEmpty());
  EXPECT_EQ(duration(model, 1), QVariant(5.0));
}

TEST(DemandModel, declaresTheSlotResizeAlone) {
  const QMetaObject& meta = DemandModel::staticMetaObject;
  EXPECT_STREQ(meta.className(), "TVR::DemandModel");
  EXPECT_EQ(methodsOf(meta), QStringList{"slot resize(int)"});
}

} // namespace
} // namespace TVR
