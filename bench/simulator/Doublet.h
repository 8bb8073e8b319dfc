#pragma once

#include "simulator/FVGeothermSite.h"

#include <memory>

inline constexpr double year = 365.25 * 86400.0; // [s]

/// A doublet on a mesh that is refined at the wells, in a slanting regional flow, and how it is
/// driven. All that is measured is measured on it.
struct Doublet {
  int cells;               ///< at most so many, and hardly less
  double exchange = 0.0;   ///< 0: none; 2: with the rock on both sides
  int years = 30;          ///< simulated time
  int periods = 1;         ///< demand periods a year, of which each starts the integrators again
  bool closedLoop = false; ///< injected water takes the temperature of the produced water
  double tolerance = 1e-6; ///< relative and absolute, of both models

  std::unique_ptr<FVMesh> mesh() const;
  std::unique_ptr<FVGeothermSite> site(LinearSolver solver = LinearSolver::Structured) const;
  /// Advances both models over all output times: one at the end of each period.
  void run(FVGeothermSite& site) const;
};
