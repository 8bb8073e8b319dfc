#pragma once

#include "project/Wells.h"

namespace TVR {

class ParameterReader;

/// The wells of a project with what is derived where nothing was set: names from the rows, rates
/// and temperature changes from the parameters, with the first half of the rows as withdrawal
/// wells. Rates in [m3/s], positive into the aquifer; temperature changes in [K]. Looks at what it
/// is made of whenever it is asked, and must not outlive it.
class WellReader {
public:
  WellReader(const Wells& wells, const ParameterReader& parameters)
      : wells_(wells), parameters_(parameters) {}

  /// The parameter `_number_of_wells`, but never below 0; the positions are not consulted.
  int count() const;
  /// The entered name, or "Well 1" for row 0 in the language of the moment.
  QString name(int row) const;
  bool hasPlace(int row) const { return row >= 0 && row < wells_.positions.size(); }
  /// Where a well stands on the map [m]; (0, 0) for a row without a position.
  QPointF place(int row) const { return wells_.positions.value(row); }
  const QVector<QPointF>& positions() const { return wells_.positions; }

  /// Mean annual rate. A well without an entry shares the mean flow rate with its half of the rows.
  double rate(int row) const;
  /// Mean temperature change: 0 for a well that withdraws, and the entered one only beside an
  /// entered rate.
  double temperatureChange(int row) const;
  /// Rate in a demand period. Without an entry the first period has the mean annual rate, all
  /// further ones 0; a row beyond `count` has no mean annual rate, so that its first period has 0
  /// as well.
  double rate(int row, int period) const;
  /// Temperature change in a demand period; 0 while the well withdraws, and for a row beyond
  /// `count` for which no period was set.
  double temperatureChange(int row, int period) const;

private:
  bool isRow(int row) const { return row >= 0 && row < count(); }

  const Wells& wells_;
  const ParameterReader& parameters_;
};

} // namespace TVR
