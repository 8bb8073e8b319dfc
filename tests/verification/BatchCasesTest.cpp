// Two of the cases from a batch file to the table: the set-up of a run is held by closed solutions,
// not by the formulas that it is made of.

#include "verification/BatchRun.h"
#include "verification/Breakthrough.h"
#include "verification/Cases.h"
#include "verification/Report.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <string>
#include <vector>

namespace Verification {

namespace {

using std::numbers::pi;
using TVR::secondsPerYear;

constexpr double T0 = 10.0;      // [deg C]
constexpr double change = 5.0;   // [K] of the injected water
constexpr double porosity = 0.2; // [-]
constexpr double rockCapacity =
    2200 * 800; // [J/(m3 K)], of the aquifer's grains and the rock around
constexpr double waterCapacity = 1000 * 4186.0; // [J/(m3 K)]
constexpr double bulkCapacity = (1 - porosity) * rockCapacity + porosity * waterCapacity;
constexpr double rockConductivity = 2.0; // [W/(m K)]

/// A site without regional flow.
BatchProject stillSite(int years, double thickness, int cells) {
  BatchProject project;
  project.set("main", "simulation_time", years)
      .set("main", "max_number_of_fv_elements", cells)
      .set("main", "cell_increase_factor", 1.3)
      .set("main", "density_aquifer", 2200)
      .set("main", "density_surrounding", 2200)
      .set("thermic", "spezific_heat_capacity_stone", 800)
      .set("thermic", "spezific_heat_capacity_water", 4186)
      .set("thermic", "heat_conductivity_surrounding", rockConductivity)
      .set("thermic", "referenz_temperature", T0)
      .set("hydraulic", "groundwater_gradient", 0)
      .set("hydraulic", "aquifer_h", thickness)
      .set("hydraulic", "aquifer_porosity", porosity);
  return project;
}

// The doublet.
constexpr double spacing = 100.0;         // [m]
constexpr double doubletRate = 0.002;     // [m3/s]
constexpr double doubletThickness = 10.0; // [m]
constexpr int doubletYears = 4;

constexpr double breakthrough = pi / 3 * bulkCapacity / waterCapacity * doubletThickness * spacing *
                                spacing / doubletRate; // [s]

/// Times [breakthrough times] at which the doublet is compared.
std::vector<double> comparedTimes() {
  std::vector<double> times;
  for (double t = 0.25; t * breakthrough < doubletYears * secondsPerYear; t += 0.25)
    times.push_back(t);
  return times;
}

WellTable runDoublet(int cells) {
  BatchProject project = stillSite(doubletYears, doubletThickness, cells);
  project.set("thermic", "heat_conductivity_aquifer", 0.5);
  project.addWell("Production", 0, 0, -doubletRate);
  project.addWell("Injection", 0, spacing, doubletRate, change);
  return WellTable(project);
}

double producedShareOf(const WellTable& table, double t) {
  return (table.temperature(0, t * breakthrough) - T0) / change;
}

/// Mean magnitude of the difference of the produced share [-].
double doubletError(const WellTable& table) {
  double sum = 0.0;
  for (const double t : comparedTimes())
    sum += std::abs(producedShareOf(table, t) - producedShare(t));
  return sum / static_cast<double>(comparedTimes().size());
}

// One injection well, and wells without a rate that show the temperature around it.
constexpr double radialRate = 0.001;    // [m3/s]
constexpr double radialThickness = 5.0; // [m]
constexpr int radialYears = 20;
constexpr std::array<double, 3> distances{50.0, 80.0, 120.0}; // [m]

/// Share of the injected change at distance r [m] and time t [s] in an aquifer that gives heat to
/// endless rock on so many of its sides: Lauwerier's solution (1955) by the area that the water has
/// swept, pi r^2, instead of the length of a strip.
double radialLauwerier(double r, double t, int sides) {
  const double area = pi * r * r;
  const double since = t - bulkCapacity * radialThickness * area / (radialRate * waterCapacity);
  if (since <= 0.0)
    return 0.0;
  return std::erfc(sides * std::sqrt(rockConductivity * rockCapacity) * area /
                   (2.0 * radialRate * waterCapacity * std::sqrt(since)));
}

WellTable runRadial(bool caprock, bool bedrock) {
  BatchProject project = stillSite(radialYears, radialThickness, 6000);
  project.set("thermic", "exchange_caprock", caprock ? "true" : "false");
  project.set("thermic", "exchange_bedrock", bedrock ? "true" : "false");
  project.addWell("Injection", 0, 0, radialRate, change);
  // On the diagonal, where edges along both axes balance.
  for (const double r : distances)
    project.addWell("At " + QString::number(r), r / std::numbers::sqrt2, r / std::numbers::sqrt2,
                    0);
  return WellTable(project);
}

double shareAt(const WellTable& table, std::size_t distance, double t) {
  return (table.temperature(distance + 1, t) - T0) / change;
}

void expectRadialLauwerier(bool caprock, bool bedrock) {
  const WellTable table = runRadial(caprock, bedrock);
  const double t = radialYears * secondsPerYear;
  for (std::size_t k = 0; k < distances.size(); ++k) {
    const double excess =
        shareAt(table, k, t) - radialLauwerier(distances[k], t, caprock + bedrock);
    EXPECT_GT(excess, 0.0) << distances[k];
    EXPECT_LT(excess, 0.1) << distances[k];
  }
}

} // namespace

TEST(BatchCases, aDoubletProducesWhatGringartenAndSautySay) {
  EXPECT_LT(doubletError(runDoublet(6000)), 0.03);
}

TEST(BatchCases, aDoubletFollowsTheSolutionBetterOnMoreCells) {
  EXPECT_LT(doubletError(runDoublet(6000)), 0.9 * doubletError(runDoublet(1500)));
}

TEST(BatchCases, anInjectionGivesItsHeatToTheRockOnBothSides) {
  expectRadialLauwerier(true, true);
}

TEST(BatchCases, anInjectionGivesItsHeatToTheRockOnOneSide) {
  expectRadialLauwerier(true, false);
  expectRadialLauwerier(false, true);
}

void reportBatchCases(Report& report) {
  report.section("From a batch file to the table");
  report.text("Two of the cases once more, as a user runs them: the driver reads a batch file, and "
              "what is compared is its table of well temperatures. Aquifer of porosity 0.2, rock "
              "2200 kg/m³ and 800 J/(kg K), rock around of 2 W/(m K), water 4186 J/(kg K), no "
              "regional flow, water injected 5 K warmer, tolerances of a batch file.");
  report.text("**Doublet** of 100 m, 2 l/s, 10 m thick, four years, no exchange, 0.5 W/(m K), "
              "against Gringarten and Sauty. Error: mean magnitude of the difference of the "
              "produced share every quarter of a breakthrough time up to the end of the run. "
              "Bounds of the quick tests: 0.03 with 6000 cells, and less than 0.9 times the error "
              "with 1500. The cells grow by the smallest width each, whatever the goal.");
  std::vector<std::vector<std::string>> rows;
  for (const int cells : report.levels<int>({1000, 1500, 6000}))
    rows.push_back({std::to_string(cells), number(doubletError(runDoublet(cells)))});
  report.table({"most cells", "error"}, rows);
  report.text("**One injection well** of 1 l/s into an aquifer of 5 m, twenty years, and wells "
              "without a rate that show the temperature 50, 80 and 120 m from it, against "
              "Lauwerier's solution by the area that the water has swept. Shares of the injected "
              "change at the end. Bound of the quick tests: above the solution by less than 0.1; "
              "a doubled area of exchange lies below it.");
  rows.clear();
  for (const bool bedrock : {false, true}) {
    const WellTable table = runRadial(true, bedrock);
    const double t = radialYears * secondsPerYear;
    for (std::size_t k = 0; k < distances.size(); ++k)
      rows.push_back({bedrock ? "caprock and bedrock" : "caprock", number(distances[k]),
                      number(radialLauwerier(distances[k], t, bedrock ? 2 : 1)),
                      number(shareAt(table, k, t))});
  }
  report.table({"exchange with", "distance [m]", "solution", "table"}, rows);
}

} // namespace Verification
