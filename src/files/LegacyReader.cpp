#include "files/LegacyReader.h"

#include "design/ParameterId.h"
#include "design/WellDesign.h"
#include "files/EntityEncoding.h"
#include "files/StoredValues.h"
#include "project/ProjectLimits.h"
#include "project/ProjectTarget.h"

#include <QDomElement>
#include <QSettings>

#include <algorithm>
#include <array>

namespace TVR::Data::LegacyReader {

using namespace Parameter;

namespace {

int wholeNumberOf(const QVariant& value) {
  return wholeNumber(value.toDouble());
}

/// What becomes of a stored value: the parameter that takes the result, and the result.
struct Migration {
  int stored;
  int target;
  QVariant (*result)(const QVariant& value);
};

QVariant same(const QVariant& value) {
  return value;
}
QVariant fromPercent(const QVariant& value) {
  return value.toDouble() / 100;
}
QVariant half(const QVariant& value) {
  return value.toDouble() * 0.5;
}
/// A sum that no int can hold counts as 0, like every number of this kind.
int sum(const QVariant& value, double difference) {
  return wholeNumber(wholeNumberOf(value) + difference);
}
QVariant nextRow(const QVariant& value) { // rows were counted from 0
  return sum(value, 1);
}
QVariant turned(const QVariant& value) { // the zero of directions has moved
  return sum(value, 90);
}
QVariant withOneLineBreak(const QVariant& value) {
  return value.toString().replace("<br />", "<br>");
}
QVariant always(const QVariant&) {
  return true;
}
QVariant never(const QVariant&) {
  return false;
}

constexpr std::array migrations = {
    Migration{EffectivePorosity, EffectivePorosity, fromPercent},
    Migration{HydraulicConductivity, HydraulicConductivityUsed, same},
    Migration{DerivedWellDepth, WellDepth, same},
    Migration{WellDiameter, WellRadius, half},
    Migration{AquiferMaterial, AquiferMaterial, nextRow},
    Migration{AquiferPorosity, AquiferPorosity, fromPercent},
    Migration{AquiferUnconfined, AquiferUnconfined,
              [](const QVariant& value) { return QVariant(wholeNumberOf(value) >= 1); }},
    Migration{BuildingType, BuildingType, nextRow},
    Migration{CalculateWellConstruction, CalculateWellConstruction,
              [](const QVariant& value) { return QVariant(!value.toBool()); }},
    Migration{
        ClosestLocation, ClosestLocation,
        [](const QVariant& value) { return wholeNumberOf(value) == 0 ? QVariant(1) : value; }},
    Migration{ClosedLoop, ClosedLoop,
              [](const QVariant& value) { return QVariant(value.toDouble() > 0 ? 1 : 0); }},
    Migration{GroundwaterFlowDirection, GroundwaterFlowDirection, turned},
    Migration{HeatingPower, Power, same},
    Migration{HydraulicConductivityUsed, HydraulicConductivity, same},
    Migration{ProjectAddress, ProjectAddress, withOneLineBreak},
    Migration{UserAddress, UserAddress, withOneLineBreak},
    Migration{ViewHorizontalExtension, ViewUseExtension, always},
    Migration{ViewScale, ViewUseExtension, never},
    Migration{WellDepth, DerivedWellDepth, same},
};

bool holdsEntities(const QString& key) {
  static const QStringList keys{"projectname",
                                "street",
                                "location",
                                "description",
                                "address",
                                "aquifermaterial_string",
                                "closestlocation_string",
                                "buildingtype_string",
                                "wellmaterial_string"};
  return keys.contains(key);
}

/// Well positions among the entries, as "injektion_x_2" for the x coordinate of the second
/// injection well and "pump_y_1" for the y coordinate of the first pumping well. They are collected
/// and set together, since each change of positions compares all wells with each other.
class Coordinates {
public:
  explicit Coordinates(ProjectTarget& project) : project_(project) {}

  /// Takes an entry if its key is that of a coordinate.
  void add(const QString& key, const QVariant& value) {
    const bool injects = key.startsWith("injektion_");
    if (!injects && !key.startsWith("pump_"))
      return;
    const QStringList parts = key.split('_');
    const int wells = project_.makeTable(ProjectTable::Well);
    const double row = (injects ? wells / 2 : 0) - 1.0 + parts.value(2).toInt();
    const int column = parts.value(1) == "x" ? WellColumns::X : WellColumns::Y;
    if (row >= 0 && row < wells)
      cells_.push_back({static_cast<int>(row), column, value});
  }

  /// Sets what has been collected.
  void set() {
    project_.setCells(ProjectTable::Well, cells_);
    cells_.clear();
  }

private:
  ProjectTarget& project_;
  std::vector<TableCell> cells_;
};

/// Stores the value of an entry under the lowest parameter with its key.
int storeEntry(const QString& key, const QVariant& value, ProjectTarget& project) {
  const int id = project.keys().idOfFormerKey(key);
  project.setStored(id, ProjectLimits::allowed(id, value, project));
  migrateValue(id, project);
  return id;
}

bool sizesTooOften(const QDomElement& root, const ProjectTarget& project) {
  const QString key = project.keys().formerKey(NumberOfWells);
  int sizings = 0;
  for (QDomElement entry = root.firstChildElement(); !entry.isNull();
       entry = entry.nextSiblingElement())
    if (entry.firstChildElement().text() == key)
      ++sizings;
  return sizings > maxSizings;
}

} // namespace

bool read(const QDomElement& root, double fileVersion, ProjectTarget& project) {
  if (sizesTooOften(root, project))
    return false;
  Coordinates coordinates(project);
  // Wells exist only after their number is known: coordinates need a second pass.
  for (const bool isFirstPass : {true, false}) {
    for (QDomElement entry = root.firstChildElement(); !entry.isNull();
         entry = entry.nextSiblingElement()) {
      const QDomElement first = entry.firstChildElement();
      const QString key = first.text();
      const QString text = first.nextSiblingElement().text();
      const QString value = holdsEntities(key) ? decodeEntities(text) : text;
      coordinates.add(key, value);
      const int id = project.keys().idOfFormerKey(key);
      if (!isFirstPass || (id == GuiLanguage && project.stored(id).isValid()))
        continue;
      if (id == NumberOfWells)
        coordinates.set(); // on the wells of the moment
      settleStoredValue(storeEntry(key, value, project), fileVersion, project);
    }
    coordinates.set();
  }
  return true;
}

void readCurrentGroup(QSettings& settings, ProjectTarget& project) {
  project.makeTable(ProjectTable::Well);
  Coordinates coordinates(project);
  settings.beginGroup("current");
  const QStringList keys = settings.allKeys();
  for (const bool isFirstPass : {true, false}) {
    for (const QString& key : keys) {
      const QVariant value = settings.value(key);
      coordinates.add(key, value);
      if (isFirstPass)
        storeEntry(key, value, project);
    }
    coordinates.set();
    if (!keys.isEmpty())
      project.clearWellEntries();
  }
  settings.endGroup();
}

void migrateValue(int id, ProjectTarget& project) {
  const auto migration = std::find_if(migrations.begin(), migrations.end(),
                                      [id](const Migration& row) { return row.stored == id; });
  if (migration != migrations.end())
    project.setStored(migration->target, migration->result(project.stored(id)));
}

} // namespace TVR::Data::LegacyReader
