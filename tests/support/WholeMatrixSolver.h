#pragma once

#include "simulator/balance/FVSystem.h"

#include <nvector/nvector_serial.h>
#include <sundials/sundials_context.h>
#include <sundials/sundials_linearsolver.h>
#include <sundials/sundials_matrix.h>

#include <cstddef>
#include <vector>

/// A yardstick for the own linear solver: the packaged sparse one (KLU) over the whole matrix of a
/// system, with the dependence of all wells on each other. The Jacobian is a difference quotient of
/// the readable right-hand side, columns that share no row at once.
class WholeMatrixSolver {
public:
  /// Takes the place of the linear solver in the integrator of the system, which has made no step
  /// yet. `wellElements`: elements of the wells. Outlives the integrator. Throws
  /// std::runtime_error.
  WholeMatrixSolver(FVSystem& system, const std::vector<std::size_t>& wellElements);
  WholeMatrixSolver(const WholeMatrixSolver&) = delete;
  WholeMatrixSolver& operator=(const WholeMatrixSolver&) = delete;
  ~WholeMatrixSolver();

private:
  using Index = sunindextype;
  void findPattern(const std::vector<std::size_t>& wellElements);
  void findColours();
  void attach();
  void computeJacobian(const double* y, const double* errorWeights, SUNMatrix jacobian);
  void evaluate(const double* y, std::vector<double>& rates);

  FVSystem& system_;
  std::vector<std::vector<Index>> rows_;    ///< of each column, in ascending order
  std::vector<std::vector<Index>> colours_; ///< columns that share no row
  std::vector<double> state_;
  std::vector<double> rates_;
  std::vector<double> disturbedRates_;
  SUNContext context_ = nullptr;
  N_Vector vector_ = nullptr;
  SUNMatrix matrix_ = nullptr;
  SUNLinearSolver solver_ = nullptr;
};
