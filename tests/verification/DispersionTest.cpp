// Dispersion of a site against a solution by hand: where the flow of a link is counted once more,
// heat spreads against the stream.

#include "verification/Cases.h"
#include "verification/Report.h"
#include "verification/VerificationSite.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace Verification {

namespace {

constexpr double T0 = 10.0;       // [deg C]
constexpr double gradient = -5.0; // [Pa/m]
constexpr double change = 1000.0; // [K], for a legible effect; the problem is linear
constexpr double rate = 1e-9;     // [m3/s], too little to bend the flow
constexpr double dx = 2.0;        // [m]
/// So wide that next to nothing passes from row to row.
constexpr double dy = 1000.0; // [m]
constexpr int columns = 8;
constexpr std::size_t sourceColumn = 4;

/// Two rows in a uniform flow along x without conduction; a source of warm water in the lower one.
/// Its water has run through many times over at the end.
std::unique_ptr<FVGeothermSite> runSite(double dispersivity) {
  Setup setup;
  setup.aquifer = gravelConducting(0.0);
  setup.gradient = gradient;
  setup.temperature = T0;
  setup.dispersivity = dispersivity;
  auto site = makeSite(
      FVMesh(evenLine(0.0, columns * dx, columns), evenLine(0.0, 2.0 * dy, 2), aquiferThickness),
      {Well(0, (sourceColumn + 0.5) * dx, 0.5 * dy, rate, change)}, setup);
  site->solveGroundwater(20.0 * year, 1e-10, 1e-8);
  site->solveHeat(20.0 * year, true, 1e-10, 1e-10);
  return site;
}

/// Dispersive conductance over the heat capacity of the flow of a row, on the links that end in the
/// source cell or before it. The flows over the two sides of a cell cancel, apart from the first
/// four links, one for each link to an edge, whose flow is counted once more in the cell behind
/// them: with three faces in its mean, a third of the flow is left there. Over a link between two
/// such cells the pore velocity is a third of the flow by face and porosity n, and the conductance
/// beta / (3 n dx) times that of the flow; on the first link, between none and such a cell, half.
double shareOfFlow(std::size_t link, double dispersivity) {
  const double full = dispersivity / (3.0 * SiteFixtures::gravel().porosity * dx);
  return link == 0 ? 0.5 * full : full;
}

/// Temperatures of the lower row above T0 over that of the source cell: before the source the
/// advection of each link carries back what its dispersion brings.
std::vector<double> byHand(double dispersivity) {
  std::vector<double> T(columns, 1.0);
  for (std::size_t i = sourceColumn; i-- > 0;) {
    const double share = shareOfFlow(i, dispersivity);
    T[i] = T[i + 1] * share / (1.0 + share);
  }
  return T;
}

/// The same for the upper row, which has heat by dispersion across the flow alone: a tenth of that
/// along it, with the mean of the two cells, half of a third, over a face of dx and a way of dy.
std::vector<double> upperByHand(double dispersivity) {
  const std::vector<double> lower = byHand(dispersivity);
  const double across = 0.1 * dispersivity / (6.0 * SiteFixtures::gravel().porosity * dy);
  std::vector<double> T(columns, 0.0);
  for (std::size_t i = 0; i < T.size(); ++i)
    T[i] = (i > 0 ? T[i - 1] : 0.0) + (i >= 1 && i <= sourceColumn ? across * lower[i] : 0.0);
  return T;
}

/// Temperatures of a row of the site above T0 over that of the source cell.
std::vector<double> rowOf(const FVGeothermSite& site, std::size_t row) {
  std::vector<double> T;
  for (std::size_t i = 0; i < columns; ++i)
    T.push_back((site.temperature(row * columns + i) - T0) / (site.temperature(sourceColumn) - T0));
  return T;
}

} // namespace

TEST(Dispersion, withoutItNothingGoesAgainstTheStream) {
  const std::vector<double> row = rowOf(*runSite(0.0), 0);
  for (std::size_t i = 0; i < columns; ++i)
    EXPECT_NEAR(row[i], i < sourceColumn ? 0.0 : 1.0, 1e-6) << i;
}

TEST(Dispersion, heatGoesAgainstTheStreamAsReckonedByHand) {
  for (const double dispersivity : {1.0, 5.0}) {
    const std::vector<double> row = rowOf(*runSite(dispersivity), 0);
    const std::vector<double> exact = byHand(dispersivity);
    for (std::size_t i = 0; i < columns; ++i)
      EXPECT_NEAR(row[i], exact[i], 0.005) << i;
  }
}

TEST(Dispersion, heatCrossesTheFlowAsReckonedByHand) {
  const std::vector<double> row = rowOf(*runSite(5.0), 1);
  const std::vector<double> exact = upperByHand(5.0);
  for (std::size_t i = 1; i < columns; ++i)
    EXPECT_NEAR(row[i] / exact[i], 1.0, 0.005) << i;
}

void reportDispersion(Report& report) {
  report.section("Dispersion against the stream: cells by hand");
  report.text(
      "In uniform flow the flows over the two sides of a cell cancel, and beta_T does nothing, but "
      "for the first links of the mesh, as many as there are links to edges: their flow is "
      "counted once more in the cell behind them, so that a third of it is left there. Without "
      "conduction heat gets upstream by dispersion alone, and at rest the advection of a link "
      "carries back what its dispersion brings: with `s = beta_T / (3 n dx)` a cell has "
      "`s / (1 + s)` of the excess of the next one, with half of s on the first link.");
  report.text("Set-up: a site of two rows of 8 cells of 2 m, 1000 m wide, regional flow of 5 Pa/m, "
              "a source of warm water in the fifth cell of the lower row, read at rest. Bounds of "
              "the quick tests: 0.005 of the excess at the source in the lower row, 0.5 per cent "
              "in the upper row, which has its heat by dispersion across the flow, a tenth of that "
              "along it. What the model loses to the upper row is left out by hand.");
  std::vector<std::vector<std::string>> rows;
  for (const double dispersivity : {1.0, 5.0}) {
    const auto site = runSite(dispersivity);
    const std::vector<double> model = rowOf(*site, 0);
    const std::vector<double> exact = byHand(dispersivity);
    const std::vector<double> upper = rowOf(*site, 1);
    const std::vector<double> upperExact = upperByHand(dispersivity);
    for (std::size_t i = 0; i <= sourceColumn; ++i)
      rows.push_back({number(dispersivity), std::to_string(i + 1), number(exact[i]),
                      number(model[i]), number(upperExact[i]), number(upper[i])});
  }
  report.table({"beta_T [m]", "cell", "by hand", "model", "upper row by hand", "upper row"}, rows);
}

} // namespace Verification
