#include "simulator/solvers/FVCvodeSolver.h"

#include "simulator/solvers/SolverErrors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace {

/// dy/dt = -y / timeConstant for each entry, with what the solver tells of its steps.
class Decay : public FVSystem {
public:
  explicit Decay(std::vector<double> initial) : FVSystem(0.0, false), state(std::move(initial)) {}
  std::size_t elementCount() const override { return state.size(); }
  void getState(std::vector<double>& y) const override { y = state; }
  void evaluate(double /*t*/, const double* y, double* dydt) override {
    for (std::size_t i = 0; i < state.size(); ++i) {
      startedFromZero = startedFromZero && dydt[i] == 0.0;
      state[i] = y[i];
      dydt[i] -= y[i] / timeConstant;
    }
  }
  void setState(const double* y) override {
    state.assign(y, y + state.size());
    ++statesSet;
  }
  void setRecordedState(const double* y) override { recorded.assign(y, y + state.size()); }
  void stepAccepted(double t) override {
    acceptedTimes.push_back(t);
    acceptedStates.push_back(recorded);
    if (stopAfterStep)
      stopRequested = true;
  }
  void solverRestarted() override { ++restarts; }

  std::vector<double> state;
  std::vector<double> recorded;
  std::vector<double> acceptedTimes;
  std::vector<std::vector<double>> acceptedStates; ///< as recorded at acceptedTimes
  double timeConstant = 10.0;
  bool startedFromZero = true;
  bool stopAfterStep = false;
  int restarts = 0;
  long statesSet = 0;
};

/// A right-hand side without a finite value.
class Undefined final : public Decay {
public:
  Undefined() : Decay({1.0}) {}
  void evaluate(double /*t*/, const double* /*y*/, double* dydt) override {
    dydt[0] = std::numeric_limits<double>::quiet_NaN();
  }
};

std::string cvodeErrorOf(FVCvodeSolver& solver, double tOut) {
  try {
    solver.advance(tOut);
  } catch (const CvodeError& error) {
    return error.what();
  }
  return "no error";
}

} // namespace

TEST(SolverErrors, textsNamePrefixCallAndStatus) {
  EXPECT_STREQ(CvodeError("CVode", -4).what(), "CvodeError:: CVode: -4");
  EXPECT_STREQ(KinsolError("KINSol", -1).what(), "KinsolError:: KINSol: -1");
}

TEST(FVCvodeSolver, startsFromTheStateOfTheSystemWithAZeroOutput) {
  Decay system({1.0, 2.0});
  const FVCvodeSolver solver(&system, 1e-6, 1e-6, 3.0);
  EXPECT_EQ(solver.initialState(), (std::vector<double>{1.0, 2.0}));
  EXPECT_EQ(solver.state(), (std::vector<double>{0.0, 0.0}));
  EXPECT_EQ(solver.startTime(), 3.0);
  EXPECT_EQ(solver.time(), 3.0);
  EXPECT_EQ(solver.steps(), 0);
  EXPECT_NE(system.solverMemory, nullptr);
}

TEST(FVCvodeSolver, integratesToExactlyTheTimeWanted) {
  Decay system({1.0, 2.0});
  FVCvodeSolver solver(&system, 1e-8, 1e-10, 0.0);
  solver.advance(7.0);
  EXPECT_EQ(solver.time(), 7.0);
  EXPECT_NEAR(solver.state()[0], std::exp(-0.7), 1e-6);
  EXPECT_NEAR(solver.state()[1], 2.0 * std::exp(-0.7), 1e-6);
  solver.advance(20.0);
  EXPECT_EQ(solver.time(), 20.0);
  EXPECT_NEAR(solver.state()[0], std::exp(-2.0), 1e-6);
}

TEST(FVCvodeSolver, tighterToleranceGivesSmallerErrors) {
  std::vector<double> errors;
  for (const double tolerance : {1e-4, 1e-6, 1e-8}) {
    Decay system({1.0});
    FVCvodeSolver solver(&system, tolerance, tolerance, 0.0);
    double largest = 0.0;
    for (double t = 1.0; t < 20.5; t += 1.0) {
      solver.advance(t);
      largest = std::max(largest, std::abs(solver.state()[0] - std::exp(-t / 10.0)));
    }
    errors.push_back(largest);
  }
  EXPECT_LT(errors[1], 0.2 * errors[0]);
  EXPECT_LT(errors[2], 0.2 * errors[1]);
}

TEST(FVCvodeSolver, handsAClearedDerivativeToTheSystem) {
  Decay system({1.0, 2.0});
  FVCvodeSolver solver(&system, 1e-6, 1e-6, 0.0);
  solver.advance(5.0);
  EXPECT_TRUE(system.startedFromZero);
}

