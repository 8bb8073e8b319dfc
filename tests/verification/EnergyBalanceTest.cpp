// Energy balance of a whole run: the change of the heat content of all cells, exchange chains
// included, against what wells and edges brought in.

#include "simulator/mesh/MeshGeneration.h"
#include "verification/Cases.h"
#include "verification/Refinement.h"
#include "verification/VerificationSite.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>
#include <utility>
#include <vector>

namespace Verification {

namespace {

constexpr double rate = 0.002; // [m3/s]
constexpr double change = 5.0; // [K]

/// Heat content of all cells against the reference temperature [J].
double heatContent(const FVGeothermSite& site) {
  double sum = 0.0;
  for (std::size_t i = 0; i < site.heat.elements.size(); ++i)
    sum += site.energy(i, site.heat.referenceValue);
  return sum;
}

/// Heat that wells and edges bring in at present [W], reckoned from 0 deg C as the model does.
double powerBroughtIn(const FVGeothermSite& site) {
  const FVHeatModel& heat = site.heat;
  const double inflow = heat.closedLoop ? heat.mixedProductionValue() : heat.referenceValue;
  std::vector<double> flow(1);
  double sum = 0.0;
  for (const auto& source : heat.sources) {
    source->flux(flow, heat.demandStep, inflow);
    sum += flow[0];
  }
  for (const auto& link : heat.boundaryConnections) {
    link->flux(flow, heat.demandStep);
    sum += flow[0];
  }
  return sum;
}

/// A doublet across a regional flow, warm injection, exchange on both sides, 12 demand periods a
/// year in which the two wells change roles (`seasonal`), or constant rates.
std::unique_ptr<FVGeothermSite> makeDoublet(bool seasonal, bool closedLoop) {
  std::vector<Well> wells{Well(0, -30.0, 10.0, -rate), Well(1, 30.0, -10.0, rate, change)};
  if (seasonal)
    for (int step = 0; step < 12; ++step) {
      const double share = std::cos(2.0 * std::numbers::pi * (step + 0.5) / 12.0);
      wells[0].setRate(step, -rate * share);
      wells[1].setRate(step, rate * share);
      wells[share > 0.0 ? 1 : 0].setTemperatureChange(step, share > 0.0 ? change : -change);
      wells[share > 0.0 ? 0 : 1].setTemperatureChange(step, 0.0);
    }
  std::vector<Well*> pointers{&wells[0], &wells[1]};
  const auto mesh =
      makeWellDiscretisation(aquiferThickness, 200.0, 100.0, pointers, 2.0, 40.0, 1.3, 500, false);
  Setup setup;
  setup.gradient = -20.0;
  setup.exchangeFactor = 2.0;
  setup.exchangeLength = 20.0;
  setup.closedLoop = closedLoop;
  return makeSite(*mesh, wells, setup);
}

struct Balance {
  double imbalance;  ///< over the whole run, relative to the heat the wells turned over [-]
  double turnedOver; ///< integral of |rate * change * capacity of water| [J]
  double stored;     ///< change of the heat content [J]
};

/// Advances month by month and integrates the power with Simpson's rule over panels that grow
/// from the start of each month, where the power changes fastest.
Balance runAndBalance(FVGeothermSite& site, int months, double tolerance) {
  constexpr double month = year / 12.0;
  constexpr int panels = 16;
  constexpr double growth = 2.0;
  const double before = heatContent(site);
  Balance result{0.0, 0.0, 0.0};
  double broughtIn = 0.0;
  double t = 0.0;
  for (int k = 0; k < months; ++k) {
    site.setDemandStep(k % 12);
    const double start = k * month;
    site.solveGroundwater(start + month, 1e-8, 1e-6);
    site.updateHeatFlows();
    for (int panel = 0; panel < panels; ++panel) {
      const double end =
          start + month * (std::pow(growth, panel + 1) - 1.0) / (std::pow(growth, panels) - 1.0);
      const double width = end - t;
      double weighted = powerBroughtIn(site);
      for (const auto& [at, weight] : {std::pair(t + 0.5 * width, 4.0), std::pair(end, 1.0)}) {
        site.solveHeat(at, false, tolerance, tolerance);
        weighted += weight * powerBroughtIn(site);
      }
      broughtIn += width / 6.0 * weighted;
      t = end;
    }
    result.turnedOver += std::abs(site.wells()[1]->rate(k % 12)) * change * waterCapacity * month;
  }
  result.stored = heatContent(site) - before;
  result.imbalance = std::abs(result.stored - broughtIn) / result.turnedOver;
  return result;
}

/// Largest imbalance of the right-hand side over random states, relative to the sum of the
/// magnitudes of the rates of change [-].
double instantImbalance(FVGeothermSite& site) {
  site.solveGroundwater(year, 1e-8, 1e-6);
  site.updateHeatFlows();
  const std::size_t count = site.heat.elements.size();
  std::vector<double> y(count);
  unsigned noise = 1;
  for (double& value : y) {
    noise = noise * 1664525u + 1013904223u;
    value = 5.0 + 10.0 * (noise >> 8) / static_cast<double>(1u << 24);
  }
  std::vector<double> rateOfChange(count, 0.0);
  site.heat.evaluate(year, y.data(), rateOfChange.data());
  double sum = 0.0;
  double magnitude = 0.0;
  for (std::size_t i = 0; i < count; ++i) {
    const double power =
        rateOfChange[i] * site.heat.elements[i]->capacity * site.heat.elements[i]->volume;
    sum += power;
    magnitude += std::abs(power);
  }
  return std::abs(sum - powerBroughtIn(site)) / magnitude;
}

/// What the integrator may err by at a tolerance at 15 deg C, the highest temperature of the runs,
/// relative to the change of the injected water [-].
double allowance(double tolerance) {
  return tolerance * (15.0 + 1.0) / change;
}

} // namespace

TEST(EnergyBalance, everyStateGainsWhatWellsAndEdgesBringIn) {
  for (const bool closedLoop : {false, true})
    EXPECT_LT(instantImbalance(*makeDoublet(false, closedLoop)), 1e-12);
}

TEST(EnergyBalance, aRunStoresWhatWellsAndEdgesBroughtIn) {
  const Balance balance = runAndBalance(*makeDoublet(false, false), 6, 1e-6);
  EXPECT_LT(balance.imbalance, allowance(1e-6));
  EXPECT_GT(balance.stored, 0.5 * balance.turnedOver);
}

TEST(EnergyBalance, aSeasonalRunInClosedLoopStoresWhatWasBroughtIn) {
  EXPECT_LT(runAndBalance(*makeDoublet(true, true), 3, 1e-6).imbalance, allowance(1e-6));
}

void reportEnergyBalance(Report& report) {
  report.section("Energy balance of a run");
  report.text("The heat content of all cells, exchange chains included, changes by what the wells "
              "and the edges bring in: "
              "`sum(C V (T - T0))` at the end less the start = integral of the well and edge heat "
              "flows over the run. In an exact scheme this holds at every instant; the test checks "
              "the right-hand side on random states to 1e-12 of the sum of all magnitudes.");
  report.text(
      "Set-up: two wells 63 m apart across a regional flow of 20 Pa/m, 2 l/s, injection 5 K "
      "warmer, exchange on both sides, graded mesh, " +
      number(makeDoublet(false, false)->mesh().elements.size(), 6) +
      " cells, one year. "
      "Constant: constant rates, open loop. Seasonal: twelve periods in which the wells "
      "change roles, closed loop, one restart of the integrator a month. The heat flows are "
      "integrated over time by Simpson's rule on panels that double in length from the "
      "start of each month.");
  report.text("Error: magnitude of the imbalance at the end, relative to the heat that the "
              "injection turned over. Bound of the quick tests, which are the runs of six and of "
              "three months: what the tolerance allows in a cell at 15 °C, relative to the "
              "injected 5 K, which is 3.2 times the tolerance.");
  std::vector<std::vector<std::string>> rows;
  const auto addRow = [&](bool seasonal, int months, double tolerance) {
    const Balance balance = runAndBalance(*makeDoublet(seasonal, seasonal), months, tolerance);
    rows.push_back({seasonal ? "seasonal" : "constant", number(months), number(tolerance),
                    number(balance.imbalance), number(balance.imbalance / tolerance),
                    number(balance.stored / balance.turnedOver)});
  };
  for (const bool seasonal : {false, true}) {
    addRow(seasonal, seasonal ? 3 : 6, 1e-6);
    for (const double tolerance : {1e-4, 1e-6, 1e-8})
      addRow(seasonal, 12, tolerance);
  }
  report.table(
      {"run", "months", "tolerance", "imbalance", "imbalance / tolerance", "stored / turned over"},
      rows);
  report.text(
      "A backward differentiation formula keeps a linear invariant exactly, so that what is "
      "left is the rest of the Newton iteration and of the quadrature: it falls with the "
      "tolerance and is of its size or below.");
}

} // namespace Verification
