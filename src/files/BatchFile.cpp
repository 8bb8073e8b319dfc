#include "files/BatchFile.h"

#include "design/ParameterId.h"
#include "disk/FileReplacement.h"
#include "messages/UserMessages.h"
#include "project/DesignedWells.h"
#include "project/ParameterTable.h"
#include "project/ProjectLimits.h"
#include "project/ProjectTarget.h"
#include "project/Units.h"

#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextCodec>

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <vector>

namespace TVR::Data::BatchFile {

using namespace Parameter;

namespace {

constexpr char ending[] = ".tbat";

using enum ValueKind;

// clang-format off
constexpr std::array keyTable = {
    Key{"main", "write_tecplot_output", WriteTecplotOutput, 0, Flag, 0},
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

    // Required oddity: it goes where the next key goes, which wins.
    Key{"thermic", "heat_conductivity_stone", HeatConductivityAquifer, 2.0, Number, 0},
    Key{"thermic", "heat_conductivity_aquifer", HeatConductivityAquifer, 2.0, Number, 1},
    Key{"thermic", "heat_conductivity_surrounding", HeatConductivitySurrounding, 2.0, Number, 2},
    Key{"thermic", "spezific_heat_capacity_water", HeatCapacityWater, 4186.0, Number, 3},
    Key{"thermic", "spezific_heat_capacity_stone", HeatCapacityStone, 800.0, Number, 4},
    Key{"thermic", "exchange_caprock", ExchangeCaprock, 1, Flag, 5},
    Key{"thermic", "exchange_bedrock", ExchangeBedrock, 1, Flag, 6},
    Key{"thermic", "referenz_temperature", ReferenceTemperature, 10.0, Number, 7},
    Key{"thermic", "wells_used_closed_loop", ClosedLoop, 0, Flag, 8},

    Key{"hydraulic", "groundwater_gradient", GroundwaterGradient, 0.01, Number, 6},
    Key{"hydraulic", "aquifer_unconfined", AquiferUnconfined, 0, Flag, 5},
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
    // Required oddity: a thousandth both ways, so that writing and reading lose a million.
    Key{"installation", "filter_diameter", FilterDiameter, 0.035, Number, 4, 1000, 1000},
    Key{"installation", "well_diameter", WellRadius, 0.0875, Number, 5, 2, 0.5},
};

// clang-format on

/// A shorter time is one in years [s].
constexpr double leastSeconds = 1000;

constexpr int mostBytes = 64 << 20;
constexpr int mostLines = 1'000'000;
/// The number of wells at which the design gives up.
constexpr int fruitlessDesign = 999;
/// In the notation of the class a long line can hold values inside values, deeper than a stack.
constexpr int longestLine = 16 << 10;

/// Looks at the lines as the class does: a backslash takes the next character with it, and a text
/// in quotes goes on over the ends of lines.
class LineGuard {
public:
  explicit LineGuard(const QByteArray& bytes) : bytes_(bytes) {}

  bool holds() {
    for (; position_ < bytes_.size() && holds_; ++position_)
      take(bytes_[position_]);
    return holds_;
  }

private:
  void take(char c) {
    const bool isBreak = c == '\n' || c == '\r';
    if (isBreak && (!inQuotes_ || inComment_)) {
      inComment_ = false;
      length_ = 0;
      holds_ = ++lines_ <= 2 * mostLines; // a carriage return counts as well
      return;
    }
    if (length_ == 0 && (c == ' ' || c == '\t'))
      return;
    if (length_ == 0 && c == ';')
      inComment_ = true;
    if (c == '\\' && !inComment_)
      position_ += bytes_.mid(position_ + 1, 2) == "\r\n" ? 2 : 1;
    if (c == '"' && !inComment_)
      inQuotes_ = !inQuotes_;
    holds_ = ++length_ <= longestLine;
  }

  const QByteArray& bytes_;
  int position_ = 0;
  int length_ = 0;
  int lines_ = 0;
  bool inComment_ = false;
  bool inQuotes_ = false;
  bool holds_ = true;
};

/// The bytes of a file that the class can read in reasonable time and memory; none of any other.
std::optional<QByteArray> plausibleBytes(const QString& fileName) {
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly))
    return {};
  const QByteArray bytes = file.read(mostBytes + 1LL);
  if (bytes.size() > mostBytes || !LineGuard(bytes).holds())
    return {};
  return bytes;
}

