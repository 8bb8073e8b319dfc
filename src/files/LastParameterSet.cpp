#include "files/LastParameterSet.h"

#include "design/ParameterId.h"
#include "files/FileTables.h"
#include "files/LegacyReader.h"
#include "project/ParameterTable.h"
#include "project/ProjectLimits.h"
#include "project/ProjectTarget.h"
#include "project/UserSettings.h"

#include <algorithm>

namespace TVR::Data::LastParameterSet {

using namespace Parameter;

namespace {

constexpr char group[] = "last_parameter_set";

QString tableName() {
  return fileTable(ProjectTable::Well).name;
}

void readValues(const QSettings& settings, ProjectTarget& project) {
  for (const QString& key : settings.allKeys()) {
    // Required oddity: a key that no parameter has, such as one of the table, goes to id 0.
    const int id = project.keys().idOfKey(key);
    const QVariant value = settings.value(key);
    if (isFlagInSettings(id)) { // everything but "False" and "false" is true
      const QString text = value.toString();
      project.setStored(id, text != "False" && text != "false");
    } else {
      project.setStored(id, ProjectLimits::allowed(id, value, project));
    }
  }
}

void readWells(QSettings& settings, ProjectTarget& project) {
  const int wells = project.makeTable(ProjectTable::Well);
  const int rows = std::min(settings.beginReadArray(tableName()), wells);
  std::vector<TableCell> cells;
  for (int row = 0; row < rows; ++row) {
    settings.setArrayIndex(row);
    for (int column = 0; column < WellColumns::ColumnCount; ++column)
      cells.push_back({row, column, settings.value(QString::number(column))});
  }
  project.setCells(ProjectTable::Well, cells);
  settings.endArray();
}

void writeWells(QSettings& settings, const ProjectReader& project) {
  const int rows = rowsOf(project, ProjectTable::Well);
  settings.beginWriteArray(tableName());
  for (int row = 0; row < rows; ++row) {
    settings.setArrayIndex(row);
    for (int column = 0; column < WellColumns::ColumnCount; ++column)
      settings.setValue(QString::number(column),
                        cellOf(project, ProjectTable::Well, row, column).toString());
  }
  settings.endArray();
}

} // namespace

void save(const Project& project, const ParameterKeys& keys, bool withWells) {
  QSettings settings = userSettings();
  settings.beginGroup(group);
  for (auto entry = project.values.begin(); entry != project.values.end(); ++entry)
    if (const QString key = keys.key(entry.key()); !key.isEmpty())
      settings.setValue(key, *entry);
  if (withWells)
    writeWells(settings, ProjectView(project));
  settings.endGroup();
}

void restore(ProjectTarget& project) {
  QSettings settings = userSettings();
  const QString versionKey = QString(group) + '/' + project.keys().key(ProgramVersion);
  if (settings.allKeys().contains(versionKey)) {
    settings.beginGroup(group);
    readValues(settings, project);
    readWells(settings, project);
    settings.endGroup();
  } else {
    QSettings former = formerUserSettings();
    LegacyReader::readCurrentGroup(former, project);
  }
}

} // namespace TVR::Data::LastParameterSet
