#include "design/DesignFormulas.h"
#include "design/FilterTable.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace TVR {
namespace {

/// Filters that are all too small for a rate of 0.03 m³/s.
constexpr std::array<double, 9> smallFilters{200.0, 180.0, 160.0, 150.0, 125.0,
                                             100.0, 90.0,  80.0,  50.0};

constexpr double h = 10.0;
constexpr double kf = 1e-3;
/// 3000 · 0.15 · h · √kf
constexpr double startReach = 142.30249470757707;

/// Rate [m³/s] that exactly uses the capacity of a filter of 300 mm at the drawdown that it makes.
constexpr double capacityOf300 = 0.033802565222460147;

/// A thin layer of fine sand, in which a wide filter reaches beyond the radius of influence.
struct FineSand {
  static constexpr double h = 2.0;
  static constexpr double kf = 1e-7;
};

/// Common nominal widths [mm], whose smallest is 125 mm.
constexpr std::array<double, 9> commonFilters{600.0, 500.0, 400.0, 350.0, 300.0,
                                              250.0, 200.0, 150.0, 125.0};

/// Arguments of the two searches, with the state that a caller prepares for one well.
struct Search {
  double thickness = h;
  double conductivity = kf;
  double totalFlow = 0.0;
  double n = 1.0;
  double flow = 0.0;
  double s = 0.0;
  double radiusOfInfluence = 0.0;
  double filterDiameter = 0.0;
  double filterLength = 8.5;
  double r = 0.0;
  const std::array<double, 9>* table = &filters;
  int lookUps = 0;

  explicit Search(double total, double wells = 1.0)
      : totalFlow(total), n(wells), flow(total / wells) {}

  static Search inFineSand(double total, double wells = 1.0) {
    Search search(total, wells);
    search.thickness = FineSand::h;
    search.conductivity = FineSand::kf;
    return search;
  }

