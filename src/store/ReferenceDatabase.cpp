#include "store/ReferenceDatabase.h"

#include "design/ParameterId.h"
#include "messages/UserMessages.h"
#include "store/DatabaseCheck.h"
#include "store/StoreText.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

#include <optional>

namespace TVR::Data::ReferenceDatabase {

using namespace Parameter;

namespace {

const QString connectionName = QStringLiteral("basis_db");
const QString readOnly = QStringLiteral("QSQLITE_OPEN_READONLY");

/// What the file has answered: a study asks the same for each of its runs.
struct Answers {
  std::optional<QList<NamedValue>> defaults;
  QHash<QPair<QString, int>, QVariant> cells; ///< by column and row

  /// A database that can be written while it is open has none.
  static Answers* ofFile() {
    static Answers answers;
    return QSqlDatabase::database(connectionName).connectOptions() == readOnly ? &answers : nullptr;
  }
};

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

/// The reference table that a parameter's column stands in.
QString tableOf(const QString& column) {
  QSqlQuery table = query("SELECT tabelle FROM Parameter WHERE name = '" + column + "' ");
  if (table.isActive() && table.next())
    return table.value(0).toString();
  reportError(table);
  return {};
}

/// What the database answers to the question for a cell; nothing where there is no table to ask.
std::optional<QVariant> askForCell(const QString& column, int row) {
  const QString table = tableOf(column);
  if (table.isEmpty())
    return std::nullopt;
  QSqlQuery cell =
      query("SELECT " + column + " FROM " + table + " WHERE id = " + QString::number(row));
  if (cell.isActive() && cell.next())
    return cell.value(0);
  reportError(cell);
  return QVariant();
}

/// The value of a column in a row of its reference table, invalid if the table has no such row;
/// nothing where there is no table to ask.
std::optional<QVariant> cellOf(const QString& column, int row) {
  if (row < 1 || !open())
    return std::nullopt;
  Answers* const answers = Answers::ofFile();
  if (answers && answers->cells.contains({column, row}))
    return answers->cells[{column, row}];
  const std::optional<QVariant> cell = askForCell(column, row);
  if (answers && cell && cell->isValid())
    answers->cells[{column, row}] = *cell;
  return cell;
}

/// All rows that a statement for a text and a value gives.
template <class Row>
QList<Row> rowsOf(const QString& statement) {
  QSqlQuery rows = query(statement);
  if (!rows.isActive())
    reportError(rows);
  QList<Row> result;
  while (rows.next())
    result.append({rows.value(0).toString(), rows.value(1)});
  return result;
}

} // namespace

QString file(const QString& applicationDirectory) {
  QString directory = QDir::cleanPath(applicationDirectory);
  const QString name = QDir(directory).dirName().toLower();
  if (name == "debug" || name == "release" || name == "bin")
    directory = QDir::cleanPath(directory + "/..");
  return QStringLiteral("%1/basis.db").arg(QDir(directory + "/data").absolutePath());
}

bool open() {
  QSqlDatabase database = QSqlDatabase::database(connectionName, true);
  if (database.isValid() && database.isOpen())
    return true;
  const QString name = file(QCoreApplication::applicationDirPath());
  if (!QFile::exists(name))
    return false;
  if (!keepsCheckSum(name)) {
    tellDamage(name);
    return false;
  }
  if (!database.isValid()) {
    database = QSqlDatabase::addDatabase("QSQLITE", connectionName);
    database.setConnectOptions(readOnly);
  }
  database.setDatabaseName(name);
  if (!database.open())
    tellUser(Severity::Critical, programTitle,
             StoreText::tr("An internal error has occurred [%1]").arg(name));
  return true; // a query that follows reports itself
}

void reportError(const QSqlQuery& query) {
  const QSqlError error = query.lastError();
  const QString details =
      QStringLiteral("%1%2\n%3%4\n%5%6")
          .arg(StoreText::tr("Query:\t"), query.lastQuery(), StoreText::tr("Error:\t"),
               error.databaseText(), StoreText::tr("Driver:\t"), error.driverText());
  tellUser(Severity::Critical, programTitle,
           StoreText::tr("<b>A database error has occurred :</b>\n%1").arg(details), Qt::RichText);
}

std::optional<QList<NamedValue>> defaults() {
  if (!open())
    return std::nullopt;
  Answers* const answers = Answers::ofFile();
  if (answers && answers->defaults)
    return answers->defaults;
  const auto result = rowsOf<NamedValue>("SELECT name, default_value FROM Parameter ORDER BY id");
  if (answers && !result.isEmpty())
    answers->defaults = result;
  return result;
}

QVariant value(const QString& column, int row) {
  return cellOf(column, row).value_or(QVariant());
}

QVariant text(const QString& column, int row, const QString& language) {
  const std::optional<QVariant> number = cellOf(column, row);
  if (!number)
    return {};
  QSqlQuery name = query(QStringLiteral("SELECT s.string from Sprachstring s, Sprache l where "
                                        "s.id=%1 and s.sprache_id=l.id and l.shortcut='%2'")
                             .arg(number->toString(), language));
  if (name.isActive() && name.next())
    return name.value(0);
  reportError(name);
  return *number;
}

QList<NamedValue> row(const QString& table, int row) {
  if (row == 0 || !open())
    return {};
  QSqlQuery cells =
      query(QStringLiteral("SELECT * FROM %1 WHERE id = '%2'").arg(table, QString::number(row)));
  if (!cells.isActive() || !cells.next()) {
    reportError(cells);
    return {};
  }
  const QSqlRecord record = cells.record();
  QList<NamedValue> result;
  for (int column = 0; column < record.count(); ++column)
    if (const QString name = record.fieldName(column); name != "id" && name != nameColumn(table))
      result.append({name, record.value(column)});
  return result;
}

QList<Choice> choices(int id, const QString& language) {
  QString statement;
  switch (id) {
  case AquiferMaterial:
    statement =
        QStringLiteral("SELECT s.string, gm.id FROM Grundwasserleitermaterial gm, Sprachstring s, "
                       "Sprache l WHERE s.id=gm._aquifer_material and s.sprache_id=l.id and "
                       "l.shortcut='%1' order by gm.id")
            .arg(language);
    break;
  case BuildingType:
    statement =
        QStringLiteral("SELECT s.string, b.id FROM Benutzungsstunden b, Sprachstring s, Sprache l "
                       "WHERE s.id=b.building_type and s.sprache_id=l.id and l.shortcut='%1' "
                       "order by b.id")
            .arg(language);
    break;
  case ClosestLocation:
    statement =
        QStringLiteral("SELECT closest_location,id FROM Standort order by closest_location");
    break;
  default:
    return {};
  }
  return open() ? rowsOf<Choice>(statement) : QList<Choice>();
}

} // namespace TVR::Data::ReferenceDatabase
