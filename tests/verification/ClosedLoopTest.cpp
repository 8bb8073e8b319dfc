// Closed loop: the mean temperature of the produced water, plus the change of the injection well,
// comes back in; against the solution by hand for two cells.

#include "verification/Cases.h"
#include "verification/Refinement.h"
#include "verification/VerificationSite.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

namespace Verification {

namespace {

constexpr double cell = 10.0;         // [m] both widths of a cell
constexpr double leftRate = 2e-4;     // [m3/s] produced in the left cell
constexpr double rightRate = 1e-4;    // [m3/s] produced in the right cell
constexpr double change = 3.0;        // [K]
constexpr double T0 = 10.0;           // [deg C]
constexpr double runTime = 100 * day; // [s]

/// Temperatures above T0 of the left and the right cell.
using Pair = std::array<double, 2>;

/// The two cells stand between edges of T0. `leftRate` is produced in the left cell, `rightRate` in
/// the right one, and all of it is injected into the right one. With the conductance g between the
/// cells and 2 g to each edge, half of the left rate comes in over the left edge, half from the
/// right cell, and the other half leaves over the right edge. With the mean (Ql u + Qr v) /
/// (Ql + Qr) of the produced water coming back `change` warmer, and conduction G between the cells,
///   C u' = cw (Ql v / 2 - Ql u) + G (v - 3 u),
///   C v' = cw (Ql u - Ql v + (Ql + Qr) change) + G (u - 3 v),
/// two linear equations with real rates, solved by their eigenvectors.
Pair byHand(const FVMaterial& rock, double t) {
  const double C = bulkCapacity(rock) * cell * cell * aquiferThickness;
  const double G = rock.conductivity * aquiferThickness;
  const double a = (-waterCapacity * leftRate - 3.0 * G) / C;
  const double b = (0.5 * waterCapacity * leftRate + G) / C;
  const double c = (waterCapacity * leftRate + G) / C;
  const double heating = waterCapacity * (leftRate + rightRate) * change / C;
  const double determinant = a * a - b * c;
  const Pair steady{b * heating / determinant, -a * heating / determinant};
  // The matrix (a b; c a) has the eigenvalues a +- sqrt(b c) and the eigenvectors
  // (sqrt(b), +- sqrt(c)); the solution starts at 0.
  const double plus = 0.5 * (steady[0] / std::sqrt(b) + steady[1] / std::sqrt(c));
  const double minus = 0.5 * (steady[0] / std::sqrt(b) - steady[1] / std::sqrt(c));
  const double growth = std::sqrt(b * c);
  const double p = plus * std::exp((a + growth) * t);
  const double m = minus * std::exp((a - growth) * t);
  return {steady[0] - std::sqrt(b) * (p + m), steady[1] - std::sqrt(c) * (p - m)};
}

/// Two equal rows of two cells, which act as one row.
std::unique_ptr<FVGeothermSite> makeTwoCells(double conductivity) {
  std::vector<Well> wells;
  for (const double y : {0.5 * cell, 1.5 * cell}) {
    const auto id = static_cast<std::int32_t>(wells.size());
    wells.emplace_back(id, 0.5 * cell, y, -leftRate);
    wells.emplace_back(id + 1, 1.5 * cell, y, -rightRate);
    wells.emplace_back(id + 2, 1.5 * cell, y, leftRate + rightRate, change);
  }
  Setup setup;
  setup.aquifer = gravelConducting(conductivity);
  setup.temperature = T0;
  setup.closedLoop = true;
  const FVGridLine line = evenLine(0.0, 2.0 * cell, 2);
  auto site = makeSite(FVMesh(line, line, aquiferThickness), wells, setup);
  // The hand solution starts with the steady flow.
  site->solveGroundwater(runTime, 1e-10, 1e-8);
  return site;
}

/// Largest difference [K] to the solution by hand at ten times over the run.
double errorOf(double conductivity, double tolerance) {
  const auto site = makeTwoCells(conductivity);
  double largest = 0.0;
  for (int k = 1; k <= 10; ++k) {
    const double t = 0.1 * k * runTime;
    site->solveHeat(t, k == 1, tolerance, tolerance);
    const Pair exact = byHand(site->aquifer(), t);
    for (std::size_t i = 0; i < 4; ++i)
      largest = std::max(largest, std::abs(site->temperature(i) - T0 - exact[i % 2]));
  }
  return largest;
}

std::vector<Level> refine(double conductivity) {
  std::vector<Level> levels;
  for (const double tolerance : {1e-4, 1e-6, 1e-8})
    levels.push_back({tolerance, errorOf(conductivity, tolerance)});
  return levels;
}

/// Error [K] that the integrator allows itself in a step at a tolerance, at 19 deg C, the highest
/// temperature of the run.
double levelWeight(double tolerance) {
  return tolerance * (19.0 + 1.0);
}

} // namespace

TEST(ClosedLoop, twoCellsFollowTheSolutionByHand) {
  for (const double conductivity : {0.0, 50.0}) {
    const std::vector<Level> levels = refine(conductivity);
    for (const Level& level : levels)
      EXPECT_LT(level.error, 10.0 * levelWeight(level.size));
    for (const double order : observedOrders(levels))
      EXPECT_GT(order, 0.5);
  }
}

TEST(ClosedLoop, withoutConductionTheSteadyStateIsTheRatioOfTheRatesTimesTheChange) {
  const FVMaterial rock = gravelConducting(0.0);
  const Pair steady = byHand(rock, 1e12);
  EXPECT_NEAR(steady[0], (leftRate + rightRate) / leftRate * change, 1e-9);
  EXPECT_NEAR(steady[1], 2.0 * steady[0], 1e-9);
}

void reportClosedLoop(Report& report) {
  report.section("Closed loop: two cells by hand");
  report.text("Two cells between edges of T0; Ql = 0.2 l/s is produced in the left cell, Qr = 0.1 "
              "l/s in the right one, and all of it is injected into the right one, 3 K warmer than "
              "the mean of the produced water. For the temperatures u and v above T0: "
              "`C u' = cw (Ql v / 2 - Ql u) + G (v - 3 u)`, "
              "`C v' = cw (Ql u - Ql v + (Ql + Qr) 3 K) + G (u - 3 v)`, solved by their "
              "eigenvectors.");
  report.text("Error: largest difference at ten times over 100 days. Bounds of the quick test: ten "
              "times what the tolerance allows in a step (tolerance times 19 degrees and one), and "
              "an order of at least one half in the tolerance, which is what the lowest order of "
              "the integrator gives.");
  for (const double conductivity : {0.0, 50.0}) {
    report.text("Conductivity " + number(conductivity) + " W/(m K):");
    tabulate(report, "tolerance", "error [K]", refine(conductivity));
  }
  Chart chart{"time [d]", "temperature above T0 [K]", {}};
  const auto site = makeTwoCells(0.0);
  for (const std::size_t i : {0u, 1u}) {
    const std::string name = i == 0 ? "left cell, " : "right cell, ";
    chart.curves.push_back({name + "by hand", {}, {}});
    chart.curves.push_back({name + "model", {}, {}, true});
  }
  for (int k = 0; k <= 50; ++k) {
    const double t = 0.02 * k * runTime;
    site->solveHeat(t, k == 0, 1e-6, 1e-6);
    const Pair exact = byHand(site->aquifer(), t);
    for (const std::size_t i : {0u, 1u}) {
      chart.curves[2 * i].x.push_back(t / day);
      chart.curves[2 * i].y.push_back(exact[i]);
      if (k % 5 == 0) {
        chart.curves[2 * i + 1].x.push_back(t / day);
        chart.curves[2 * i + 1].y.push_back(site->temperature(i) - T0);
      }
    }
  }
  report.figure("closed-loop", "Closed loop over two cells without conduction.", chart);
}

} // namespace Verification
