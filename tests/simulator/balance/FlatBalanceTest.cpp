#include "simulator/SiteFixtures.h"
#include "simulator/solvers/ColouredQuotient.h"
#include "simulator/solvers/LinkStructure.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <random>
#include <vector>

namespace {

using SiteFixtures::day;

/// A site that has run for a day, with dispersion, chains and wells in different rows.
std::unique_ptr<FVGeothermSite> siteInUse(bool closedLoop) {
  SiteFixtures::SiteOptions options;
  options.dispersivity = 2.0;
  options.exchangeFactor = 1.0;
  options.closedLoop = closedLoop;
  auto site = SiteFixtures::makeSite(
      SiteFixtures::gradedMesh(),
      {Well(0, 9.0, 5.0, -0.001), Well(1, 15.0, 2.0, -0.0004), Well(2, 20.0, 8.0, 0.0014, 5.0)},
      options);
  site->solveGroundwater(day, 1e-6, 1e-6);
  site->solveHeat(day, true, 1e-6, 1e-6);
  return site;
}

std::vector<double> randomState(std::size_t count, double mean, double spread) {
  static std::mt19937 random(3);
  std::uniform_real_distribution<double> value(mean - spread, mean + spread);
  std::vector<double> y(count);
  for (double& entry : y)
    entry = value(random);
  return y;
}

/// Largest difference of the two right-hand sides, relative to the largest rate of change.
double flatError(FVSystem& system, const std::vector<double>& y) {
  std::vector<double> defined(y.size(), 0.0);
  std::vector<double> flat(y.size(), -1.0);
  system.prepareAdvance();
  system.evaluate(0.0, y.data(), defined.data());
  system.evaluateWithInflow(0.0, y.data(), flat.data(), system.inflowValue(y.data()));
  double largest = 0.0;
  double scale = 0.0;
  for (std::size_t i = 0; i < y.size(); ++i) {
    largest = std::max(largest, std::abs(flat[i] - defined[i]));
    scale = std::max(scale, std::abs(defined[i]));
  }
  return largest / scale;
}

} // namespace

TEST(FlatBalance, agreesWithTheDefinitionOfTheHeatModelOnRandomStates) {
  for (const bool closedLoop : {false, true}) {
    const auto site = siteInUse(closedLoop);
    for (int repetition = 0; repetition < 20; ++repetition)
      EXPECT_LT(flatError(site->heat, randomState(site->heat.elementCount(), 12.0, 8.0)), 1e-13);
  }
}

TEST(FlatBalance, agreesWithTheDefinitionOfTheGroundwaterModelOnRandomStates) {
  const auto site = siteInUse(true);
  for (int repetition = 0; repetition < 20; ++repetition)
    EXPECT_LT(flatError(site->groundwater,
                        randomState(site->groundwater.elementCount(), -3000.0, 5000.0)),
              1e-13);
}

TEST(FlatBalance, followsTheDemandStepAndTheFlows) {
  const auto site = siteInUse(false);
  for (Well* well : site->wells()) {
    well->setRate(1, -well->rate(9));
    well->setTemperatureChange(1, 2.0);
  }
  site->setDemandStep(1);
  site->solveGroundwater(2 * day, 1e-6, 1e-6);
  site->updateHeatFlows();
  EXPECT_LT(flatError(site->heat, randomState(site->heat.elementCount(), 12.0, 8.0)), 1e-13);
}

TEST(FlatBalance, mixesTheWaterOfTheProductionWellsOfAState) {
  const auto site = siteInUse(true);
  const std::vector<double> y = randomState(site->heat.elementCount(), 12.0, 8.0);
  site->heat.prepareAdvance();
  site->heat.setState(y.data());
  EXPECT_NEAR(site->heat.inflowValue(y.data()), site->heat.mixedProductionValue(), 1e-13);
}

