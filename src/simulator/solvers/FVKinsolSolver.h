#pragma once

#include "simulator/balance/FVSystem.h"

#include <sundials/sundials_nvector.h>

#include <vector>

/// Holder of a non-linear solve for the steady state of a system. It creates no solver memory,
/// so that solve() always ends in an error; the steady state is obtained by letting the
/// transient solution run.
class FVKinsolSolver {
public:
  /// `scale` fills the scaling of unknowns and of residuals. The system is not owned.
  FVKinsolSolver(FVSystem* model, double scale);

  /// Enters the solver. Throws KinsolError("KINSol", status) if the answer is negative.
  void solve();

  int status() const { return status_; } ///< last return value of the solver

private:
  FVSystem* model_;
  std::vector<double> u_;
  std::vector<double> uScale_;
  std::vector<double> fScale_;
  N_Vector uVector_ = nullptr;
  N_Vector uScaleVector_ = nullptr;
  N_Vector fScaleVector_ = nullptr;
  int strategy_ = 1;
  int status_ = 0;
  void* memory_ = nullptr;
};
