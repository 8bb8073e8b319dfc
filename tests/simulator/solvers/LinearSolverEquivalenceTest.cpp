#include "simulator/SiteFixtures.h"
#include "simulator/mesh/MeshGeneration.h"
#include "simulator/models/FVGeothermSite.h"
#include "simulator/solvers/FVCvodeSolver.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace {

constexpr double year = 365.25 * 86400.0; // [s]
constexpr double pascalPerMetre = 9.81 * SiteFixtures::waterDensity;

/// Relative and absolute, of either model.
struct Tolerances {
  double water = 1e-6;
  double heat = 1e-6;
};

/// A site and the way it is driven, run with both linear solvers.
struct Case {
  std::string name;
  SiteFixtures::SiteOptions options;
  double thickness = 10.0; // [m]
  int years = 5;
  int periods = 1;
  bool isFine = false;      // cells of one metre, so many that the core is solved by iteration
  double injectionY = 11.5; // the production well stands at y = 8.5 [m]
  Tolerances tolerances{};

  friend void PrintTo(const Case& setup, std::ostream* out) { *out << setup.name; }
};

FVMesh meshOf(const Case& setup) {
  if (setup.isFine)
    return FVMesh(SiteFixtures::lineOf(std::vector<double>(44, 1.0)),
                  SiteFixtures::lineOf(std::vector<double>(42, 1.0)), setup.thickness);
  return FVMesh(SiteFixtures::lineOf({10.0, 6.0, 2.0, 1.0, 3.0, 1.0, 2.0, 8.0}),
                SiteFixtures::lineOf({5.0, 3.0, 1.0, 2.0, 1.0, 4.0}), setup.thickness);
}

std::vector<Well> wellsOf(const Case& setup) {
  const double rate = 2e-5 * setup.thickness; // [m3/s]
  std::vector<Well> wells{Well(0, 18.5, 8.5, -rate), Well(1, 22.5, setup.injectionY, rate, 5.0)};
  for (int period = 0; setup.periods > 1 && period < setup.periods; ++period) {
    const double share = std::cos(6.28 * period / setup.periods);
    for (Well& well : wells) {
      well.setRate(period, well.id() == 0 ? -rate * share : rate * share);
      well.setTemperatureChange(period, share > 0.0 ? 5.0 : -3.0);
    }
  }
  return wells;
}

/// What a run is solved with. The packaged solver sees the whole matrix in FullBand; with the
/// mesh's own band, links of the chains and the mixing of water fold into wrong places.
enum class Solver { Structured, PackagedBand, PackagedFullBand };

std::unique_ptr<FVGeothermSite> run(const Case& setup, Solver solver) {
  SiteFixtures::SiteOptions options = setup.options;
  options.linearSolver =
      solver == Solver::Structured ? LinearSolver::Structured : LinearSolver::Reference;
  auto site = SiteFixtures::makeSite(meshOf(setup), wellsOf(setup), options);
  if (solver == Solver::PackagedFullBand)
    site->heat.bandwidth = static_cast<std::int32_t>(site->heat.elementCount()) - 1;
  for (int step = 0; step < setup.years * setup.periods; ++step) {
    const double t = (step + 1) * year / setup.periods;
    site->setDemandStep(step % setup.periods);
    site->solveGroundwater(t, setup.tolerances.water, setup.tolerances.water);
    site->solveHeat(t, true, setup.tolerances.heat, setup.tolerances.heat);
  }
  return site;
}

double largestDifference(std::size_t count, const std::function<double(std::size_t)>& difference) {
  double largest = 0.0;
  for (std::size_t i = 0; i < count; ++i)
    largest = std::max(largest, std::abs(difference(i)));
  return largest;
}

void expectStepsWithinATenth(long one, long other) {
  EXPECT_NEAR(static_cast<double>(one), static_cast<double>(other),
              0.1 * static_cast<double>(other));
}