TEST(FlatBalance, knowsHowTheMixingCouplesTheWells) {
  const auto site = siteInUse(true);
  FVSystem& heat = site->heat;
  heat.prepareAdvance();
  const std::vector<double> y = randomState(heat.elementCount(), 12.0, 8.0);
  const double inflow = heat.inflowValue(y.data());
  std::vector<double> rates(y.size());
  std::vector<double> disturbed(y.size());
  heat.evaluateWithInflow(0.0, y.data(), rates.data(), inflow);
  heat.evaluateWithInflow(0.0, y.data(), disturbed.data(), inflow + 1.0);
  std::vector<double> shares(y.size(), 0.0);
  std::vector<double> responses(y.size(), 0.0);
  for (const MixedCell& well : heat.mixing()) {
    shares[well.cell] += well.share;
    responses[well.cell] += well.response;
  }
  for (std::size_t j = 0; j < y.size(); ++j) {
    std::vector<double> z = y;
    z[j] += 1.0;
    EXPECT_NEAR(shares[j], heat.inflowValue(z.data()) - inflow, 1e-13);
    EXPECT_NEAR(responses[j], disturbed[j] - rates[j], 1e-9 * std::abs(rates[j])) << j;
  }
}

TEST(FlatBalance, knowsOfNoMixingWhereNothingIsMixed) {
  const auto open = siteInUse(false);
  const auto closed = siteInUse(true);
  EXPECT_TRUE(open->heat.mixing().empty());
  EXPECT_EQ(closed->heat.mixing().size(), 3u);
  EXPECT_TRUE(closed->groundwater.mixing().empty()) << "the inflow has no pressure";
  for (Well* well : closed->wells())
    well->setRate(1, std::abs(well->rate(9)));
  closed->setDemandStep(1);
  closed->heat.prepareAdvance();
  EXPECT_TRUE(closed->heat.mixing().empty()) << "nothing is produced";
  for (Well* well : closed->wells())
    well->setRate(2, -std::abs(well->rate(9)));
  closed->setDemandStep(2);
  closed->heat.prepareAdvance();
  EXPECT_TRUE(closed->heat.mixing().empty()) << "nothing is injected";
}

TEST(ColouredQuotient, isTheSlopeOverEveryLinkWithTheMixingHeld) {
  const auto site = siteInUse(true);
  FVSystem& heat = site->heat;
  heat.prepareAdvance();
  const LinkStructure structure(heat.elementCount(), heat.links());
  StructuredMatrix matrix(structure.count(), structure.pairs().size());
  const std::vector<double> y = randomState(heat.elementCount(), 12.0, 8.0);
  const std::vector<double> weights(y.size(), 1e5);
  std::vector<double> base(y.size());
  std::vector<double> state(y.size());
  std::vector<double> disturbed(y.size());
  const double inflow = heat.inflowValue(y.data());
  heat.evaluateWithInflow(0.0, y.data(), base.data(), inflow);
  ColouredQuotient(structure).compute(heat, {0.0, y.data(), base.data(), weights.data()},
                                      state.data(), disturbed.data(), matrix);
  for (std::size_t j = 0; j < y.size(); ++j) {
    std::vector<double> z = y;
    z[j] += 1.0;
    heat.evaluateWithInflow(0.0, z.data(), disturbed.data(), inflow);
    const double scale = std::abs(disturbed[j] - base[j]);
    EXPECT_NEAR(matrix.diagonal[j], disturbed[j] - base[j], 1e-6 * scale);
    const auto element = static_cast<LinkStructure::Index>(j);
    for (auto near = structure.neighboursBegin(element); near != structure.neighboursEnd(element);
         ++near) {
      const auto i = static_cast<std::size_t>(near->element);
      const double slope = disturbed[i] - base[i];
      EXPECT_NEAR(matrix.entries[static_cast<std::size_t>(near->entry)], slope,
                  1e-6 * (std::abs(slope) + scale));
    }
  }
}
