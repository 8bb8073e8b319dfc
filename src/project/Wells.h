#pragma once

#include <QMap>
#include <QPointF>
#include <QSet>
#include <QString>
#include <QVector>

namespace TVR {

/// Values of one quantity by demand period.
using ByPeriod = QMap<int, double>;

/// Exact comparison, to the last bit.
bool isSame(const ByPeriod& one, const ByPeriod& other);

/// The wells of a project: where they stand, and by row what was set of them. A row without an
/// entry has a derived value, which WellReader knows.
struct Wells {
  QVector<QPointF> positions;           ///< on the map [m], one for each well
  QSet<int> givenPlaces;                ///< wells that a file or the user gave their place
  QMap<int, QString> names;             ///< by row, as all that follow
  QMap<int, double> rates;              ///< mean annual rates [m3/s], positive into the aquifer
  QMap<int, double> temperatureChanges; ///< of what is injected [K]
  QMap<int, ByPeriod> periodRates;      ///< [m3/s]
  QMap<int, ByPeriod> periodTemperatureChanges; ///< [K]

  /// Exact, to the last bit.
  bool operator==(const Wells& other) const;

  /// Whether anything was set of any well.
  bool hasEntries() const;

  /// Forgets all names, rates and temperature changes; the positions stay.
  void clearEntries();
  /// Fits the entries to a new number of rows, the number of positions. Required oddity: entries
  /// keep their row, whichever half of the wells it is in; rows that are lost lose their entries.
  /// On growing, an entry at `oldSize` moves to the key behind the last row; for the names an empty
  /// or missing one removes the entry there.
  void fitEntries(int oldSize);
  /// Brings the positions to `count`; each new well stands at `place`, where the program put it.
  void resizePositions(int count, const QPointF& place);
};

} // namespace TVR
