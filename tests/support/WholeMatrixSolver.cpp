#include "support/WholeMatrixSolver.h"

#include <cvode/cvode.h>
#include <cvode/cvode_ls.h>
#include <sunlinsol/sunlinsol_klu.h>
#include <sunmatrix/sunmatrix_sparse.h>

#include <algorithm>
#include <map>
#include <stdexcept>

namespace {

/// The solvers by their matrix, which is all that a Jacobian function is given of them.
std::map<SUNMatrix, WholeMatrixSolver*>& solvers() {
  static std::map<SUNMatrix, WholeMatrixSolver*> all;
  return all;
}

void require(bool isTrue) {
  if (!isTrue)
    throw std::runtime_error("The packaged solver cannot be attached.");
}

} // namespace

WholeMatrixSolver::WholeMatrixSolver(FVSystem& system, const std::vector<std::size_t>& wellElements)
    : system_(system), rows_(system.elementCount()), state_(system.elementCount()),
      rates_(system.elementCount()), disturbedRates_(system.elementCount()) {
  findPattern(wellElements);
  findColours();
  attach();
}

WholeMatrixSolver::~WholeMatrixSolver() {
  solvers().erase(matrix_);
  SUNLinSolFree(solver_);
  SUNMatDestroy(matrix_);
  N_VDestroy(vector_);
  SUNContext_Free(&context_);
}

void WholeMatrixSolver::findPattern(const std::vector<std::size_t>& wellElements) {
  const auto depend = [&](std::size_t i, std::size_t j) {
    rows_[j].push_back(static_cast<Index>(i));
  };
  for (std::size_t i = 0; i < rows_.size(); ++i)
    depend(i, i);
  for (const auto& [i, j] : system_.links()) {
    depend(i, j);
    depend(j, i);
  }
  for (const std::size_t i : wellElements)
    for (const std::size_t j : wellElements)
      depend(i, j);
  for (std::vector<Index>& rows : rows_) {
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  }
}

// The pattern is symmetric: the rows of a column are also the columns of that row.
void WholeMatrixSolver::findColours() {
  std::vector<std::size_t> colourOf(rows_.size(), rows_.size());
  for (std::size_t j = 0; j < rows_.size(); ++j) {
    std::vector<bool> isTaken(colours_.size() + 1, false);
    for (const Index row : rows_[j])
      for (const Index other : rows_[static_cast<std::size_t>(row)])
        if (const std::size_t colour = colourOf[static_cast<std::size_t>(other)];
            colour < colours_.size())
          isTaken[colour] = true;
    const auto colour = static_cast<std::size_t>(std::find(isTaken.begin(), isTaken.end(), false) -
                                                 isTaken.begin());
    if (colour == colours_.size())
      colours_.emplace_back();
    colours_[colour].push_back(static_cast<Index>(j));
    colourOf[j] = colour;
  }
}

void WholeMatrixSolver::attach() {
  require(SUNContext_Create(nullptr, &context_) == 0);
  const auto count = static_cast<Index>(rows_.size());
  Index entries = 0;
  for (const std::vector<Index>& rows : rows_)
    entries += static_cast<Index>(rows.size());
  vector_ = N_VMake_Serial(count, state_.data(), context_);
  matrix_ = SUNSparseMatrix(count, count, entries, CSC_MAT, context_);
  solver_ = SUNLinSol_KLU(vector_, matrix_, context_);
  require(vector_ && matrix_ && solver_);
  solvers()[matrix_] = this;
  require(CVodeSetLinearSolver(system_.solverMemory, solver_, matrix_) == 0);
  const CVLsJacFn jacobianOf = [](double, N_Vector y, N_Vector, SUNMatrix jacobian, void*,
                                  N_Vector errorWeights, N_Vector, N_Vector) {
    WholeMatrixSolver& self = *solvers().at(jacobian);
    CVodeGetErrWeights(self.system_.solverMemory, errorWeights);
    self.computeJacobian(N_VGetArrayPointer(y), N_VGetArrayPointer(errorWeights), jacobian);
    return 0;
  };
  require(CVodeSetJacFn(system_.solverMemory, jacobianOf) == 0);
}

void WholeMatrixSolver::evaluate(const double* y, std::vector<double>& rates) {
  std::fill(rates.begin(), rates.end(), 0.0);
  system_.evaluate(0.0, y, rates.data());
}

void WholeMatrixSolver::computeJacobian(const double* y, const double* errorWeights,
                                        SUNMatrix jacobian) {
  Index* begins = SM_INDEXPTRS_S(jacobian);
  Index* rowOf = SM_INDEXVALS_S(jacobian);
  double* values = SM_DATA_S(jacobian);
  begins[0] = 0;
  for (std::size_t j = 0; j < rows_.size(); ++j) {
    std::copy(rows_[j].begin(), rows_[j].end(), rowOf + begins[j]);
    begins[j + 1] = begins[j] + static_cast<Index>(rows_[j].size());
  }
  evaluate(y, rates_);
  std::copy_n(y, state_.size(), state_.begin());
  for (const std::vector<Index>& colour : colours_) {
    for (const Index j : colour)
      state_[static_cast<std::size_t>(j)] += 1000.0 / errorWeights[j];
    evaluate(state_.data(), disturbedRates_);
    for (const Index j : colour) {
      const auto column = static_cast<std::size_t>(j);
      const double disturbance = state_[column] - y[j];
      for (Index k = begins[j]; k < begins[j + 1]; ++k) {
        const auto row = static_cast<std::size_t>(rowOf[k]);
        values[k] = (disturbedRates_[row] - rates_[row]) / disturbance;
      }
      state_[column] = y[j];
    }
  }
}