TEST(FVCvodeSolver, tellsTheSystemOfEveryStep) {
  Decay system({1.0});
  FVCvodeSolver solver(&system, 1e-6, 1e-6, 0.0);
  solver.advance(5.0);
  ASSERT_EQ(static_cast<long>(system.acceptedTimes.size()), solver.steps());
  EXPECT_GT(solver.steps(), 5);
  EXPECT_EQ(system.acceptedTimes.back(), 5.0);
}

TEST(FVCvodeSolver, advanceToTheTimeReachedDoesNothing) {
  Decay system({1.0});
  FVCvodeSolver solver(&system, 1e-6, 1e-6, 0.0);
  solver.advance(5.0);
  const long steps = solver.steps();
  solver.advance(5.0);
  EXPECT_EQ(solver.steps(), steps);
  EXPECT_EQ(solver.time(), 5.0);
}

TEST(FVCvodeSolver, timeWithinRoundingOfTheTimeReachedIsTakenAsReached) {
  constexpr double century = 3.15576e9; // [s]
  Decay system({1.0});
  FVCvodeSolver solver(&system, 1e-6, 1e-6, 0.0);
  solver.advance(century);
  const long steps = solver.steps();
  for (const double t : {std::nextafter(century, 2.0 * century), century + 1e-5}) {
    solver.restart();
    solver.advance(t);
    EXPECT_EQ(solver.time(), t);
    EXPECT_EQ(solver.steps(), steps);
  }
  solver.advance(century + 1.0);
  EXPECT_EQ(solver.time(), century + 1.0);
  EXPECT_EQ(system.acceptedTimes.back(), century + 1.0);
}

TEST(FVCvodeSolver, timeBehindByARoundingIsTakenAsReached) {
  Decay system({1.0});
  FVCvodeSolver solver(&system, 1e-6, 1e-6, 0.0);
  solver.advance(5.0);
  solver.advance(std::nextafter(5.0, 0.0));
  EXPECT_EQ(solver.time(), 5.0);
}

TEST(FVCvodeSolver, runsThroughOneToTwentyFourPeriodsOfFiftyYears) {
  constexpr double year = 365.25 * 86400.0; // [s]
  for (int periods = 1; periods <= 24; ++periods) {
    Decay system({1.0});
    FVCvodeSolver solver(&system, 1e-3, 1e-3, 0.0);
    double end = 0.0; // gathers rounding, so that the years end a little before or behind it
    for (int cycle = 1; cycle <= 50; ++cycle) {
      for (int period = 0; period < periods; ++period) {
        end += year / periods;
        ASSERT_NO_THROW(solver.advance(end)) << periods << " periods, year " << cycle;
        ASSERT_NO_THROW(solver.restart());
      }
      ASSERT_NO_THROW(solver.advance(cycle * year)) << periods << " periods, year " << cycle;
    }
    EXPECT_NEAR(solver.time(), 50.0 * year, 1.0);
  }
}

TEST(FVCvodeSolver, handsTheAcceptedStateToTheSystemBeforeItTellsOfTheStep) {
  Decay system({1.0, 2.0});
  FVCvodeSolver solver(&system, 1e-6, 1e-6, 0.0);
  solver.advance(5.0);
  for (std::size_t k = 0; k < system.acceptedTimes.size(); ++k)
    EXPECT_NEAR(system.acceptedStates[k][1], 2.0 * std::exp(-system.acceptedTimes[k] / 10.0), 1e-5);
  EXPECT_EQ(system.acceptedStates.back(), solver.state());
}

TEST(FVCvodeSolver, handsTheWholeStateToTheSystemWhenItPauses) {
  Decay system({1.0, 2.0});
  FVCvodeSolver solver(&system, 1e-6, 1e-6, 0.0);
  solver.advance(5.0);
  EXPECT_EQ(system.state, solver.state());
  EXPECT_EQ(system.statesSet, 1);
  system.stopAfterStep = true;
  solver.advance(10.0);
  EXPECT_LT(solver.time(), 10.0);
  EXPECT_EQ(system.state, solver.state());
  EXPECT_EQ(system.statesSet, 2);
}

TEST(FVCvodeSolver, timeBehindTheIntegratorIsAnIllegalInput) {
  Decay system({1.0});
  FVCvodeSolver solver(&system, 1e-6, 1e-6, 0.0);
  solver.advance(5.0);
  EXPECT_EQ(cvodeErrorOf(solver, 4.0), "CvodeError:: CVode: -22");
  EXPECT_EQ(solver.status(), -22);
}

