#include "data/DatabaseCheck.h"
#include "data/Manager.h"
#include "design/WellDesign.h"
#include "messages/UserMessages.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlField>
#include <QSqlQuery>
#include <QSqlRecord>

namespace TVR::Data {

using namespace Parameter;

namespace {

const QString connectionName = QStringLiteral("basis_db");

QSqlQuery query(const QString& statement) {
  QSqlQuery result(QSqlDatabase::database(connectionName, true));
  result.exec(statement);
  return result;
}

/// The column of a reference table that holds a number of a text instead of a parameter's value.
QString nameColumn(const QString& table) {
  if (table == "Benutzungsstunden")
    return QStringLiteral("building_type");
  if (table == "Grundwasserleitermaterial")
    return QStringLiteral("_aquifer_material");
  return {};
}

/// Says once that the database is damaged: it is asked for again and again.
void tellDamage(const QString& file) {
  static QString told;
  if (told != file)
    tellUser(Severity::Critical, programTitle, databaseFault(file));
  told = file;
}

} // namespace

QString Manager::databaseFile(const QString& applicationDirectory) {
  QString directory = QDir::cleanPath(applicationDirectory);
  const QString name = QDir(directory).dirName().toLower();
  if (name == "debug" || name == "release" || name == "bin")
    directory = QDir::cleanPath(directory + "/..");
  return QStringLiteral("%1/basis.db").arg(QDir(directory + "/data").absolutePath());
}

bool Manager::openDatabase() {
  QSqlDatabase database = QSqlDatabase::database(connectionName, true);
  if (database.isValid() && database.isOpen())
    return true;
  const QString file = databaseFile(QCoreApplication::applicationDirPath());
  if (!QFile::exists(file))
    return false;
  if (!keepsCheckSum(file)) {
    tellDamage(file);
    return false;
  }
  if (!database.isValid()) {
    database = QSqlDatabase::addDatabase("QSQLITE", connectionName);
    database.setConnectOptions("QSQLITE_OPEN_READONLY");
  }
  database.setDatabaseName(file);
  if (!database.open())
    tellUser(Severity::Critical, programTitle, tr("An internal error has occurred [%1]").arg(file));
  return true; // a query that follows reports itself
}

void Manager::reportQueryError(const QSqlQuery& query) {
  const QSqlError error = query.lastError();
  const QString details = QStringLiteral("%1%2\n%3%4\n%5%6")
                              .arg(tr("Query:\t"), query.lastQuery(), tr("Error:\t"),
                                   error.databaseText(), tr("Driver:\t"), error.driverText());
  tellUser(Severity::Critical, programTitle,
           tr("<b>A database error has occurred :</b>\n%1").arg(details), Qt::RichText);
}

QString Manager::language() const {
  const QString language = values_.value(GuiLanguage).toString();
  return language.isEmpty() ? QStringLiteral("en") : language;
}

void Manager::loadDefaults() {
  if (!openDatabase())
    return;
  const QVariant language = values_.value(GuiLanguage);
  values_.clear();
  if (language.isValid())
    values_.insert(GuiLanguage, language);

  QSqlQuery defaults = query("SELECT name, default_value FROM Parameter ORDER BY id");
  if (!defaults.isActive()) {
    reportQueryError(defaults);
    return;
  }
  while (defaults.next()) {
    const int id = idOfKey(defaults.value(0).toString());
    const QVariant value = defaults.value(1);
    if (isClearableText(id)) {
      const QString text = value.toString();
      if (text == "0.0" || text == "0")
        values_.insert(id, QString());
    } else if (isFlagInDefaults(id)) {
      values_.insert(id, wholeNumber(value.toDouble()) >= 1);
    } else if (id != GuiLanguage || !values_.contains(id)) {
      values_.insert(id, value);
    }
  }
}

QString Manager::tableOfParameter(int id) const {
  QSqlQuery table = query("SELECT tabelle FROM Parameter WHERE name = '" + key(id) + "' ");
  if (table.isActive() && table.next())
    return table.value(0).toString();
  reportQueryError(table);
  return {};
}

QVariant Manager::referenceValue(int id, int row) const {
  if (row < 1 || !openDatabase())
    return {};
  const QString table = tableOfParameter(id);
  if (table.isEmpty())
    return {};

  QVariant value;
  QSqlQuery cell =
      query("SELECT " + key(id) + " FROM " + table + " WHERE id = " + QString::number(row));
  if (cell.isActive() && cell.next())
    value = cell.value(0);
  else
    reportQueryError(cell);
  if (id != BuildingType)
    return value;

  QSqlQuery name = query(QStringLiteral("SELECT s.string from Sprachstring s, Sprache l where "
                                        "s.id=%1 and s.sprache_id=l.id and l.shortcut='%2'")
                             .arg(value.toString(), language()));
  if (name.isActive() && name.next())
    return name.value(0);
  reportQueryError(name);
  return value;
}

void Manager::applyReferenceRow(const QString& table, int row) {
  if (row == 0 || !openDatabase())
    return;
  QSqlQuery cells =
      query(QStringLiteral("SELECT * FROM %1 WHERE id = '%2'").arg(table, QString::number(row)));
  if (!cells.isActive() || !cells.next()) {
    reportQueryError(cells);
    return;
  }
  // The rules of a write may query the database themselves: the record is a copy.
  const QSqlRecord record = cells.record();
  for (int column = 0; column < record.count(); ++column) {
    const QString name = record.fieldName(column);
    if (name == "id" || name == nameColumn(table))
      continue;
    const int id = keys_.key(name, -1);
    if (id >= 0)
      setValue(id, record.value(column));
  }
}

void Manager::fillComboBox(int id, QComboBox* box) {
  QString statement;
  switch (id) {
  case AquiferMaterial:
    statement =
        QStringLiteral("SELECT s.string, gm.id FROM Grundwasserleitermaterial gm, Sprachstring s, "
                       "Sprache l WHERE s.id=gm._aquifer_material and s.sprache_id=l.id and "
                       "l.shortcut='%1' order by gm.id")
            .arg(language());
    break;
  case BuildingType:
    statement =
        QStringLiteral("SELECT s.string, b.id FROM Benutzungsstunden b, Sprachstring s, Sprache l "
                       "WHERE s.id=b.building_type and s.sprache_id=l.id and l.shortcut='%1' "
                       "order by b.id")
            .arg(language());
    break;
  case ClosestLocation:
    statement =
        QStringLiteral("SELECT closest_location,id FROM Standort order by closest_location");
    break;
  default:
    return;
  }
  if (!openDatabase())
    return;
  QSqlQuery choices = query(statement);
  if (!choices.isActive()) {
    reportQueryError(choices);
    return;
  }
  while (choices.next())
    box->addItem(choices.value(0).toString(), choices.value(1));
}

} // namespace TVR::Data
