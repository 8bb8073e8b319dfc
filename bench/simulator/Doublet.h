#pragma once

#include "simulator/models/FVGeothermSite.h"

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
  double waterTolerance = 1e-5; ///< relative and absolute, as a batch file has it by default
  double heatTolerance = 1e-7;  ///< likewise

  std::unique_ptr<FVMesh> mesh() const;
  std::unique_ptr<FVGeothermSite> site(LinearSolver solver = LinearSolver::Structured) const;
  /// One at the end of each period.
  int outputTimes() const { return years * periods; }
  /// Advances both models to an output time, counted from 0.
  void advance(FVGeothermSite& site, int step) const;
};