void expectSameState(const FVGeothermSite& one, const FVGeothermSite& other) {
  EXPECT_LE(largestDifference(one.heat.elementCount(),
                              [&](auto i) { return one.temperature(i) - other.temperature(i); }),
            3e-4); // [K]
  EXPECT_LE(largestDifference(one.groundwater.elementCount(),
                              [&](auto i) {
                                return (one.pressureChange(i) - other.pressureChange(i)) /
                                       pascalPerMetre;
                              }),
            1e-5); // [m]
}

class LinearSolvers : public testing::TestWithParam<Case> {};

Case plainCase() {
  return {.name = "plain", .options = {.closedLoop = false}};
}

Case exchangeCase() {
  return {.name = "withExchange", .options = {.exchangeFactor = 2.0, .closedLoop = false}};
}

Case dispersionCase() {
  return {.name = "withDispersion",
          .options = {.dispersivity = 3.0, .exchangeFactor = 1.0, .closedLoop = false}};
}

Case periodsCase() {
  return {.name = "fourPeriods",
          .options = {.exchangeFactor = 2.0, .closedLoop = false},
          .years = 2,
          .periods = 4};
}

/// Wells in one row, so that the band of the packaged solver holds the mixing term.
Case closedLoopCase() {
  return {.name = "closedLoop", .options = {.exchangeFactor = 1.0}, .injectionY = 8.5};
}

/// Wells in different rows: the mixing term lies outside the band of the packaged solver.
Case crossedLoopCase() {
  return {.name = "closedLoopAcrossRows", .options = {.exchangeFactor = 1.0}};
}

Case fineCase() {
  return {.name = "fineMesh", .options = {.closedLoop = false}, .years = 1, .isFine = true};
}

/// At a wider tolerance rounding decides whether a year near the steady state takes one step or
/// two.
Case thinCase() {
  return {.name = "oneMetreThickForACentury",
          .options = {.exchangeFactor = 2.0, .closedLoop = false},
          .thickness = 1.0,
          .years = 100,
          .tolerances = {.heat = 1e-7}};
}

/// Before rounding has a say the steps are the same at the wider tolerance too.
Case thinDecadeCase() {
  return {.name = "oneMetreThickForADecade",
          .options = {.exchangeFactor = 2.0, .closedLoop = false},
          .thickness = 1.0,
          .years = 10};
}

Case fineCrossedLoopCase() {
  return {.name = "fineMeshWithClosedLoopAcrossRows",
          .options = {.exchangeFactor = 1.0},
          .years = 2,
          .periods = 4,
          .isFine = true};
}

Case fineThinCase() {
  return {.name = "fineMeshOneMetreThickForACentury",
          .options = {.exchangeFactor = 2.0, .closedLoop = false},
          .thickness = 1.0,
          .years = 100,
          .isFine = true,
          .tolerances = {.heat = 1e-7}};
}

std::string nameOf(const testing::TestParamInfo<Case>& instance) {
  return instance.param.name;
}

} // namespace

TEST_P(LinearSolvers, agreeWithThePackagedSolverOfTheWholeMatrix) {
  const auto structured = run(GetParam(), Solver::Structured);
  const auto packaged = run(GetParam(), Solver::PackagedFullBand);
  expectSameState(*structured, *packaged);
  expectStepsWithinATenth(structured->groundwaterSteps(), packaged->groundwaterSteps());
  expectStepsWithinATenth(structured->heatSteps(), packaged->heatSteps());
}

INSTANTIATE_TEST_SUITE_P(Sites, LinearSolvers,
                         testing::Values(plainCase(), exchangeCase(), dispersionCase(),
                                         periodsCase(), closedLoopCase(), crossedLoopCase(),
                                         thinCase(), thinDecadeCase()),
                         nameOf);

/// Or the cases of a closed loop would say nothing of the mixing term.
TEST(ClosedLoopCases, injectWaterThatTheLoopHasWarmed) {
  for (Case setup : {closedLoopCase(), crossedLoopCase(), fineCrossedLoopCase()}) {
    const auto closed = run(setup, Solver::Structured);
    setup.options.closedLoop = false;
    const auto open = run(setup, Solver::Structured);
    EXPECT_GT(
        largestDifference(closed->groundwater.elementCount(),
                          [&](auto i) { return closed->temperature(i) - open->temperature(i); }),
        0.5) // [K]
        << setup.name;
  }
}

