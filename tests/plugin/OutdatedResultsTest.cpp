#include "plugin/OutdatedResults.h"

#include "gui/DesignPropertyEditor.h"
#include "messages/UserMessages.h"
#include "plugin/ProjectDocument.h"
#include "plugin/ProjectHistory.h"
#include "plugin/WholePlugin.h"
#include "support/ContextTranslator.h"
#include "support/SettingsOfTheTest.h"
#include "support/TestMessenger.h"

#include <QAccessible>
#include <QDockWidget>
#include <QMainWindow>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

/// The plug-in in a main window with its panel, and a page with the results of a doublet.
class OutdatedResultsTest : public WholePlugin {
protected:
  OutdatedResultsTest() {
    setMessenger(&user);
    host.main = &main;
    plugin->setAppInterface(&host);
    dock.reset(plugin->addDockingWindows(nullptr).value(0));
    prepareDoublet();
    plugin->document().opened({});
    run(*plugin);
    settle();
  }
  ~OutdatedResultsTest() override {
    dock.reset();
    setMessenger(nullptr);
  }

  /// Lets what waits for the end of the action come.
  static void settle() { QCoreApplication::processEvents(); }
  void set(int id, const QVariant& value) {
    store.setValue(id, value);
    settle();
  }
  bool areOutdated() const { return plugin->outdatedResults().areThere(); }
  QStringList changes() const { return plugin->outdatedResults().changes(); }
  QLabel& sign() { return *dock->findChild<QLabel*>("result_label"); }
  const QString& notice() { return window()->preview().notice(); }
  /// Opens a project file with what the store holds, and the page.
  void saveAndOpen() {
    plugin->save(path("doublet.tvr"));
    plugin->load(path("doublet.tvr"));
    settle();
  }

  const SettingsOfTheTest settings;
  TestMessenger user;
  QMainWindow main;
  std::unique_ptr<QDockWidget> dock;
};

} // namespace

TEST_F(OutdatedResultsTest, nothingIsSaidOfResultsOfTheProjectAsItIs) {
  EXPECT_FALSE(areOutdated());
  EXPECT_TRUE(sign().isHidden());
  EXPECT_EQ(notice(), "");
}

TEST_F(OutdatedResultsTest, aChangeAfterTheRunIsSaidInThePanelAndOnThePage) {
  const QByteArray page = window()->contents();
  set(HydraulicConductivity, 0.002);
  EXPECT_TRUE(areOutdated());
  EXPECT_FALSE(sign().isHidden());
  EXPECT_EQ(sign().text(), "Results out of date");
  EXPECT_EQ(sign().toolTip(), "Changed after the simulation:<br>"
                              "Hydraulic conductivity: 0.001 m/s → 0.002 m/s");
  EXPECT_EQ(notice(), "Results out of date");
  EXPECT_EQ(window()->contents(), page);
}

TEST_F(OutdatedResultsTest, screenReadersSayIt) {
  set(ReferenceTemperature, 12.0);
  const QString reason = "Changed after the simulation: Reference temperature: 10 °C → 12 °C";
  QAccessibleInterface* const label = QAccessible::queryAccessibleInterface(&sign());
  EXPECT_EQ(label->text(QAccessible::Name), "Results out of date");
  EXPECT_EQ(label->text(QAccessible::Description), reason);
  EXPECT_EQ(window()->accessibleDescription(), "Results out of date. " + reason);
  set(ReferenceTemperature, 10.0);
  EXPECT_EQ(window()->accessibleDescription(), "");
}

TEST_F(OutdatedResultsTest, aValueThatIsPutBackMakesThemTheProjectsAgain) {
  set(ReferenceTemperature, 12.0);
  EXPECT_TRUE(areOutdated());
  set(ReferenceTemperature, 10.0);
  EXPECT_FALSE(areOutdated());
  EXPECT_TRUE(sign().isHidden());
  EXPECT_EQ(notice(), "");
  EXPECT_TRUE(store.flag(SimulationUpToDate));
}

TEST_F(OutdatedResultsTest, whatRulesLeaveBehindOfAValueThatIsPutBackIsNamed) {
  set(HydraulicConductivity, 0.002);
  set(HydraulicConductivity, 0.001);
  EXPECT_TRUE(areOutdated());
  EXPECT_FALSE(changes().isEmpty());
}

TEST_F(OutdatedResultsTest, undoOfTheChangeDoesSoToo) {
  plugin->history().clear();
  set(HydraulicConductivity, 0.002);
  plugin->history().undo();
  settle();
  EXPECT_FALSE(areOutdated());
  EXPECT_TRUE(store.flag(SimulationUpToDate));
  plugin->history().redo();
  settle();
  EXPECT_TRUE(areOutdated());
  EXPECT_EQ(changes(), QStringList("Hydraulic conductivity: 0.001 m/s → 0.002 m/s"));
}

