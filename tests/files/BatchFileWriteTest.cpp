#include "files/BatchFile.h"
#include "files/BatchFiles.h"
#include "tables/DemandModel.h"
#include "tables/WellDemandModel.h"
#include "tables/WellModel.h"

#include <map>

namespace TVR::Data {
namespace {

using namespace Parameter;

class BatchFileWriteTest : public BatchFileTest {
protected:
  BatchFileWriteTest() {
    store.setValue(NumberOfDemandsPerYear, 1);
    store.setValue(NumberOfWells, 2);
  }

  /// The keys of a section, sorted: the order of the file is the platform's.
  static QStringList keysOf(const QStringList& lines, const QString& section) {
    QStringList keys;
    bool inside = false;
    for (const QString& line : lines) {
      if (line.startsWith('['))
        inside = line == '[' + section + ']';
      else if (inside)
        keys << line.section('=', 0, 0);
    }
    keys.sort();
    return keys;
  }
};

TEST_F(BatchFileWriteTest, fileHasFourSections) {
  QStringList sections = write("run.tbat").filter(QRegExp("^\\["));
  sections.sort();
  EXPECT_EQ(sections, (QStringList{"[hydraulic]", "[installation]", "[main]", "[thermic]"}));
}

TEST_F(BatchFileWriteTest, mainHasNoKeyThatIsOnlyRead) {
  EXPECT_EQ(keysOf(write("run.tbat"), "main"),
            (QStringList{"%23output_file", "cell_increase_factor", "density_aquifer",
                         "density_surrounding", "density_water", "dynamic_viscosity_water",
                         "max_number_of_fv_elements", "simulation_time"}));
}

TEST_F(BatchFileWriteTest, thermicHasNoConductivityOfTheStone) {
  EXPECT_EQ(keysOf(write("run.tbat"), "thermic"),
            (QStringList{"exchange_bedrock", "exchange_caprock", "heat_conductivity_aquifer",
                         "heat_conductivity_surrounding", "referenz_temperature",
                         "spezific_heat_capacity_stone", "spezific_heat_capacity_water",
                         "wells_used_closed_loop"}));
}

TEST_F(BatchFileWriteTest, hydraulicHasEightKeys) {
  EXPECT_EQ(keysOf(write("run.tbat"), "hydraulic"),
            (QStringList{"aquifer_basis", "aquifer_h", "aquifer_porosity", "aquifer_unconfined",
                         "groundwater_flow_direction", "groundwater_gradient", "groundwater_table",
                         "kf"}));
}

TEST_F(BatchFileWriteTest, installationHasTheCellsOfItsTables) {
  EXPECT_EQ(keysOf(write("run.tbat"), "installation"), (QStringList{"demand_model\\1\\0",
                                                                    "demand_model\\size",
                                                                    "filter_diameter",
                                                                    "filter_h",
                                                                    "number_of_demands_per_year",
                                                                    "number_of_wells",
                                                                    "well_demand_model\\1\\2",
                                                                    "well_demand_model\\1\\3",
                                                                    "well_demand_model\\2\\2",
                                                                    "well_demand_model\\2\\3",
                                                                    "well_demand_model\\size",
                                                                    "well_diameter",
                                                                    "well_model\\1\\0",
                                                                    "well_model\\1\\1",
                                                                    "well_model\\1\\2",
                                                                    "well_model\\1\\3",
                                                                    "well_model\\1\\4",
                                                                    "well_model\\2\\0",
                                                                    "well_model\\2\\1",
                                                                    "well_model\\2\\2",
                                                                    "well_model\\2\\3",
                                                                    "well_model\\2\\4",
                                                                    "well_model\\size"}));
}

TEST(BatchFileKeysToWrite, haveTheirOrder) {
  const auto ordered = [](const char* section) {
    std::map<int, QString> keys;
    for (const BatchFile::Key& key : BatchFile::keys())
      if (key.writeOrder > 0 && QString(section) == key.section)
        keys[key.writeOrder] = key.name;
    QStringList names;
    for (const auto& [order, name] : keys)
      names << name;
    return names.join(' ');
  };
  EXPECT_EQ(BatchFile::sections(), (QStringList{"main", "thermic", "hydraulic", "installation"}));
  EXPECT_EQ(ordered("main"),
            "cell_increase_factor max_number_of_fv_elements simulation_time density_aquifer "
            "density_surrounding density_water dynamic_viscosity_water #output_file");
  EXPECT_EQ(ordered("thermic"),
            "heat_conductivity_aquifer heat_conductivity_surrounding spezific_heat_capacity_water "
            "spezific_heat_capacity_stone exchange_caprock exchange_bedrock referenz_temperature "
            "wells_used_closed_loop");
  EXPECT_EQ(ordered("hydraulic"),
            "kf aquifer_h aquifer_basis aquifer_porosity aquifer_unconfined groundwater_gradient "
            "groundwater_table groundwater_flow_direction");
  EXPECT_EQ(ordered("installation"),
            "number_of_demands_per_year number_of_wells filter_h filter_diameter well_diameter");
}

TEST_F(BatchFileWriteTest, hintNamesTheResultFile) {
  EXPECT_EQ(textOf(write("run.tbat"), "%23output_file"), "[input file name without .tbat].out");
}

TEST_F(BatchFileWriteTest, valuesStandAsTheyAreStored) {
  store.setValue(SimulationTime, "30");
  store.setValue(DensityAquifer, 2200.5);
  store.setValue(DynamicViscosityWater, 0.00131);
  store.setValue(HydraulicConductivity, 1e-7);
  store.setValue(ExchangeCaprock, true);
  store.setValue(ExchangeBedrock, 0);
  const QStringList lines = write("run.tbat");
  EXPECT_EQ(textOf(lines, "simulation_time"), "30");
  EXPECT_EQ(textOf(lines, "density_aquifer"), "2200.5");
  EXPECT_EQ(textOf(lines, "dynamic_viscosity_water"), "0.00131");
  EXPECT_EQ(textOf(lines, "kf"), "1e-07");
  EXPECT_EQ(textOf(lines, "exchange_caprock"), "true");
  EXPECT_EQ(textOf(lines, "exchange_bedrock"), "0");
}

TEST_F(BatchFileWriteTest, diametersAreConverted) {
  store.setValue(FilterDiameter, 300.0);
  store.setValue(WellRadius, 0.25);
  const QStringList lines = write("run.tbat");
  EXPECT_EQ(textOf(lines, "filter_diameter"), "0.3");
  EXPECT_EQ(textOf(lines, "well_diameter"), "0.5");
}

TEST_F(BatchFileWriteTest, porosityIsTheEffectiveOne) {
  store.setValue(AquiferPorosity, 25);
  EXPECT_EQ(textOf(write("run.tbat"), "aquifer_porosity"), "25");
}

TEST_F(BatchFileWriteTest, numberOfWellsIsTheNumberOfRows) {
  store.setValue(NumberOfWells, "2.7");
  const QStringList lines = write("run.tbat");
  EXPECT_EQ(textOf(lines, "number_of_wells"), "2");
  EXPECT_EQ(textOf(lines, "well_model\\size"), "2");
}

TEST_F(BatchFileWriteTest, cellsStandInTheUnitsOfTheTables) {
  WellModel* const wells = store.wellModel();
  wells->setData(wells->index(1, WellModel::Name), "Süd");
  wells->setData(wells->index(1, WellModel::X), 12.5);
  wells->setData(wells->index(1, WellModel::Rate), 0.0025);
  wells->setData(wells->index(1, WellModel::TemperatureChange), -4.5);
  const QStringList lines = write("run.tbat");
  EXPECT_EQ(textOf(lines, "demand_model\\1\\0"), "31557600");
  EXPECT_EQ(textOf(lines, "well_model\\1\\0"), "Well 1");
  EXPECT_EQ(textOf(lines, "well_model\\2\\0"), "S\\xfc\\x64");
  EXPECT_EQ(textOf(lines, "well_model\\2\\1"), "12.5");
  EXPECT_EQ(textOf(lines, "well_model\\2\\2"), "0");
  EXPECT_EQ(textOf(lines, "well_model\\2\\3"), "0.0025");
  EXPECT_EQ(textOf(lines, "well_model\\2\\4"), "-4.5");
  EXPECT_EQ(textOf(lines, "well_demand_model\\2\\2"), "0.0025");
  EXPECT_EQ(textOf(lines, "well_demand_model\\2\\3"), "-4.5");
}

TEST_F(BatchFileWriteTest, unconfinedAquiferIsWrittenAsAWordThatReadsAsFalse) {
  store.setValue(AquiferUnconfined, 1);
  store.setValue(ClosedLoop, 1);
  const QStringList lines = write("run.tbat");
  EXPECT_EQ(textOf(lines, "aquifer_unconfined"), "true");
  EXPECT_EQ(textOf(lines, "wells_used_closed_loop"), "true");
  readFile(path("run.tbat"));
  EXPECT_EQ(stored(AquiferUnconfined), QVariant(false));
  EXPECT_EQ(stored(ClosedLoop), QVariant(false));
}

TEST_F(BatchFileWriteTest, filterDiameterLosesAFactorOfAMillion) {
  store.setValue(FilterDiameter, 300.0);
  write("run.tbat");
  readFile(path("run.tbat"));
  EXPECT_DOUBLE_EQ(number(FilterDiameter), 300.0 / 1e6);
}

TEST_F(BatchFileWriteTest, wellDiameterReturns) {
  store.setValue(WellRadius, 0.3);
  write("run.tbat");
  readFile(path("run.tbat"));
  EXPECT_EQ(number(WellRadius), 0.3);
}

TEST_F(BatchFileWriteTest, allOtherValuesReturn) {
  const std::pair<int, QVariant> values[] = {{CellIncreaseFactor, 1.7},
                                             {MaxNumberOfElements, 400},
                                             {SimulationTime, 86400.0},
                                             {DensityAquifer, 2300.0},
                                             {DensitySurrounding, 2400.0},
                                             {DensityWater, 998.0},
                                             {DynamicViscosityWater, 0.001},
                                             {HeatConductivityAquifer, 2.5},
                                             {HeatConductivitySurrounding, 2.6},
                                             {HeatCapacityWater, 4200.0},
                                             {HeatCapacityStone, 850.0},
                                             {ExchangeCaprock, false},
                                             {ExchangeBedrock, false},
                                             {ReferenceTemperature, 11.5},
                                             {HydraulicConductivity, 0.0025},
                                             {AquiferThickness, 12.0},
                                             {AquiferBasis, 13.0},
                                             {EffectivePorosity, 0.2},
                                             {GroundwaterGradient, 0.3},
                                             {GroundwaterTable, 3.0},
                                             {GroundwaterFlowDirection, 45.0},
                                             {NumberOfDemandsPerYear, 3},
                                             {NumberOfWells, 4},
                                             {FilterLength, 7.5}};
  for (const auto& [id, value] : values)
    store.setValue(id, value);
  write("run.tbat");
  readFile(path("run.tbat"));
  for (const auto& [id, value] : values)
    EXPECT_EQ(number(id), value.toDouble()) << id;
}

TEST_F(BatchFileWriteTest, tablesReturn) {
  store.setValue(NumberOfDemandsPerYear, 2);
  DemandModel* const demand = store.demandModel();
  demand->setData(demand->index(1, 0), 1e7);
  WellModel* const wells = store.wellModel();
  wells->setData(wells->index(0, WellModel::Name), "Nord, \"alt\"; β=1");
  wells->setData(wells->index(0, WellModel::X), 1.0 / 3.0);
  wells->setData(wells->index(1, WellModel::Rate), 0.1 + 0.2);
  wells->setData(wells->index(1, WellModel::TemperatureChange), -4.5);
  wells->setStepRate(1, 1, 1e-7);
  wells->setStepTemperatureChange(1, 1, 2.5);
  write("run.tbat");
  store.reset();
  readFile(path("run.tbat"));
  EXPECT_EQ(demand->durations().value(1), 1e7);
  EXPECT_EQ(wells->wellNames().value(0), "Nord, \"alt\"; β=1");
  EXPECT_EQ(store.wellPositions()[0].x(), 1.0 / 3.0);
  EXPECT_EQ(wells->wellRates().value(1), 0.1 + 0.2);
  EXPECT_EQ(wells->wellTemperatureChanges().value(1), -4.5);
  EXPECT_EQ(wells->stepRate(1, 1, Qt::EditRole), 1e-7);
  EXPECT_EQ(wells->stepTemperatureChange(1, 1, Qt::EditRole), 2.5);
}

TEST_F(BatchFileWriteTest, readOnlyKeysOfAnOlderFileAreGone) {
  QFile file(path("run.tbat"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("[main]\noutput_file=old.out\nreltol_thermic=1\n[notes]\na=1\n");
  file.close();
  const QStringList lines = write("run.tbat");
  EXPECT_TRUE(textOf(lines, "output_file").isEmpty());
  EXPECT_TRUE(textOf(lines, "reltol_thermic").isEmpty());
  EXPECT_FALSE(lines.contains("[notes]"));
}

TEST_F(BatchFileWriteTest, writingChangesNothingInTheStore) {
  const QMap<int, QVariant> before = store.values();
  const QSignalSpy changes(&store, &Manager::dataChanged);
  write("run.tbat");
  EXPECT_EQ(store.values(), before);
  EXPECT_TRUE(changes.isEmpty());
}

TEST_F(BatchFileWriteTest, fileThatCannotBeWrittenIsToldByTheAnswerAlone) {
  const MessageLog log;
  EXPECT_FALSE(store.write("/proc/no/such/place/run.tbat", nullptr, {}));
  EXPECT_TRUE(log.lines().isEmpty()) << log.lines().join('\n').toStdString();
}

} // namespace
} // namespace TVR::Data
