#include "data/LastParameterSet.h"

#include "data/FileLimits.h"
#include "data/FileTables.h"
#include "data/Manager.h"
#include "project/ParameterTable.h"
#include "tables/WellModel.h"

#include <QSettings>

#include <algorithm>

namespace TVR::Data::LastParameterSet {

using namespace Parameter;

namespace {

constexpr char group[] = "last_parameter_set";

QString tableName() {
  return fileTable(FileTableKind::Well).name;
}

void readValues(const QSettings& settings, Manager& store) {
  for (const QString& key : settings.allKeys()) {
    const int id = store.idOfKey(key);
    const QVariant value = settings.value(key);
    if (isFlagInSettings(id)) { // everything but "False" and "false" is true
      const QString text = value.toString();
      store.setStored(id, text != "False" && text != "false");
    } else {
      store.setStored(id, FileLimits::allowed(id, value, store));
    }
  }
}

void readWells(QSettings& settings, Manager& store) {
  const WellModel& wells = *store.wellModel();
  const int rows = std::min(settings.beginReadArray(tableName()), wells.rowCount());
  std::vector<WellModel::Cell> cells;
  for (int row = 0; row < rows; ++row) {
    settings.setArrayIndex(row);
    for (int column = 0; column < wells.columnCount(); ++column)
      cells.push_back({row, column, settings.value(QString::number(column))});
  }
  setCells(FileTableKind::Well, cells, store);
  settings.endArray();
}

} // namespace

void save(Manager& store) {
  QSettings settings("Norvalt", "Tevrane");
  settings.beginGroup(group);
  const QMap<int, QVariant> values = store.values();
  for (auto entry = values.begin(); entry != values.end(); ++entry)
    if (const QString key = store.key(entry.key()); !key.isEmpty())
      settings.setValue(key, *entry);
  if (store.hasWellModel()) {
    const WellModel& wells = *store.wellModel();
    settings.beginWriteArray(tableName());
    for (int row = 0; row < wells.rowCount(); ++row) {
      settings.setArrayIndex(row);
      for (int column = 0; column < wells.columnCount(); ++column)
        settings.setValue(QString::number(column),
                          wells.index(row, column).data(Qt::EditRole).toString());
    }
    settings.endArray();
  }
  settings.endGroup();
}

void restore(Manager& store) {
  store.reset();
  QSettings settings("Norvalt", "Tevrane");
  if (settings.allKeys().contains(QString(group) + '/' + store.key(ProgramVersion))) {
    settings.beginGroup(group);
    readValues(settings, store);
    readWells(settings, store);
    settings.endGroup();
  } else {
    QSettings formerSettings("Norvaltwerk", "TevraneDesign");
    store.readCurrentGroup(formerSettings);
  }
  emit store.dataChanged();
}

} // namespace TVR::Data::LastParameterSet
