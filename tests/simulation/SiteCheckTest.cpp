#include "simulation/SiteCheck.h"

#include "support/ProjectTest.h"

#include <cmath>
#include <limits>
#include <optional>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

/// What a test expects to hear: the parameter at fault or the table, and the sentence.
struct Problem {
  Problem(int id, const QString& sentence) : parameter(id), text(sentence) {}
  Problem(const char* tableAtFault, const QString& sentence)
      : table(tableAtFault), text(sentence) {}
  explicit Problem(const SiteProblem& problem)
      : parameter(problem.parameter), table(problem.table), text(problem.text),
        isWarning(problem.isWarning) {}
  bool operator==(const Problem&) const = default;

  std::optional<int> parameter;
  QString table;
  QString text;
  bool isWarning = false;
};

[[maybe_unused]] void PrintTo(const Problem& problem, std::ostream* out) {
  *out << problem.parameter.value_or(-1) << problem.table.toStdString() << ": "
       << problem.text.toStdString();
}

using Problems = std::vector<Problem>;

class SiteCheckTest : public ProjectTest {
protected:
  SiteCheckTest() { read(BatchProject::doublet()); }

  /// Checks the doublet with one value changed.
  Problems checkWith(int id, const QVariant& value) {
    store.setValue(id, value);
    return check();
  }

  Problems check() {
    Problems problems;
    for (const SiteProblem& problem : checkSite(store))
      problems.emplace_back(problem);
    return problems;
  }

  void setWell(int row, int column, const QVariant& value) {
    WellModel& wells = *store.wellModel();
    EXPECT_TRUE(wells.setData(wells.index(row, column), value));
  }
};

} // namespace

TEST_F(SiteCheckTest, aSoundProjectHasNoProblems) {
  EXPECT_EQ(check(), Problems{});
}

TEST_F(SiteCheckTest, aSoundProjectWithPeriodsHasNoProblems) {
  read(BatchProject::seasons());
  EXPECT_EQ(check(), Problems{});
}

TEST_F(SiteCheckTest, theProjectIsLeftAsItIs) {
  const QMap<int, QVariant> before = store.values();
  checkSite(store);
  EXPECT_EQ(store.values(), before);
}

TEST_F(SiteCheckTest, valuesThatHaveToBeAboveZeroAreNamedWithTheirUnit) {
  const std::vector<std::pair<int, QString>> cases{
      {SimulationTime, "the simulated time has to be above 0 s, but is 0"},
      {HydraulicConductivity, "the hydraulic conductivity has to be above 0 m/s, but is 0"},
      {HeatConductivityAquifer,
       "the heat conductivity of the aquifer has to be above 0 W/(m·K), but is 0"},
      {HeatConductivitySurrounding,
       "the heat conductivity of the surrounding rock has to be above 0 W/(m·K), but is 0"},
      {DynamicViscosityWater, "the viscosity of the water has to be above 0 Pa·s, but is 0"},
      {DensityWater, "the density of the water has to be above 0 kg/m³, but is 0"},
      {DensityAquifer, "the density of the aquifer has to be above 0 kg/m³, but is 0"},
      {DensitySurrounding, "the density of the surrounding rock has to be above 0 kg/m³, but is 0"},
      {HeatCapacityWater, "the heat capacity of the water has to be above 0 J/(kg·K), but is 0"},
      {HeatCapacityStone, "the heat capacity of the rock has to be above 0 J/(kg·K), but is 0"},
      {MaxNumberOfElements, "the number of cells has to be above 0, but is 0"},
      {RelTolGroundwater, "an error tolerance has to be above 0, but is 0"},
      {AbsTolGroundwater, "an error tolerance has to be above 0, but is 0"},
      {RelTolHeat, "an error tolerance has to be above 0, but is 0"},
      {AbsTolHeat, "an error tolerance has to be above 0, but is 0"},
      {AquiferThickness, "the thickness of the aquifer has to be above 0 m, but is 0"},
  };
  for (const auto& [id, text] : cases) {
    read(BatchProject::doublet());
    EXPECT_EQ(checkWith(id, 0), (Problems{{id, text}}));
  }
}

TEST_F(SiteCheckTest, negativeAndEndlessValuesAreProblemsToo) {
  for (const double value : {-1.0, std::nan(""), std::numeric_limits<double>::infinity()}) {
    read(BatchProject::doublet());
    const Problems problems = checkWith(HydraulicConductivity, value);
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_EQ(problems[0].parameter, HydraulicConductivity);
  }
}

TEST_F(SiteCheckTest, aGrowthOfTheCellsBelowZeroIsAProblem) {
  EXPECT_EQ(checkWith(CellIncreaseFactor, -1),
            (Problems{{CellIncreaseFactor,
                       "the increase factor of the cells has to be 0 % or above, but is -1"}}));
  EXPECT_EQ(checkWith(CellIncreaseFactor, 0), Problems{});
}

TEST_F(SiteCheckTest, aPorosityIsAFraction) {
  EXPECT_EQ(checkWith(EffectivePorosity, 1.5),
            (Problems{{EffectivePorosity,
                       "the porosity is a fraction above 0 and not above 1, but is 1.5"}}));
  EXPECT_EQ(checkWith(EffectivePorosity, 1.0), Problems{});
}

