#include "study/answers/AnswerSummary.h"
#include "study/answers/AnswerTables.h"
#include "study/plan/Plan.h"
#include "study/work/Results.h"
#include "study/work/StudySetup.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

#include <cmath>

namespace TVR::Study {

namespace {

const QString connectionName = QStringLiteral("study_answers");

/// What makes a new data base whose bytes follow from its rows alone.
const char* const statements[] = {
    "PRAGMA encoding = 'UTF-8'",
    "PRAGMA page_size = 4096",
    "PRAGMA journal_mode = OFF",
    "PRAGMA synchronous = OFF",
    "BEGIN",
    "CREATE TABLE study (name TEXT PRIMARY KEY, value) WITHOUT ROWID",
    "CREATE TABLE keys (id INTEGER PRIMARY KEY, key TEXT, unit TEXT)",
    "CREATE TABLE runs (id INTEGER PRIMARY KEY, run TEXT, repeats INTEGER, outcome TEXT)",
    "CREATE TABLE key_values (run INTEGER, key INTEGER, value REAL, PRIMARY KEY (run, key)) "
    "WITHOUT ROWID",
    "CREATE TABLE quantities (id INTEGER PRIMARY KEY, quantity TEXT, well TEXT, level_K REAL, "
    "time_a REAL, unit TEXT)",
    "CREATE TABLE scalars (run INTEGER, quantity INTEGER, value REAL, "
    "PRIMARY KEY (run, quantity)) WITHOUT ROWID",
    "CREATE TABLE series_quantities (id INTEGER PRIMARY KEY, quantity TEXT, well TEXT, unit TEXT)",
    "CREATE TABLE series (run INTEGER, quantity INTEGER, time_a REAL, value REAL, "
    "PRIMARY KEY (run, quantity, time_a)) WITHOUT ROWID",
    "CREATE TABLE summary (quantity INTEGER, figure TEXT, value REAL, low REAL, high REAL, "
    "PRIMARY KEY (quantity, figure)) WITHOUT ROWID",
    "CREATE TABLE influences (quantity INTEGER, key INTEGER, at_lowest REAL, at_highest REAL, "
    "first_order REAL, total REAL, PRIMARY KEY (quantity, key)) WITHOUT ROWID",
    "CREATE TABLE failures (run INTEGER PRIMARY KEY, reason TEXT)",
};

QVariant numberOf(double number) {
  return std::isfinite(number) ? QVariant(number) : QVariant(QVariant::Double);
}

QVariant numberOf(const std::optional<double>& number) {
  return number ? numberOf(*number) : QVariant(QVariant::Double);
}

/// The number of a list that an entry may have.
QVariant entryOf(const std::vector<double>& list, const std::optional<std::size_t>& place) {
  return place ? QVariant(list[*place]) : QVariant(QVariant::Double);
}

QVariant idOf(std::size_t place) {
  return QVariant(static_cast<qlonglong>(place));
}

/// A new data base that is filled in one transaction.
class AnswerDatabase {
public:
  AnswerDatabase(const QString& fileName, const StudySetup& setup)
      : setup_(setup), database_(QSqlDatabase::addDatabase("QSQLITE", connectionName)) {
    database_.setDatabaseName(fileName);
    isSound_ = database_.open();
    for (const char* const statement : statements)
      isSound_ = isSound_ && QSqlQuery(database_).exec(statement);
  }

  ~AnswerDatabase() {
    database_ = QSqlDatabase();
    QSqlDatabase::removeDatabase(connectionName);
  }

  AnswerDatabase(const AnswerDatabase&) = delete;
  AnswerDatabase& operator=(const AnswerDatabase&) = delete;

  void writeStudy(const AnswerSummary& summary) {
    Insertion insertion(*this, "study", 2);
    insertion.add({"base", QFileInfo(setup_.file.base).fileName()});
    insertion.add({"planned_runs", idOf(setup_.plan.runs.size())});
    insertion.add({"runs", idOf(summary.runs)});
    insertion.add({"schema", 1});
    insertion.add({"version", TEVRANE_VERSION});
  }

  void writeLayout() {
    const ResultLayout& layout = setup_.layout;
    Insertion keys(*this, "keys", 3);
    for (int key = 0; key < layout.keys.size(); ++key)
      keys.add({key, layout.keys[key], layout.keyUnits[key]});
    Insertion quantities(*this, "quantities", 6);
    for (std::size_t i = 0; const Scalar& scalar : layout.scalars())
      quantities.add({idOf(i++), nameOf(scalar),
                      scalar.well ? wellName(*scalar.well) : QVariant(QVariant::String),
                      entryOf(layout.levels, scalar.level), entryOf(layout.times, scalar.time),
                      unitOf(scalar)});
    Insertion series(*this, "series_quantities", 4);
    for (std::size_t i = 0; const Series& one : layout.series())
      series.add({idOf(i++), nameOf(one.quantity), wellName(one.well), unitOf(one.quantity)});
  }

