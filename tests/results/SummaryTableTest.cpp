#include "results/SummaryTable.h"

#include "support/ResultPageTest.h"

#include <cmath>
#include <vector>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

constexpr double year = secondsPerYear;
using Times = std::vector<double>;

class SummaryTableTest : public ResultPageTest {
protected:
  SummaryTableTest() {
    for (const int flag : {EnergyWizardDone, WellWizardDone, AquiferUnconfined})
      store.setValue(flag, false);
  }

  std::string table(double time = -1, double extension = -1,
                    const std::vector<double>& stepTimes = {}) {
    return createSummaryTable(store, store.resultFrame().value_or(RunFrame()), stepTimes, time,
                              extension)
        .toStdString();
  }
  std::string label(int id) { return store.label(id).toString().toStdString(); }
  bool has(const std::string& part) { return table().find(part) != std::string::npos; }
  static bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
  }
  std::string formatted(int id, int places) {
    return QString::number(number(id), 'f', places).toStdString();
  }
  std::string row(const std::string& title, const std::string& value) {
    return "<tr><td>" + title + ": </td><td align=\"right\">" + value + "</td></tr>";
  }
  std::string row(const std::string& title, const std::string& value, const std::string& unit) {
    return "<tr><td>" + title + ": </td><td align=\"right\">" + value + "</td><td>" + unit +
           "</td></tr>";
  }
  std::string boldRow(const std::string& title, const std::string& value, const std::string& unit) {
    return "<tr><td><b>" + title + ": </b></td><td align=\"right\"><b>" + value +
           "</b></td><td><b>" + unit + "</b></td></tr>";
  }
};

} // namespace

TEST_F(SummaryTableTest, aShortProjectHasThisTable) {
  store.setValue(AquiferThickness, 12.34);
  store.setValue(HydraulicConductivity, 0.0012);
  store.setValue(GroundwaterGradient, 0.25);
  store.setValue(SimulationTime, 20 * year);
  store.setValue(ExchangeCaprock, true);
  store.setValue(ExchangeBedrock, false);
  store.setValue(ThermalDispersivity, 0.0);
  store.setValue(MaximumExtent3K, 41.6);
  EXPECT_EQ(table(),
            "<table width=\"100%\" border=\"0\" cellpadding=\"1\" "
            "style=\"font-size:9pt;font-family:Arial\">" +
                row("Aquifer type", "confined") + row(label(AquiferThickness), "12.3", "m") +
                row(label(HydraulicConductivity), "1.2e-03", "m/s") +
                row(label(GroundwaterGradient), "0.25", "m/100m") +
                row(label(SimulationTime), "20", "a") + row(label(ExchangeCaprock), "true") +
                row(label(ExchangeBedrock), "false") +
                "<tr><td colspan=\"3\">Hydraulic dispersion not inlcuded</td></tr><tr></tr>" +
                boldRow(label(MaximumExtent3K), "42", "m") + "</table>");
}

TEST_F(SummaryTableTest, aRunThatEndsAtAnotherTimeThanAskedForSaysSo) {
  store.setValue(SimulationTime, 127.1 * year);
  const std::string note =
      "<tr><td colspan=\"3\">The simulation ends after 126.10 a instead of 127.10 a</td></tr>";
  EXPECT_TRUE(contains(table(-1, -1, {126.1 * year}), note));
  EXPECT_TRUE(contains(table(0, -1, {126.1 * year}), note));
  for (const Times& times : {Times{}, Times{127.1 * year}, Times{127.104 * year}})
    EXPECT_FALSE(contains(table(-1, -1, times), "instead of"));
}

TEST_F(SummaryTableTest, anUnconfinedAquiferHasBaseAndTable) {
  store.setValue(AquiferUnconfined, true);
  store.setValue(AquiferBasis, 20.0);
  store.setValue(GroundwaterTable, 5.31);
  EXPECT_TRUE(has(row("Aquifer type", "unconfined") + row(label(AquiferBasis), "20.0", "m bgl") +
                  row(label(GroundwaterTable), "5.3", "m bgl")))
      << table();
  EXPECT_FALSE(has("<tr><td>" + label(AquiferThickness) + ": "));
}