TEST_F(SiteCheckTest, theBaseOfAnUnconfinedAquiferLiesBelowItsTable) {
  BatchProject project = BatchProject::doublet();
  project.set("hydraulic", "aquifer_unconfined", 1);
  project.set("hydraulic", "aquifer_basis", 4);
  project.set("hydraulic", "groundwater_table", 4);
  read(project);
  EXPECT_EQ(check(),
            (Problems{{AquiferBasis, "the base of the aquifer (4 m below ground) has to lie below "
                                     "the groundwater table (4 m below ground)"}}));
}

TEST_F(SiteCheckTest, theThicknessParameterCountsForAConfinedAquiferOnly) {
  BatchProject project = BatchProject::doublet();
  project.set("hydraulic", "aquifer_unconfined", 1);
  project.set("hydraulic", "aquifer_basis", 12);
  read(project);
  EXPECT_EQ(checkWith(AquiferThickness, 0), Problems{});
}

TEST_F(SiteCheckTest, aGradientBelowZeroIsAProblem) {
  EXPECT_EQ(checkWith(GroundwaterGradient, -0.5),
            (Problems{{GroundwaterGradient,
                       "the hydraulic gradient has to be 0 m/100m or above, but is -0.5; the flow "
                       "direction tells where the water goes"}}));
  EXPECT_EQ(checkWith(GroundwaterGradient, 0), Problems{});
}

TEST_F(SiteCheckTest, directionAndTemperatureHaveToBeNumbers) {
  EXPECT_EQ(
      checkWith(GroundwaterFlowDirection, std::nan("")),
      (Problems{{GroundwaterFlowDirection, "the flow direction has to be a number of degrees"}}));
  read(BatchProject::doublet());
  EXPECT_EQ(
      checkWith(ReferenceTemperature, std::nan("")),
      (Problems{{ReferenceTemperature, "the groundwater temperature has to be a number of °C"}}));
}

TEST_F(SiteCheckTest, aPeriodNeedsALength) {
  BatchProject project = BatchProject::doublet();
  project.addPeriod(0);
  project.addPeriod(-5);
  project.addPeriodRates({{-0.001, 0}, {-0.001, 0}, {0.001, 0}, {0.001, 0}});
  read(project);
  EXPECT_EQ(
      check(),
      (Problems{
          {"demand_model", "the duration of demand period 1 has to be above 0 s, but is 0"},
          {"demand_model", "the duration of demand period 2 has to be above 0 s, but is -5"}}));
}

TEST_F(SiteCheckTest, theLengthOfASinglePeriodDoesNotMatter) {
  BatchProject project = BatchProject::doublet();
  project.addPeriod(0);
  read(project);
  EXPECT_EQ(check(), Problems{});
}

TEST_F(SiteCheckTest, wellsAtOnePlaceAreAProblem) {
  setWell(1, WellModel::X, 0);
  EXPECT_EQ(check(),
            (Problems{{"well_model", "\"Pump\" and \"Return\" stand at one place (0 0)"}}));
}

TEST_F(SiteCheckTest, wellsCloserThanAMetreAreWarnedOf) {
  setWell(1, WellModel::X, 0.75);
  Problem near("well_model", "\"Pump\" and \"Return\" stand only 0.75 m apart");
  near.isWarning = true;
  EXPECT_EQ(check(), Problems{near});
  setWell(1, WellModel::X, 1.25);
  EXPECT_EQ(check(), Problems{});
}

TEST_F(SiteCheckTest, wellsThatShareACellAreAProblem) {
  setWell(1, WellModel::X, 0.25);
  EXPECT_EQ(check(),
            (Problems{{"well_model", "\"Pump\" and \"Return\" stand only 0.25 m apart, which the "
                                     "cells of 1 m around wells cannot tell apart"}}));
}

TEST_F(SiteCheckTest, aWellWithAValueThatIsNotFiniteIsAProblem) {
  setWell(0, WellModel::Rate, std::nan(""));
  EXPECT_EQ(check(), (Problems{{"well_model", "a value of the well \"Pump\" is not finite"}}));
}

TEST_F(SiteCheckTest, wellsWithOneNameAreAProblemWithPeriodsOnly) {
  setWell(1, WellModel::Name, "Pump");
  EXPECT_EQ(check(), Problems{});
  read(BatchProject::seasons());
  setWell(1, WellModel::Name, "Pump");
  EXPECT_EQ(check(),
            (Problems{{"well_model", "two wells have the name \"Pump\"; with demand periods "
                                     "each well needs a name of its own"}}));
}

TEST_F(SiteCheckTest, aProjectWithoutRatesIsAProblem) {
  setWell(0, WellModel::Rate, 0);
  EXPECT_EQ(check(), Problems{});
  setWell(1, WellModel::Rate, 0);
  EXPECT_EQ(check(), (Problems{{"well_model", "no well has a rate"}}));
}

TEST_F(SiteCheckTest, aRateInOnePeriodIsARate) {
  BatchProject project;
  project.addWell("Pump", 0, 0, 0);
  project.addWell("Return", 40, 0, 0);
  project.addPeriod(secondsPerYear / 2);
  project.addPeriod(secondsPerYear / 2);
  project.addPeriodRates({{0, 0}, {-0.001, 0}, {0, 0}, {0.001, 0}});
  read(project);
  EXPECT_EQ(check(), Problems{});
}