  DesignFormulas formulas() {
    return DesignFormulas([this](int row) {
      ++lookUps;
      return table->at(static_cast<std::size_t>(row - 1));
    });
  }
  bool design(bool unconfined) {
    return formulas().designWells(unconfined, thickness, conductivity, totalFlow, n, flow, s,
                                  radiusOfInfluence, filterDiameter, filterLength, r);
  }
  bool check(bool unconfined, double distance) {
    return formulas().checkWells(unconfined, thickness, conductivity, totalFlow, distance, n, flow,
                                 s, radiusOfInfluence, filterDiameter, filterLength, r);
  }
};

TEST(DesignWells, smallestFilterThatCarriesTheRateWins) {
  Search search(0.03);
  EXPECT_TRUE(search.design(false));
  EXPECT_EQ(search.n, 1.0);
  EXPECT_EQ(search.flow, 0.03);
  EXPECT_EQ(search.filterDiameter, 300.0);
  EXPECT_EQ(search.r, 0.375);
  EXPECT_NEAR(search.s, 2.8355606267857567, 1e-12);
  EXPECT_EQ(search.lookUps, 7);
}

TEST(DesignWells, finalReachFollowsFromTheFinalDrawdown) {
  Search search(0.03);
  search.design(false);
  EXPECT_NEAR(search.radiusOfInfluence, 269.00490072412936, 1e-9);
}

TEST(DesignWells, lastRowStandsWithTheStartReachWhenAllRowsHold) {
  Search search(0.005);
  EXPECT_TRUE(search.design(false));
  EXPECT_EQ(search.filterDiameter, 150.0);
  EXPECT_EQ(search.r, 0.1875);
  EXPECT_NEAR(search.s, 3.166514027014734 / 6.0, 1e-12);
  EXPECT_NEAR(search.radiusOfInfluence, startReach, 1e-9);
  EXPECT_EQ(search.lookUps, 9);
}

TEST(DesignWells, valuesOfTheFirstRowStandWhenItFails) {
  Search search(0.03);
  search.table = &smallFilters;
  EXPECT_TRUE(search.design(false));
  EXPECT_EQ(search.filterDiameter, 200.0);
  EXPECT_EQ(search.r, 0.25);
  EXPECT_NEAR(search.s, 3.0291559554058685, 1e-12);
  EXPECT_NEAR(search.radiusOfInfluence, 287.3709662083794, 1e-9);
  EXPECT_EQ(search.lookUps, 1);
}

TEST(DesignWells, firstRowWinsWhenTheSecondFails) {
  constexpr std::array<double, 9> table{300.0, 250.0};
  Search search(0.03);
  search.table = &table;
  EXPECT_TRUE(search.design(false));
  EXPECT_EQ(search.filterDiameter, 300.0);
  EXPECT_NEAR(search.s, 2.8355606267857567, 1e-12);
  EXPECT_EQ(search.lookUps, 2);
}

/// Rate [m³/s] at which one well of 0.25 m lowers the water by exactly 0.9 · 10 m.
constexpr double rateOfTheConfinedLimit = 0.089133740215043958;

TEST(DesignWells, confinedDrawdownMayReachNineTenthsOfTheThickness) {
  Search at(rateOfTheConfinedLimit);
  at.design(false);
  EXPECT_EQ(at.n, 1.0);
  Search above(std::nextafter(rateOfTheConfinedLimit, 1.0));
  above.design(false);
  EXPECT_EQ(above.n, 2.0);
}

/// Rate [m³/s] at which the corrected drawdown of one well of 0.25 m is exactly 5 m.
constexpr double rateOfTheUnconfinedLimit = 0.037139058422934981;

TEST(DesignWells, correctedDrawdownStaysBelowHalfOfTheThickness) {
  Search at(rateOfTheUnconfinedLimit);
  at.design(true);
  EXPECT_EQ(at.n, 2.0);
  Search below(0.9999 * rateOfTheUnconfinedLimit);
  below.design(true);
  EXPECT_EQ(below.n, 1.0);
}

/// Whether every row holds when each of them is a filter of this width [mm].
bool holdsInTheDesign(Search search, double diameter, bool unconfined) {
  std::array<double, 9> table{};
  table.fill(diameter);
  search.table = &table;
  search.design(unconfined);
  EXPECT_EQ(search.n, 1.0);
  return search.lookUps == 9;
}

TEST(DesignWells, filterMayBeUsedUpToItsCapacity) {
  EXPECT_TRUE(holdsInTheDesign(Search(capacityOf300), 300.0, false));
  EXPECT_FALSE(holdsInTheDesign(Search(std::nextafter(capacityOf300, 1.0)), 300.0, false));
}

TEST(DesignWells, filterMayLowerAConfinedAquiferByExactlyTheLimit) {
  constexpr double rate = 2.1626134814609256e-06;
  EXPECT_TRUE(holdsInTheDesign(Search::inFineSand(rate), 80.0, false));
  EXPECT_FALSE(holdsInTheDesign(Search::inFineSand(std::nextafter(rate, 1.0)), 80.0, false));
}

TEST(DesignWells, filterMayLowerAnUnconfinedAquiferByExactlyHalf) {
  constexpr double rate = 2.6715370439827788e-06;
  EXPECT_TRUE(holdsInTheDesign(Search::inFineSand(rate), 160.0, true));
  EXPECT_FALSE(holdsInTheDesign(Search::inFineSand(std::nextafter(rate, 1.0)), 160.0, true));
}

TEST(DesignWells, wellsAreAddedUntilTheDrawdownHolds) {
  Search search(0.1);
  EXPECT_TRUE(search.design(false));
  EXPECT_EQ(search.n, 2.0);
  EXPECT_EQ(search.flow, 0.05);
  EXPECT_EQ(search.filterDiameter, 600.0);
  EXPECT_NEAR(search.s, 4.174345377594633, 1e-12);
}

TEST(DesignWells, wellsAreNeverTakenAway) {
  Search search(0.03, 4.0);
  EXPECT_TRUE(search.design(false));
  EXPECT_EQ(search.n, 4.0);
  EXPECT_EQ(search.flow, 0.0075);
}

TEST(DesignWells, unconfinedAquiferTakesTheCorrectedDrawdown) {
  Search search(0.03);
  EXPECT_TRUE(search.design(true));
  EXPECT_EQ(search.n, 1.0);
  EXPECT_EQ(search.filterDiameter, 300.0);
  EXPECT_NEAR(search.s, 3.4205784855897203, 1e-12);
  EXPECT_NEAR(search.radiusOfInfluence, 324.5045678949888, 1e-9);
}

TEST(DesignWells, unconfinedAquiferNeedsMoreWellsThanAConfinedOne) {
  Search search(0.1);
  EXPECT_TRUE(search.design(true));
  EXPECT_EQ(search.n, 3.0);
  EXPECT_NEAR(search.flow, 0.1 / 3.0, 1e-15);
  EXPECT_EQ(search.filterDiameter, 400.0);
}

TEST(DesignWells, filterLengthStaysAsGiven) {
  Search search(0.1);
  search.design(false);
  EXPECT_EQ(search.filterLength, 8.5);
}

TEST(DesignWells, nineHundredNinetyNineWellsAtTheStartAreRefused) {
  Search search(0.03, 999.0);
  EXPECT_FALSE(search.design(false));
  EXPECT_EQ(search.n, 999.0);
  EXPECT_EQ(search.filterDiameter, 0.0);
  EXPECT_EQ(search.lookUps, 0);
}

TEST(DesignWells, rateBeyondAThousandWellsLeavesTheLastTry) {
  Search search(10000.0);
  EXPECT_FALSE(search.design(true));
  EXPECT_EQ(search.n, 1000.0);
  EXPECT_EQ(search.flow, 10.0);
  EXPECT_EQ(search.filterDiameter, 150.0);
  EXPECT_EQ(search.r, 0.1875);
  EXPECT_TRUE(std::isnan(search.s));
  EXPECT_NEAR(search.radiusOfInfluence, startReach, 1e-9);
}

TEST(DesignWells, confinedRateBeyondAThousandWellsStillNamesTheFirstFilter) {
  Search search(10000.0);
  EXPECT_TRUE(search.design(false));
  EXPECT_EQ(search.n, 1000.0);
  EXPECT_EQ(search.filterDiameter, 1000.0);
}

// The filter of 125 mm alone would lower the water by 3.34 m, more than half of the 2 m.
TEST(DesignWells, filterWhoseUnconfinedDrawdownIsNotANumberHolds) {
  Search search = Search::inFineSand(7e-6);
  search.table = &commonFilters;
  EXPECT_TRUE(search.design(true));
  EXPECT_EQ(search.n, 1.0);
  EXPECT_EQ(search.flow, 7e-6);
  EXPECT_TRUE(std::isnan(search.s));
  EXPECT_EQ(search.filterDiameter, 125.0);
  EXPECT_EQ(search.r, 0.15625);
  EXPECT_NEAR(search.radiusOfInfluence, 0.2846049894151541, 1e-12);
  EXPECT_EQ(search.lookUps, 9);
}

TEST(DesignWells, rateThatIsNotANumberEndsTheSearch) {
  Search confined(std::nan(""));
  EXPECT_TRUE(confined.design(false));
  EXPECT_EQ(confined.n, 1.0);
  Search unconfined(std::nan(""));
  EXPECT_FALSE(unconfined.design(true));
  EXPECT_EQ(unconfined.n, 1000.0);
}

TEST(DesignWells, infiniteCountEndsTheSearch) {
  Search search(0.03);
  search.n = INFINITY;
  EXPECT_FALSE(search.design(false));
}

TEST(DesignWells, withoutATableOfFiltersTheDiameterIsZero) {
  double n = 1.0, flow = 0.03, s = 0.0, reach = 0.0, diameter = 5.0, length = 8.5, r = 1.0;
  EXPECT_TRUE(
      DesignFormulas().designWells(false, h, kf, 0.03, n, flow, s, reach, diameter, length, r));
  EXPECT_EQ(diameter, 0.0);
}

TEST(CheckWells, oneWellHoldsWhenItsFilterCarriesTheRate) {
  Search search(0.03);
  search.filterDiameter = 300.0;
  EXPECT_TRUE(search.check(false, startReach));
  EXPECT_EQ(search.filterDiameter, 300.0);
  EXPECT_EQ(search.r, 0.375);
  EXPECT_NEAR(search.s, 2.8355606267857567, 1e-12);
  EXPECT_EQ(search.lookUps, 0);
}

TEST(CheckWells, oneWellFailsWhenItsFilterDoesNotCarryTheRate) {
  Search search(0.03);
  search.filterDiameter = 250.0;
  EXPECT_FALSE(search.check(false, startReach));
  EXPECT_EQ(search.filterDiameter, 300.0);
}

TEST(CheckWells, filterUsedToExactlyItsCapacityIsLeftToTheDesign) {
  Search at(capacityOf300);
  at.filterDiameter = 300.0;
  EXPECT_FALSE(at.check(false, startReach));
  EXPECT_GT(at.lookUps, 0);
  Search below(0.9999 * capacityOf300);
  below.filterDiameter = 300.0;
  EXPECT_TRUE(below.check(false, startReach));
}

TEST(CheckWells, noWellFailsWithoutADesign) {
  Search search(0.03);
  search.n = 0.0;
  search.filterDiameter = 300.0;
  EXPECT_FALSE(search.check(false, startReach));
  EXPECT_EQ(search.lookUps, 0);
}

TEST(CheckWells, rateIsSplitAmongTheWells) {
  Search search(0.06, 2.0);
  search.filterDiameter = 300.0;
  search.flow = 0.0;
  EXPECT_TRUE(search.check(false, startReach + 1.0));
  EXPECT_EQ(search.flow, 0.03);
}

TEST(CheckWells, smallFilterOfSeveralWellsPassesWhenTheDesignIsWider) {
  Search search(0.06, 2.0);
  search.filterDiameter = 200.0;
  EXPECT_TRUE(search.check(false, startReach + 1.0));
  EXPECT_EQ(search.filterDiameter, 300.0);
}

TEST(CheckWells, wellsWithinEachOthersReachAreSuperposed) {
  Search search(0.02, 2.0);
  search.filterDiameter = 250.0;
  EXPECT_TRUE(search.check(false, 50.0));
  EXPECT_NEAR(search.s, 1.1406695054374225, 1e-12);
}

TEST(CheckWells, wellsAtTheReachAreNotSuperposed) {
  Search search(0.06, 2.0);
  search.filterDiameter = 300.0;
  EXPECT_TRUE(search.check(false, startReach + 1e-9));
  EXPECT_NEAR(search.s, 2.8355606267857567, 1e-12);
}

// Four wells of 0.03 m³/s at 20 m: drawdown 5.57 m, so that a filter of 350 mm carries 0.0257 m³/s.
TEST(CheckWells, wideFilterFailsWhenTheDesignIsNarrower) {
  Search search(0.12, 4.0);
  search.filterDiameter = 350.0;
  EXPECT_FALSE(search.check(false, 20.0));
  EXPECT_EQ(search.filterDiameter, 300.0);
}

TEST(CheckWells, filterAsWideAsTheDesignPasses) {
  Search search(0.12, 4.0);
  search.filterDiameter = 300.0;
  EXPECT_TRUE(search.check(false, 20.0));
  EXPECT_EQ(search.lookUps, 7);
}

TEST(CheckWells, confinedDrawdownAboveTheLimitFailsAndDesigns) {
  Search search(0.1);
  search.filterDiameter = 200.0;
  EXPECT_FALSE(search.check(false, startReach));
  EXPECT_EQ(search.n, 2.0);
  EXPECT_EQ(search.filterDiameter, 600.0);
}

TEST(CheckWells, confinedDrawdownAboveTheLimitFailsForSeveralWellsToo) {
  Search search(0.2, 2.0);
  search.filterDiameter = 200.0;
  EXPECT_FALSE(search.check(false, startReach + 1.0));
  EXPECT_EQ(search.n, 3.0);
}

TEST(CheckWells, unconfinedDrawdownAboveHalfTheThicknessFailsAndDesigns) {
  Search search(0.06);
  search.filterDiameter = 200.0;
  EXPECT_FALSE(search.check(true, startReach));
  EXPECT_EQ(search.n, 2.0);
  EXPECT_EQ(search.filterDiameter, 300.0);
}

/// Rate [m³/s] at which a filter of 800 mm lowers the water by exactly 3.75 m, corrected 5 m.
constexpr double rateAtHalf = 0.047523514694200117;

TEST(CheckWells, unconfinedDrawdownOfExactlyHalfTheThicknessFailsAndDesigns) {
  Search search(rateAtHalf);
  const DesignFormulas formulas = search.formulas();
  const double reach = formulas.reach(formulas.designDrawdown(h), kf);
  const double confined = formulas.drawdownSingleWell(rateAtHalf, 1.0, reach, kf, h);
  ASSERT_EQ(formulas.unconfinedDrawdown(h, confined), h / 2.0);
  ASSERT_GT(formulas.wellCapacity(1.0, h / 2.0, kf), rateAtHalf);
  search.filterDiameter = 800.0;
  EXPECT_FALSE(search.check(true, startReach));
  EXPECT_EQ(search.n, 2.0);
}

TEST(CheckWells, unconfinedDrawdownJustBelowHalfTheThicknessHolds) {
  Search search(std::nextafter(rateAtHalf, 0.0));
  search.filterDiameter = 800.0;
  EXPECT_TRUE(search.check(true, startReach));
  EXPECT_LT(search.s, h / 2.0);
  EXPECT_EQ(search.lookUps, 0);
}

/// Rate [m³/s] at which each of two filters of 80 mm lowers the water by exactly 0.9 · 2 m.
constexpr double rateAtLimit = 4.3252269629218512e-06;

Search twoWellsInFineSand(double total) {
  Search search = Search::inFineSand(total, 2.0);
  search.filterDiameter = 80.0;
  return search;
}

TEST(CheckWells, confinedDrawdownOfExactlyTheLimitIsLeftToTheDesign) {
  Search search = twoWellsInFineSand(rateAtLimit);
  const DesignFormulas formulas = search.formulas();
  const double reach = formulas.reach(formulas.designDrawdown(FineSand::h), FineSand::kf);
  const double drawdown = formulas.drawdownSingleWell(rateAtLimit / 2.0, formulas.wellRadius(80.0),
                                                      reach, FineSand::kf, FineSand::h);
  ASSERT_EQ(drawdown, FineSand::h * 0.9);
  EXPECT_TRUE(search.check(false, startReach));
  EXPECT_EQ(search.lookUps, 1);
  EXPECT_EQ(search.filterDiameter, 1000.0);
}

TEST(CheckWells, confinedDrawdownJustAboveTheLimitFails) {
  Search search = twoWellsInFineSand(std::nextafter(rateAtLimit, 1.0));
  EXPECT_FALSE(search.check(false, startReach));
  EXPECT_EQ(search.lookUps, 1);
}

TEST(CheckWells, confinedDrawdownJustBelowTheLimitHoldsWithoutADesign) {
  Search search = twoWellsInFineSand(std::nextafter(rateAtLimit, 0.0));
  EXPECT_TRUE(search.check(false, startReach));
  EXPECT_EQ(search.lookUps, 0);
}

TEST(CheckWells, unconfinedDrawdownAboveHalfFailsForSeveralWellsToo) {
  Search search(0.096, 2.0);
  search.filterDiameter = 200.0;
  EXPECT_FALSE(search.check(true, startReach + 1.0));
  EXPECT_EQ(search.n, 3.0);
}

TEST(CheckWells, unconfinedWellHoldsWithTheCorrectedDrawdown) {
  Search search(0.03);
  search.filterDiameter = 300.0;
  EXPECT_TRUE(search.check(true, startReach));
  EXPECT_NEAR(search.s, 3.4205784855897203, 1e-12);
}

} // namespace
} // namespace TVR
