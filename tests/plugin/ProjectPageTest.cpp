#include "plugin/PagePluginTest.h"
#include "support/SettingsOfTheTest.h"
#include "support/TestMessenger.h"

#include <QWizardPage>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

/// The page of a project under commands that have nothing to show on it.
class ProjectPageTest : public PagePluginTest {
protected:
  ProjectPageTest() {
    setMessenger(&user);
    plugin.wizards().setPages(
        {{GUI::PageGroup::WellPositions, [] { return QList<QWizardPage*>{new QWizardPage}; }}});
    prepare();
  }
  ~ProjectPageTest() override {
    plugin.wizards().closeWizard();
    setMessenger(nullptr);
  }

  /// Opens a project with a page.
  void loadPage() {
    graphic().startup(nullptr);
    page.page = results;
    plugin.save(path("p.tvr"));
    page.page.clear();
    graphic().forgetCurrent();
    plugin.load(path("p.tvr"));
    ASSERT_TRUE(page.page.contains("CanvasEx"));
  }
  /// Shows results on a page, with another window before it.
  void hidePage() {
    graphic().startup(nullptr);
    page.page = results;
    host.active = nullptr;
  }
  bool isPageSaved() {
    plugin.save(path("saved.tvr"));
    return contentOf(path("saved.tvr")).contains("CanvasEx");
  }
  /// The simulation is asked for and refused.
  void beRefused() {
    graphic().startup(nullptr);
    page.page = results;
    user.told.clear();
    plugin.startSimulation();
    ASSERT_FALSE(plugin.simulationRun().simulation());
    EXPECT_EQ(user.told.size(), 1);
  }

  const QByteArray results = "<!DOCTYPE GraphicWidgetExport><CanvasEx Version=\"1.2\"/>";
  const SettingsOfTheTest settings;
  TestMessenger user;
};

} // namespace

TEST_F(ProjectPageTest, theSimulationWizardsLeaveALoadedPage) {
  loadPage();
  const QByteArray loaded = page.page;
  plugin.showSimulationWizard();
  EXPECT_EQ(page.page, loaded);
  EXPECT_TRUE(plugin.wizards().wizard());
  plugin.showExtendedSimulationWizard();
  EXPECT_EQ(page.page, loaded);
}

TEST_F(ProjectPageTest, theSimulationWizardLeavesThePageOfARun) {
  run(plugin);
  page.page = results;
  plugin.showSimulationWizard();
  EXPECT_EQ(page.page, results);
}

TEST_F(ProjectPageTest, aLoadedPageStaysWhenTextsChangeBehindAnotherWindow) {
  loadPage();
  const QByteArray loaded = page.page;
  host.active = nullptr;
  plugin.updateCurrentGraphicWindow();
  EXPECT_EQ(page.page, loaded);
}

TEST_F(ProjectPageTest, aLoadedPageIsSavedFromBehindAnotherWindow) {
  loadPage();
  host.active = nullptr;
  EXPECT_TRUE(isPageSaved());
}

TEST_F(ProjectPageTest, aPageThatIsClosedAfterItWasLoadedIsNotSaved) {
  auto* const window = new RecordingPage;
  library.window = window;
  host.active = window;
  plugin.setGraphicContents(results);
  EXPECT_EQ(graphic().current(), window);
  host.active = nullptr;
  delete window;
  EXPECT_EQ(graphic().current(), nullptr);
}

TEST_F(ProjectPageTest, aNewProjectHasAPageWithoutResults) {
  hidePage();
  items().results = page.addItem("Simulation results", items().mapView);
  plugin.newOpen();
  EXPECT_NE(page.page, results);
  EXPECT_EQ(items().mapView, item("Map view"));
  EXPECT_EQ(items().results, 0);
}

TEST_F(ProjectPageTest, aNewProjectOpensNoPage) {
  host.active = nullptr;
  plugin.newOpen();
  EXPECT_EQ(graphic().current(), nullptr);
}

TEST_F(ProjectPageTest, aProjectWithoutAPageIsNotSavedWithThatOfTheProjectBefore) {
  ASSERT_TRUE(BatchProject::doublet().write(path("p.tbat")));
  hidePage();
  forget();
  plugin.load(path("p.tbat"));
  EXPECT_TRUE(page.calls.contains("clearContents"));
  EXPECT_FALSE(isPageSaved());
}

TEST_F(ProjectPageTest, theSimulationWizardPreparesAPageForAProjectThatCameWithoutOne) {
  ASSERT_TRUE(BatchProject::doublet().write(path("p.tbat")));
  graphic().startup(nullptr);
  plugin.load(path("p.tbat"));
  ASSERT_EQ(items().mapView, 0);
  plugin.showSimulationWizard();
  EXPECT_EQ(items().mapView, item("Map view"));
}

TEST_F(ProjectPageTest, aRefusalForWellsAtOnePlaceLeavesThePage) {
  store.setValue(NumberOfWells, 0);
  store.setValue(NumberOfWells, 2);
  beRefused();
  EXPECT_EQ(page.page, results);
  EXPECT_EQ(items().mapView, item("Map view"));
}

TEST_F(ProjectPageTest, aRefusalOfTheSetUpLeavesThePage) {
  store.setValue(SimulationTime, 0.0);
  beRefused();
  EXPECT_EQ(page.page, results);
}

TEST_F(ProjectPageTest, aRefusalOfTheMeshLeavesThePage) {
  store.setCells(ProjectTable::Well, {{1, WellColumns::X, 1e12}});
  beRefused();
  EXPECT_TRUE(user.told.value(0).contains("The mesh of cells around the wells cannot be made."));
  EXPECT_EQ(page.page, results);
  EXPECT_EQ(items().mapView, item("Map view"));
}