bool isUtf8(const QByteArray& bytes) {
  QTextCodec::ConverterState state;
  QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
  return state.invalidChars == 0 && state.remainingChars == 0;
}

QVariant defaultOf(const Key& key, const QString& fileName) {
  switch (key.kind) {
  case OutputName:
    return defaultOutputName(fileName);
  case Flag:
  case FixedFalse:
    return key.defaultValue != 0;
  case Count:
    return static_cast<int>(key.defaultValue);
  default:
    return key.defaultValue;
  }
}

void readKey(const Key& key, const QSettings& file, const QString& fileName,
             ProjectTarget& project) {
  if (key.kind == Hint)
    return;
  QVariant value = defaultOf(key, fileName);
  if (key.kind != FixedFalse)
    value = file.value(key.name, value);
  if (key.kind == Flag && isWordInBatchFile(key.id))
    value = value.toBool();
  if (key.readDivisor != 1)
    value = inStore(key, value.toDouble());
  project.setValue(key.id, ProjectLimits::allowed(key.id, value, project));

  if (key.kind == Years) {
    const double time = project.stored(key.id).toDouble();
    if (time < leastSeconds)
      project.setValue(key.id, inStore(key, time));
  }
}

void readTable(QSettings& file, const FileTable& table, ProjectTarget& project) {
  const int size = file.beginReadArray(table.name);
  if (table.table == ProjectTable::Well)
    project.setValue(NumberOfWells, ProjectLimits::wells(size, project));
  const int rows = std::min(size, project.makeTable(table.table));
  std::vector<TableCell> cells;
  for (int row = 0; row < rows; ++row) {
    file.setArrayIndex(row);
    for (int column = table.firstColumn; column < table.columns; ++column)
      cells.push_back({row, column, file.value(QString::number(column))});
  }
  project.setCells(table.table, cells);
  if (table.table == ProjectTable::Well)
    project.giveAllPlaces(); // a coordinate that the file leaves out is 0
  file.endArray();
}

void tellExcess(const QSettings& file) {
  const Counts counts = countsIn(file);
  if (const QString excess = ProjectLimits::excess(counts.wells, counts.periods); !excess.isEmpty())
    tellUser(Severity::Warning, programTitle,
             QCoreApplication::translate("BatchFile", "%1; the rest is left out").arg(excess));
}

void readTables(QSettings& file, ProjectTarget& project) {
  tellExcess(file);
  const QStringList present = file.childGroups();
  for (const FileTable& table : fileTables())
    if (present.contains(table.name))
      readTable(file, table, project);
}

/// The wells of a file that names none. `designed` is their number before the section
/// "installation" was read, whose default is one pair.
void takeDesignedWells(const QSettings& file, int designed, ProjectTarget& project) {
  if (!file.contains("installation/number_of_wells")) {
    const int wells = designed < fruitlessDesign ? designed : 2;
    project.setValue(NumberOfWells, ProjectLimits::wells(wells + wells % 2, project));
  }
  // Written again, it brings `_d_min` up to date with the number of wells.
  project.setValue(GroundwaterVelocity, project.effective(GroundwaterVelocity));
  placeDesignedWells(project);
}

QVariant valueInFile(const Key& key, const ProjectReader& project) {
  if (key.kind == Hint)
    return QStringLiteral("[input file name without .tbat].out");
  if (key.id == NumberOfWells)
    return project.count(NumberOfWells);
  QVariant value = project.stored(key.id);
  if (key.writeDivisor != 1)
    value = value.toDouble() / key.writeDivisor;
  return value;
}

