#include "simulator/solvers/FVKinsolSolver.h"

#include "simulator/solvers/SolverErrors.h"

#include <kinsol/kinsol.h>

FVKinsolSolver::FVKinsolSolver(FVSystem* model, double scale)
    : model_(model), u_(model->elementCount(), 0.0), uScale_(model->elementCount(), scale),
      fScale_(model->elementCount(), scale) {}

void FVKinsolSolver::solve() {
  status_ = KINSol(memory_, uVector_, strategy_, uScaleVector_, fScaleVector_);
  if (status_ < 0)
    throw KinsolError("KINSol", status_);
}
