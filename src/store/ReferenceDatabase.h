#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QVariant>

#include <optional>

class QSqlQuery;

namespace TVR::Data {

/// A value with the name of its column, which is the key of a parameter.
using NamedValue = QPair<QString, QVariant>;

/// One of the choices that a list offers: a text in the language asked for, and the row that it
/// stands for.
struct Choice {
  QString text;
  QVariant row;
};

/// The reference database `basis.db`: default values, building types, locations and materials. All
/// operations open it if need be, and give nothing where that fails. Errors of queries are told to
/// the user.
namespace ReferenceDatabase {

/// Where it lies for a program in this directory: in "data" beside a "bin", "debug" or "release"
/// directory, else below it.
QString file(const QString& applicationDirectory);
/// Whether it can be queried. No message if the file is missing, one if its check sum is wrong.
bool open();
/// Tells the user what it answered.
void reportError(const QSqlQuery& query);

/// The default values of the parameters, in the order of its table; nothing if it can't be opened,
/// and no values if it can't be read.
std::optional<QList<NamedValue>> defaults();
/// The value of a column in row `row` (from 1) of the reference table of that parameter; invalid if
/// there is none.
QVariant value(const QString& column, int row);
/// The same for a column that holds the number of a text: the text in a language ("de"), or the
/// number itself if there is none.
QVariant text(const QString& column, int row, const QString& language);
/// All values of a row of a reference table, without its id and its name.
QList<NamedValue> row(const QString& table, int row);
/// The choices of the aquifer material, the building type or the closest location (Parameter::Id);
/// none for any other id, or a language that it does not know.
QList<Choice> choices(int id, const QString& language);

} // namespace ReferenceDatabase
} // namespace TVR::Data
