#include "simulator/solvers/FVCvodeSolver.h"

#include "simulator/solvers/SolverErrors.h"
#include "simulator/solvers/StructuredLinearSolver.h"
#include "simulator/solvers/VectorOperations.h"

#include <cvode/cvode.h>
#include <cvode/cvode_ls.h>
#include <nvector/nvector_serial.h>
#include <sundials/sundials_context.h>
#include <sunlinsol/sunlinsol_band.h>
#include <sunmatrix/sunmatrix_band.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

int rightHandSide(double t, N_Vector y, N_Vector ydot, void* userData) {
  N_VConst(0.0, ydot);
  static_cast<FVSystem*>(userData)->evaluate(t, N_VGetArrayPointer(y), N_VGetArrayPointer(ydot));
  return 0;
}

int flatRightHandSide(double t, N_Vector y, N_Vector ydot, void* userData) {
  auto& system = *static_cast<FVSystem*>(userData);
  const double* state = N_VGetArrayPointer(y);
  system.evaluateWithInflow(t, state, N_VGetArrayPointer(ydot), system.inflowValue(state));
  return 0;
}

// The integrator refuses intervals of a few roundings of the time; 100 are what it takes for
// rounding itself.
bool isReached(double tOut, double tCurrent) {
  constexpr double roundings = 100.0 * std::numeric_limits<double>::epsilon();
  return std::abs(tOut - tCurrent) <= roundings * std::max(std::abs(tOut), std::abs(tCurrent));
}

// Failures reach the user through CvodeError; CVODE's own lines on standard error would only
// repeat them.
void ignoreMessage(int /*code*/, const char* /*module*/, const char* /*function*/,
                   char* /*message*/, void* /*data*/) {}

/// Hands a system the state reached when the scope ends, by an exception too, if time has gone on.
class StateHandOver {
public:
  StateHandOver(FVSystem& system, const std::vector<double>& state, const double& time)
      : system_(system), state_(state), time_(time), start_(time) {}
  StateHandOver(const StateHandOver&) = delete;
  StateHandOver& operator=(const StateHandOver&) = delete;
  ~StateHandOver() {
    if (time_ > start_)
      system_.setState(state_.data());
  }

private:
  FVSystem& system_;
  const std::vector<double>& state_;
  const double& time_;
  const double start_;
};

SUNContext makeContext() {
  SUNContext context = nullptr;
  const int status = SUNContext_Create(nullptr, &context);
  if (status < 0)
    throw CvodeError("SUNContext_Create", status);
  return context;
}

} // namespace

void FVCvodeSolver::ContextDeleter::operator()(SUNContext context) const {
  SUNContext_Free(&context);
}

void FVCvodeSolver::MatrixDeleter::operator()(SUNMatrix matrix) const {
  SUNMatDestroy(matrix);
}

void FVCvodeSolver::LinearSolverDeleter::operator()(SUNLinearSolver solver) const {
  SUNLinSolFree(solver);
}

void FVCvodeSolver::MemoryDeleter::operator()(void* memory) const {
  CVodeFree(&memory);
}

void FVCvodeSolver::VectorDeleter::operator()(N_Vector vector) const {
  N_VDestroy(vector);
}

FVCvodeSolver::FVCvodeSolver(FVSystem* model, double relTol, double absTol, double t0,
                             LinearSolver kind)
    : model_(model), kind_(kind), relTol_(relTol), t0_(t0), tCurrent_(t0), context_(makeContext()),
      y0_(model->elementCount(), 0.0), yOut_(model->elementCount(), 0.0),
      absTol_(model->elementCount(), absTol) {
  model->getState(y0_);
  y0Vector_ = wrap(y0_);
  yOutVector_ = wrap(yOut_);
  absTolVector_ = wrap(absTol_);
  createMemory();
  attachLinearSolver();
  model->solverMemory = memory_.get();
}

FVCvodeSolver::~FVCvodeSolver() {
  if (model_->solverMemory == memory_.get())
    model_->solverMemory = nullptr;
}

FVCvodeSolver::Vector FVCvodeSolver::wrap(std::vector<double>& values) const {
  Vector vector(
      N_VMake_Serial(static_cast<sunindextype>(values.size()), values.data(), context_.get()));
  if (vector && kind_ == LinearSolver::Structured)
    useFastOperations(vector.get());
  return vector;
}

