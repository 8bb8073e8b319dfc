#include "data/BatchFile.h"

#include "data/DemandModel.h"
#include "data/Manager.h"
#include "data/TimeUnits.h"
#include "data/WellDemandModel.h"
#include "data/WellModel.h"

#include <QFile>
#include <QSettings>
#include <QTextCodec>

#include <algorithm>
#include <array>
#include <vector>

namespace TVR::Data::BatchFile {

using namespace Parameter;

namespace {

constexpr char ending[] = ".tbat";

using enum ValueKind;

// clang-format off
constexpr std::array keyTable = {
    Key{"main", "write_tecplot_output", WriteTecplotOutput, 0, FlagWord, 0},
    Key{"main", "cell_increase_factor", CellIncreaseFactor, 1.3, Number, 1},
    Key{"main", "max_number_of_fv_elements", MaxNumberOfElements, 2500, Count, 2},
    Key{"main", "simulation_time", SimulationTime, 9.46728e8, Years, 3},
    Key{"main", "density_aquifer", DensityAquifer, 2200.0, Number, 4},
    Key{"main", "density_surrounding", DensitySurrounding, 2200.0, Number, 5},
    Key{"main", "density_water", DensityWater, 1000.0, Number, 6},
    Key{"main", "dynamic_viscosity_water", DynamicViscosityWater, 0.00131, Number, 7},
    Key{"main", "output_file", BatchOutputFile, 0, OutputName, 0},
    Key{"main", "reltol_groundwater", RelTolGroundwater, 1e-5, Number, 0},
    Key{"main", "abstol_groundwater", AbsTolGroundwater, 1e-5, Number, 0},
    Key{"main", "reltol_thermic", RelTolHeat, 1e-7, Number, 0},
    Key{"main", "abstol_thermic", AbsTolHeat, 1e-7, Number, 0},
    Key{"main", "#output_file", BatchOutputFile, 0, Hint, 8},

    Key{"thermic", "heat_conductivity_stone", HeatConductivityAquifer, 2.0, Number, 0},
    Key{"thermic", "heat_conductivity_aquifer", HeatConductivityAquifer, 2.0, Number, 1},
    Key{"thermic", "heat_conductivity_surrounding", HeatConductivitySurrounding, 2.0, Number, 2},
    Key{"thermic", "spezific_heat_capacity_water", HeatCapacityWater, 4186.0, Number, 3},
    Key{"thermic", "spezific_heat_capacity_stone", HeatCapacityStone, 800.0, Number, 4},
    Key{"thermic", "exchange_caprock", ExchangeCaprock, 1, FlagWord, 5},
    Key{"thermic", "exchange_bedrock", ExchangeBedrock, 1, FlagWord, 6},
    Key{"thermic", "referenz_temperature", ReferenceTemperature, 10.0, Number, 7},
    Key{"thermic", "wells_used_closed_loop", ClosedLoop, 0, FlagNumber, 8},

    Key{"hydraulic", "groundwater_gradient", GroundwaterGradient, 0.01, Number, 6},
    Key{"hydraulic", "aquifer_unconfined", AquiferUnconfined, 0, FlagNumber, 5},
    Key{"hydraulic", "aquifer_h", AquiferThickness, 10.0, Number, 2},
    Key{"hydraulic", "aquifer_basis", AquiferBasis, 10.0, Number, 3},
    Key{"hydraulic", "groundwater_table", GroundwaterTable, 0.0, Number, 7},
    Key{"hydraulic", "", UseProvidedAquiferProperties, 0, FixedFalse, 0},
    Key{"hydraulic", "kf", HydraulicConductivity, 0.001, Number, 1},
    Key{"hydraulic", "aquifer_porosity", EffectivePorosity, 0.25, Number, 4},
    Key{"hydraulic", "groundwater_flow_direction", GroundwaterFlowDirection, 90.0, Number, 8},

    Key{"installation", "number_of_demands_per_year", NumberOfDemandsPerYear, 1, Count, 1},
    Key{"installation", "number_of_wells", NumberOfWells, 2, Count, 2},
    Key{"installation", "filter_h", FilterLength, 10.0, Number, 3},
    Key{"installation", "filter_diameter", FilterDiameter, 0.035, Number, 4, 1000, 1000},
    Key{"installation", "well_diameter", WellRadius, 0.0875, Number, 5, 2, 0.5},
};

constexpr std::array tableTable = {
    Table{"demand_model", 0},
    Table{"well_model", 0},
    Table{"well_demand_model", 2},
};
// clang-format on

/// The class reads Latin-1 unless told otherwise; what it writes itself is plain ASCII. A file that
/// a user wrote in UTF-8 is read as such.
void chooseCodec(QSettings& settings, const QString& fileName) {
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly))
    return;
  QTextCodec* const utf8 = QTextCodec::codecForName("UTF-8");
  const QByteArray bytes = file.readAll();
  QTextCodec::ConverterState state;
  utf8->toUnicode(bytes.constData(), bytes.size(), &state);
  if (state.invalidChars == 0 && state.remainingChars == 0)
    settings.setIniCodec(utf8);
}

