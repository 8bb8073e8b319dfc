#include "simulator/SiteFixtures.h"

#include <gtest/gtest.h>

#include <cmath>

using SiteFixtures::day;
using SiteFixtures::lineOf;
using SiteFixtures::makeSite;

namespace {

/// A mesh of the given axes, one metre thick, with these pressures in its cells.
std::unique_ptr<FVGeothermSite> siteAt(const FVGridLine& x, const FVGridLine& y,
                                       const std::vector<double>& pressures) {
  auto site = makeSite(FVMesh(x, y, 1.0), {});
  for (std::size_t i = 0; i < pressures.size(); ++i)
    site->groundwater.elements[i]->pressure = pressures[i];
  return site;
}

struct DirectionalFlows {
  explicit DirectionalFlows(FVGroundwaterModel& model)
      : x(model.connections.size()), y(model.connections.size()) {
    model.computeDirectionalFlows(x, y);
  }
  std::vector<double> x;
  std::vector<double> y;
};

} // namespace

TEST(DirectionalFlows, linksAlongYAreRepeatedAtTheirSecondCells) {
  // Links: 0 = (0, 1) along x, 1 = (0, 2) along y, 2 = (2, 3) along x, 3 = (1, 3) along y. With
  // four boundary links all of them count twice at their second cells.
  const auto site = siteAt(lineOf({2.0, 2.0}), lineOf({1.0, 3.0}), {0.0, 300.0, 700.0, 400.0});
  FVGroundwaterModel& model = site->groundwater;
  const DirectionalFlows flows(model);
  const double f1 = model.flow(1);
  const double f3 = model.flow(3);
  const double mean0 = f1;  // weight a, flow a * f1
  const double mean2 = -f1; // weight 2 a, flow 2 a * -f1
  EXPECT_DOUBLE_EQ(flows.y[1], (mean2 * 1.5 + mean0 * 0.5) / 2.0);
  EXPECT_DOUBLE_EQ(flows.y[0], (f3 * 1.0 + f1 * 1.0) / 2.0);
  EXPECT_DOUBLE_EQ(flows.y[3], (-f3 * 1.5 + f3 * 0.5) / 2.0);
}

TEST(DirectionalFlows, repeatedLinksAlongYShiftTheMeanOfACellBetweenTwoOthers) {
  const auto site = siteAt(lineOf({2.0}), lineOf({1.0, 1.0, 1.0}), {0.0, 300.0, 700.0});
  FVGroundwaterModel& model = site->groundwater;
  const DirectionalFlows flows(model);
  const double f0 = model.flow(0);
  const double f1 = model.flow(1);
  const double middle = (-f0 + f1 - f0) / 3.0;
  EXPECT_DOUBLE_EQ(flows.y[0], (middle * 0.5 + f0 * 0.5) / 1.0);
  EXPECT_DOUBLE_EQ(flows.y[1], (-f1 * 0.5 + middle * 0.5) / 1.0);
}

TEST(DirectionalFlows, onlyLinkOfAPairIsRepeatedAtItsSecondCell) {
  const auto site = siteAt(lineOf({2.0, 2.0}), lineOf({1.0}), {50.0, -30.0});
  FVGroundwaterModel& model = site->groundwater;
  const DirectionalFlows flows(model);
  const double f = model.flow(0);
  const double first = (f + model.boundaryFlow(0)) / 2.0;
  const double second = (-f - f + model.boundaryFlow(1)) / 3.0;
  EXPECT_DOUBLE_EQ(flows.x[0], (second + first) / 2.0);
}

TEST(DirectionalFlows, singleColumnTakesItsFlowAlongXFromTheBoundaryLinksAlone) {
  const auto site = siteAt(lineOf({2.0}), lineOf({1.0, 1.0}), {50.0, -30.0});
  FVGroundwaterModel& model = site->groundwater;
  const DirectionalFlows flows(model);
  const auto meanOfRow = [&](std::size_t row) {
    return (model.boundaryFlow(row) + model.boundaryFlow(2 + row)) / 2.0;
  };
  EXPECT_NE(meanOfRow(0), 0.0);
  EXPECT_DOUBLE_EQ(flows.x[0], (meanOfRow(0) + meanOfRow(1)) / 2.0);
}

TEST(DirectionalFlows, singleColumnIsSolvedToTheEnd) {
  SiteFixtures::SiteOptions options;
  options.dispersivity = 5.0;
  const auto site = makeSite(FVMesh(lineOf({4.0}), lineOf({2.0, 1.0, 2.0, 4.0}), 10.0),
                             {Well(0, 2.0, 2.5, 0.001, 5.0)}, options);
  site->solveGroundwater(10 * day, 1e-6, 1e-6);
  site->solveHeat(10 * day, true, 1e-6, 1e-6);
  EXPECT_EQ(site->time(), 10 * day);
  EXPECT_GT(site->temperature(1), 14.0);
}

TEST(DirectionalFlows, singleCellAndPairInOneRowAreSolvedToo) {
  for (const FVGridLine& x : {lineOf({4.0}), lineOf({4.0, 2.0})}) {
    const auto site = makeSite(FVMesh(x, lineOf({2.0}), 10.0), {Well(0, 2.0, 1.0, 0.001, 5.0)});
    site->solveGroundwater(day, 1e-6, 1e-6);
    site->solveHeat(day, true, 1e-6, 1e-6);
    EXPECT_GT(site->temperature(0), 10.5);
  }
}