void FVCvodeSolver::createMemory() {
  memory_.reset(CVodeCreate(CV_BDF, context_.get()));
  if (!memory_)
    throw CvodeError("CVodeCreate", status_);
  CVodeSetErrHandlerFn(memory_.get(), ignoreMessage, nullptr);
  check(CVodeInit(memory_.get(),
                  kind_ == LinearSolver::Structured ? flatRightHandSide : rightHandSide, t0_,
                  y0Vector_.get()),
        "CVodeInit");
  check(CVodeSVtolerances(memory_.get(), relTol_, absTolVector_.get()), "CVodeSVtolerances");
  check(CVodeSetUserData(memory_.get(), model_), "CVodeSetUserData");
}

void FVCvodeSolver::attachLinearSolver() {
  if (kind_ == LinearSolver::Structured)
    attachStructuredSolver();
  else
    attachBandSolver();
}

void FVCvodeSolver::attachBandSolver() {
  const auto count = static_cast<sunindextype>(y0_.size());
  const sunindextype halfWidth = model_->bandwidth;
  matrix_.reset(SUNBandMatrix(count, halfWidth, halfWidth, context_.get()));
  if (matrix_)
    linearSolver_.reset(SUNLinSol_Band(y0Vector_.get(), matrix_.get(), context_.get()));
  if (!linearSolver_)
    throw CvodeError("CVBand", CVLS_MEM_FAIL);
  check(CVodeSetLinearSolver(memory_.get(), linearSolver_.get(), matrix_.get()), "CVBand");
}

void FVCvodeSolver::attachStructuredSolver() {
  structured_ = std::make_unique<StructuredLinearSolver>(*model_);
  matrix_.reset(structured_->makeMatrix(context_.get()));
  linearSolver_.reset(structured_->makeSolver(context_.get()));
  if (!matrix_ || !linearSolver_)
    throw CvodeError("CVodeSetLinearSolver", CVLS_MEM_FAIL);
  check(structured_->attach(memory_.get(), linearSolver_.get(), matrix_.get()),
        "CVodeSetLinearSolver");
}

void FVCvodeSolver::check(int status, const char* call) {
  status_ = status;
  if (status < 0)
    throw CvodeError(call, status);
}

int FVCvodeSolver::oneStep(double tOut) {
  return CVode(memory_.get(), tOut, yOutVector_.get(), &tCurrent_, CV_ONE_STEP);
}

void FVCvodeSolver::advance(double tOut) {
  constexpr int firstIterationLimit = 3;
  if (tOut != tCurrent_ && isReached(tOut, tCurrent_)) {
    tCurrent_ = std::max(tOut, tCurrent_);
    return;
  }
  model_->prepareAdvance();
  check(CVodeSetStopTime(memory_.get(), tOut), "CVode");
  check(CVodeSetMaxErrTestFails(memory_.get(), 7), "CVode");
  check(CVodeSetStopTime(memory_.get(), tOut), "CVode");
  const StateHandOver handOver(*model_, yOut_, tCurrent_);
  while (tOut > tCurrent_) {
    if (model_->stopRequested.load(std::memory_order_relaxed))
      return;
    check(CVodeSetMaxNonlinIters(memory_.get(), firstIterationLimit), "CVode");
    status_ = retryConvergence(oneStep(tOut), model_->stopRequested, [&](int limit) {
      CVodeSetMaxNonlinIters(memory_.get(), limit);
      return oneStep(tOut);
    });
    check(status_, "CVode");
    // The state evaluated last may be a trial that was not accepted.
    model_->setRecordedState(yOut_.data());
    model_->stepAccepted(tCurrent_);
  }
}

void FVCvodeSolver::restart() {
  const long stepsBefore = stepsSinceRestart();
  const long failuresBefore = convergenceFailuresSinceRestart();
  check(CVodeReInit(memory_.get(), tCurrent_, yOutVector_.get()), "CVode");
  finishedSteps_ += stepsBefore;
  pastConvergenceFailures_ += failuresBefore;
  ++restarts_;
  check(CVodeSVtolerances(memory_.get(), relTol_, absTolVector_.get()), "CVodeSVtolerances");
  model_->solverRestarted();
}

long FVCvodeSolver::stepsSinceRestart() const {
  long count = 0;
  CVodeGetNumSteps(memory_.get(), &count);
  return count;
}

long FVCvodeSolver::convergenceFailuresSinceRestart() const {
  long count = 0;
  CVodeGetNumNonlinSolvConvFails(memory_.get(), &count);
  return count;
}

long FVCvodeSolver::steps() const {
  return finishedSteps_ + stepsSinceRestart();
}

long FVCvodeSolver::convergenceFailures() const {
  return pastConvergenceFailures_ + convergenceFailuresSinceRestart();
}