TEST_F(SummaryTableTest, aGradientLosesItsTrailingZerosButNotItsPoint) {
  store.setValue(GroundwaterGradient, 0.25);
  EXPECT_TRUE(has(row(label(GroundwaterGradient), "0.25", "m/100m")));
  store.setValue(GroundwaterGradient, 0.0);
  EXPECT_TRUE(has(row(label(GroundwaterGradient), "0.", "m/100m")));
}

TEST_F(SummaryTableTest, timeZeroIsZeroYears) {
  EXPECT_TRUE(contains(table(0.0), row(label(SimulationTime), "0", "a")));
}

TEST_F(SummaryTableTest, yearsHaveADecimalIfTheyNeedIt) {
  EXPECT_TRUE(contains(table(20 * year), row(label(SimulationTime), "20", "a")));
  EXPECT_TRUE(contains(table(2.5 * year), row(label(SimulationTime), "2.5", "a")));
}

TEST_F(SummaryTableTest, theEndOfTheRunIsItsLastStep) {
  store.setValue(SimulationTime, 20 * year);
  EXPECT_TRUE(contains(table(-1, -1, {year, 3 * year}), row(label(SimulationTime), "3", "a")));
  EXPECT_TRUE(contains(table(-1, -1, {}), row(label(SimulationTime), "20", "a")));
}

TEST_F(SummaryTableTest, theTimeOfTheMaximumIsToldAfterIt) {
  store.setValue(TimeOfMaximumExtent3K, 4 * year);
  const std::string time = boldRow(label(TimeOfMaximumExtent3K), "4", "a");
  EXPECT_TRUE(contains(table(5 * year), time));
  EXPECT_FALSE(contains(table(4 * year), time));
  EXPECT_FALSE(contains(table(0.0), time));
  EXPECT_FALSE(contains(table(-1), time));
}

TEST_F(SummaryTableTest, theExtensionMayBeGiven) {
  store.setValue(MaximumExtent3K, 41.6);
  EXPECT_TRUE(contains(table(-1, 7.4), boldRow(label(MaximumExtent3K), "7", "m")));
  EXPECT_TRUE(contains(table(-1, 0.0), boldRow(label(MaximumExtent3K), "0", "m")));
}

TEST_F(SummaryTableTest, anExtentThatIsNotKnownIsNoZero) {
  read(BatchProject::doublet());
  store.setResultFrame(runFrameOf(store));
  store.setValue(MaximumExtent3K, "Fehler");
  store.setValue(TimeOfMaximumExtent3K, 0.0);
  const std::string undetermined = "<tr><td><b>" + label(MaximumExtent3K) +
                                   ": could not be determined, since there are no results on the "
                                   "map</b></td></tr></table>";
  EXPECT_TRUE(contains(table(5 * year), undetermined)) << table(5 * year);
  EXPECT_FALSE(contains(table(5 * year), boldRow(label(MaximumExtent3K), "0", "m")));
  EXPECT_TRUE(contains(table(-1, 7.4), boldRow(label(MaximumExtent3K), "7", "m")));
}

TEST_F(SummaryTableTest, anExtentIsNotKnownWithoutAnInjectionWell) {
  BatchProject project;
  project.addWell("Pump", 0, 0, -0.001);
  project.addWell("Pump 2", 40, 0, -0.001);
  read(project);
  store.setValue(MaximumExtent3K, "error");
  EXPECT_TRUE(has("since no well injects water<")) << table();
}

TEST_F(SummaryTableTest, anExtentIsNotKnownWhereTheInjectionWellsLieBelowZeroAlongTheFlow) {
  BatchProject project;
  project.set("hydraulic", "groundwater_flow_direction", 0);
  project.addWell("Pump", -900, 0, -0.001);
  project.addWell("Return", -900, 40, 0.001, -3);
  read(project);
  store.setResultFrame(runFrameOf(store));
  store.setValue(GroundwaterFlowDirection, 90.0);
  store.setValue(MaximumExtent3K, "error");
  EXPECT_TRUE(has("since along the groundwater flow no injection well lies at a coordinate above "
                  "0<"))
      << table();
}

TEST_F(SummaryTableTest, dispersionIsALength) {
  store.setValue(ThermalDispersivity, 5.0);
  EXPECT_TRUE(has(row(label(ThermalDispersivity) + " length", "5.0", "m")));
  EXPECT_FALSE(has("not inlcuded"));
}

