#include "simulator/solvers/StructuredLinearSolver.h"

#include <cvode/cvode.h>
#include <cvode/cvode_ls.h>
#include <nvector/nvector_serial.h>

#include <algorithm>
#include <new>

StructuredLinearSolver::StructuredLinearSolver(FVSystem& system)
    : system_(system), structure_(system.elementCount(), system.links()), quotient_(structure_),
      jacobian_(structure_.count(), structure_.pairs().size()), factor_(structure_) {}

StructuredLinearSolver::MatrixContent& StructuredLinearSolver::contentOf(SUNMatrix matrix) {
  return *static_cast<MatrixContent*>(matrix->content);
}

SUNMatrix StructuredLinearSolver::makeMatrix(SUNContext context) {
  SUNMatrix matrix = SUNMatNewEmpty(context);
  if (!matrix)
    return nullptr;
  // Called by the integrator too, which knows no exceptions.
  matrix->content = new (std::nothrow) MatrixContent{this};
  if (!matrix->content) {
    SUNMatFreeEmpty(matrix);
    return nullptr;
  }
  matrix->ops->getid = [](SUNMatrix) { return SUNMATRIX_CUSTOM; };
  matrix->ops->clone = cloneMatrix;
  matrix->ops->destroy = destroyMatrix;
  matrix->ops->zero = zeroMatrix;
  matrix->ops->copy = copyMatrix;
  matrix->ops->scaleaddi = scaleAddIdentity;
  return matrix;
}

SUNMatrix StructuredLinearSolver::cloneMatrix(SUNMatrix matrix) {
  return contentOf(matrix).owner->makeMatrix(matrix->sunctx);
}

void StructuredLinearSolver::destroyMatrix(SUNMatrix matrix) {
  delete static_cast<MatrixContent*>(matrix->content);
  matrix->content = nullptr;
  SUNMatFreeEmpty(matrix);
}

// Asked for before a new Jacobian, which writes every entry.
int StructuredLinearSolver::zeroMatrix(SUNMatrix matrix) {
  contentOf(matrix) = {contentOf(matrix).owner};
  return SUNMAT_SUCCESS;
}

int StructuredLinearSolver::copyMatrix(SUNMatrix from, SUNMatrix to) {
  contentOf(to) = contentOf(from);
  return SUNMAT_SUCCESS;
}

int StructuredLinearSolver::scaleAddIdentity(double factor, SUNMatrix matrix) {
  MatrixContent& content = contentOf(matrix);
  content.factor *= factor;
  content.identity = factor * content.identity + 1.0;
  return SUNMAT_SUCCESS;
}

SUNLinearSolver StructuredLinearSolver::makeSolver(SUNContext context) {
  SUNLinearSolver solver = SUNLinSolNewEmpty(context);
  if (!solver)
    return nullptr;
  solver->ops->gettype = [](SUNLinearSolver) { return SUNLINEARSOLVER_DIRECT; };
  solver->ops->getid = [](SUNLinearSolver) { return SUNLINEARSOLVER_CUSTOM; };
  solver->ops->setup = factorise;
  solver->ops->solve = solve;
  solver->ops->free = [](SUNLinearSolver handle) {
    SUNLinSolFreeEmpty(handle);
    return SUNLS_SUCCESS;
  };
  solver->content = this;
  return solver;
}

// A failure is a recoverable one: the integrator tries a shorter step, for which the matrix lies
// nearer to the unit matrix, and gives up with an error of its own if that does not help.
int StructuredLinearSolver::factorise(SUNLinearSolver solver, SUNMatrix matrix) {
  auto& self = *static_cast<StructuredLinearSolver*>(solver->content);
  const MatrixContent& content = contentOf(matrix);
  if (self.isNewJacobian_)
    self.factor_.setMatrix(self.jacobian_);
  self.isNewJacobian_ = false;
  const bool isFactorised = self.factor_.factorise(content.factor, content.identity) &&
                            self.mixing_.factorise(content.factor, self.factor_);
  return isFactorised ? SUNLS_SUCCESS : SUNLS_LUFACT_FAIL;
}

int StructuredLinearSolver::solve(SUNLinearSolver solver, SUNMatrix, N_Vector x, N_Vector b,
                                  double) {
  auto& self = *static_cast<StructuredLinearSolver*>(solver->content);
  double* values = N_VGetArrayPointer(x);
  std::copy_n(N_VGetArrayPointer(b), self.structure_.count(), values);
  if (!self.factor_.solve(values))
    return SUNLS_CONV_FAIL;
  self.mixing_.correct(values);
  return SUNLS_SUCCESS;
}

int StructuredLinearSolver::computeJacobian(double t, N_Vector y, N_Vector fy, SUNMatrix jacobian,
                                            void* userData, N_Vector errorWeights, N_Vector state,
                                            N_Vector disturbed) {
  auto& system = *static_cast<FVSystem*>(userData);
  const int status = CVodeGetErrWeights(system.solverMemory, errorWeights);
  if (status < 0)
    return status;
  StructuredLinearSolver& self = *contentOf(jacobian).owner;
  self.quotient_.compute(
      system, {t, N_VGetArrayPointer(y), N_VGetArrayPointer(fy), N_VGetArrayPointer(errorWeights)},
      N_VGetArrayPointer(state), N_VGetArrayPointer(disturbed), self.jacobian_);
  self.mixing_.setTerm(system.mixing(), self.structure_.count());
  self.isNewJacobian_ = true;
  return 0;
}

int StructuredLinearSolver::attach(void* integratorMemory, SUNLinearSolver solver,
                                   SUNMatrix matrix) {
  const int status = CVodeSetLinearSolver(integratorMemory, solver, matrix);
  return status < 0 ? status : CVodeSetJacFn(integratorMemory, computeJacobian);
}
