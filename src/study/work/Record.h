#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace TVR::Study {

struct ResultLayout;

/// What a run yields, as a ResultLayout says. What could not be had is not a number.
struct Record {
  QByteArray run;             ///< its name
  int repeats = 1;            ///< how often the sample holds it
  std::vector<double> values; ///< of the varied keys
  QString failure;            ///< why there are no results; empty if there are
  std::vector<double> scalars;
  std::vector<std::vector<double>> series;
  QByteArray maps; ///< of exceedance, encoded; see Exceedance.h

  bool hasFailed() const { return !failure.isEmpty(); }
};

/// A record as one line of JSON, without the end of the line; numbers keep every bit. The maps may
/// be left out.
QByteArray toLine(const Record& record, bool withMaps);

/// None if the line is no record of that layout. A record without maps has none.
std::optional<Record> recordFromLine(const QByteArray& line, const ResultLayout& layout);

} // namespace TVR::Study