class StructuredSolverAlone : public testing::TestWithParam<Case> {};

TEST_P(StructuredSolverAlone, hasNoConvergenceFailure) {
  const auto site = run(GetParam(), Solver::Structured);
  EXPECT_EQ(site->groundwaterSolver()->convergenceFailures(), 0);
  EXPECT_EQ(site->heatSolver()->convergenceFailures(), 0);
}

TEST_P(StructuredSolverAlone, isAccurateAtTheTolerancesOfABatchFile) {
  const auto runAt = [](const Tolerances& tolerances) {
    Case setup = GetParam();
    setup.tolerances = tolerances;
    return run(setup, Solver::Structured);
  };
  const auto usual = runAt({1e-5, 1e-7});
  const auto fine = runAt({1e-10, 1e-10});
  const auto difference = [&](std::size_t i) {
    return usual->temperature(i) - fine->temperature(i);
  };
  const std::size_t cells = usual->groundwater.elementCount();
  double squares = 0.0;
  for (std::size_t i = 0; i < cells; ++i)
    squares += difference(i) * difference(i);
  const bool isSteady = GetParam().periods == 1;
  EXPECT_LE(largestDifference(cells, difference), isSteady ? 1e-4 : 2e-4); // [K]
  const double rootMeanSquare = std::sqrt(squares / static_cast<double>(cells));
  EXPECT_LE(rootMeanSquare, isSteady ? 5e-6 : 2e-4);
}

INSTANTIATE_TEST_SUITE_P(Sites, StructuredSolverAlone,
                         testing::Values(plainCase(), exchangeCase(), dispersionCase(),
                                         periodsCase(), closedLoopCase(), crossedLoopCase(),
                                         thinCase(), fineCase(), fineCrossedLoopCase(),
                                         fineThinCase()),
                         nameOf);

class PackagedBand : public testing::TestWithParam<Case> {};

TEST_P(PackagedBand, agreesButTakesNoFewerSteps) {
  const auto structured = run(GetParam(), Solver::Structured);
  const auto packaged = run(GetParam(), Solver::PackagedBand);
  expectSameState(*structured, *packaged);
  expectStepsWithinATenth(structured->groundwaterSteps(), packaged->groundwaterSteps());
  EXPECT_LE(static_cast<double>(structured->heatSteps()),
            1.1 * static_cast<double>(packaged->heatSteps()));
}

INSTANTIATE_TEST_SUITE_P(Sites, PackagedBand,
                         testing::Values(plainCase(), exchangeCase(), dispersionCase(),
                                         periodsCase(), closedLoopCase(), crossedLoopCase(),
                                         fineCase()),
                         nameOf);

/// Wells in line that were turned by a slanting angle differ by a rounding, and so the mesh between
/// them has cells of next to no width.
TEST(StructuredSolver, runsOverCellsOfNextToNoWidth) {
  const double y = 8.5;
  std::vector<Well> wells{Well(0, 18.5, y, -2e-4), Well(1, 22.5, y + 4e-15, 2e-4, 5.0)};
  const std::vector<Well*> pointers{&wells[0], &wells[1]};
  const auto mesh = makeWellDiscretisation(10.0, 60.0, 30.0, pointers, 0.5, 10.0, 1.6, 1000, false);
  SiteFixtures::SiteOptions options;
  options.closedLoop = false;
  const auto site = SiteFixtures::makeSite(*mesh, wells, options);
  for (int step = 1; step <= 2; ++step) {
    site->solveGroundwater(step * year, 1e-5, 1e-5);
    site->solveHeat(step * year, true, 1e-6, 1e-6);
  }
  double narrowest = 1.0;
  for (const FVGridLine::Cell& cell : mesh->yLine.cells())
    narrowest = std::min(narrowest, cell.width);
  EXPECT_LT(narrowest, 1e-14);
  EXPECT_EQ(site->groundwaterSolver()->convergenceFailures(), 0);
  EXPECT_LT(site->groundwaterSteps(), 500);
}
