#pragma once

#include <QPointF>

namespace TVR {

class ProjectReader;

/// How the model of a run, in which the regional flow runs along +x, lies on the map, and how the
/// run counts its time. It is kept with the results: they stay where they are when the project is
/// edited after the run.
struct RunFrame {
  QPointF origin;               ///< centre of the rotation between map and model [m]
  double flowDirection = 90;    ///< of the regional flow, clockwise from north [degrees]
  bool hasRegionalFlow = false; ///< without it map and model are not turned against each other
  int cycleLength = 12;         ///< output steps of a cycle; one of up to 12 is a year

  /// The angle [degrees] by which the model is turned clockwise onto the map.
  double angleOntoMap() const { return hasRegionalFlow ? flowDirection - 90 : 0.0; }
  QPointF onMap(const QPointF& inModel) const;
  QPointF inModel(const QPointF& onMap) const;
  /// Whether times of the run are told in years, else in cycles.
  bool countsYears() const { return cycleLength <= 12; }

  bool operator==(const RunFrame&) const = default;
};

/// The frame that a run of the project would have now, around the mean of its wells, but for the
/// length of its cycles.
RunFrame runFrameOf(const ProjectReader& project);

} // namespace TVR
