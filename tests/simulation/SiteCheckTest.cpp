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
      : parameter(problem.parameter), table(problem.table), text(problem.text) {}
  bool operator==(const Problem&) const = default;

  std::optional<int> parameter;
  QString table;
  QString text;
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
  Problems errorsWith(int id, const QVariant& value) {
    change(id, value);
    return check();
  }
  Problems warningsWith(int id, const QVariant& value) {
    change(id, value);
    return warnings();
  }
  /// The wells stay those of the doublet: the design adds none.
  void change(int id, const QVariant& value) {
    store.setStored(CalculateWellConstruction, false);
    store.setValue(id, value);
  }

  Problems check() { return problems(false); }
  Problems warnings() { return problems(true); }

  Problems problems(bool areWarnings) {
    Problems problems;
    for (const SiteProblem& problem : checkSite(store))
      if (problem.isWarning == areWarnings)
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
  EXPECT_EQ(warnings(), Problems{});
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

TEST_F(SiteCheckTest, aValueOutsideItsRangeIsAnErrorWithBoundsAndUnit) {
  const std::vector<std::tuple<int, double, QString>> cases{
      {SimulationTime, 0, "expected 1 to 3.15576e+10 s, found \"0\""},
      {HydraulicConductivity, 1e-300, "expected 1e-08 to 10 m/s, found \"1e-300\""},
      {EffectivePorosity, 1.5, "expected 0.001 to 1, found \"1.5\""},
      {HeatConductivityAquifer, 0, "expected 0.05 to 20 W/(m·K), found \"0\""},
      {HeatConductivitySurrounding, 0, "expected 0.05 to 20 W/(m·K), found \"0\""},
      {DynamicViscosityWater, 0, "expected 0.0001 to 0.01 Pa·s, found \"0\""},
      {DensityWater, 0, "expected 900 to 1300 kg/m³, found \"0\""},
      {DensityAquifer, 0, "expected 500 to 5000 kg/m³, found \"0\""},
      {DensitySurrounding, 0, "expected 500 to 5000 kg/m³, found \"0\""},
      {HeatCapacityWater, 0, "expected 3000 to 5000 J/(kg·K), found \"0\""},
      {HeatCapacityStone, 0, "expected 100 to 5000 J/(kg·K), found \"0\""},
      {Gravity, 0, "expected 1 to 30 m/s², found \"0\""},
      {GroundwaterGradient, -0.5, "expected 0 to 100 m/100m, found \"-0.5\""},
      {GroundwaterFlowDirection, 1000, "expected -360 to 720 degrees, found \"1000\""},
      {ReferenceTemperature, -1e9, "expected 0 to 100 °C, found \"-1e+09\""},
      {ThermalDispersivity, -1, "expected 0 to 1000 m, found \"-1\""},
      {MaxNumberOfElements, 0, "expected 1 to 1e+07, found \"0\""},
      {CellIncreaseFactor, -1, "expected 0 to 1000 %, found \"-1\""},
      {MinElementLength, -1, "expected 0 to 1000 m, found \"-1\""},
      {MaxElementLength, -1, "expected 0 to 100000 m, found \"-1\""},
      {WellDiameter, -1, "expected 0 to 20 m, found \"-1\""},
      {RelTolGroundwater, 0, "expected 1e-16 to 0.1, found \"0\""},
      {AbsTolGroundwater, 0, "expected 1e-16 to 10000 Pa, found \"0\""},
      {RelTolHeat, 0, "expected 1e-16 to 0.1, found \"0\""},
      {AbsTolHeat, 0, "expected 1e-16 to 1 K, found \"0\""},
      {AquiferThickness, 1e308, "expected 0.01 to 2000 m, found \"1e+308\""},
  };
  for (const auto& [id, value, text] : cases) {
    read(BatchProject::doublet());
    EXPECT_EQ(errorsWith(id, value), (Problems{{id, text}}));
  }
}

TEST_F(SiteCheckTest, theBoundsThemselvesArePossible) {
  for (const double porosity : {0.001, 1.0})
    EXPECT_EQ(errorsWith(EffectivePorosity, porosity), Problems{});
  EXPECT_EQ(errorsWith(GroundwaterGradient, 0), Problems{});
}

TEST_F(SiteCheckTest, whatIsNoFiniteNumberIsAnError) {
  for (const double value : {std::nan(""), std::numeric_limits<double>::infinity()}) {
    read(BatchProject::doublet());
    const Problems problems = errorsWith(GroundwaterFlowDirection, value);
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_EQ(problems[0].parameter, GroundwaterFlowDirection);
  }
}

TEST_F(SiteCheckTest, anUnusualValueIsAWarningWithTheUsualBounds) {
  EXPECT_EQ(warningsWith(HydraulicConductivity, 1e-7),
            (Problems{{HydraulicConductivity, "usual is 1e-05 to 0.1 m/s, found \"1e-07\""}}));
  EXPECT_EQ(errorsWith(HydraulicConductivity, 1e-7), Problems{});
  EXPECT_EQ(warningsWith(HydraulicConductivity, 1e-5), Problems{});
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
  EXPECT_EQ(errorsWith(AquiferThickness, 0), Problems{});
}

TEST_F(SiteCheckTest, theWaterFilledThicknessHasTheRangeOfTheThickness) {
  BatchProject project = BatchProject::doublet();
  project.set("hydraulic", "aquifer_unconfined", 1);
  project.set("hydraulic", "aquifer_basis", 12);
  project.set("hydraulic", "groundwater_table", 11.995);
  read(project);
  EXPECT_EQ(check(), (Problems{{AquiferBasis, "from the groundwater table to the base: expected "
                                              "0.01 to 2000 m, found \"0.005\""}}));
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

TEST_F(SiteCheckTest, eachValueOfAWellHasTheRangeOfAParameter) {
  const auto endless = std::numeric_limits<double>::infinity();
  const std::vector<std::tuple<int, double, QString>> cases{
      {WellModel::X, 1e10, "x of \"Return\": expected -1e+09 to 1e+09 m, found \"1e+10\""},
      {WellModel::Y, endless, "y of \"Return\": expected -1e+09 to 1e+09 m, found \"inf\""},
      {WellModel::Rate, 1000,
       "size of the rate of \"Return\": expected 0 to 1 m³/s, found \"1000\""},
      {WellModel::Rate, -1000,
       "size of the rate of \"Return\": expected 0 to 1 m³/s, found \"-1000\""},
      {WellModel::TemperatureChange, 1e9,
       "temperature change of \"Return\": expected -99 to 99 K, found \"1000000000\""},
  };
  for (const auto& [column, value, text] : cases) {
    read(BatchProject::doublet());
    setWell(1, column, value);
    const Problems found = check();
    ASSERT_FALSE(found.empty()) << text.toStdString();
    EXPECT_EQ(found.front(), Problem("well_model", text));
  }
}

TEST_F(SiteCheckTest, aValueOfAPeriodHasTheRangeOfAParameterToo) {
  read(BatchProject::seasons());
  store.wellModel()->setStepTemperatureChange(1, 1, 1e9);
  EXPECT_EQ(check(), (Problems{{"well_model", "temperature change of \"Return\": expected -99 to "
                                              "99 K, found \"1000000000\""}}));
}

TEST_F(SiteCheckTest, anUnusualRateIsAWarning) {
  setWell(1, WellModel::Rate, 0.5);
  EXPECT_EQ(warnings(),
            (Problems{{"well_model", "size of the rate of \"Return\": usual is 0 to 0.1 m³/s, "
                                     "found \"0.5\""}}));
  EXPECT_EQ(check(), Problems{});
}

TEST_F(SiteCheckTest, waterIsNotInjectedBelowFreezing) {
  setWell(1, WellModel::TemperatureChange, -10.5);
  EXPECT_EQ(check(), (Problems{{"well_model", "temperature of the water injected into \"Return\": "
                                              "expected 0 to 100 °C, found \"-0.5\""}}));
  setWell(1, WellModel::TemperatureChange, -10);
  EXPECT_EQ(check(), Problems{});
}

TEST_F(SiteCheckTest, aForgottenCoordinateIsSeenByTheDistanceOfTheWells) {
  setWell(0, WellModel::X, 2'600'000);
  EXPECT_EQ(check(), (Problems{{"well_model", "distance between \"Return\" and \"Pump\": expected "
                                              "0 to 20000 m, found \"2599960\""}}));
  setWell(0, WellModel::X, 0);
  setWell(0, WellModel::Y, 5000);
  EXPECT_EQ(check(), Problems{});
  EXPECT_EQ(warnings(), (Problems{{"well_model", "distance between \"Return\" and \"Pump\": usual "
                                                 "is 1 to 2000 m, found \"5000\""}}));
}

TEST_F(SiteCheckTest, wellsCloserThanAMetreAreWarnedOf) {
  setWell(1, WellModel::X, 0.75);
  EXPECT_EQ(warnings(),
            (Problems{{"well_model", "\"Pump\" and \"Return\" stand only 0.75 m apart"}}));
  EXPECT_EQ(check(), Problems{});
  setWell(1, WellModel::X, 1.25);
  EXPECT_EQ(warnings(), Problems{});
}

TEST_F(SiteCheckTest, wellsThatShareACellAreAProblem) {
  setWell(1, WellModel::X, 0.25);
  EXPECT_EQ(check(),
            (Problems{{"well_model", "\"Pump\" and \"Return\" stand only 0.25 m apart, which the "
                                     "cells of 1 m around wells cannot tell apart"}}));
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