TEST_F(SummaryTableTest, aKnownBuildingHasItsTypeAndPower) {
  store.setValue(EnergyWizardDone, true);
  store.setValue(EnergyDemandType, 1);
  store.setValue(BuildingType, 1);
  const std::string building = store.value(BuildingType).toString().toStdString();
  EXPECT_FALSE(building.empty());
  EXPECT_TRUE(has("<tr><td>" + label(BuildingType) + ": </td><td colspan=\"2\">" + building +
                  "</td></tr>" + row(label(EnergyDemand), formatted(EnergyDemand, 0), "kWh/a") +
                  row(label(Power), formatted(Power, 0), "kW") +
                  row(label(SystemCop), formatted(SystemCop, 1), "")))
      << table();
  EXPECT_FALSE(has(label(CoolingDemand)));
}

TEST_F(SummaryTableTest, aDemandOfOnesOwnHasCoolingAndHeating) {
  store.setValue(EnergyWizardDone, true);
  store.setValue(EnergyDemandType, 2);
  store.setValue(CoolingDemand, 1000.0);
  store.setValue(HeatingDemand, 2000.0);
  EXPECT_TRUE(has(row(label(CoolingDemand), formatted(CoolingDemand, 0), "kWh/a") +
                  row(label(HeatingDemand), formatted(HeatingDemand, 0), "kWh/a") +
                  row("effectiv " + label(EnergyDemand), formatted(EnergyDemand, 0), "kWh/a") +
                  "<tr><td>" + label(SystemCop)));
  store.setValue(EnergyDemandType, 3);
  EXPECT_FALSE(has("effectiv "));
}

TEST_F(SummaryTableTest, wellsHaveTheirFlows) {
  read(BatchProject::doublet());
  store.setValue(AquiferUnconfined, false);
  store.setValue(WellWizardDone, true);
  store.setValue(MeanFlowRate, 0.001);
  store.setValue(MaximumFlowRate, 0.002);
  store.setValue(Drawdown, 1.234);
  store.setValue(DMinUsed, 39.7);
  const std::string wells = "<tr><td>" + label(NumberOfWells) +
                            " (injection or pumping): </td><td align=\"right\">2</td></tr>" +
                            row(label(MeanFlowRate), "3.60", "m<sup>3</sup>/h") +
                            row(label(MaximumFlowRate), "7.20", "m<sup>3</sup>/h") +
                            row("Maximum drawdown in withdrawal wells", "1.23", "m") +
                            row(label(DMinUsed), "40", "m");
  EXPECT_TRUE(has(wells)) << table();
}

TEST_F(SummaryTableTest, wellsWithPeriodsAreNotToldApart) {
  read(BatchProject::seasons());
  store.setValue(WellWizardDone, true);
  EXPECT_TRUE(has("<tr><td>" + label(NumberOfWells) + " : </td>"));
}

TEST_F(SummaryTableTest, whatIsNoNumberIsLeftOut) {
  read(BatchProject::doublet());
  store.setValue(WellWizardDone, true);
  store.setValue(MaximumFlowRate, "nan");
  store.setValue(Drawdown, std::nan(""));
  EXPECT_FALSE(has(label(MaximumFlowRate)));
  EXPECT_FALSE(has("Maximum drawdown"));
}

TEST_F(SummaryTableTest, aMeanFlowThatIsNoNumberIsThatOfTheInjectionWells) {
  read(BatchProject::doublet());
  store.setValue(WellWizardDone, true);
  store.setValue(MeanFlowRate, "nan");
  setWell(0, -0.001, 0);
  setWell(1, 0.001, 3);
  EXPECT_TRUE(has(row(label(MeanFlowRate), "3.60", "m<sup>3</sup>/h"))) << table();
}

TEST_F(SummaryTableTest, theTableGoesToItsItem) {
  showSummary(access(), "<table></table>");
  EXPECT_EQ(of(items.summary, Sketra_lib::Property::Html), QVariant("<table></table>"));
  forget();
  items.summary = 0;
  showSummary(access(), "<table></table>");
  showSummary(noPage(), "<table></table>");
  EXPECT_TRUE(page.sets.empty());
}
