// A doublet in a regional flow against the temperatures of another simulator in the same cells.

#include "verification/PeerDoublet.h"

#include "verification/Cases.h"
#include "verification/Report.h"
#include "verification/VerificationSite.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

namespace Verification {

namespace {

using Edges = PeerDoublet::Edges;

const PeerDoublet& peer() {
  static const PeerDoublet doublet;
  return doublet;
}

/// Temperatures of all elements [deg C] at the end of each of the peer's years.
struct Outcome {
  std::vector<std::vector<double>> temperatures;
  long steps; ///< of the heat's integrator
};

Outcome runSite(Edges edges, double tolerance) {
  const auto site = peer().makeSite(edges);
  Outcome run;
  for (const int count : peer().years()) {
    site->solveHeat(count * year, false, tolerance, tolerance);
    std::vector<double>& state = run.temperatures.emplace_back();
    for (std::size_t i = 0; i < peer().elementCount(); ++i)
      state.push_back(site->temperature(i));
  }
  run.steps = site->heatSteps();
  return run;
}

std::vector<double> peerTemperatures(int afterYears) {
  std::vector<double> state;
  for (std::size_t i = 0; i < peer().elementCount(); ++i)
    state.push_back(peer().temperature(afterYears, i));
  return state;
}

/// Largest difference to the peer [K] over all cells and years.
double largestDifference(const Outcome& run) {
  double largest = 0.0;
  for (std::size_t k = 0; k < run.temperatures.size(); ++k) {
    const std::vector<double> expected = peerTemperatures(peer().years()[k]);
    for (std::size_t i = 0; i < expected.size(); ++i)
      largest = std::max(largest, std::abs(run.temperatures[k][i] - expected[i]));
  }
  return largest;
}

/// Largest difference to the peer [K] in the cell of the production well.
double producedDifference(const Outcome& run) {
  const std::size_t i = peer().productionElement();
  double largest = 0.0;
  for (std::size_t k = 0; k < run.temperatures.size(); ++k)
    largest = std::max(largest,
                       std::abs(run.temperatures[k][i] - peer().temperature(peer().years()[k], i)));
  return largest;
}

/// Where the temperature beside the injection well, across the flow, passes 8 deg C: distance from
/// the well [m], between two cells by a straight line.
double frontDistance(const std::vector<double>& state) {
  const std::size_t nx = peer().x().count();
  std::size_t i = peer().injectionElement();
  while (state.at(i + nx) < 8.0)
    i += nx;
  const double inside = peer().y().centre(i / nx);
  const double outside = peer().y().centre(i / nx + 1);
  return inside + (outside - inside) * (8.0 - state[i]) / (state[i + nx] - state[i]);
}

} // namespace

TEST(PeerDoublet, theGridHasTheWellsInTheCentresOfCells) {
  ASSERT_EQ(peer().elementCount(), 2499u);
  const FVMesh mesh(peer().x(), peer().y(), aquiferThickness);
  EXPECT_NEAR(mesh.elements[peer().productionElement()].x, 0.0, 1e-9);
  EXPECT_NEAR(mesh.elements[peer().injectionElement()].x, 60.0, 1e-9);
  EXPECT_NEAR(mesh.elements[peer().injectionElement()].y, 0.0, 1e-9);
  EXPECT_EQ(peer().temperature(30, peer().injectionElement()), 6.0);
}

TEST(PeerDoublet, withThePeersEdgesAllCellsAgree) {
  EXPECT_LT(largestDifference(runSite(Edges::OfThePeer, 1e-9)), 1e-6);
}

TEST(PeerDoublet, atTheToleranceOfARunAllCellsAgreeToATenthOfAMillikelvin) {
  EXPECT_LT(largestDifference(runSite(Edges::OfThePeer, 1e-7)), 1e-4);
}

TEST(PeerDoublet, withTheEdgesOfASiteTheFrontLiesSomeCentimetresElsewhere) {
  const Outcome run = runSite(Edges::OfASite, 1e-7);
  EXPECT_LT(largestDifference(run), 0.02);
  const double moved = frontDistance(run.temperatures.back()) - frontDistance(peerTemperatures(30));
  EXPECT_GT(std::abs(moved), 0.01);
  EXPECT_LT(std::abs(moved), 0.1);
}

namespace {

void reportTolerances(Report& report) {
  std::vector<std::vector<std::string>> rows;
  for (const double tolerance : report.levels<double>({1e-5, 1e-7, 1e-9})) {
    const Outcome run = runSite(Edges::OfThePeer, tolerance);
    rows.push_back(
        {number(tolerance), number(largestDifference(run), 2), number(producedDifference(run), 2)});
  }
  report.table({"tolerance", "largest difference [K]", "in the production well [K]"}, rows);
}

/// Temperatures along the row of the wells after 30 years.
Chart profile() {
  const std::size_t nx = peer().x().count();
  const std::size_t row = peer().productionElement() / nx;
  const std::vector<double> expected = peerTemperatures(30);
  const Outcome run = runSite(Edges::OfThePeer, 1e-7);
  Curve theirs{"peer", {}, {}};
  Curve ours{"model", {}, {}, true};
  for (std::size_t column = 0; column < nx; ++column) {
    const double x = peer().x().centre(column);
    if (x < -50.0 || x > 600.0)
      continue;
    theirs.x.push_back(x);
    theirs.y.push_back(expected[row * nx + column]);
    ours.x.push_back(x);
    ours.y.push_back(run.temperatures.back()[row * nx + column]);
  }
  return {"x on the line through the wells [m]", "temperature [°C]", {theirs, ours}};
}

} // namespace

void reportPeerDoublet(Report& report) {
  report.section("A doublet on the grid of another simulator");
  report.text("MODFLOW 6 (snapshot a11d70399, version 6.7.0.dev2) with its energy model: steady "
              "flow, advection by first-order upwind differences, conduction between cell "
              "centres, backward Euler with steps refined and extrapolated to none, which leaves "
              "an error below 2e-5 K. The temperatures of all its cells after 1, 5, 10 and 30 "
              "years stand in `tests/verification/data/peer_doublet.txt`.");
  report.text("Set-up: 51 x 49 cells of 0.5 m at the wells, growing to 600 m, over 2300 m x 600 m, "
              "10 m thick; hydraulic conductivity 1e-3 m/s, gradient 0.3 m/100m; porosity 0.2, "
              "rock 2200 kg/m³ and 800 J/(kg K), 2 W/(m K), water 4186 J/(kg K); 5 l/s produced "
              "at the origin and injected 60 m downstream at 6 °C into water of 10 °C; no rock "
              "around. The peer holds the pressure at the centres of its outer columns, where a "
              "site holds it at their outer edges, and conducts no heat over the edges. With the "
              "edges of the peer, which the test brings about by a storage without end in the "
              "outer cells, the model solves the same equations, and the difference is that of the "
              "integrators. Bounds of the quick tests: 1e-6 K at 1e-9 and 1e-4 K at 1e-7, over all "
              "cells and years.");
  reportTolerances(report);
  const Outcome run = runSite(Edges::OfASite, 1e-7);
  report.text("With the edges of a site the largest difference is " +
              number(largestDifference(run), 2) + " K, and in the production well " +
              number(producedDifference(run), 2) + " K: the front beside the injection well lies " +
              number(100.0 * std::abs(frontDistance(run.temperatures.back()) -
                                      frontDistance(peerTemperatures(30))),
                     2) +
              " cm from where it lies in the peer after 30 years, at a distance of " +
              number(frontDistance(peerTemperatures(30))) +
              " m from the well. Bounds of the quick test: 0.02 K, and between 1 and 10 cm.");
  report.figure("peer-doublet", "Along the row of the wells after 30 years.", profile());
}

} // namespace Verification
