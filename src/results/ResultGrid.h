#pragma once

#include "results/PageAccess.h"

#include <QPointF>
#include <QPolygonF>

#include <vector>

class FVMesh;

namespace TVR {

struct RunFrame;

/// The places, one per value, whose values are changes and at least a quarter of the largest one:
/// also a plume too weak for any isotherm is somewhere.
QPolygonF placesOfChange(const std::vector<double>& values, const std::vector<QPointF>& places);

/// The grid item "Simulation results": the mesh of a run on the map, with the drawdowns [m] and the
/// temperature changes [K] of its cells. Values have one entry per cell, row by row.
class ResultGrid {
public:
  explicit ResultGrid(const PageAccess& page);

  /// Puts the mesh of a run with this frame on the map, on the grid item that is there or else on a
  /// new one. Waits for the lock without end, since a run can't
  /// start without its grid. Does nothing without a window or a map view.
  void takeMesh(const FVMesh& mesh, const RunFrame& frame);

  /// Shows the values of one data set (Sketra_lib::Property::DataSet) during a run: makes one
  /// attempt at the lock. Does nothing without values or grid.
  void showValues(int dataSet, const std::vector<double>& values);

  /// Fills the grid, which is made if there is none, with the results of a run. The caller holds
  /// the lock.
  void fill(const std::vector<double>& drawdowns, const std::vector<double>& temperatures);

  /// The values of the data set that is selected; none without a grid.
  std::vector<double> values() const;

  /// Draws isohypses at the levels that suit the drawdowns; see isohypseLevels. The caller holds
  /// the lock.
  void chooseIsohypses(const std::vector<double>& drawdowns);

private:
  void set(int property, const QVariant& value);
  int addItem();
  void dress();
  void writeCells(const FVMesh& mesh, const RunFrame& frame);

  PageAccess page_;
  int grid_ = 0; ///< the item that is worked on
};

} // namespace TVR
