#pragma once

#include <QPointF>
#include <QSet>
#include <QVector>

namespace TVR::Data {
class Manager;
}

namespace TVR::GUI {

/// Puts the wells of the project where its design recommends them, and back. The wells that pump
/// become the row upstream, whichever rows of the table they are in.
class WellPlacing {
public:
  explicit WellPlacing(Data::Manager& store) : store_(store) {}

  /// Whether the design gives distances to place wells by.
  bool isPossible() const;
  /// Number of wells that somebody placed: that stand neither on the default position nor where
  /// they were placed last.
  int wellsPlacedByHand() const;
  void place();

  /// Whether all wells stand where they were placed last.
  bool canUndo() const;
  /// Puts the wells back to where they stood before; nothing unless `canUndo`.
  void undo();
  /// There is nothing to undo any more.
  void forget() { placed_.clear(); }

private:
  Data::Manager& store_;
  QVector<QPointF> placed_;
  QVector<QPointF> positionsBefore_;
  QSet<int> givenBefore_;
};

} // namespace TVR::GUI
