// A mirrored or rotated site gives the mirrored or rotated result.

#include "design/DesignFormulas.h"
#include "simulator/mesh/MeshGeneration.h"
#include "verification/Cases.h"
#include "verification/Refinement.h"
#include "verification/VerificationSite.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <memory>
#include <numbers>
#include <string>
#include <vector>

namespace Verification {

namespace {

/// Two production wells and one injection well of no symmetry of their own [m], [m3/s].
std::vector<Well> threeWells() {
  return {Well(0, 25.0, 5.0, -0.002), Well(1, -30.0, 40.0, -0.001),
          Well(2, 0.0, -20.0, 0.003, 6.0)};
}

std::unique_ptr<FVMesh> meshFor(const std::vector<Well>& wells) {
  std::vector<Well> copies = wells;
  std::vector<Well*> pointers;
  for (Well& well : copies)
    pointers.push_back(&well);
  return makeWellDiscretisation(aquiferThickness, 150.0, 80.0, pointers, 3.0, 30.0, 1.3, 600,
                                false);
}

std::vector<Well> scaled(const std::vector<Well>& wells, double factorX, double factorY) {
  std::vector<Well> result;
  for (const Well& well : wells)
    result.emplace_back(well.id(), factorX * well.x(), factorY * well.y(), well.rate(0),
                        well.temperatureChange(0));
  return result;
}

FVGridLine mirrored(const FVGridLine& line) {
  FVGridLine result;
  for (std::size_t i = line.count(); i-- > 0;)
    result.append(-line.start(i) - line.width(i), line.width(i));
  return result;
}

std::unique_ptr<FVGeothermSite> runSite(const FVMesh& mesh, const std::vector<Well>& wells,
                                        double gradient, double tolerance) {
  Setup setup;
  setup.gradient = gradient;
  auto site = makeSite(mesh, wells, setup);
  for (int quarter = 1; quarter <= 4; ++quarter) {
    site->solveGroundwater(0.25 * quarter * year, 1e-8, 1e-6);
    site->solveHeat(0.25 * quarter * year, true, tolerance, tolerance);
  }
  return site;
}

/// Largest difference of temperature [K] between cells that mirror each other.
double cellDifference(const FVGeothermSite& one, const FVGeothermSite& other, bool mirrorX,
                      bool mirrorY) {
  const auto nx = static_cast<std::size_t>(one.mesh().nx);
  const auto ny = static_cast<std::size_t>(one.mesh().ny);
  double largest = 0.0;
  for (std::size_t row = 0; row < ny; ++row)
    for (std::size_t column = 0; column < nx; ++column) {
      const std::size_t otherRow = mirrorY ? ny - 1 - row : row;
      const std::size_t otherColumn = mirrorX ? nx - 1 - column : column;
      largest = std::max(largest, std::abs(one.temperature(nx * row + column) -
                                           other.temperature(nx * otherRow + otherColumn)));
    }
  return largest;
}

/// Largest difference of temperature [K] between the cells of corresponding wells.
double wellDifference(const FVGeothermSite& one, const FVGeothermSite& other) {
  double largest = 0.0;
  for (std::size_t k = 0; k < one.heat.sources.size(); ++k)
    largest = std::max(largest, std::abs(one.heat.sources[k]->temperature(0) -
                                         other.heat.sources[k]->temperature(0)));
  return largest;
}

/// Difference between a site and the same mirrored, on a mirrored mesh [K].
double mirrorDifference(bool mirrorX, bool mirrorY, double tolerance) {
  const auto mesh = meshFor(threeWells());
  const FVMesh mirroredMesh(mirrorX ? mirrored(mesh->xLine) : mesh->xLine,
                            mirrorY ? mirrored(mesh->yLine) : mesh->yLine, aquiferThickness);
  const auto site = runSite(*mesh, threeWells(), -20.0, tolerance);
  const auto other =
      runSite(mirroredMesh, scaled(threeWells(), mirrorX ? -1.0 : 1.0, mirrorY ? -1.0 : 1.0),
              mirrorX ? 20.0 : -20.0, tolerance);
  return cellDifference(*site, *other, mirrorX, mirrorY);
}

/// Places on the map [m] of a site laid out there so that its flow runs to a compass direction
/// [degrees from north over east]: model x along the flow, model y to its left.
std::vector<Well> onTheMap(const std::vector<Well>& wells, double direction, double originX,
                           double originY) {
  const double bearing = direction * std::numbers::pi / 180.0;
  std::vector<Well> result;
  for (const Well& well : wells)
    result.emplace_back(well.id(),
                        originX + well.x() * std::sin(bearing) - well.y() * std::cos(bearing),
                        originY + well.x() * std::cos(bearing) + well.y() * std::sin(bearing),
                        well.rate(0), well.temperatureChange(0));
  return result;
}

/// Difference of the well temperatures [K] between the site as it is and the same site laid out on
/// the map with its flow to a compass direction [degrees], and brought into model coordinates by
/// the formula and the angle that the set-up of a run takes.
double rotationDifference(double direction, double tolerance) {
  const TVR::DesignFormulas formulas;
  constexpr double originX = 3.5e6; // [m], as large as coordinates on a map are
  constexpr double originY = 5.4e6;
  std::vector<Well> turned;
  for (const Well& well : onTheMap(threeWells(), direction, originX, originY)) {
    double x = well.x();
    double y = well.y();
    double angle = (direction - 90.0) * -1.0;
    formulas.rotatePoint(x, y, angle, originX, originY);
    turned.emplace_back(well.id(), x, y, well.rate(0), well.temperatureChange(0));
  }
  const auto site = runSite(*meshFor(threeWells()), threeWells(), -20.0, tolerance);
  const auto other = runSite(*meshFor(turned), turned, -20.0, tolerance);
  return wellDifference(*site, *other);
}

/// Difference of the well temperatures [K] when the mesh of the mirrored site is made anew.
double remeshedDifference(double tolerance) {
  const std::vector<Well> other = scaled(threeWells(), 1.0, -1.0);
  return wellDifference(*runSite(*meshFor(threeWells()), threeWells(), -20.0, tolerance),
                        *runSite(*meshFor(other), other, -20.0, tolerance));
}

} // namespace

TEST(Symmetry, theRunIsNotTrivial) {
  const auto site = runSite(*meshFor(threeWells()), threeWells(), -20.0, 1e-6);
  EXPECT_GT(site->heat.sources[0]->temperature(0), 10.1);
  EXPECT_GT(site->heat.sources[2]->temperature(0), 15.0);
}

TEST(Symmetry, aSiteMirroredAcrossTheFlowHasTheMirroredTemperatures) {
  EXPECT_LT(mirrorDifference(false, true, 1e-6), 1e-6);
}

TEST(Symmetry, aSiteTurnedRoundWithItsFlowHasTheTurnedTemperatures) {
  EXPECT_LT(mirrorDifference(true, true, 1e-6), 1e-6);
}

TEST(Symmetry, anotherFlowDirectionLeavesTheWellTemperatures) {
  EXPECT_LT(rotationDifference(137.0, 1e-6), 1e-6);
}

TEST(Symmetry, theMeshOfAMirroredSiteGivesTheSameWellTemperatures) {
  EXPECT_LT(remeshedDifference(1e-6), 1e-6);
}

void reportSymmetry(Report& report) {
  report.section("Symmetry: mirrored and rotated sites");
  report.text(
      "Set-up: two production wells and one injection well (6 K warmer) without symmetry of "
      "their own in a regional flow, fewer than 600 cells, one year. The site is mirrored "
      "across the flow, turned by 180 degrees with the flow (mesh reversed, gradient of the "
      "other sign), and laid out on a map with its flow to another direction of the compass, "
      "where the east is the x axis of the model, and turned into model coordinates by the "
      "formula and the angle of the set-up of a run. Error: largest difference of the temperature "
      "over all "
      "cells, or over the wells after a rotation. Bound of the quick tests: 1e-6 K at a "
      "tolerance of 1e-6.");
  std::vector<std::vector<std::string>> rows;
  for (const double tolerance : {1e-4, 1e-6, 1e-8})
    rows.push_back({number(tolerance), number(mirrorDifference(false, true, tolerance)),
                    number(mirrorDifference(true, true, tolerance)),
                    number(rotationDifference(30.0, tolerance)),
                    number(rotationDifference(137.0, tolerance)),
                    number(remeshedDifference(tolerance))});
  report.table({"tolerance", "mirrored [K]", "turned by 180° [K]", "flow to 30° [K]",
                "flow to 137° [K]", "mirrored, mesh made anew [K]"},
               rows);
  report.text(
      "What is left is rounding, which the choice of step lengths enlarges, but far below the "
      "tolerance. The last column makes the mesh of the mirrored site anew instead of "
      "mirroring that of the first: for this site its cells come out mirrored too.");
}

} // namespace Verification
