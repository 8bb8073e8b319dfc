#pragma once

#include "study/plan/ResultLayout.h"
#include "study/work/Record.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace TVR::Study {

/// What was measured at a well.
struct Observation {
  QString name;      ///< of letters, digits and "_", at most 20
  QString well;      ///< as in the table of wells
  double time;       ///< [a] since the start of the run
  Quantity quantity; ///< Drawdown or Temperature
  double value;      ///< [m] or [deg C]
  double weight;     ///< 1 over its standard deviation, say; 0 leaves it out
};

/// Reads a CSV table with the columns name, well, time, quantity ("temperature" or "drawdown"),
/// value and weight, in this order, under a row of their names. What is wrong is told in `errors`
/// with line and what was expected.
std::vector<Observation> readObservations(const QString& fileName, QStringList& errors);

/// What a run has to answer so that it can be held against the observations.
ResultLayout layoutFor(const std::vector<Observation>& observations);

/// Whether a calculation names its wells as the observations do; if not, `errors` says which one is
/// not there.
bool knowsWells(const std::vector<Observation>& observations, const QStringList& wells,
                QStringList& errors);

/// Whether a run has results near the times of all observations; if not, `errors` says at which one
/// it has none. `outputTimes`: of the run, one at least [s].
bool haveResults(const std::vector<Observation>& observations,
                 const std::vector<double>& outputTimes, QStringList& errors);

/// The computed counterparts of the observations, a line each: the name in the columns 1 to 20 and
/// the number in the columns 22 to 46.
QByteArray simulatedValues(const std::vector<Observation>& observations, const ResultLayout& layout,
                           const Record& record);

} // namespace TVR::Study