TEST(FVCvodeSolver, stopRequestBeforeAnAdvanceLeavesTheTime) {
  Decay system({1.0});
  FVCvodeSolver solver(&system, 1e-6, 1e-6, 2.0);
  system.stopRequested = true;
  solver.advance(5.0);
  EXPECT_EQ(solver.time(), 2.0);
  EXPECT_EQ(solver.steps(), 0);
}

TEST(FVCvodeSolver, stopRequestDuringAnAdvanceEndsItAfterTheStep) {
  Decay system({1.0});
  system.stopAfterStep = true;
  FVCvodeSolver solver(&system, 1e-6, 1e-6, 0.0);
  solver.advance(5.0);
  EXPECT_EQ(solver.steps(), 1);
  EXPECT_GT(solver.time(), 0.0);
  EXPECT_LT(solver.time(), 5.0);
}

TEST(FVCvodeSolver, restartGoesOnFromTheStateReachedAndTellsTheSystem) {
  Decay system({1.0});
  FVCvodeSolver solver(&system, 1e-8, 1e-10, 0.0);
  solver.advance(5.0);
  solver.restart();
  EXPECT_EQ(system.restarts, 1);
  EXPECT_EQ(solver.restarts(), 1);
  solver.advance(10.0);
  EXPECT_NEAR(solver.state()[0], std::exp(-1.0), 1e-6);
}

TEST(FVCvodeSolver, stepsAreSummedOverRestarts) {
  Decay system({1.0});
  FVCvodeSolver solver(&system, 1e-6, 1e-6, 0.0);
  solver.advance(5.0);
  const long before = solver.steps();
  solver.restart();
  EXPECT_EQ(solver.steps(), before);
  solver.advance(10.0);
  EXPECT_GT(solver.steps(), before);
  EXPECT_EQ(solver.steps(), static_cast<long>(system.acceptedTimes.size()));
}

TEST(FVCvodeSolver, undefinedRightHandSideEndsInAnErrorAndPrintsNothing) {
  Undefined system;
  FVCvodeSolver solver(&system, 1e-6, 1e-6, 0.0);
  testing::internal::CaptureStderr();
  testing::internal::CaptureStdout();
  const std::string text = cvodeErrorOf(solver, 5.0);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(text.substr(0, 20), "CvodeError:: CVode: ") << text;
  EXPECT_EQ(text, "CvodeError:: CVode: " + std::to_string(solver.status()));
  EXPECT_LT(solver.status(), 0);
}

TEST(FVCvodeSolver, illegalInputPrintsNothing) {
  Decay system({1.0});
  FVCvodeSolver solver(&system, 1e-6, 1e-6, 0.0);
  solver.advance(5.0);
  testing::internal::CaptureStderr();
  cvodeErrorOf(solver, 4.0);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(FVCvodeSolver, negativeToleranceIsRefusedByName) {
  Decay system({1.0});
  try {
    FVCvodeSolver solver(&system, -1.0, 1e-6, 0.0);
    FAIL() << "nothing thrown";
  } catch (const CvodeError& error) {
    EXPECT_STREQ(error.what(), "CvodeError:: CVodeSVtolerances: -22");
  }
}

TEST(RetryConvergence, triesThirtyThreeHundredAndThreeThousandIterations) {
  const std::atomic<bool> stop{false};
  std::vector<int> limits;
  const int status = retryConvergence(-4, stop, [&](int limit) {
    limits.push_back(limit);
    return -4;
  });
  EXPECT_EQ(status, -4);
  EXPECT_EQ(limits, (std::vector<int>{30, 300, 3000}));
}

TEST(RetryConvergence, endsWithTheFirstOtherAnswer) {
  const std::atomic<bool> stop{false};
  int calls = 0;
  EXPECT_EQ(retryConvergence(-4, stop, [&](int) { return ++calls == 2 ? 0 : -4; }), 0);
  EXPECT_EQ(calls, 2);
  EXPECT_EQ(retryConvergence(-4, stop, [&](int) { return -3; }), -3);
}

TEST(RetryConvergence, otherAnswersAreNotTriedAgain) {
  const std::atomic<bool> stop{false};
  for (const int status : {0, 1, 2, -3, -22})
    EXPECT_EQ(retryConvergence(status, stop, [](int) { return -99; }), status);
}

TEST(RetryConvergence, stopRequestEndsTheTries) {
  std::atomic<bool> stop{false};
  int calls = 0;
  const int status = retryConvergence(-4, stop, [&](int) {
    ++calls;
    stop = true;
    return -4;
  });
  EXPECT_EQ(status, -4);
  EXPECT_EQ(calls, 1);
}