QVariant defaultOf(const Key& key, const QString& fileName) {
  switch (key.kind) {
  case OutputName:
    return defaultOutputName(fileName);
  case FlagWord:
  case FlagNumber:
  case FixedFalse:
    return key.defaultValue != 0;
  case Count:
    return static_cast<int>(key.defaultValue);
  default:
    return key.defaultValue;
  }
}

void readKey(const Key& key, const QSettings& file, const QString& fileName, Manager& store) {
  if (key.kind == Hint)
    return;
  QVariant value = defaultOf(key, fileName);
  if (key.kind != FixedFalse)
    value = file.value(key.name, value);
  if (key.kind == FlagWord)
    value = value.toBool();
  if (key.readDivisor != 1)
    value = value.toDouble() / key.readDivisor;
  store.setValue(key.id, value);

  if (key.kind == Years) {
    const double time = store.value(key.id, Manager::StoredValue).toDouble();
    if (time < 1000)
      store.setValue(key.id, time * secondsPerYear);
  }
}

void readCells(QSettings& file, int rows, int firstColumn, QAbstractItemModel& model) {
  for (int row = 0; row < rows; ++row) {
    file.setArrayIndex(row);
    for (int column = firstColumn; column < model.columnCount(); ++column)
      model.setData(model.index(row, column), file.value(QString::number(column)), Qt::EditRole);
  }
}

QAbstractItemModel* modelOf(const Table& table, Manager& store) {
  const QByteArray name = table.name;
  if (name == "demand_model")
    return store.demandModel();
  if (name == "well_model")
    return store.wellModel();
  return store.wellDemandModel();
}

void readTables(QSettings& file, Manager& store) {
  const QStringList present = file.childGroups();
  for (const Table& table : tableTable) {
    if (!present.contains(table.name))
      continue;
    const int rows = file.beginReadArray(table.name);
    if (QByteArray(table.name) == "well_model")
      store.setValue(NumberOfWells, rows);
    readCells(file, rows, table.firstColumn, *modelOf(table, store));
    file.endArray();
  }
}

QVariant valueInFile(const Key& key, Manager& store) {
  if (key.kind == Hint)
    return QStringLiteral("[input file name without .tbat].out");
  if (key.id == NumberOfWells)
    return store.count(NumberOfWells);
  QVariant value = store.values().value(key.id);
  if (key.writeDivisor != 1)
    value = value.toDouble() / key.writeDivisor;
  // The class remembers values with their types. A truth value that is read again in this process
  // has to be the word that stands in the file.
  return value.userType() == QMetaType::Bool ? value.toString() : value;
}

void writeTable(QSettings& file, const Table& table, Manager& store) {
  const QAbstractItemModel& model = *modelOf(table, store);
  file.beginWriteArray(table.name, model.rowCount());
  for (int row = 0; row < model.rowCount(); ++row) {
    file.setArrayIndex(row);
    for (int column = table.firstColumn; column < model.columnCount(); ++column)
      file.setValue(QString::number(column),
                    model.index(row, column).data(Qt::EditRole).toString());
  }
  file.endArray();
}

std::vector<Key> keysToWrite(const QString& section) {
  std::vector<Key> result;
  for (const Key& key : keyTable)
    if (key.writeOrder > 0 && section == key.section)
      result.push_back(key);
  std::sort(result.begin(), result.end(),
            [](const Key& a, const Key& b) { return a.writeOrder < b.writeOrder; });
  return result;
}

} // namespace

std::span<const Key> keys() {
  return keyTable;
}

const QStringList& sections() {
  static const QStringList names{"main", "thermic", "hydraulic", "installation"};
  return names;
}

std::span<const Table> tables() {
  return tableTable;
}

bool isBatchFile(const QString& fileName) {
  return fileName.endsWith(ending);
}

QString defaultOutputName(const QString& fileName) {
  return QStringLiteral("%1.out").arg(fileName.chopped(std::min<int>(fileName.size(), 5)));
}

bool read(const QString& fileName, Manager& store) {
  QSettings file(fileName, QSettings::IniFormat);
  chooseCodec(file, fileName);
  const QStringList groups = file.childGroups();
  for (const QString& section : sections()) {
    if (!groups.contains(section))
      continue;
    file.beginGroup(section);
    for (const Key& key : keyTable)
      if (section == key.section)
        readKey(key, file, fileName, store);
    if (section == "installation")
      readTables(file, store);
    file.endGroup();
  }
  return true;
}

bool write(const QString& fileName, Manager& store) {
  QSettings file(fileName, QSettings::IniFormat);
  file.clear();
  for (const QString& section : sections()) {
    file.beginGroup(section);
    for (const Key& key : keysToWrite(section)) {
      file.setValue(key.name, valueInFile(key, store));
      if (key.id == NumberOfDemandsPerYear && store.hasDemandModel())
        writeTable(file, tableTable[0], store);
    }
    if (section == "installation") {
      if (store.hasWellModel())
        writeTable(file, tableTable[1], store);
      if (store.hasWellDemandModel())
        writeTable(file, tableTable[2], store);
    }
    file.endGroup();
  }
  return true;
}

} // namespace TVR::Data::BatchFile
