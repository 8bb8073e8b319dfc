#pragma once

#include "simulator/balance/FVSystem.h"
#include "simulator/solvers/LinearSolver.h"

#include <sundials/sundials_linearsolver.h>
#include <sundials/sundials_matrix.h>
#include <sundials/sundials_nvector.h>

#include <cstdint>
#include <memory>
#include <type_traits>
#include <vector>

class StructuredLinearSolver;

/// Advances one system in time with CVODE: variable-order BDF, Newton iteration, direct solver with
/// a difference-quotient Jacobian: over the links of the system, or the packaged band with the
/// system's `bandwidth` as half-width.
/// Nothing is printed; what goes wrong is told by CvodeError.
class FVCvodeSolver {
public:
  /// Prepares the integration from the system's present state. The system is not owned, outlives
  /// the solver and has one element at least. It knows the integrator as its `solverMemory` until
  /// the solver is destroyed. `relTol`: relative tolerance [-]; `absTol`: absolute tolerance of
  /// every entry [unit of the state]; `t0`: start time [s]. Throws CvodeError.
  FVCvodeSolver(FVSystem* model, double relTol, double absTol, double t0,
                LinearSolver kind = LinearSolver::Structured);
  FVCvodeSolver(const FVCvodeSolver&) = delete;
  FVCvodeSolver& operator=(const FVCvodeSolver&) = delete;
  ~FVCvodeSolver();

  /// Integrates step by step to exactly tOut [s], or until the system's stop request is seen,
  /// hands the system each accepted state, and tells it of every accepted step. A step that does
  /// not converge is tried again with 30, 300 and 3000 iterations. A time that differs from time()
  /// by rounding only is taken as reached, without a step. Throws CvodeError on any failure, also
  /// when tOut lies further behind the time that the integrator has reached.
  void advance(double tOut);
  /// Starts again at first order from the state and the time reached, so that the integrator does
  /// not step across a jump of the well rates. Throws CvodeError.
  void restart();

  double time() const { return tCurrent_; }   ///< time reached [s]
  double startTime() const { return t0_; }    ///< [s]
  int status() const { return status_; }      ///< last return value of a solver call
  long steps() const;                         ///< accepted steps, all restarts included
  long restarts() const { return restarts_; } ///< number of restart() calls
  /// Newton iterations that did not converge, all restarts included.
  long convergenceFailures() const;
  const std::vector<double>& initialState() const { return y0_; }
  /// State at time(); zeros before the first step.
  const std::vector<double>& state() const { return yOut_; }

private:
  struct ContextDeleter {
    void operator()(SUNContext context) const;
  };
  struct MatrixDeleter {
    void operator()(SUNMatrix matrix) const;
  };
  struct LinearSolverDeleter {
    void operator()(SUNLinearSolver solver) const;
  };
  struct MemoryDeleter {
    void operator()(void* memory) const;
  };
  struct VectorDeleter {
    void operator()(N_Vector vector) const;
  };
  template <class Handle, class Deleter>
  using Owned = std::unique_ptr<std::remove_pointer_t<Handle>, Deleter>;
  using Vector = Owned<N_Vector, VectorDeleter>;

  Vector wrap(std::vector<double>& values) const;
  void createMemory();
  void attachLinearSolver();
  void attachBandSolver();
  void attachStructuredSolver();
  void check(int status, const char* call);
  int oneStep(double tOut);
  long stepsSinceRestart() const;
  long convergenceFailuresSinceRestart() const;

  FVSystem* model_;
  LinearSolver kind_;
  double relTol_;
  int status_ = 0;
  double t0_;
  double tCurrent_;
  long finishedSteps_ = 0;           ///< before the last restart
  long pastConvergenceFailures_ = 0; ///< likewise
  long restarts_ = 0;
  // In this order, since the last declared is destroyed first: the vectors, the integrator, its
  // linear algebra, and the lists that the vectors look into.
  Owned<SUNContext, ContextDeleter> context_;
  std::vector<double> y0_;
  std::vector<double> yOut_;
  std::vector<double> absTol_;
  std::unique_ptr<StructuredLinearSolver> structured_; ///< null with the packaged solver
  Owned<SUNMatrix, MatrixDeleter> matrix_;
  Owned<SUNLinearSolver, LinearSolverDeleter> linearSolver_;
  std::unique_ptr<void, MemoryDeleter> memory_;
  Vector y0Vector_;
  Vector yOutVector_;
  Vector absTolVector_;
};

/// Repeats a failing step with a growing limit of iterations: `step(limit)` is called with 30,
/// 300 and 3000 as long as it answers -4 (no convergence) and no stop is requested. `status` is
/// the answer of the first try; any other answer than -4 is returned as it is.
template <class Step>
int retryConvergence(int status, const std::atomic<bool>& stopRequested, Step step) {
  constexpr int convergenceFailure = -4;
  int limit = 3;
  while (status == convergenceFailure && limit <= 300 &&
         !stopRequested.load(std::memory_order_relaxed)) {
    limit *= 10;
    status = step(limit);
  }
  return status;
}
