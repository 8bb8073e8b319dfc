#pragma once

#include "simulator/mesh/Well.h"

#include <vector>

/// A point source or sink inside one cell, driven by a well. Element and well are not owned and
/// outlive the source.
template <class E>
class FVSource {
public:
  FVSource(Well* drivingWell, E* host) : element(host), well(drivingWell) {}
  virtual ~FVSource() = default;

  /// Volume flow of the well in a demand period [m3/s], positive into the aquifer.
  virtual double rate(int demandStep) const = 0;
  /// Temperature of the water that the well takes from its cell [deg C].
  virtual double temperature(int demandStep) const = 0;
  /// Writes the source term of the cell into out[0], positive into the cell. `inflowValue` is
  /// the state value of injected water before the well's own change is added.
  virtual void flux(std::vector<double>& out, int demandStep, double inflowValue) const = 0;

  E* element;
  Well* well;
};
