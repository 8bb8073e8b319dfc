#include "simulator/solvers/FVCvodeSolver.h"
#include "simulator/solvers/SolverErrors.h"

#include <cvode/cvode.h>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

/// One stiff state that is pulled to a resting place: dy/dt = -stiffness * (e + bend * b + push)
/// with e = y - rest, and b the part of e below a kink. The push leads below the kink, while the
/// Jacobian, a quotient towards larger values, knows the slope above it only. Each Newton
/// iteration therefore leaves the share `bend` of the error, however short the step is. The state
/// is of the size of the absolute tolerance 1, which lets the error test pass.
class BentSpring final : public FVSystem {
public:
  BentSpring() : FVSystem(0.0, false) {}
  std::size_t elementCount() const override { return 1; }
  void getState(std::vector<double>& y) const override { y = {state_}; }
  void evaluate(double /*t*/, const double* y, double* dydt) override {
    constexpr double kink = -1e-2;
    state_ = y[0];
    const double e = state_ - rest_;
    const double below = e < kink ? e - kink : 0.0;
    dydt[0] += -stiffness * (e + bend_ * below + push_);
  }
  void stepAccepted(double /*t*/) override {
    if (failuresAtFirstStep_ < 0)
      failuresAtFirstStep_ = failures();
  }

  /// Rests for a second from a restart on, so that every push meets the same order of the
  /// integrator, and pushes for another one. Returns how often the Newton iteration of the first
  /// step under the push did not converge.
  long failuresOfPush(FVCvodeSolver& solver, double shareLeft) {
    rest_ = state_;
    bend_ = push_ = 0.0;
    solver.restart();
    solver.advance(solver.time() + 1.0);
    const long before = failures();
    failuresAtFirstStep_ = -1;
    bend_ = shareLeft;
    push_ = 2.0;
    solver.advance(solver.time() + 1.0);
    return failuresAtFirstStep_ - before;
  }

private:
  static constexpr double stiffness = 1e15;

  long failures() const {
    long count = 0;
    CVodeGetNumNonlinSolvConvFails(solverMemory, &count);
    return count;
  }

  double state_ = 0.0;
  double rest_ = 0.0;
  double bend_ = 0.0;
  double push_ = 0.0;
  long failuresAtFirstStep_ = 0;
};

class PushedSpring : public testing::Test {
protected:
  PushedSpring() { solver.advance(1.0); }
  BentSpring spring;
  FVCvodeSolver solver{&spring, 1e-12, 1.0, 0.0};
};

/// The integrator tries a step ten times, each time shorter, before it reports no convergence; the
/// iteration with the Jacobian of an earlier step counts once more.
constexpr long failuresOfOneLimit = 11;

/// Share of its error that an iteration leaves, from which on three do not do.
constexpr double leastShareForFourIterations = 0.465;

} // namespace

TEST_F(PushedSpring, stepThatNeedsMoreThanThreeIterationsIsSolvedWithThirty) {
  EXPECT_EQ(spring.failuresOfPush(solver, 0.7), failuresOfOneLimit);
}

TEST_F(PushedSpring, stepThatNeedsMoreThanThirtyIterationsIsSolvedWithThreeHundred) {
  EXPECT_EQ(spring.failuresOfPush(solver, 0.97), 2 * failuresOfOneLimit);
}

TEST_F(PushedSpring, stepWithinThreeIterationsIsSolvedAtOnce) {
  EXPECT_EQ(spring.failuresOfPush(solver, 0.0), 0);
}

TEST_F(PushedSpring, limitIsThreeAgainAfterAStepThatNeededThirty) {
  EXPECT_EQ(spring.failuresOfPush(solver, 0.7), failuresOfOneLimit);
  EXPECT_EQ(spring.failuresOfPush(solver, 0.7), failuresOfOneLimit);
}

TEST_F(PushedSpring, convergenceFailuresAreSummedOverRestarts) {
  spring.failuresOfPush(solver, 0.7);
  const long before = solver.convergenceFailures();
  EXPECT_GE(before, failuresOfOneLimit);
  solver.restart();
  EXPECT_EQ(solver.convergenceFailures(), before);
  spring.failuresOfPush(solver, 0.7);
  EXPECT_GE(solver.convergenceFailures(), before + failuresOfOneLimit);
}

/// Just below the share of the error that three iterations can leave, and just above it.
TEST_F(PushedSpring, stepWithinExactlyThreeIterationsIsSolvedAtOnce) {
  EXPECT_EQ(spring.failuresOfPush(solver, leastShareForFourIterations - 0.005), 0);
}

TEST_F(PushedSpring, stepThatNeedsAFourthIterationIsNotSolvedAtOnce) {
  EXPECT_EQ(spring.failuresOfPush(solver, leastShareForFourIterations + 0.005), failuresOfOneLimit);
}

namespace {

/// A state at rest, which is then so far from its resting place that it gets there in a step of
/// any length: no step passes the error test.
class JumpingSpring final : public FVSystem {
public:
  JumpingSpring() : FVSystem(0.0, false) {}
  std::size_t elementCount() const override { return 1; }
  void getState(std::vector<double>& y) const override { y = {0.0}; }
  void evaluate(double /*t*/, const double* y, double* dydt) override {
    constexpr double stiffness = 1e12;
    dydt[0] -= stiffness * (y[0] - rest);
  }
  void stepAccepted(double /*t*/) override {}

  double rest = 0.0;
};

} // namespace

TEST(IntegratorLimits, stepIsGivenUpAfterSevenFailedErrorTests) {
  JumpingSpring spring;
  FVCvodeSolver solver(&spring, 1e-12, 1.0, 0.0);
  solver.advance(1.0);
  spring.rest = 1e3;
  try {
    solver.advance(2.0);
    ADD_FAILURE() << "no error";
  } catch (const CvodeError& error) {
    EXPECT_STREQ(error.what(), "CvodeError:: CVode: -3");
  }
  long failures = 0;
  CVodeGetNumErrTestFails(spring.solverMemory, &failures);
  EXPECT_EQ(failures, 7);
}

TEST(IntegratorLimits, handleInTheSystemIsTheOneOfTheIntegrator) {
  BentSpring spring;
  FVCvodeSolver solver(&spring, 1e-6, 1e-6, 0.0);
  solver.advance(5.0);
  long steps = 0;
  ASSERT_EQ(CVodeGetNumSteps(spring.solverMemory, &steps), CV_SUCCESS);
  EXPECT_GT(steps, 0);
  EXPECT_EQ(steps, solver.steps());
}

TEST(IntegratorLimits, handleInTheSystemIsGoneWithTheIntegrator) {
  BentSpring spring;
  { const FVCvodeSolver solver(&spring, 1e-6, 1e-6, 0.0); }
  EXPECT_EQ(spring.solverMemory, nullptr);
}

TEST(IntegratorLimits, integratorThatCannotBePreparedLeavesNoHandle) {
  BentSpring spring;
  EXPECT_THROW(FVCvodeSolver(&spring, -1.0, 1e-6, 0.0), CvodeError);
  EXPECT_EQ(spring.solverMemory, nullptr);
}

TEST(IntegratorLimits, handleOfALaterIntegratorStays) {
  BentSpring spring;
  auto first = std::make_unique<FVCvodeSolver>(&spring, 1e-6, 1e-6, 0.0);
  const FVCvodeSolver second(&spring, 1e-6, 1e-6, 0.0);
  const void* handle = spring.solverMemory;
  first.reset();
  EXPECT_NE(handle, nullptr);
  EXPECT_EQ(spring.solverMemory, handle);
}
