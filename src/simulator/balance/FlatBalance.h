#pragma once

#include "simulator/balance/LinkRuns.h"
#include "simulator/balance/Mixing.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

/// The right-hand side of a model in flat arrays, for the integrator's many evaluations:
/// storage * dy/dt = flows over the links + flows from cells of fixed state + wells.
/// It knows no physics: a model fills it with the factors of its flows, which are linear in the
/// state, and stays the definition of what they are.
class FlatBalance {
public:
  /// A well's flow into its cell: own * y + inflow * (inflow value) + constant. `producedRate`:
  /// weight of the cell in the mixing of the produced water [m3/s], below 0, or 0 for none.
  struct WellFactors {
    double producedRate = 0.0;
    double own = 0.0;
    double inflow = 0.0;
    double constant = 0.0;
  };

  /// Empties cells, boundary links and wells, which are then added anew.
  void clear();
  /// Adds a cell with its storage, the factor between rate of change and sum of flows.
  void addCell(double storage) { inverseStorage_.push_back(1.0 / storage); }
  /// Links between two cells: see LinkRuns.
  LinkRuns& links() { return links_; }
  /// Link from a cell to a fixed state value.
  void addBoundaryLink(std::size_t i1, double fixedState, const LinkFactors& factors);
  void addWell(std::size_t cell, const WellFactors& factors);
  /// To be called when all wells are there. `closedLoop`: injected water takes the mixed value of
  /// the produced water, else `reference`.
  void setMixing(bool closedLoop, double reference);

  /// See FVSystem.
  double inflowValue(const double* y) const;
  const std::vector<MixedCell>& mixing() const { return mixing_; }
  void evaluate(const double* y, double* dydt, double inflow) const;

private:
  struct BoundaryLink {
    std::size_t cell;
    double fixedState;
    LinkFactors factors;
  };
  struct CellWell {
    std::size_t cell;
    WellFactors factors;
  };

  void findMixing();

  std::vector<double> inverseStorage_;
  LinkRuns links_;
  std::vector<BoundaryLink> boundaryLinks_;
  std::vector<CellWell> wells_;
  std::vector<MixedCell> mixing_;
  bool closedLoop_ = false;
  double reference_ = 0.0;
};
