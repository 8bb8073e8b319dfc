// How far the state that an integrator evaluated last lies from the one that it accepted.

#include "simulator/FVCvodeSolver.h"
#include "verification/Cases.h"
#include "verification/Report.h"
#include "verification/VerificationSite.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace Verification {

namespace {

/// Stands between an integrator and a model, and compares each accepted state with the one that was
/// evaluated last.
class WatchedModel final : public FVSystem {
public:
  explicit WatchedModel(FVSystem& model)
      : FVSystem(model.referenceValue, model.closedLoop), model_(model) {
    bandwidth = model.bandwidth;
  }

  std::size_t elementCount() const override { return model_.elementCount(); }
  void getState(std::vector<double>& y) const override { model_.getState(y); }
  void evaluate(double t, const double* y, double* dydt) override {
    evaluated_.assign(y, y + elementCount());
    model_.evaluate(t, y, dydt);
  }
  void setState(const double* y) override {
    for (std::size_t i = 0; i < evaluated_.size(); ++i)
      largest_ = std::max(largest_, std::abs(y[i] - evaluated_[i]));
    model_.setState(y);
  }
  void stepAccepted(double t) override { model_.stepAccepted(t); }

  double largest() const { return largest_; }

private:
  FVSystem& model_;
  std::vector<double> evaluated_;
  double largest_ = 0.0;
};

/// Largest difference over all cells and steps of a year of a doublet with exchange [K].
double largestDifference(double tolerance) {
  const FVGridLine line = SiteFixtures::lineOf({20.0, 10.0, 5.0, 2.0, 1.0, 2.0, 5.0, 10.0, 20.0});
  Setup setup;
  setup.gradient = -20.0;
  setup.exchangeFactor = 2.0;
  const auto site =
      makeSite(FVMesh(line, line, aquiferThickness),
               {Well(0, 15.0, 37.5, -0.0005), Well(1, 60.0, 37.5, 0.0005, 5.0)}, setup);
  site->solveGroundwater(year, 1e-6, 1e-6);
  site->updateHeatFlows();
  WatchedModel watched(site->heat);
  FVCvodeSolver solver(&watched, tolerance, tolerance, 0.0, LinearSolver::Reference);
  solver.advance(year);
  return watched.largest();
}

} // namespace

void reportAcceptedState(Report& report) {
  report.section("Accepted and last evaluated state");
  report.text("What a run records and shows is the state at the end of a step that the integrator "
              "has accepted. With the packaged solver each evaluation of the balance writes its "
              "state into the cells, and the last one before a step is accepted is a trial, short "
              "of the last correction of the Newton iteration. (The own solver evaluates flat "
              "arrays, and writes nothing but accepted states.) A doublet with exchange on both "
              "sides over one year, largest difference between the two states over all cells and "
              "all steps:");
  std::vector<std::vector<std::string>> rows;
  for (const double tolerance : {1e-4, 1e-6, 1e-7, 1e-8})
    rows.push_back({number(tolerance), number(largestDifference(tolerance))});
  report.table({"tolerance", "difference [K]"}, rows);
  report.text("It falls with the tolerance, and stays below a thousandth of a degree at the "
              "tolerances that are usual: small, but more than the error of the accepted state.");
}

TEST(AcceptedState, differsFromTheLastEvaluatedOneByLessThanAThousandthOfADegree) {
  const double difference = largestDifference(1e-7);
  EXPECT_GT(difference, 0.0);
  EXPECT_LT(difference, 1e-3);
}

} // namespace Verification
