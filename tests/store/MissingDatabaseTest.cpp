#include "files/BatchFiles.h"
#include "tables/DemandModel.h"
#include "tables/WellDemandModel.h"
#include "tables/WellModel.h"

#include <QCoreApplication>
#include <QSet>
#include <QSqlDatabase>

namespace TVR::Data {
namespace {

using namespace Parameter;

/// The store as it was when it was made, before any test wrote to it.
struct FirstUse {
  FirstUse() {
    const MessageLog log;
    const Manager& store = *Manager::instance();
    values = store.values();
    hasTables = store.hasWellModel() || store.hasDemandModel() || store.hasWellDemandModel();
    for (int id = 0; id < Count; ++id)
      for (const int role : {0, 2})
        if (store.value(id, role).isValid())
          (role == 0 ? effective : stored).insert(id);
    messages = log.lines();
  }

  QMap<int, QVariant> values;
  bool hasTables = true;
  QSet<int> effective;
  QSet<int> stored;
  QStringList messages;
};

class MissingDatabaseTest : public testing::Test {
protected:
  const FirstUse& first = firstUse();
  Manager& store = *Manager::instance();

private:
  static const FirstUse& firstUse() {
    static const FirstUse use;
    return use;
  }
};

TEST_F(MissingDatabaseTest, fileIsNowhere) {
  ASSERT_FALSE(QFile::exists(ReferenceDatabase::file(QCoreApplication::applicationDirPath())));
}

TEST_F(MissingDatabaseTest, storeStartsEmptyWithoutAMessage) {
  EXPECT_TRUE(first.values.isEmpty());
  EXPECT_TRUE(first.messages.isEmpty()) << first.messages.join('\n').toStdString();
}

TEST_F(MissingDatabaseTest, noParameterHasAStoredValue) {
  EXPECT_TRUE(first.stored.isEmpty());
}

TEST_F(MissingDatabaseTest, onlyWhatIsBuiltOfOthersHasAValue) {
  EXPECT_EQ(first.effective, (QSet<int>{BackgroundImageOrigin, Isotherms, SpecificHeatDemand,
                                        ViewOrigin, MaxElementLength}));
}

TEST_F(MissingDatabaseTest, invalidValuesConvertToNothing) {
  const QVariant value = store.value(TimeOfMaximumExtent3K);
  EXPECT_EQ(value.toDouble(), 0.0);
  EXPECT_FALSE(value.toBool());
  EXPECT_TRUE(value.toString().isEmpty());
  EXPECT_EQ(store.count(TimeOfMaximumExtent3K), 0);
}

TEST_F(MissingDatabaseTest, keysAndLabelsStand) {
  EXPECT_EQ(store.key(EnergyDemand), "_energy_demand");
  EXPECT_EQ(store.keys().idOfKey("_kf"), 59);
  EXPECT_EQ(store.label(EnergyDemand), QVariant("Energy demand"));
}

TEST_F(MissingDatabaseTest, queriesGiveNothingAndSayNothing) {
  const MessageLog log;
  EXPECT_FALSE(Manager::openDatabase());
  EXPECT_FALSE(QSqlDatabase::contains("basis_db"));
  EXPECT_FALSE(store.referenceValue(HeatingDegreeDays, 1).isValid());
  EXPECT_FALSE(store.referenceValue(BuildingType, 1).isValid());
  EXPECT_TRUE(store.choices(BuildingType).isEmpty());
  EXPECT_TRUE(log.lines().isEmpty()) << log.lines().join('\n').toStdString();
}

TEST_F(MissingDatabaseTest, rulesThatLookSomethingUpSayNothing) {
  const MessageLog log;
  store.setValue(PeakLoadDurationCold, 1800.0);
  store.setValue(BuildingType, 3);
  store.setValue(ClosestLocation, 3);
  store.setValue(AquiferMaterial, 3);
  EXPECT_EQ(store.value(PeakLoadDuration), QVariant(1800.0));
  EXPECT_FALSE(store.value(BuildingType).isValid());
  EXPECT_TRUE(log.lines().isEmpty()) << log.lines().join('\n').toStdString();
}

TEST_F(MissingDatabaseTest, rulesRunAllTheSame) {
  store.setValue(HydraulicConductivity, 0.0025);
  EXPECT_EQ(store.value(HydraulicConductivityUsed), QVariant(0.0025));
}

TEST_F(MissingDatabaseTest, resetLeavesTheValues) {
  store.setValue(ProjectName, "Brunnen");
  const QMap<int, QVariant> before = store.values();
  const QSignalSpy changes(&store, &Manager::dataChanged);
  store.reset();
  EXPECT_EQ(store.values(), before);
  EXPECT_EQ(changes.size(), 1);
}

TEST_F(MissingDatabaseTest, tablesAreMadeOnTheFirstRequest) {
  EXPECT_FALSE(first.hasTables);
  store.setValue(NumberOfWells, 0);
  EXPECT_EQ(store.wellDemandModel()->rowCount(), 0);
  EXPECT_TRUE(store.hasWellModel());
  EXPECT_TRUE(store.hasDemandModel());
}

TEST_F(MissingDatabaseTest, aSiteHasOneDemandPeriodAtLeast) {
  ASSERT_EQ(store.count(NumberOfDemandsPerYear), 0);
  EXPECT_EQ(store.demandModel()->rowCount(), 1);
}

using MissingDatabaseFileTest = BatchFileTest;

TEST_F(MissingDatabaseFileTest, batchFileFillsTheStore) {
  const MessageLog log;
  read("[hydraulic]\naquifer_h=12\nkf=0.0025\n[installation]\nwell_model\\size=2\n"
       "well_model\\2\\1=30\n");
  EXPECT_EQ(number(HydraulicConductivityUsed), 0.0025);
  EXPECT_EQ(store.wellPositions(), (QVector<QPointF>{{0, 0}, {30, 0}}));
  EXPECT_TRUE(log.lines().isEmpty()) << log.lines().join('\n').toStdString();
}

} // namespace
} // namespace TVR::Data
