#include "design/ParameterId.h"
#include "project/Units.h"
#include "simulation/ProjectOfValues.h"
#include "simulation/SiteWriteBack.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

/// A doublet in 10 m of gravel, as a value; the flow goes east. Lengths of the design are made for
/// 1 l/s, the rate of the wells.
class SiteInputTest : public testing::Test {
protected:
  SiteInputTest() {
    for (const auto& [id, value] :
         std::initializer_list<std::pair<int, double>>{{NumberOfWells, 2},
                                                       {NumberOfDemandsPerYear, 1},
                                                       {SimulationTime, 2 * year},
                                                       {AquiferThickness, 10},
                                                       {EffectivePorosity, 0.25},
                                                       {HydraulicConductivity, 0.001},
                                                       {GroundwaterGradient, 0.25},
                                                       {GroundwaterFlowDirection, 90},
                                                       {GroundwaterVelocity, 2e-6},
                                                       {RadiusOfInfluence, 12},
                                                       {MeanFlowRate, 0.001},
                                                       {UsedTemperatureChange, -3},
                                                       {AMin, 60},
                                                       {BMin, 30},
                                                       {DMin, 20},
                                                       {DensityWater, 1000},
                                                       {HeatCapacityWater, 4186},
                                                       {DynamicViscosityWater, 0.00131},
                                                       {Gravity, 9.81},
                                                       {DensityAquifer, 2200},
                                                       {DensitySurrounding, 2200},
                                                       {HeatConductivityAquifer, 2},
                                                       {HeatConductivitySurrounding, 2},
                                                       {HeatCapacityStone, 800},
                                                       {ReferenceTemperature, 10},
                                                       {WellDiameter, 0.2},
                                                       {MinElementLength, 4},
                                                       {MaxElementLength, 25},
                                                       {CellIncreaseFactor, 60},
                                                       {MaxNumberOfElements, 150}})
      site.setStored(id, value);
    site.project.wells.positions = {{0, 0}, {40, 0}};
    site.project.wells.rates = {{0, -0.001}, {1, 0.001}};
  }

  /// Two halves of a year with these rates for each well.
  void setPeriods(const std::vector<std::vector<double>>& rates) {
    site.project.durations = {{0, year / 2}, {1, year / 2}};
    for (int well = 0; well < static_cast<int>(rates.size()); ++well)
      for (int period = 0; period < 2; ++period)
        site.project.wells.periodRates[well][period] = rates[well][period];
  }

  OutputTimes times() const { return outputTimes(outputTimeInput(site, usualCycleLength)); }
  SitePlan plan() const { return planSite(readSite(site), times()); }

  static constexpr double year = secondsPerYear;
  ProjectOfValues site;
};

} // namespace

TEST_F(SiteInputTest, aProjectIsSetUpWithoutAStore) {
  const SiteInput input = readSite(site);
  const SiteSetup setup = makeSite(input, times(), planSite(input, times()));
  EXPECT_EQ(setup.wells.size(), 2u);
  EXPECT_EQ(setup.input.times.size(), 2u);
  EXPECT_GT(setup.mesh->nx * setup.mesh->ny, 100);
  EXPECT_TRUE(site.written.empty());
  EXPECT_TRUE(site.made.empty());
}

TEST_F(SiteInputTest, withoutALargestWidthTheCellsFollowTheWidthAtTheWells) {
  site.setStored(MaxElementLength, 0);
  site.setStored(MinElementLength, 0.1);
  site.setStored(WellDiameter, 0.5);
  const SiteInput input = readSite(site);
  EXPECT_EQ(input.cells.width, 0.5);
  EXPECT_EQ(input.cells.largest, 50) << "not 100 times the 0.1 that is replaced";
}

TEST_F(SiteInputTest, wellsHaveTheFlowsOfTheirOwnRows) {
  setPeriods({{-0.001, -0.002}, {0.001, 0.002}});
  site.project.wells.periodTemperatureChanges[1][1] = 4;
  const SiteInput input = readSite(site);
  ASSERT_EQ(input.wells.size(), 2u);
  ASSERT_EQ(input.wells[1].periods.size(), 2u);
  EXPECT_EQ(input.wells[0].periods[1].rate, -0.002);
  EXPECT_EQ(input.wells[0].periods[1].temperatureChange, 0);
  EXPECT_EQ(input.wells[1].periods[1].rate, 0.002);
  EXPECT_EQ(input.wells[1].periods[1].temperatureChange, 4);
}

TEST_F(SiteInputTest, aConstantDemandHasNoFlowsByPeriod) {
  const SiteInput input = readSite(site);
  EXPECT_FALSE(input.hasPeriods());
  EXPECT_TRUE(input.wells[0].periods.empty());
}

TEST_F(SiteInputTest, wellsOfOneNameShareTheirRows) {
  setPeriods({{-0.001, -0.002}, {0.003, 0.004}});
  site.project.wells.names = {{0, "A"}, {1, "A"}};
  const SitePlan planned = plan();
  ASSERT_EQ(planned.wells.size(), 2u);
  for (const auto& well : planned.wells) {
    // The second cycle takes the place of the rows beyond the first one.
    EXPECT_EQ(well->rate(0), -0.001);
    EXPECT_EQ(well->rate(1), -0.002);
    EXPECT_EQ(well->rate(2), -0.001);
    const int last = 2 * (static_cast<int>(times().times.size()) / 2 - 1);
    EXPECT_EQ(well->rate(last + 2), 0.003);
    EXPECT_EQ(well->rate(last + 3), 0.004);
  }
}

TEST_F(SiteInputTest, whatAProjectHoldsAlreadyIsNotUsedAnew) {
  const UsedSite used = plan().used;
  EXPECT_EQ(used.wellDistance, 40);
  EXPECT_FALSE(used.lengths) << "no well exceeds the mean flow";
  EXPECT_FALSE(used.dispersivity);
  EXPECT_EQ(used.cellWidth, 4);
}

// The way back

TEST_F(SiteInputTest, aRunMakesTheTablesThatItReads) {
  makeTables(site);
  EXPECT_EQ(site.made, (std::vector{ProjectTable::Demand, ProjectTable::Well}));
  site.made.clear();
  setPeriods({{-0.001, -0.002}, {0.001, 0.002}});
  makeTables(site);
  EXPECT_EQ(site.made,
            (std::vector{ProjectTable::Demand, ProjectTable::Well, ProjectTable::WellDemand}));
}

TEST_F(SiteInputTest, whatIsUsedIsWrittenBackInItsOrder) {
  site.setStored(MeanFlowRate, 0.0005);
  site.setStored(ThermalDispersivity, 5);
  setUpSite(site, times());
  EXPECT_EQ(site.written,
            (std::vector<int>{DMinUsed, AMin, BMin, DMin, ThermalDispersivity, MinElementLength,
                              UsedNumberOfElements, MaximumExtent3K, TimeOfMaximumExtent3K}));
}

TEST_F(SiteInputTest, aSiteThatCantBeMeshedShowsWhatWasAskedFor) {
  site.setStored(AquiferThickness, -1);
  EXPECT_THROW(setUpSite(site, times()), std::range_error);
  EXPECT_EQ(site.written, (std::vector<int>{DMinUsed, MinElementLength}));
}

TEST_F(SiteInputTest, aSiteWithoutARateIsLeftAsItWas) {
  site.project.wells.rates = {{0, 0.0}, {1, 0.0}};
  EXPECT_THROW(setUpSite(site, times()), SetupError);
  EXPECT_TRUE(site.written.empty());
}