  void writeRuns(const Results& results) {
    Insertion runs(*this, "runs", 4);
    Insertion values(*this, "key_values", 3);
    Insertion scalars(*this, "scalars", 3);
    Insertion series(*this, "series", 4);
    Insertion failures(*this, "failures", 2);
    const std::vector<double>& times = setup_.layout.seriesTimes;
    std::size_t place = 0;
    results.eachRecord([&](const Record& record) {
      const QVariant run = idOf(place++);
      runs.add({run, QString::fromLatin1(record.run), record.repeats,
                record.hasFailed() ? "failed" : "done"});
      for (std::size_t key = 0; key < record.values.size(); ++key)
        values.add({run, idOf(key), numberOf(record.values[key])});
      if (record.hasFailed()) {
        failures.add({run, record.failure});
        return;
      }
      for (std::size_t i = 0; i < record.scalars.size(); ++i)
        scalars.add({run, idOf(i), numberOf(record.scalars[i])});
      for (std::size_t i = 0; i < record.series.size(); ++i)
        for (std::size_t time = 0; time < times.size(); ++time)
          series.add({run, idOf(i), times[time], numberOf(record.series[i][time])});
    });
  }

  void writeSummary(const AnswerSummary& summary) {
    Insertion figures(*this, "summary", 5);
    Insertion influences(*this, "influences", 6);
    for (std::size_t i = 0; i < summary.quantities.size(); ++i)
      if (summary.quantities[i].spread.runs > 0) {
        writeFigures(figures, idOf(i), summary.quantities[i]);
        writeInfluences(influences, idOf(i), summary.quantities[i].influences);
      }
  }

  /// Whether all of it went well.
  bool finish() {
    isSound_ = isSound_ && QSqlQuery(database_).exec("COMMIT");
    database_.close();
    return isSound_;
  }

private:
  /// Rows for a table.
  class Insertion {
  public:
    Insertion(AnswerDatabase& database, const QString& table, int columns)
        : database_(database), query_(database.database_) {
      QStringList marks;
      for (int i = 0; i < columns; ++i)
        marks << "?";
      database_.isSound_ =
          database_.isSound_ &&
          query_.prepare(QStringLiteral("INSERT INTO %1 VALUES (%2)").arg(table, marks.join(',')));
    }

    void add(const std::vector<QVariant>& row) {
      for (std::size_t i = 0; i < row.size(); ++i)
        query_.bindValue(static_cast<int>(i), row[i]);
      database_.isSound_ = database_.isSound_ && query_.exec();
    }

  private:
    AnswerDatabase& database_;
    QSqlQuery query_;
  };

  static void writeFigures(Insertion& figures, const QVariant& id,
                           const QuantitySummary& quantity) {
    const auto add = [&](const QString& name, double value, const ConfidenceInterval& interval) {
      figures.add({id, name, value, numberOf(interval.low), numberOf(interval.high)});
    };
    const Spread& spread = quantity.spread;
    add("deviation", spread.deviation, {});
    add("explained", quantity.explained, {});
    add("greatest", spread.greatest, {});
    add("least", spread.least, {});
    add("mean", spread.mean, {});
    for (const Spread::Percentile& percentile : spread.percentiles)
      add(QStringLiteral("P%1").arg(std::lround(100 * percentile.share)), percentile.value,
          percentile.interval);
    if (quantity.plume)
      add("plume_probability", quantity.plume->value, quantity.plume->interval);
  }

  static void writeInfluences(Insertion& insertion, const QVariant& id,
                              const std::vector<Influence>& influences) {
    for (std::size_t key = 0; key < influences.size(); ++key) {
      const auto& [swing, firstOrder, total] = influences[key];
      const QVariant none(QVariant::Double);
      insertion.add({id, idOf(key), swing ? QVariant(swing->atLowest) : none,
                     swing ? QVariant(swing->atHighest) : none, numberOf(firstOrder),
                     numberOf(total)});
    }
  }

  QVariant wellName(std::size_t well) const { return setup_.layout.wells[static_cast<int>(well)]; }

  const StudySetup& setup_;
  QSqlDatabase database_;
  bool isSound_ = false;
};

} // namespace

bool writeDatabase(const QString& fileName, const Results& results, const StudySetup& setup,
                   const AnswerSummary& summary) {
  AnswerDatabase database(fileName, setup);
  database.writeStudy(summary);
  database.writeLayout();
  database.writeRuns(results);
  database.writeSummary(summary);
  return database.finish();
}

} // namespace TVR::Study
