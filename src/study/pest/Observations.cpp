#include "study/pest/Observations.h"

#include "project/Units.h"
#include "study/plan/CsvReader.h"
#include "study/work/RunWatch.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>

namespace TVR::Study {

namespace {

constexpr qint64 mostBytes = 1 << 24;

enum Column { Name, WellName, Time, QuantityName, Value, Weight, ColumnCount };

const QStringList& columnNames() {
  static const QStringList names{"name", "well", "time", "quantity", "value", "weight"};
  return names;
}

class ObservationReader {
public:
  ObservationReader(const QString& fileName, QStringList& errors)
      : csv_(fileName), errors_(errors) {}

  std::vector<Observation> read() {
    const int before = errors_.size();
    if (!csv_.open(mostBytes))
      fail("expected a CSV table that can be read");
    else if (csv_.next() != columnNames())
      fail("expected the columns " + columnNames().join(", "));
    while (errors_.size() == before && !csv_.atEnd())
      if (const QStringList cells = csv_.next(); !cells.isEmpty())
        readRow(cells);
    if (errors_.size() == before && found_.empty())
      fail("expected an observation");
    return errors_.size() == before ? found_ : std::vector<Observation>();
  }

private:
  void fail(const QString& text) { errors_ << QStringLiteral("%1: %2").arg(csv_.place(), text); }

  double numberIn(const QStringList& cells, Column column, double least) {
    bool isNumber = false;
    const double number = cells[column].toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number) || number < least)
      fail(QStringLiteral("expected a number for %1, found \"%2\"")
               .arg(columnNames()[column], cells[column]));
    return number;
  }

  void readRow(const QStringList& cells) {
    static const QRegularExpression nameForm("^[A-Za-z][A-Za-z0-9_]{0,19}$");
    if (cells.size() != ColumnCount) {
      fail(QStringLiteral("expected %1 cells, found %2").arg(ColumnCount).arg(cells.size()));
      return;
    }
    const QString& name = cells[Name];
    const bool isTaken = std::any_of(found_.begin(), found_.end(), [&](const Observation& other) {
      return other.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    if (isTaken || !nameForm.match(name).hasMatch())
      fail(
          QStringLiteral("expected a name of its own, of up to 20 letters, digits and \"_\", found "
                         "\"%1\"")
              .arg(name));
    const QString& quantity = cells[QuantityName];
    if (quantity != nameOf(Quantity::Temperature) && quantity != nameOf(Quantity::Drawdown))
      fail(QStringLiteral("expected the quantity temperature or drawdown, found \"%1\"")
               .arg(quantity));
    constexpr double any = -std::numeric_limits<double>::max();
    found_.push_back(
        {name, cells[WellName], numberIn(cells, Time, 0),
         quantity == nameOf(Quantity::Drawdown) ? Quantity::Drawdown : Quantity::Temperature,
         numberIn(cells, Value, any), numberIn(cells, Weight, 0)});
  }

  CsvReader csv_;
  QStringList& errors_;
  std::vector<Observation> found_;
};

/// Where the answer to an observation stands among the scalars of a record.
std::size_t placeOf(const Observation& observation, const ResultLayout& layout) {
  const std::vector<Scalar> scalars = layout.scalars();
  const auto found = std::find_if(scalars.begin(), scalars.end(), [&](const Scalar& scalar) {
    return scalar.quantity == observation.quantity && scalar.well && scalar.time &&
           layout.wells[static_cast<int>(*scalar.well)] == observation.well &&
           layout.times[*scalar.time] == observation.time;
  });
  return static_cast<std::size_t>(found - scalars.begin());
}

} // namespace

std::vector<Observation> readObservations(const QString& fileName, QStringList& errors) {
  return ObservationReader(fileName, errors).read();
}

ResultLayout layoutFor(const std::vector<Observation>& observations) {
  ResultLayout layout;
  layout.quantities = QStringList{nameOf(Quantity::Drawdown), nameOf(Quantity::Temperature)};
  for (const Observation& observation : observations)
    layout.times.push_back(observation.time);
  std::sort(layout.times.begin(), layout.times.end());
  layout.times.erase(std::unique(layout.times.begin(), layout.times.end()), layout.times.end());
  return layout;
}

bool knowsWells(const std::vector<Observation>& observations, const QStringList& wells,
                QStringList& errors) {
  const int before = errors.size();
  for (const Observation& observation : observations)
    if (!wells.contains(observation.well))
      errors << QStringLiteral("the observation %1: expected one of the wells %2, found \"%3\"")
                    .arg(observation.name, wells.join(", "), observation.well);
  return errors.size() == before;
}

bool haveResults(const std::vector<Observation>& observations,
                 const std::vector<double>& outputTimes, QStringList& errors) {
  const int before = errors.size();
  for (const Observation& observation : observations)
    if (!isNearOutputTime(outputTimes, observation.time))
      errors << QStringLiteral(
                    "the observation %1: expected a time at which the base has results, up "
                    "to %2 years, found \"%3\"")
                    .arg(observation.name)
                    .arg(inYears(outputTimes.back()))
                    .arg(observation.time);
  return errors.size() == before;
}

QByteArray simulatedValues(const std::vector<Observation>& observations, const ResultLayout& layout,
                           const Record& record) {
  QByteArray lines;
  for (const Observation& observation : observations)
    lines += QStringLiteral("%1 %2\n")
                 .arg(observation.name, -20)
                 .arg(record.scalars.at(placeOf(observation, layout)), 25, 'e', 16)
                 .toUtf8();
  return lines;
}

} // namespace TVR::Study
