#pragma once

#include "store/StoreTest.h"
#include "support/MessageLog.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

namespace TVR::Data {

/// The store over a small database of the test's own, so that a test says what the defaults are.
/// What is a default is stored directly, without any rule.
class OwnStoreTest : public testing::Test {
protected:
  using Defaults = std::vector<std::pair<const char*, QVariant>>;

  OwnStoreTest() {
    execute("DELETE FROM Parameter");
    store.setValue(Parameter::GuiLanguage, "en");
    store.reset();
  }

  /// Resets the store to these defaults, given by key, and to nothing else.
  void defaults(const Defaults& values) {
    execute("DELETE FROM Parameter");
    int id = 0;
    for (const auto& [key, value] : values)
      addDefault(++id, key, value);
    store.reset();
  }
  static void addDefault(int id, const char* key, const QVariant& value, const char* table = "") {
    QSqlQuery insert(database());
    insert.prepare("INSERT INTO Parameter VALUES (?, ?, ?, ?)");
    for (const QVariant& cell : {QVariant(id), QVariant(key), value, QVariant(table)})
      insert.addBindValue(cell);
    EXPECT_TRUE(insert.exec()) << insert.lastError().text().toStdString();
  }
  static void execute(const char* statement) {
    QSqlQuery query(database());
    EXPECT_TRUE(query.exec(statement))
        << statement << ": " << query.lastError().text().toStdString();
  }
  QVariant stored(int id) const { return store.values().value(id); }

  /// The language of the first defaults.
  static QVariant firstLanguage() { return madeStore().language; }

  Manager& store = madeStore().store;

private:
  struct MadeStore {
    Manager& store;
    QVariant language;
  };

  static QSqlDatabase database() { return QSqlDatabase::database("basis_db"); }
  static const MadeStore& madeStore() {
    static const MadeStore made = [] {
      QSqlDatabase memory = QSqlDatabase::addDatabase("QSQLITE", "basis_db");
      memory.setDatabaseName(":memory:");
      EXPECT_TRUE(memory.open());
      for (const char* const statement : schema)
        execute(statement);
      addDefault(1, "gui_language", "fr");
      Manager& store = *Manager::instance();
      return MadeStore{store, store.value(Parameter::GuiLanguage)};
    }();
    return made;
  }

  static constexpr const char* schema[] = {
      "CREATE TABLE Parameter (id, name, default_value, tabelle)",
      "CREATE TABLE Sprache (id, shortcut)",
      "INSERT INTO Sprache VALUES (1, 'de'), (2, 'en')",
      "CREATE TABLE Sprachstring (id, sprache_id, string)",
      "INSERT INTO Sprachstring VALUES (7, 1, 'Haus'), (7, 2, 'House'), (8, 1, 'Schule'),"
      " (8, 2, 'School'), (9, 1, 'Kies'), (9, 2, 'Gravel'), (10, 1, 'Sand'), (10, 2, 'sand')",
      "CREATE TABLE Benutzungsstunden (id INTEGER, building_type, _qww, remark, _qh, _kf)",
      "INSERT INTO Benutzungsstunden VALUES (2, 7, 50.0, 'x', 360.0, 0.5), (1, 8, 25, 'y', 180, "
      "0.6)",
      "CREATE TABLE Standort (id INTEGER, closest_location, _heating_degree_days)",
      "INSERT INTO Standort VALUES (1, 'Zug', 3400.0), (2, 'Bern', 3600.0)",
      "CREATE TABLE Grundwasserleitermaterial (id INTEGER, _aquifer_material, _kf_min, _kf_max, "
      "_porosity)",
      "INSERT INTO Grundwasserleitermaterial VALUES (2, 9, 1e-3, 1e-1, 20), (1, 10, 1e-4, 1e-2, "
      "25)",
  };
};

} // namespace TVR::Data
