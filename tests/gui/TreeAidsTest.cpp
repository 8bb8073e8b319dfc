#include "gui/DesignEditorTest.h"
#include "project/ParameterTable.h"
#include "store/ValueOrigins.h"
#include "support/SettingsOfTheTest.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QMenu>

#include <memory>

namespace TVR::GUI {
namespace {

using namespace Parameter;

struct TreeAidsTest : DesignEditorTest {
  TreeAidsTest() {
    editor.setOrigins(std::make_shared<Data::ValueOrigins>(store));
    aids = editor.findChild<TreeAids*>();
  }

  /// As it is shown to the user.
  QString tip(int id) { return view().model()->data(index(id), Qt::ToolTipRole).toString(); }
  QModelIndex index(int id) {
    browser().setCurrentItem(&item(id));
    return view().currentIndex();
  }
  void search(const QString& text) { editor.findChild<QLineEdit*>("searchField")->setText(text); }
  void onlyChanged(bool isOn) { editor.findChild<QCheckBox*>("onlyChangedBox")->setChecked(isOn); }
  QString badge(int id) { return property(id).decoration().badge; }
  /// The entry of the row's menu whose text begins like this, also of a menu below it.
  QAction* entry(int id, const QString& text) {
    menu.reset(aids->menuOf(&property(id)));
    for (QAction* const action : menu->findChildren<QAction*>())
      if (action->text().startsWith(text))
        return action;
    return nullptr;
  }

