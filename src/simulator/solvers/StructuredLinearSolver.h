#pragma once

#include "simulator/balance/FVSystem.h"
#include "simulator/solvers/ColouredQuotient.h"
#include "simulator/solvers/LinkStructure.h"
#include "simulator/solvers/MixingCorrection.h"
#include "simulator/solvers/StructuredFactor.h"
#include "simulator/solvers/StructuredMatrix.h"

#include <sundials/sundials_linearsolver.h>
#include <sundials/sundials_matrix.h>
#include <sundials/sundials_nvector.h>

#include <vector>

/// Brings StructuredMatrix, StructuredFactor and ColouredQuotient behind the integrator's
/// interfaces for matrix and direct linear solver. It owns what its handles look into, and outlives
/// them.
class StructuredLinearSolver {
public:
  /// The system is not owned and outlives this object.
  explicit StructuredLinearSolver(FVSystem& system);
  StructuredLinearSolver(const StructuredLinearSolver&) = delete;
  StructuredLinearSolver& operator=(const StructuredLinearSolver&) = delete;

  /// New handles, owned by the caller; null when memory is short.
  SUNMatrix makeMatrix(SUNContext context);
  SUNLinearSolver makeSolver(SUNContext context);
  /// Gives an integrator this solver's matrix, linear solver and Jacobian. The integrator's user
  /// data has to be the system. Returns the status of the first call that fails, or the last.
  int attach(void* integratorMemory, SUNLinearSolver solver, SUNMatrix matrix);

  const LinkStructure& structure() const { return structure_; }

private:
  /// All matrices of an integrator are values of the same Jacobian, `factor` times it plus
  /// `identity` times the unit matrix: it keeps the last Jacobian and makes the matrix of its
  /// iteration from it, and a new Jacobian takes the place of both.
  struct MatrixContent {
    StructuredLinearSolver* owner;
    double factor = 1.0;
    double identity = 0.0;
  };
  static int computeJacobian(double t, N_Vector y, N_Vector fy, SUNMatrix jacobian, void* userData,
                             N_Vector errorWeights, N_Vector state, N_Vector disturbed);
  static MatrixContent& contentOf(SUNMatrix matrix);
  static SUNMatrix cloneMatrix(SUNMatrix matrix);
  static void destroyMatrix(SUNMatrix matrix);
  static int zeroMatrix(SUNMatrix matrix);
  static int copyMatrix(SUNMatrix from, SUNMatrix to);
  static int scaleAddIdentity(double factor, SUNMatrix matrix);
  static int factorise(SUNLinearSolver solver, SUNMatrix matrix);
  static int solve(SUNLinearSolver solver, SUNMatrix matrix, N_Vector x, N_Vector b, double tol);

  FVSystem& system_;
  LinkStructure structure_;
  ColouredQuotient quotient_;
  StructuredMatrix jacobian_;
  bool isNewJacobian_ = true; ///< since the last factorisation
  StructuredFactor factor_;
  MixingCorrection mixing_;
};
