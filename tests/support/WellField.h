#pragma once

#include "simulator/models/FVGeothermSite.h"

#include <memory>
#include <vector>

/// Wells of a closed loop near each other, which produce and inject by turns like the fields of a
/// chess board, in a regional flow along the rows: what is hard on a solver that knows their mixing
/// badly.
struct WellField {
  static constexpr double year = 365.25 * 86400.0; // [s]

  double distance; ///< of neighbours [m]
  int wells = 2;
  int rows = 1;            ///< that the wells stand in, each beside and ahead of the one before
  int periods = 1;         ///< demand periods a year, in which the wells change their roles
  int years = 10;          ///< simulated time
  double thickness = 12.0; ///< of the aquifer [m]
  double rate = 0.0035;    ///< of a well [m3/s]
  double exchange = 0.0;   ///< 0: none; 2: with the rock on both sides
  bool closedLoop = true;
  int cells = 2500;             ///< about the most
  double waterTolerance = 1e-5; ///< relative and absolute, as a batch file has it by default
  double heatTolerance = 1e-7;  ///< likewise

  std::unique_ptr<FVGeothermSite> site(LinearSolver solver = LinearSolver::Structured) const;
  /// One at the end of each period.
  int outputTimes() const { return years * periods; }
  /// Advances both models to an output time, counted from 0.
  void advance(FVGeothermSite& site, int step) const;
};

/// Steps that a run takes in the heat model, and those that did not converge.
struct HeatRun {
  std::unique_ptr<FVGeothermSite> site;
  long steps;
  long failures;
};

/// The field run with the structured solver, or with WholeMatrixSolver in the heat model.
HeatRun runStructured(const WellField& field);
HeatRun runWholeMatrix(const WellField& field);