  const SettingsOfTheTest settings;
  TreeAids* aids = nullptr;
  std::unique_ptr<QMenu> menu;
};

TEST_F(TreeAidsTest, searchGoesOverNameKeyUnitAndTip) {
  search("hydraulic COND");
  EXPECT_TRUE(isShown(HydraulicConductivity));
  EXPECT_FALSE(isShown(SimulationTime));
  search("_kf");
  EXPECT_TRUE(isShown(HydraulicConductivity));
  search("m/100m");
  EXPECT_TRUE(isShown(GroundwaterGradient));
  EXPECT_FALSE(isShown(AquiferThickness));
  set(SimulationTime, 3e8);
  search("entered");
  EXPECT_TRUE(isShown(SimulationTime));
  EXPECT_FALSE(isShown(CellIncreaseFactor));
  search("");
  EXPECT_TRUE(isShown(CellIncreaseFactor));
}

TEST_F(TreeAidsTest, groupsAreShownForWhatIsFoundInThem) {
  search("_kf");
  EXPECT_TRUE(isShown(WellWizardDone));
  EXPECT_FALSE(isShown(HeadingNumericalParameter));
  search(property(HeadingNumericalParameter).propertyName()); // which no value says
  EXPECT_FALSE(isShown(HeadingNumericalParameter));
}

TEST_F(TreeAidsTest, searchDoesNotShowWhatTheProjectHasNoUseFor) {
  set(AquiferUnconfined, false);
  search("aquifer");
  EXPECT_FALSE(isShown(AquiferBasis));
}

TEST_F(TreeAidsTest, onlyChangedLeavesWhatDiffersFromTheDefaults) {
  store.reset();
  QCoreApplication::processEvents();
  onlyChanged(true);
  EXPECT_FALSE(isShown(SimulationTime));
  set(SimulationTime, 3e8);
  EXPECT_TRUE(isShown(SimulationTime));
  EXPECT_FALSE(isShown(CellIncreaseFactor));
  onlyChanged(false);
  EXPECT_TRUE(isShown(CellIncreaseFactor));
}

TEST_F(TreeAidsTest, onlyChangedShowsWhatIsTypedAndNotApplied) {
  store.reset();
  QCoreApplication::processEvents();
  edit();
  onlyChanged(true);
  EXPECT_FALSE(isShown(MinElementLength));
  property(MinElementLength).setValue(2.5);
  EXPECT_TRUE(isShown(MinElementLength));
}

TEST_F(TreeAidsTest, onlyChangedShowsADefaultThatIsTypedAndNotApplied) {
  const double usual = store.value(MinElementLength).toDouble();
  set(MinElementLength, usual + 1);
  edit();
  onlyChanged(true);
  property(MinElementLength).setValue(usual);
  EXPECT_TRUE(isShown(MinElementLength));
}

TEST_F(TreeAidsTest, computedValuesAreInItalics) {
  set(SimulationTime, 3e8);
  EXPECT_FALSE(property(SimulationTime).decoration().italic);
  set(EnergyDemandType, 2);
  set(CoolingDemand, 40000);
  set(CoolingPeakLoadDuration, 2000); // which gives the power
  EXPECT_TRUE(property(CoolingPower).decoration().italic);
  EXPECT_FALSE(property(CoolingDemand).decoration().italic);
  set(CoolingPower, 30);
  EXPECT_FALSE(property(CoolingPower).decoration().italic);
}

TEST_F(TreeAidsTest, tipTellsFormulaOperandsAndTriggers) {
  set(EnergyDemandType, 2);
  set(CoolingDemand, 40000);
  set(CoolingPeakLoadDuration, 2000);
  const QString text = tip(CoolingPower);
  EXPECT_TRUE(text.contains("Computed from other values")) << text.toStdString();
  EXPECT_TRUE(text.contains("Formula: ⌊E_c / t_c⌋")) << text.toStdString();
  EXPECT_TRUE(text.contains("E_c = 40000 kWh/a (" + ParameterName::label(CoolingDemand) + ")"))
      << text.toStdString();
  EXPECT_TRUE(text.contains("Set by a change of: " + ParameterName::label(CoolingPeakLoadDuration)))
      << text.toStdString();
}

TEST_F(TreeAidsTest, tipRepeatsTheNameWhichMayBeCut) {
  EXPECT_TRUE(tip(WellWizardDone).contains(property(WellWizardDone).propertyName()));
  EXPECT_TRUE(tip(SimulationTime).contains(property(SimulationTime).propertyName()));
}

TEST_F(TreeAidsTest, tipFollowsTheProject) {
  set(SimulationTime, 3e8);
  EXPECT_TRUE(tip(SimulationTime).contains("Entered"));
  store.reset();
  QCoreApplication::processEvents();
  EXPECT_TRUE(tip(SimulationTime).contains("From the reference database"));
}

TEST_F(TreeAidsTest, valueThatNoRuleBringsHasNoFormulaInItsTip) {
  set(EnergyDemandType, 2);
  set(CoolingDemand, 40000);
  set(CoolingPeakLoadDuration, 2000);
  EXPECT_TRUE(tip(CoolingPower).contains("Formula"));
  set(CoolingPower, 31);
  EXPECT_FALSE(tip(CoolingPower).contains("Formula"));
}

TEST_F(TreeAidsTest, selectedValueMarksWhatItDependsOnAndWhatDependsOnIt) {
  set(EnergyDemandType, 2);
  set(CoolingDemand, 40000);
  set(CoolingPeakLoadDuration, 2000);
  browser().setCurrentItem(&item(CoolingDemand));
  EXPECT_EQ(badge(CoolingPower), "←");
  EXPECT_EQ(badge(CoolingPeakLoadDuration), "");
  EXPECT_EQ(badge(MinElementLength), "");
  browser().setCurrentItem(&item(CoolingPower));
  EXPECT_EQ(badge(CoolingDemand), "→");
  EXPECT_EQ(property(CoolingDemand).decoration().badgeText, "The selected value depends on this.");
  browser().setCurrentItem(&item(EnergyWizardDone)); // a group
  EXPECT_EQ(badge(CoolingDemand), "");
}

TEST_F(TreeAidsTest, resetBringsTheDefaultIntoTheTreeAndNotIntoTheProject) {
  const double usual = store.value(MinElementLength).toDouble();
  set(MinElementLength, usual + 1);
  edit();
  entry(MinElementLength, "Reset")->trigger();
  EXPECT_EQ(property(MinElementLength).value().toDouble(), usual);
  EXPECT_TRUE(property(MinElementLength).isModified());
  EXPECT_EQ(store.value(MinElementLength).toDouble(), usual + 1);
}

TEST_F(TreeAidsTest, resetIsForValuesThatCanBeTypedAndDiffer) {
  set(MinElementLength, 7.5);
  EXPECT_FALSE(entry(MinElementLength, "Reset")->isEnabled());
  edit();
  EXPECT_TRUE(entry(MinElementLength, "Reset")->isEnabled());
  EXPECT_FALSE(entry(MaximumExtent3K, "Reset")->isEnabled());
  store.reset();
  QCoreApplication::processEvents();
  EXPECT_FALSE(entry(MinElementLength, "Reset")->isEnabled());
  property(MinElementLength).setValue(7.5);
  EXPECT_TRUE(entry(MinElementLength, "Reset")->isEnabled());
}

TEST_F(TreeAidsTest, groupHasNoMenu) {
  EXPECT_EQ(aids->menuOf(&property(WellWizardDone)), nullptr);
}

TEST_F(TreeAidsTest, velocitiesAreShownAndTypedInTheChosenUnit) {
  set(HydraulicConductivity, 0.001);
  EXPECT_EQ(text(HydraulicConductivity), "0.001 m/s");
  entry(HydraulicConductivity, "m/d")->trigger();
  EXPECT_EQ(text(HydraulicConductivity), "86.4 m/d");
  EXPECT_EQ(store.value(HydraulicConductivity).toDouble(), 0.001);
  EXPECT_FALSE(property(HydraulicConductivity).isModified());
  edit();
  type(HydraulicConductivity, "864");
  EXPECT_NEAR(property(HydraulicConductivity).value().toDouble(), 0.01, 1e-15);
}

TEST_F(TreeAidsTest, chosenUnitStaysInTheSettings) {
  entry(HydraulicConductivity, "m/d")->trigger();
  entry(HydraulicConductivity, "l/min")->trigger();
  const DesignPropertyEditor next(store);
  const auto* const conductivity =
      const_cast<DesignPropertyEditor&>(next).tree().propertyOfId().at(HydraulicConductivity);
  EXPECT_TRUE(conductivity->valueText().endsWith(" m/d"));
  const DisplayUnits units;
  EXPECT_STREQ(units.unitFor("m³/s")->name, "l/min");
  EXPECT_EQ(units.unitFor("m³/s")->scale, 60000.0);
  EXPECT_FALSE(units.unitFor("m").has_value());
}

TEST_F(TreeAidsTest, chosenUnitSurvivesALanguageChange) {
  entry(HydraulicConductivity, "m/d")->trigger();
  editor.retranslate();
  EXPECT_TRUE(text(HydraulicConductivity).endsWith(" m/d"));
}

TEST_F(TreeAidsTest, everyFlowRateHasItsFactor) {
  const auto units = DisplayUnits::choices(DisplayUnits::FlowRate);
  ASSERT_EQ(units.size(), 4U);
  EXPECT_STREQ(units[0].name, "m³/s");
  EXPECT_STREQ(units[1].name, "l/s");
  EXPECT_EQ(units[1].scale, 1000.0);
  EXPECT_STREQ(units[3].name, "m³/h");
  EXPECT_EQ(units[3].scale, 3600.0);
}

} // namespace
} // namespace TVR::GUI
