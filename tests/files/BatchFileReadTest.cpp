#include "design/DesignFormulas.h"
#include "files/BatchFile.h"
#include "files/BatchFiles.h"

#include <QLocale>

namespace TVR::Data {
namespace {

using namespace Parameter;

const DesignFormulas design;

/// A key of a section, a text for it, the parameter that it reaches, and what that is with the key
/// and without it. The name of the result file is made of that of the batch file.
struct KeyCase {
  const char* section;
  const char* key;
  const char* text;
  int id;
  QVariant given;
  QVariant absent;
};

void PrintTo(const KeyCase& tested, std::ostream* out) {
  *out << tested.key;
}

const KeyCase keyCases[] = {
    {"main", "write_tecplot_output", "true", 164, true, false},
    {"main", "cell_increase_factor", "1.7", 26, "1.7", 1.3},
    {"main", "max_number_of_fv_elements", "400", 25, "400", 2500},
    {"main", "simulation_time", "86400", 148, "86400", 9.46728e8},
    {"main", "density_aquifer", "2300", 15, "2300", 2200.0},
    {"main", "density_surrounding", "2400", 16, "2400", 2200.0},
    {"main", "density_water", "998", 17, "998", 1000.0},
    {"main", "dynamic_viscosity_water", "0.001", 19, "0.001", 0.00131},
    {"main", "output_file", "result.xml", 136, "result.xml", {}},
    {"main", "reltol_groundwater", "1e-4", 146, "1e-4", 1e-5},
    {"main", "abstol_groundwater", "2e-4", 92, "2e-4", 1e-5},
    {"main", "reltol_thermic", "3e-4", 147, "3e-4", 1e-7},
    {"main", "abstol_thermic", "4e-4", 93, "4e-4", 1e-7},
    {"thermic", "heat_conductivity_aquifer", "2.5", 22, "2.5", 2.0},
    {"thermic", "heat_conductivity_surrounding", "2.6", 23, "2.6", 2.0},
    {"thermic", "spezific_heat_capacity_water", "4200", 31, "4200", 4186.0},
    {"thermic", "spezific_heat_capacity_stone", "850", 30, "850", 800.0},
    {"thermic", "exchange_caprock", "false", 113, false, true},
    {"thermic", "exchange_bedrock", "0", 114, false, true},
    {"thermic", "referenz_temperature", "11.5", 145, "11.5", 10.0},
    {"thermic", "wells_used_closed_loop", "1", 111, true, false},
    {"hydraulic", "groundwater_gradient", "0.3", 120, "0.3", 0.01},
    {"hydraulic", "aquifer_unconfined", "1", 91, true, false},
    {"hydraulic", "aquifer_h", "12", 88, "12", 10.0},
    {"hydraulic", "aquifer_basis", "13", 87, "13", 10.0},
    {"hydraulic", "groundwater_table", "3", 121, "3", 0.0},
    {"hydraulic", "kf", "0.0025", 59, "0.0025", 0.001},
    {"hydraulic", "aquifer_porosity", "0.2", 34, "0.2", 0.25},
    {"hydraulic", "groundwater_flow_direction", "45", 119, "45", 90.0},
    {"installation", "number_of_demands_per_year", "3", 132, "3", 1},
    {"installation", "number_of_wells", "6", 63, "6", 2},
    {"installation", "filter_h", "7.5", 54, "7.5", 10.0},
    {"installation", "filter_diameter", "300", 53, 0.3, 0.035 / 1000},
    {"installation", "well_diameter", "0.5", 71, 0.25, 0.04375},
};

class BatchFileKey : public BatchFileTest, public testing::WithParamInterface<KeyCase> {};

TEST_P(BatchFileKey, reachesItsParameter) {
  const KeyCase& key = GetParam();
  read(QByteArray("[") + key.section + "]\n" + key.key + "=" + key.text + "\n");
  EXPECT_EQ(stored(key.id), key.given);
  EXPECT_EQ(storedType(key.id), key.given.userType());
}

TEST_P(BatchFileKey, takesItsDefaultInASectionThatDoesNotNameIt) {
  const KeyCase& key = GetParam();
  read(QByteArray("[") + key.section + "]\nsome_other_key=1\n");
  const QVariant absent = key.absent.isValid() ? key.absent : QVariant(path("run1.out"));
  EXPECT_EQ(stored(key.id), absent);
  EXPECT_EQ(storedType(key.id), absent.userType());
}

INSTANTIATE_TEST_SUITE_P(All, BatchFileKey, testing::ValuesIn(keyCases),
                         [](const auto& tested) { return std::string(tested.param.key); });

TEST(BatchFileKeys, areAllTried) {
  QStringList tried{"heat_conductivity_stone", "#output_file", ""};
  for (const KeyCase& key : keyCases)
    tried << key.key;
  for (const BatchFile::Key& key : BatchFile::keys())
    EXPECT_TRUE(tried.contains(key.name)) << key.name;
  EXPECT_EQ(static_cast<std::size_t>(tried.size()), BatchFile::keys().size());
}

TEST(BatchFileName, endsInSmallLetters) {
  EXPECT_TRUE(BatchFile::isBatchFile("/a/run.tbat"));
  EXPECT_FALSE(BatchFile::isBatchFile("/a/run.TBAT"));
  EXPECT_FALSE(BatchFile::isBatchFile("/a/run.tbat.tvr"));
  EXPECT_FALSE(BatchFile::isBatchFile("/a/runtbat"));
}

TEST(BatchFileName, givesTheNameOfTheResultFile) {
  EXPECT_EQ(BatchFile::defaultOutputName("/a/b/run.tbat"), "/a/b/run.out");
}

// The file as a whole

TEST_F(BatchFileTest, fileThatIsMissingLeavesTheDefaultsOfTheDatabase) {
  const QMap<int, QVariant> defaults = store.values();
  store.setValue(HeatingDemand, 12345.0);
  EXPECT_TRUE(readFile(path("missing.tbat")));
  for (const int id : defaults.keys())
    EXPECT_EQ(store.values().value(id), defaults.value(id)) << id;
}

TEST_F(BatchFileTest, onlyTheLanguageSurvivesARead) {
  store.setValue(GuiLanguage, "de");
  store.setValue(ProjectName, "Brunnen");
  read("");
  EXPECT_EQ(stored(GuiLanguage), QVariant("de"));
  EXPECT_EQ(stored(ProjectName), QVariant(""));
}

TEST_F(BatchFileTest, absentSectionsKeepTheValuesOfTheDatabase) {
  read("[hydraulic]\naquifer_h=12\n");
  EXPECT_EQ(stored(CellIncreaseFactor), QVariant(30.0));
  EXPECT_EQ(stored(NumberOfDemandsPerYear), QVariant(1));
  EXPECT_EQ(stored(FilterDiameter), QVariant(125.0));
  EXPECT_FALSE(stored(BatchOutputFile).isValid());
}

TEST_F(BatchFileTest, sectionsWithoutAnyKeyCountAsAbsent) {
  QMap<int, QVariant> defaults = store.values();
  defaults.remove(DMinUsed); // tells of the wells that the file gets
  read("[main]\n[thermic]\n[hydraulic]\n[installation]\n");
  for (const int id : defaults.keys())
    EXPECT_EQ(store.values().value(id), defaults.value(id)) << id;
}

TEST_F(BatchFileTest, otherEndingsAreNotReadAsBatchFiles) {
  QFile file(path("run.TBAT"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("[hydraulic]\naquifer_h=12\n");
  file.close();
  const MessageLog log;
  QMap<QString, int> fieldIds;
  store.read(path("run.TBAT"), fieldIds);
  EXPECT_EQ(stored(AquiferThickness), QVariant(10.0));
}

TEST_F(BatchFileTest, orderOfTheFileDoesNotMatter) {
  read("[installation]\nfilter_h=3\n[hydraulic]\nkf=0.004\naquifer_h=20\n[main]\n"
       "simulation_time=1000\n");
  EXPECT_EQ(number(RadiusOfInfluence), design.reach(design.designDrawdown(20.0), 0.004));
  EXPECT_EQ(number(FilterLength), 3.0);
}

TEST_F(BatchFileTest, germanLocaleReadsPointsAllTheSame) {
  const QLocale before;
  QLocale::setDefault(QLocale(QLocale::German));
  read("[hydraulic]\nkf=0.0025\n");
  QLocale::setDefault(before);
  EXPECT_EQ(number(HydraulicConductivityUsed), 0.0025);
}

TEST_F(BatchFileTest, decimalCommaReadsAsZero) {
  read("[hydraulic]\nkf=0,0025\n");
  EXPECT_EQ(number(HydraulicConductivityUsed), 0.0);
}

TEST_F(BatchFileTest, wordsInPlaceOfNumbersReadAsZero) {
  read("[hydraulic]\naquifer_h=thick\n");
  EXPECT_EQ(number(AquiferThickness), 0.0);
  EXPECT_EQ(number(RadiusOfInfluence), 0.0);
}

// Section main

TEST_F(BatchFileTest, shortSimulationTimeCountsInYears) {
  read("[main]\nsimulation_time=30\n");
  EXPECT_EQ(stored(SimulationTime), QVariant(30 * 365.25 * 86400));
  read("[main]\nsimulation_time=999.5\n");
  EXPECT_EQ(stored(SimulationTime), QVariant(999.5 * 365.25 * 86400));
}

TEST_F(BatchFileTest, aThousandIsAlreadyATimeInSeconds) {
  read("[main]\nsimulation_time=1000\n");
  EXPECT_EQ(stored(SimulationTime), QVariant("1000"));
}

TEST_F(BatchFileTest, resultFileIsNamedAfterTheBatchFile) {
  read("[main]\ndensity_water=998\n");
  EXPECT_EQ(stored(BatchOutputFile), QVariant(path("run1.out")));
}

TEST_F(BatchFileTest, hintForTheResultFileIsIgnored) {
  read("[main]\n%23output_file=hint.out\n");
  EXPECT_EQ(stored(BatchOutputFile), QVariant(path("run1.out")));
}

TEST_F(BatchFileTest, tecplotOutputIsSwitchedOnByWordOrNumber) {
  for (const char* const text : {"true", "1", "TRUE"}) {
    read(QByteArray("[main]\nwrite_tecplot_output=") + text + "\n");
    EXPECT_EQ(stored(WriteTecplotOutput), QVariant(true)) << text;
  }
  for (const char* const text : {"false", "0", ""}) {
    read(QByteArray("[main]\nwrite_tecplot_output=") + text + "\n");
    EXPECT_EQ(stored(WriteTecplotOutput), QVariant(false)) << text;
  }
}

// Section thermic

TEST_F(BatchFileTest, conductivityOfTheStoneAloneHasNoEffect) {
  const QVariant stone = stored(HeatConductivityStone);
  read("[thermic]\nheat_conductivity_stone=3\n");
  EXPECT_EQ(stored(HeatConductivityAquifer), QVariant(2.0));
  EXPECT_EQ(stored(HeatConductivityStone), stone);
}

TEST_F(BatchFileTest, conductivityOfTheAquiferWinsOverThatOfTheStone) {
  read("[thermic]\nheat_conductivity_aquifer=2.5\nheat_conductivity_stone=3\n");
  EXPECT_EQ(stored(HeatConductivityAquifer), QVariant("2.5"));
}

TEST_F(BatchFileTest, closedLoopAndUnconfinedAquiferTakeNumbersOnly) {
  read("[thermic]\nwells_used_closed_loop=true\n[hydraulic]\naquifer_unconfined=true\n");
  EXPECT_EQ(stored(ClosedLoop), QVariant(false));
  EXPECT_EQ(stored(AquiferUnconfined), QVariant(false));
}

// Section hydraulic

TEST_F(BatchFileTest, hydraulicSectionSwitchesTheProvidedPropertiesOff) {
  QVector<QVariant> seen;
  const auto connection = QObject::connect(&store, &Manager::dataChanged, [&] {
    seen << stored(UseProvidedAquiferProperties);
    if (stored(AquiferThickness) == QVariant("12") && !seen.contains(true))
      store.setValue(UseProvidedAquiferProperties, true);
  });
  read("[hydraulic]\naquifer_h=12\n");
  QObject::disconnect(connection);
  EXPECT_TRUE(seen.contains(true));
  EXPECT_EQ(stored(UseProvidedAquiferProperties), QVariant(false));
}

TEST_F(BatchFileTest, theProvidedPropertiesGoOffBetweenGroundwaterTableAndConductivity) {
  QStringList before; // the keys that had been read when they went off
  bool isOn = false;
  const auto connection = QObject::connect(&store, &Manager::dataChanged, [&] {
    if (!isOn && stored(AquiferThickness) == QVariant("12")) {
      store.setStored(UseProvidedAquiferProperties, true);
      isOn = true;
    } else if (isOn && before.isEmpty() && stored(UseProvidedAquiferProperties) == false) {
      before << (stored(GroundwaterTable) == QVariant("3.5") ? "table" : "");
      before << (stored(HydraulicConductivity) == QVariant("0.0077") ? "conductivity" : "");
    }
  });
  read("[hydraulic]\naquifer_h=12\ngroundwater_table=3.5\nkf=0.0077\n");
  QObject::disconnect(connection);
  EXPECT_EQ(before, (QStringList{"table", ""}));
}

TEST_F(BatchFileTest, theReachIsThatOfTheDesignBehindTheLastKeyOfTheAquifer) {
  read("[hydraulic]\nkf=0.004\naquifer_h=20\n");
  EXPECT_EQ(number(RadiusOfInfluence), design.reach(design.designDrawdown(20.0), 0.004));
}

TEST_F(BatchFileTest, plumeLengthIsThatOfThePorosityReadLast) {
  read("[hydraulic]\naquifer_porosity=0.1\naquifer_unconfined=1\naquifer_basis=15\naquifer_h=20\n"
       "groundwater_table=5\nkf=0.002\n");
  // The porosity takes the entered thickness, all keys before it the water-filled one.
  EXPECT_EQ(number(AMin),
            design.aMin(number(MeanFlowRate), number(SimulationTime), 20.0,
                        number(GroundwaterVelocity), 0.1, 1000.0, 2200.0, 4186.0, 800.0));
  EXPECT_EQ(number(DMin), design.dMin(1.0, number(MeanFlowRate), number(SimulationTime), 10.0,
                                      number(GroundwaterVelocity)));
}

TEST_F(BatchFileTest, porositiesAgreeAfterTheRead) {
  read("[hydraulic]\naquifer_porosity=0.31\n");
  EXPECT_EQ(store.value(EffectivePorosity, 2).toDouble(), 0.31);
  EXPECT_EQ(store.value(AquiferPorosity, 2).toDouble(), 0.31);
}

TEST_F(BatchFileTest, keysAreReadInAFixedOrder) {
  QStringList order;
  QMap<int, QVariant> before = store.values();
  const auto connection = QObject::connect(&store, &Manager::dataChanged, [&] {
    for (const KeyCase& key : keyCases) {
      if (stored(key.id) == key.given && before.value(key.id) != key.given &&
          !order.contains(key.key))
        order << key.key;
    }
  });
  QByteArray contents;
  for (auto key = std::rbegin(keyCases); key != std::rend(keyCases); ++key)
    contents += QByteArray("[") + key->section + "]\n" + key->key + "=" + key->text + "\n";
  read(contents);
  QObject::disconnect(connection);
  QStringList expected;
  for (const KeyCase& key : keyCases)
    if (before.value(key.id) != key.given)
      expected << key.key;
  EXPECT_GE(expected.size(), 32);
  EXPECT_EQ(order.join(' '), expected.join(' '));
}

} // namespace
} // namespace TVR::Data
