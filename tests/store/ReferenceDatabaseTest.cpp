#include "project/ParameterTable.h"
#include "store/StoreTest.h"
#include "support/MessageLog.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlQuery>

namespace TVR::Data {
namespace {

using namespace Parameter;

using ReferenceDatabaseTest = StoreTest;

QString fileFor(const QString& directory) {
  return ReferenceDatabase::file(directory);
}

TEST(ReferenceDatabaseFile, liesBesideTheDirectoryOfTheProgram) {
  EXPECT_EQ(fileFor("/opt/x/bin"), "/opt/x/data/basis.db");
  EXPECT_EQ(fileFor("/opt/x/Release"), "/opt/x/data/basis.db");
  EXPECT_EQ(fileFor("/opt/x/debug"), "/opt/x/data/basis.db");
  EXPECT_EQ(fileFor("/opt/x/BIN/"), "/opt/x/data/basis.db");
}

TEST(ReferenceDatabaseFile, liesBelowAnyOtherDirectory) {
  EXPECT_EQ(fileFor("/opt/x"), "/opt/x/data/basis.db");
  EXPECT_EQ(fileFor("/opt/bin/x"), "/opt/bin/x/data/basis.db");
  EXPECT_EQ(fileFor("/opt/binaries"), "/opt/binaries/data/basis.db");
}

TEST_F(ReferenceDatabaseTest, everyDefaultIsUsual) {
  for (const ParameterRow& row : parameterTable()) {
    if ((row.kind == ParameterKind::Number || row.kind == ParameterKind::Count) &&
        row.id != DMinUsed) { // 0 before the first wells stand
      EXPECT_EQ(rangeRemark(row.range, number(row.id), row.unit, row.key), "") << row.key;
    }
  }
}

TEST_F(ReferenceDatabaseTest, opensTheFileOfTheProgramUnderItsName) {
  EXPECT_TRUE(Manager::openDatabase());
  const QSqlDatabase database = QSqlDatabase::database("basis_db");
  EXPECT_TRUE(database.isOpen());
  EXPECT_EQ(database.driverName(), "QSQLITE");
  EXPECT_EQ(database.databaseName(), fileFor(QCoreApplication::applicationDirPath()));
}

TEST_F(ReferenceDatabaseTest, cannotBeWritten) {
  QSqlQuery query(QSqlDatabase::database("basis_db"));
  EXPECT_FALSE(query.exec("UPDATE Sprache SET shortcut = shortcut"));
}

TEST_F(ReferenceDatabaseTest, givesTheNumbersOfARow) {
  EXPECT_EQ(store.referenceValue(HeatingDegreeDays, 9), QVariant(6200.0));
  EXPECT_EQ(store.referenceValue(PeakLoadDurationWarm, 1), QVariant(2200.0));
  EXPECT_EQ(store.referenceValue(HydraulicConductivityMax, 4), QVariant(1e-3));
  EXPECT_EQ(store.referenceValue(ProvidedFilterDiameter, 1), QVariant(600.0));
  EXPECT_EQ(store.referenceValue(ProvidedFilterDiameter, 9), QVariant(125.0));
}

TEST_F(ReferenceDatabaseTest, rowZeroHasNoValueAndNoMessage) {
  const MessageLog log;
  for (const int id : {AquiferMaterial, BuildingType, ClosestLocation, HeatingDegreeDays}) {
    EXPECT_FALSE(store.referenceValue(id, 0).isValid());
    EXPECT_FALSE(store.referenceValue(id, -3).isValid());
  }
  EXPECT_TRUE(log.lines().isEmpty()) << log.lines().join('\n').toStdString();
}

TEST_F(ReferenceDatabaseTest, choiceOfNothingReadsNothingAndReportsNothing) {
  const MessageLog log;
  const QVariant degreeDays = store.value(HeatingDegreeDays);
  for (const int id : {AquiferMaterial, BuildingType, ClosestLocation})
    store.setValue(id, 0);
  EXPECT_FALSE(store.value(BuildingType).isValid());
  EXPECT_FALSE(store.value(ClosestLocation).isValid());
  EXPECT_EQ(store.value(HeatingDegreeDays), degreeDays);
  EXPECT_TRUE(log.lines().isEmpty()) << log.lines().join('\n').toStdString();
}

TEST_F(ReferenceDatabaseTest, parameterWithoutATableHasNoValueAndNoMessage) {
  const MessageLog log;
  EXPECT_FALSE(store.referenceValue(HydraulicConductivity, 1).isValid());
  EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(ReferenceDatabaseTest, parameterWithoutARowIsReported) {
  const MessageLog log;
  EXPECT_FALSE(store.referenceValue(TimeOfMaximumExtent3K, 1).isValid());
  ASSERT_EQ(log.lines().size(), 1);
  EXPECT_TRUE(log.lines()[0].contains("SELECT tabelle FROM Parameter WHERE name = ''\n"));
}

TEST_F(ReferenceDatabaseTest, missingRowIsReported) {
  const MessageLog log;
  EXPECT_FALSE(store.referenceValue(HeatingDegreeDays, 999).isValid());
  ASSERT_EQ(log.lines().size(), 1);
  EXPECT_EQ(log.lines()[0], "Tevrane: <b>A database error has occurred :</b>\n"
                            "Query:\tSELECT _heating_degree_days FROM Standort WHERE id = 999\n"
                            "Error:\t\nDriver:\t");
}

TEST_F(ReferenceDatabaseTest, failedQueryIsReportedWithBothTextsOfTheError) {
  const MessageLog log;
  QSqlQuery query(QSqlDatabase::database("basis_db"));
  query.exec("SELECT a FROM nowhere");
  Manager::reportQueryError(query);
  ASSERT_EQ(log.lines().size(), 1);
  EXPECT_EQ(log.lines()[0], "Tevrane: <b>A database error has occurred :</b>\n"
                            "Query:\tSELECT a FROM nowhere\n"
                            "Error:\tno such table: nowhere\n"
                            "Driver:\tUnable to execute statement");
}

TEST_F(ReferenceDatabaseTest, buildingTypeIsNamedInTheLanguageOfTheMoment) {
  const auto nameIn = [this](const char* language) {
    store.setValue(GuiLanguage, language);
    return store.referenceValue(BuildingType, 5);
  };
  EXPECT_EQ(nameIn("en"), QVariant("Office building"));
  EXPECT_EQ(nameIn("de"), QVariant("Bürogebäude"));
  EXPECT_EQ(nameIn("fr"), QVariant("Immeuble de bureaux"));
  EXPECT_EQ(nameIn(""), QVariant("Office building"));
}

TEST_F(ReferenceDatabaseTest, unknownLanguageLeavesTheNumberOfTheBuildingTypeAndIsReported) {
  store.setValue(GuiLanguage, "it");
  const MessageLog log;
  EXPECT_EQ(store.referenceValue(BuildingType, 5), QVariant(5));
  ASSERT_EQ(log.lines().size(), 1);
  EXPECT_TRUE(
      log.lines()[0].contains("Query:\tSELECT s.string from Sprachstring s, Sprache l where "
                              "s.id=5 and s.sprache_id=l.id and l.shortcut='it'\n"));
}

TEST_F(ReferenceDatabaseTest, locationsHaveOneNameInAllLanguages) {
  store.setValue(ClosestLocation, 4);
  for (const char* const language : {"de", "en", "fr"}) {
    store.setValue(GuiLanguage, language);
    EXPECT_EQ(store.value(ClosestLocation), QVariant("Genève"));
  }
}

TEST_F(ReferenceDatabaseTest, missingBuildingTypeIsReportedAndTheRuleGoesOn) {
  store.setValue(PeakLoadDurationCold, 1234.0);
  const QVariant heatDemand = stored(SpecificHeatDemand);
  const MessageLog log;
  store.setValue(BuildingType, 99);
  ASSERT_EQ(log.lines().size(), 1);
  EXPECT_TRUE(log.lines()[0].contains("SELECT * FROM Benutzungsstunden WHERE id = '99'\n"));
  EXPECT_EQ(stored(SpecificHeatDemand), heatDemand);
  EXPECT_EQ(store.value(PeakLoadDuration), QVariant(1234.0));
}

TEST_F(ReferenceDatabaseTest, missingLocationIsReportedAndLeavesTheDegreeDays) {
  const MessageLog log;
  store.setValue(ClosestLocation, 99);
  EXPECT_EQ(log.lines().size(), 1);
  EXPECT_EQ(store.value(HeatingDegreeDays), QVariant(3587.0));
}

} // namespace
} // namespace TVR::Data