void writeTable(QSettings& file, ProjectTable kind, const ProjectReader& project,
                const MadeTables& made) {
  if (!isMade(made, kind))
    return;
  const FileTable& table = fileTable(kind);
  const int rows = rowsOf(project, kind);
  file.beginWriteArray(table.name, rows);
  for (int row = 0; row < rows; ++row) {
    file.setArrayIndex(row);
    for (int column = table.firstColumn; column < table.columns; ++column)
      file.setValue(QString::number(column), cellOf(project, kind, row, column).toString());
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

void writeSections(QSettings& file, const ProjectReader& project, const MadeTables& made) {
  for (const QString& section : sections()) {
    file.beginGroup(section);
    for (const Key& key : keysToWrite(section)) {
      file.setValue(key.name, valueInFile(key, project));
      if (key.id == NumberOfDemandsPerYear)
        writeTable(file, ProjectTable::Demand, project, made);
    }
    if (section == "installation") {
      writeTable(file, ProjectTable::Well, project, made);
      writeTable(file, ProjectTable::WellDemand, project, made);
    }
    file.endGroup();
  }
}

/// Puts a file that the class has written in the place of an older one, which stays if a single
/// byte is lost. The class itself overlooks that: each of its keys has to be there as one line.
bool replaceIfComplete(const QString& fileName, const QString& aside, int keys) {
  QFile source(aside);
  if (!source.open(QIODevice::ReadOnly))
    return false;
  const QByteArray bytes = source.readAll();
  const QList<QByteArray> lines = bytes.split('\n');
  const auto found = std::count_if(lines.begin(), lines.end(), [](const QByteArray& line) {
    return !line.isEmpty() && !line.startsWith('[');
  });
  return found == keys && bytes.endsWith('\n') && replaceFile(fileName, bytes);
}

} // namespace

std::span<const Key> keys() {
  return keyTable;
}

double inStore(const Key& key, double number) {
  const bool isYears = key.kind == Years && number < leastSeconds;
  return isYears ? number * secondsPerYear : number / key.readDivisor;
}

Counts countsIn(const QSettings& file) {
  const QVariant wells = file.value("well_model/size", file.value("number_of_wells", 2));
  return {wells.toDouble(), file.value("number_of_demands_per_year", 1).toDouble()};
}

const QStringList& sections() {
  static const QStringList names{"main", "thermic", "hydraulic", "installation"};
  return names;
}

bool isBatchFile(const QString& fileName) {
  return fileName.endsWith(ending);
}

QString defaultOutputName(const QString& fileName) {
  return QStringLiteral("%1.out").arg(fileName.chopped(std::min<int>(fileName.size(), 5)));
}

std::unique_ptr<QSettings> open(const QString& fileName) {
  const std::optional<QByteArray> bytes = plausibleBytes(fileName);
  if (!bytes)
    return nullptr;
  auto settings = std::make_unique<QSettings>(fileName, QSettings::IniFormat);
  if (isUtf8(*bytes)) // else Latin-1; what the class writes itself is plain ASCII
    settings->setIniCodec("UTF-8");
  return settings;
}

QString outputName(const QString& fileName) {
  const auto file = open(fileName);
  const QString name = file ? file->value("main/output_file").toString() : QString();
  return name.isEmpty() ? defaultOutputName(fileName) : name;
}

bool namesWells(QSettings& file) {
  file.beginGroup("installation");
  const bool has = file.childGroups().contains(fileTable(ProjectTable::Well).name);
  file.endGroup();
  return has;
}

bool read(const QString& fileName, ProjectTarget& project) {
  const auto opened = open(fileName);
  if (!opened)
    return true;
  QSettings& file = *opened;
  const QStringList groups = file.childGroups();
  int designed = project.count(NumberOfWells);
  for (const QString& section : sections()) {
    if (section == "installation")
      designed = project.count(NumberOfWells);
    if (!groups.contains(section))
      continue;
    file.beginGroup(section);
    for (const Key& key : keyTable)
      if (section == key.section)
        readKey(key, file, fileName, project);
    if (section == "installation")
      readTables(file, project);
    file.endGroup();
  }
  if (!namesWells(file))
    takeDesignedWells(file, designed, project);
  return true;
}

bool write(const QString& fileName, const Project& project, const MadeTables& tables) {
  const QTemporaryDir directory;
  const QString aside = directory.filePath("batch.ini");
  int lines = 0;
  {
    QSettings file(aside, QSettings::IniFormat);
    writeSections(file, ProjectView(project), tables);
    lines = file.allKeys().size();
  }
  return replaceIfComplete(fileName, aside, lines);
}

} // namespace TVR::Data::BatchFile
