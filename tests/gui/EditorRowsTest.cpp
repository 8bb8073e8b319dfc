#include "gui/editor/EditorRows.h"

#include "design/ParameterId.h"
#include "project/ProjectReader.h"

#include <gtest/gtest.h>

using namespace TVR;
using namespace TVR::Parameter;
using namespace TVR::GUI;

namespace {

using Ids = std::set<int>;

/// A project of a few values, as the tree shows it.
class EditorRowsTest : public testing::Test {
protected:
  QVariant shown(int id) const { return treeValue(*editorRow(id), view); }
  static QVariant stored(int id, const QVariant& value) {
    return storedValue(*editorRow(id), value);
  }
  void heatAndCool() { project.values[EnergyDemandType] = 2; }

  Project project;
  const ProjectView view{project};
};

} // namespace

TEST_F(EditorRowsTest, eachGroupStandsBeforeItsRows) {
  Ids groups{0};
  for (const EditorRow& row : editorRows()) {
    EXPECT_TRUE(groups.contains(row.group)) << row.id;
    if (row.kind == EditorKind::Group)
      groups.insert(row.id);
  }
}

TEST_F(EditorRowsTest, onlyWhatCanBeChangedHasARow) {
  EXPECT_EQ(editorRow(MaximumFlowRate), nullptr);
  EXPECT_EQ(editorRow(0), nullptr);
  EXPECT_EQ(editorRow(EnergyDemand), editorRow(HeatingDemand));
}

TEST_F(EditorRowsTest, aHeatDemandAloneIsShownInThePlaceOfHeating) {
  for (const auto& [heating, alone] : {std::pair{HeatingDemand, EnergyDemand},
                                       {HeatingPower, Power},
                                       {HeatingTemperatureChange, UsedTemperatureChange}}) {
    const EditorRow& row = *editorRow(heating);
    project.values[EnergyDemandType] = 1;
    EXPECT_EQ(shownParameter(row, view), alone);
    heatAndCool();
    EXPECT_EQ(shownParameter(row, view), heating);
  }
  EXPECT_EQ(shownParameter(*editorRow(SystemCop), view), SystemCop);
}

TEST_F(EditorRowsTest, valuesHaveTheTypeOfTheirRow) {
  heatAndCool();
  project.values.insert(NumberOfWells, "4.0");
  project.values.insert(HydraulicConductivity, "1e-05");
  project.values.insert(AquiferUnconfined, 1);
  project.values.insert(ProjectName, 815);
  EXPECT_EQ(shown(NumberOfWells), QVariant(4));
  EXPECT_EQ(shown(HydraulicConductivity), QVariant(1e-5));
  EXPECT_EQ(shown(AquiferUnconfined), QVariant(true));
  EXPECT_EQ(shown(ProjectName), QVariant("815"));
  EXPECT_FALSE(shown(WellWizardDone).isValid());
}

TEST_F(EditorRowsTest, porosityIsShownInPercentAndTimeInYears) {
  project.values = {{EffectivePorosity, 0.25}, {SimulationTime, 3 * 31557600.0}};
  EXPECT_EQ(shown(EffectivePorosity), QVariant(25.0));
  EXPECT_EQ(shown(SimulationTime), QVariant(3.0));
  EXPECT_EQ(stored(EffectivePorosity, 30.0), QVariant(0.3));
  EXPECT_EQ(stored(SimulationTime, 2.0), QVariant(2 * 365.25 * 86400.0));
  EXPECT_EQ(stored(AquiferThickness, 12.0), QVariant(12.0));
}

TEST_F(EditorRowsTest, dispersionIsOnOrOffAndOfFiveMetresWhenTyped) {
  project.values = {{ThermalDispersivity, 0.3}};
  EXPECT_EQ(shown(ThermalDispersivity), QVariant(true));
  project.values = {{ThermalDispersivity, 0.0}};
  EXPECT_EQ(shown(ThermalDispersivity), QVariant(false));
  EXPECT_EQ(stored(ThermalDispersivity, true), QVariant(5.0));
  EXPECT_EQ(stored(ThermalDispersivity, false), QVariant(0.0));
}

TEST_F(EditorRowsTest, coolingShowsNothingInAProjectThatOnlyHeats) {
  project.values = {{CoolingDemand, 700.0}, {CoolingTemperatureChange, 4.0}};
  EXPECT_EQ(shown(CoolingDemand), QVariant(0));
  EXPECT_EQ(shown(CoolingTemperatureChange), QVariant(0.0));
  heatAndCool();
  EXPECT_EQ(shown(CoolingDemand), QVariant(700));
}

TEST_F(EditorRowsTest, heatingShowsNothingInAProjectThatOnlyCools) {
  heatAndCool();
  project.values.insert(SystemCop, 4.0);
  project.values.insert(HeatingDemand, 900.0);
  EXPECT_EQ(shown(SystemCop), QVariant(4.0));
  project.values.insert(CoolingOnly, true);
  EXPECT_EQ(shown(SystemCop), QVariant(0.0));
  EXPECT_EQ(shown(HeatingDemand), QVariant(0));
}

TEST_F(EditorRowsTest, aHeatDemandAloneHidesCoolingAndFullHours) {
  const Ids confined{GroundwaterTable, AquiferBasis};
  Ids expected = confined;
  expected.insert({HeadingCoolingSpecification, HeatingPeakLoadDuration});
  EXPECT_EQ(hiddenParameters(view), expected);
}

TEST_F(EditorRowsTest, eitherPowerOrFullHoursAreShown) {
  heatAndCool();
  project.values.insert(AquiferUnconfined, true);
  EXPECT_EQ(hiddenParameters(view),
            (Ids{HeatingPeakLoadDuration, CoolingPeakLoadDuration, AquiferThickness}));
  project.values.insert(HeatingPeakLoadDuration, 1800.0);
  project.values.insert(CoolingPeakLoadDuration, 500.0);
  EXPECT_EQ(hiddenParameters(view), (Ids{HeatingPower, CoolingPower, AquiferThickness}));
}

TEST_F(EditorRowsTest, aProjectThatOnlyCoolsHidesHeating) {
  heatAndCool();
  project.values.insert(CoolingOnly, true);
  EXPECT_TRUE(hiddenParameters(view).contains(HeadingHeatingSpecification));
  project.values.insert(EnergyDemandType, 1);
  EXPECT_FALSE(hiddenParameters(view).contains(HeadingHeatingSpecification));
}
