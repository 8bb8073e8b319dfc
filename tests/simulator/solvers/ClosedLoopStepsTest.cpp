#include "simulator/solvers/FVCvodeSolver.h"
#include "support/WellField.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <ostream>
#include <string>

namespace {

double largestDifference(const FVGeothermSite& one, const FVGeothermSite& other) {
  double largest = 0.0;
  for (std::size_t i = 0; i < one.heat.elementCount(); ++i)
    largest = std::max(largest, std::abs(one.temperature(i) - other.temperature(i)));
  return largest;
}

struct NearWells {
  std::string name;
  WellField field;

  friend void PrintTo(const NearWells& setup, std::ostream* out) { *out << setup.name; }
};

class ClosedLoopOfNearWells : public testing::TestWithParam<NearWells> {};

} // namespace

TEST_P(ClosedLoopOfNearWells, takesHardlyMoreStepsThanWithTheWholeMatrix) {
  const HeatRun own = runStructured(GetParam().field);
  const HeatRun packaged = runWholeMatrix(GetParam().field);
  EXPECT_LE(static_cast<double>(own.steps), 1.2 * static_cast<double>(packaged.steps));
  EXPECT_EQ(own.failures, 0);
  EXPECT_LT(largestDifference(*own.site, *packaged.site), 1e-4); // [K]
}

INSTANTIATE_TEST_SUITE_P(
    Fields, ClosedLoopOfNearWells,
    testing::Values(
        NearWells{"halfAMetre", {.distance = 0.5, .years = 5, .cells = 900}},
        NearWells{"aMetreAcrossRows", {.distance = 1.0, .rows = 2, .years = 5, .cells = 900}},
        NearWells{"aMetreThinAndChanging",
                  {.distance = 1.0,
                   .rows = 2,
                   .periods = 12,
                   .years = 1,
                   .thickness = 1.0,
                   .cells = 900}},
        NearWells{"tenMetresAndMuchWater", {.distance = 10.0, .rows = 2, .years = 5, .rate = 0.02}},
        NearWells{"fiveMetresWithExchange",
                  {.distance = 5.0, .rows = 2, .years = 5, .exchange = 2.0, .cells = 900}},
        NearWells{"twentyWells", {.distance = 1.0, .wells = 20, .rows = 4, .years = 5}}),
    [](const auto& instance) { return instance.param.name; });

/// Or a test against it would say little.
TEST(WholeMatrix, takesTheStepsOfAPackagedBandAsWideAsTheMatrix) {
  const WellField field{.distance = 1.0, .rows = 2, .years = 2, .cells = 60};
  const HeatRun whole = runWholeMatrix(field);
  const auto band = field.site(LinearSolver::Reference);
  band->heat.bandwidth = static_cast<std::int32_t>(band->heat.elementCount()) - 1;
  for (int step = 0; step < field.outputTimes(); ++step)
    field.advance(*band, step);
  const auto steps = static_cast<double>(band->heatSteps());
  EXPECT_NEAR(static_cast<double>(whole.steps), steps, 0.05 * steps);
  EXPECT_LT(largestDifference(*whole.site, *band), 1e-5); // [K]
}