TEST_F(OutdatedResultsTest, whatNoRunReadsDoesNotCount) {
  set(ProjectName, "Another");
  set(ViewScale, 5000);
  set(BackgroundImageX, 12.5);
  store.setCells(ProjectTable::Well, {{0, WellModel::Name, "Deep well"}});
  settle();
  EXPECT_FALSE(areOutdated());
  set(HydraulicConductivity, 0.002);
  EXPECT_FALSE(changes().join('\n').contains("Another"));
}

TEST_F(OutdatedResultsTest, wellsAndTheirRatesCount) {
  store.setCells(ProjectTable::Well, {{1, WellModel::X, 681070.0}});
  settle();
  EXPECT_TRUE(areOutdated());
  EXPECT_EQ(changes(), QStringList("Wells with other values: 1"));
  store.setCells(ProjectTable::Well, {{1, WellModel::X, 681060.0}});
  settle();
  EXPECT_FALSE(areOutdated());
  store.setCells(ProjectTable::Well, {{1, WellModel::Rate, 0.003}});
  settle();
  EXPECT_TRUE(areOutdated());
}

TEST_F(OutdatedResultsTest, ofManyChangesTheFirstAreNamed) {
  for (const int id :
       {DensityAquifer, DensitySurrounding, DensityWater, DynamicViscosityWater, Gravity,
        HeatConductivityAquifer, HeatConductivitySurrounding, CellIncreaseFactor, HeatCapacityStone,
        HeatCapacityWater, GroundwaterGradient, ReferenceTemperature})
    store.setValue(id, store.number(id) * 1.01 + 1);
  settle();
  const int all = changes().size();
  ASSERT_GT(all, 10);
  const QStringList lines = sign().toolTip().split("<br>");
  ASSERT_EQ(lines.size(), 12);
  EXPECT_EQ(lines.last(), QString("and others: %1").arg(all - 10));
}

TEST_F(OutdatedResultsTest, aNewRunTakesTheSignAway) {
  set(HydraulicConductivity, 0.002);
  run(*plugin);
  settle();
  EXPECT_FALSE(areOutdated());
  EXPECT_TRUE(sign().isHidden());
  EXPECT_EQ(notice(), "");
}

TEST_F(OutdatedResultsTest, aChangeWhileTheSimulationRunsIsSaidToo) {
  plugin->startSimulation();
  settle();
  EXPECT_FALSE(areOutdated());
  set(HydraulicConductivity, 0.002);
  EXPECT_TRUE(areOutdated());
  EXPECT_TRUE(waitUntil([this] { return !plugin->simulationRun().simulation(); }));
  settle();
  EXPECT_TRUE(areOutdated());
}

TEST_F(OutdatedResultsTest, aFileKeepsWhetherItsResultsAreOutdated) {
  saveAndOpen();
  EXPECT_FALSE(areOutdated());
  set(HydraulicConductivity, 0.002);
  EXPECT_FALSE(store.flag(SimulationUpToDate));
  EXPECT_FALSE(plugin->running());
  saveAndOpen();
  EXPECT_FALSE(plugin->running()) << "opening is no order to run";
  EXPECT_TRUE(areOutdated());
  EXPECT_EQ(sign().toolTip(), "The project was changed after the simulation.");
  EXPECT_EQ(notice(), "Results out of date");
  EXPECT_FALSE(plugin->document().isModified());
}

TEST_F(OutdatedResultsTest, aProjectWithoutResultsHasNoneThatAreOutdated) {
  set(HydraulicConductivity, 0.002);
  store.reset();
  plugin->document().opened({});
  settle();
  EXPECT_FALSE(areOutdated());
  set(HydraulicConductivity, 0.003);
  EXPECT_FALSE(areOutdated());
  EXPECT_TRUE(sign().isHidden());
}

TEST_F(OutdatedResultsTest, theNoteThatFollowsIsNoStepOfTheUser) {
  plugin->history().clear();
  set(HydraulicConductivity, 0.002);
  ASSERT_FALSE(store.flag(SimulationUpToDate));
  plugin->history().undo();
  EXPECT_EQ(plugin->history().undoName(), "");
  EXPECT_EQ(number(HydraulicConductivity), 0.001);
}

TEST_F(OutdatedResultsTest, theSignFollowsTheLanguage) {
  set(HydraulicConductivity, 0.002);
  plugin->addMenus(nullptr);
  const ContextTranslator translator;
  plugin->updateLanguage("xx");
  EXPECT_EQ(sign().text(), "TVR::OutdatedSign/Results out of date");
  EXPECT_EQ(notice(), "TVR::OutdatedSign/Results out of date");
}

TEST_F(OutdatedResultsTest, withoutAMainWindowNobodyWatches) {
  host.main = nullptr;
  plugin->setAppInterface(&host);
  set(HydraulicConductivity, 0.002);
  EXPECT_TRUE(store.flag(SimulationUpToDate));
  EXPECT_FALSE(areOutdated());
}
