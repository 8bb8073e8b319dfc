#include "project/ParameterTable.h"
#include "store/OwnStoreTest.h"

#include <QTemporaryDir>

namespace TVR::Data {
namespace {

using namespace Parameter;

using DefaultsTest = OwnStoreTest;

TEST_F(DefaultsTest, firstDefaultsChooseTheLanguage) {
  EXPECT_EQ(firstLanguage(), QVariant("fr"));
}

TEST_F(DefaultsTest, laterDefaultsLeaveTheLanguage) {
  defaults({{"gui_language", "de"}});
  EXPECT_EQ(stored(GuiLanguage), QVariant("en"));
}

TEST_F(DefaultsTest, onlyDefaultsAreLeftAfterAReset) {
  store.setValue(ProjectName, "Brunnen");
  defaults({{"_kf", 0.002}});
  EXPECT_EQ(store.values(),
            (QMap<int, QVariant>{{HydraulicConductivity, 0.002}, {GuiLanguage, "en"}}));
}

TEST_F(DefaultsTest, valuesKeepTheTypeOfTheDatabase) {
  defaults({{"_kf", 0.002}, {"_number_of_wells", 3}, {"kf", "0.004"}});
  EXPECT_EQ(stored(HydraulicConductivity).userType(), QMetaType::Double);
  EXPECT_EQ(stored(NumberOfWells).userType(), QMetaType::LongLong);
  EXPECT_EQ(stored(HydraulicConductivityUsed).userType(), QMetaType::QString);
}

TEST_F(DefaultsTest, unknownNameCountsAsTheFirstParameter) {
  defaults({{"no_such_key", "2.0"}});
  EXPECT_EQ(stored(ProgramVersion), QVariant("2.0"));
}

TEST_F(DefaultsTest, rowsAreReadInTheOrderOfTheirIds) {
  execute("DELETE FROM Parameter");
  addDefault(9, "_kf", 0.009);
  addDefault(2, "_kf", 0.002);
  store.reset();
  EXPECT_EQ(stored(HydraulicConductivity), QVariant(0.009));
}

TEST_F(DefaultsTest, zerosOfTextsAreEmptyTexts) {
  defaults(
      {{"project_address", "0.0"}, {"project_name", "0"}, {"user_zip", 0}, {"user_name", 0.0}});
  for (const int id : {ProjectAddress, ProjectName, UserZip, UserName}) {
    EXPECT_EQ(stored(id), QVariant(QString())) << id;
    EXPECT_EQ(stored(id).userType(), QMetaType::QString) << id;
  }
}

TEST_F(DefaultsTest, otherDefaultsOfTextsAreIgnored) {
  defaults({{"project_name", "Brunnen"}, {"user_address", ""}});
  EXPECT_FALSE(store.values().contains(ProjectName));
  EXPECT_FALSE(store.values().contains(UserAddress));
}

TEST_F(DefaultsTest, textsOutsideTheSetAreTakenAsTheyAre) {
  defaults({{"user_logo", "0.0"}, {"background_image_filename", "map.png"}});
  EXPECT_EQ(stored(UserLogo), QVariant("0.0"));
  EXPECT_EQ(stored(BackgroundImageFile), QVariant("map.png"));
}

TEST_F(DefaultsTest, flagsBecomeTruthValuesFromOneOn) {
  for (const auto& [value, expected] : {std::pair{QVariant(1), true},
                                        {QVariant(0), false},
                                        {QVariant(0.9), false},
                                        {QVariant("2"), true},
                                        {QVariant("true"), false}}) {
    Defaults values;
    for (const ParameterRow& row : parameterTable())
      if (isFlagInDefaults(row.id))
        values.emplace_back(row.key, value);
    defaults(values);
    for (const ParameterRow& row : parameterTable())
      if (isFlagInDefaults(row.id)) {
        EXPECT_EQ(stored(row.id).userType(), QMetaType::Bool) << row.key;
        EXPECT_EQ(stored(row.id).toBool(), expected) << row.key;
      }
  }
}

TEST_F(DefaultsTest, flagsOfOtherWaysIntoTheStoreStayNumbers) {
  defaults({{"__simulation_uptodate", 1},
            {"use_of_superposition_at_drawdown_calculation", 1},
            {"__provided_well_configuration_ok", 1}});
  for (const int id : {SimulationUpToDate, SuperposeDrawdown, ProvidedWellConfigurationOk})
    EXPECT_EQ(stored(id).userType(), QMetaType::LongLong) << id;
}

TEST_F(DefaultsTest, defaultsRunNoRule) {
  const QSignalSpy starts(&store, &Manager::startSimulation);
  defaults({{"__simulation_uptodate", 0}, {"_kf", 0.002}});
  EXPECT_TRUE(starts.isEmpty());
  EXPECT_FALSE(store.values().contains(HydraulicConductivityUsed));
}

TEST_F(DefaultsTest, failedQueryIsReportedAndLeavesTheLanguage) {
  store.setValue(ProjectName, "Brunnen");
  execute("ALTER TABLE Parameter RENAME TO Away");
  const MessageLog log;
  store.reset();
  execute("ALTER TABLE Away RENAME TO Parameter");
  EXPECT_EQ(store.values(), (QMap<int, QVariant>{{GuiLanguage, "en"}}));
  EXPECT_EQ(log.lines(),
            QStringList{"Tevrane: <b>A database error has occurred :</b>\n"
                        "Query:\tSELECT name, default_value FROM Parameter ORDER BY id\n"
                        "Error:\tno such table: Parameter\n"
                        "Driver:\tUnable to execute statement"});
}

TEST_F(DefaultsTest, surroundingRockStartsABatchRunLikeTheAquifer) {
  defaults({{"__density_aquifer", 2300},
            {"__density_surrounding", 2600},
            {"__heat_conductivity_aquifer", 2.5},
            {"__heat_conductivity_surrounding", 3.5}});
  const QTemporaryDir directory;
  QMap<QString, int> fieldIds;
  EXPECT_TRUE(store.read(directory.filePath("missing.tbat"), fieldIds));
  EXPECT_EQ(stored(DensitySurrounding), QVariant(2300));
  EXPECT_EQ(stored(HeatConductivitySurrounding), QVariant(2.5));
}

// Rows of reference tables

TEST_F(DefaultsTest, columnsOfARowAreWrittenThroughTheirRules) {
  store.setValue(BuildingType, 2);
  EXPECT_EQ(stored(HotWaterDemand), QVariant(50.0));
  EXPECT_EQ(stored(SpecificHeatDemand), QVariant(360.0));
  EXPECT_EQ(stored(HydraulicConductivity), QVariant(0.5));
  EXPECT_EQ(stored(HydraulicConductivityUsed), QVariant(0.5));
}

TEST_F(DefaultsTest, nameColumnAndUnknownColumnsOfARowAreIgnored) {
  store.setValue(BuildingType, 2);
  EXPECT_EQ(stored(BuildingType), QVariant(2));
  EXPECT_FALSE(store.values().contains(ProgramVersion));
}

// The two porosities

struct PorosityCase {
  const char* name;
  QVariant effective; // id 34
  QVariant aquifer;   // id 90
  QVariant readEffective;
  QVariant readAquifer;
};

void PrintTo(const PorosityCase& tested, std::ostream* out) {
  *out << tested.name;
}

class PorosityTest : public OwnStoreTest, public testing::WithParamInterface<PorosityCase> {};

TEST_P(PorosityTest, standsInForTheOtherInBothRoles) {
  const PorosityCase& porosity = GetParam();
  Defaults values;
  if (porosity.effective.isValid())
    values.emplace_back("_aquifer_porosity", porosity.effective);
  if (porosity.aquifer.isValid())
    values.emplace_back("aquifer_porosity", porosity.aquifer);
  defaults(values);
  for (const int role : {0, 2}) {
    EXPECT_EQ(store.value(34, role), porosity.readEffective);
    EXPECT_EQ(store.value(90, role), porosity.readAquifer);
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, PorosityTest,
    testing::Values(PorosityCase{"bothStored", 0.2, 0.3, 0.2, 0.3},
                    PorosityCase{"bothStoredInPercent", 20.0, 30, 20.0, 30},
                    PorosityCase{"aquiferInPercent", 0, 25, 0.25, 25},
                    PorosityCase{"aquiferAsFraction", 0.0, 0.25, 0.25, 0.25},
                    PorosityCase{"aquiferOfOneIsPercent", 0, 1.0, 0.01, 1.0},
                    PorosityCase{"aquiferAsText", "0", "25", 0.25, "25"},
                    PorosityCase{"effectiveInPercent", 25, 0, 25, 25},
                    PorosityCase{"effectiveAsFraction", 0.25, 0.0, 0.25, 0.25},
                    PorosityCase{"bothZero", 0.0, 0, 0.0, 0},
                    PorosityCase{"zeroAsTextIsNotEmpty", "0.0", 0, "0.0", "0.0"},
                    PorosityCase{"onlyEffective", 0.2, QVariant(), 0.2, 0.2},
                    PorosityCase{"onlyAquifer", QVariant(), 0.2, 0.2, 0.2},
                    PorosityCase{"effectiveZeroAlone", 0.0, QVariant(), QVariant(), QVariant()},
                    PorosityCase{"neither", QVariant(), QVariant(), QVariant(), QVariant()}),
    [](const auto& tested) { return std::string(tested.param.name); });

TEST_F(DefaultsTest, emptiedEffectivePorosityTurnsPercentIntoAFraction) {
  defaults({{"aquifer_porosity", 25}, {"_aquifer_porosity", 0.3}});
  store.setValue(EffectivePorosity, 0.0);
  EXPECT_EQ(store.value(EffectivePorosity), QVariant(0.25));
  EXPECT_EQ(stored(AquiferPorosity), QVariant(0.25));
}

} // namespace
} // namespace TVR::Data
