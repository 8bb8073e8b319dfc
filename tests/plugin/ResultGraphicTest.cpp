#include "plugin/PagePluginTest.h"

#include <QLineEdit>
#include <QMainWindow>
#include <QSpinBox>

using namespace TVR;
using namespace TVR::Parameter;
using namespace Sketra_lib::Property;

namespace {

class ResultGraphicTest : public PagePluginTest {
protected:
  ResultGraphicTest() { store.setValue(ViewUseExtension, false); }

  /// A box that a test gives the plug-in, with a range of its own.
  QSpinBox& scaleBox(int value) {
    box_.setRange(0, 1000000);
    box_.setValue(value);
    graphic().controls().scale = &box_;
    return box_;
  }
  double mapNumber(int property) { return of("Map view", property).toDouble(); }

private:
  QSpinBox box_;
};

} // namespace

// Opening

TEST_F(ResultGraphicTest, aWindowIsOpenedDressedAndFilled) {
  EXPECT_EQ(graphic().startup(nullptr), &page);
  EXPECT_EQ(library.asked, QStringList{"'' 1"});
  EXPECT_EQ(items().mapView, item("Map view"));
  EXPECT_TRUE(of("Date", Html).isValid());
  EXPECT_EQ(page.openUpdates, 0);
}

TEST_F(ResultGraphicTest, anOpenedWindowShowsTheStoredViewAndTheWells) {
  prepare();
  store.setValue(ViewScale, 500);
  store.setValue(ViewX, 1000.0);
  store.setValue(ViewY, 2000.0);
  graphic().startup(nullptr);
  EXPECT_EQ(mapNumber(XMinimum), 1000);
  EXPECT_EQ(mapNumber(XMaximum), 1076) << "the left margin is 18 mm now";
  EXPECT_EQ(mapNumber(YMinimum), 2000);
  EXPECT_EQ(mapNumber(YMaximum), 2050);
  EXPECT_EQ(store.value(DefaultWellPosition).toPointF(), QPointF(1038, 2025));
  EXPECT_GT(items().wells, 0);
  EXPECT_EQ(page.itemProperty(items().wells, Points).value<QPolygonF>(), store.wellPositions());
}

TEST_F(ResultGraphicTest, anOpenedWindowMayBeAsWideAsTheProjectWants) {
  store.setValue(ViewUseExtension, true);
  store.setValue(ViewHorizontalExtension, 76.0);
  graphic().startup(nullptr);
  EXPECT_EQ(mapNumber(XMaximum) - mapNumber(XMinimum), 76);
  EXPECT_EQ(of("Map scale", Html), QVariant("<b>Map scale 1:500</b>"));
}

TEST_F(ResultGraphicTest, aWindowThatShowsSomethingElseIsHandedBack) {
  RecordingPage other;
  other.type = "TextWindow";
  EXPECT_EQ(graphic().startup(&other), &other);
  EXPECT_TRUE(library.asked.isEmpty());
  EXPECT_TRUE(page.sets.empty());
}

TEST_F(ResultGraphicTest, withoutALibraryNothingIsOpened) {
  AppInterface::setGraphicsInterface(nullptr);
  host.active = nullptr;
  EXPECT_EQ(graphic().startup(nullptr), nullptr);
  plugin.updateCurrentGraphicWindow();
  EXPECT_EQ(graphic().current(), nullptr);
}

TEST_F(ResultGraphicTest, aLogoThatIsMissingOnThePageIsToldTheUser) {
  store.setValue(UserLogo, path("none.png"));
  const MessageLog log;
  graphic().startup(nullptr);
  graphic().startup(&page);
  EXPECT_EQ(log.lines().filter("The picture " + path("none.png") + " cannot be read.").size(), 1);
}

TEST_F(ResultGraphicTest, aNewPageHasNoGridYet) {
  graphic().startup(nullptr);
  items().results = 99;
  graphic().startup(&page);
  EXPECT_EQ(items().results, 0);
}

// The texts of the page

TEST_F(ResultGraphicTest, anActivePageIsFilledAndNoneOpened) {
  plugin.updateCurrentGraphicWindow();
  EXPECT_TRUE(library.asked.isEmpty());
  EXPECT_FALSE(page.sets.empty());
  EXPECT_EQ(graphic().current(), nullptr);
}

TEST_F(ResultGraphicTest, aLockedActivePageStaysAndNoneIsOpened) {
  const LockedElsewhere locked(graphic().mutex());
  plugin.updateCurrentGraphicWindow();
  EXPECT_TRUE(page.sets.empty());
  EXPECT_TRUE(library.asked.isEmpty());
}

TEST_F(ResultGraphicTest, withoutAnActivePageTheProjectsOneIsOpenedOnce) {
  host.active = nullptr;
  plugin.updateCurrentGraphicWindow();
  EXPECT_EQ(graphic().current(), &page);
  EXPECT_EQ(library.asked.size(), 1);
  plugin.updateCurrentGraphicWindow();
  EXPECT_EQ(library.asked.size(), 1) << "it is still open";
  host.windows.clear();
  plugin.updateCurrentGraphicWindow();
  EXPECT_EQ(library.asked.size(), 2);
}

TEST_F(ResultGraphicTest, aClosedGraphicIsForgotten) {
  auto* const window = new RecordingPage;
  library.window = window;
  host.active = nullptr;
  plugin.updateCurrentGraphicWindow();
  EXPECT_EQ(graphic().current(), window);
  delete window;
  EXPECT_EQ(graphic().current(), nullptr);
}

TEST_F(ResultGraphicTest, theSlotForgetsTheGraphicToo) {
  host.active = nullptr;
  plugin.updateCurrentGraphicWindow();
  ASSERT_TRUE(invoke("currentGraphicClosed"));
  EXPECT_EQ(graphic().current(), nullptr);
}

TEST_F(ResultGraphicTest, aStoredPageReplacesTheContents) {
  plugin.setGraphicContents("stored");
  EXPECT_EQ(page.page, "stored");
  EXPECT_EQ(library.asked, QStringList{"'' 1"});
}

TEST_F(ResultGraphicTest, aBatchReplacesNoContents) {
  plugin.computeInput(path("nothing.txt"), true);
  ASSERT_TRUE(plugin.isBatch());
  plugin.setGraphicContents("stored");
  EXPECT_TRUE(page.page.isEmpty());
  EXPECT_TRUE(library.asked.isEmpty());
}

TEST_F(ResultGraphicTest, aLockedPageKeepsItsContents) {
  const LockedElsewhere locked(graphic().mutex());
  plugin.setGraphicContents("stored");
  EXPECT_TRUE(page.page.isEmpty());
}

// Scale and extent

TEST_F(ResultGraphicTest, aScaleIsShownInItsBox) {
  QSpinBox& box = scaleBox(1);
  int told = 0;
  QObject::connect(&box, QOverload<int>::of(&QSpinBox::valueChanged), [&told] { ++told; });
  ASSERT_TRUE(QMetaObject::invokeMethod(&plugin, "setScale", Q_ARG(int, 750), Q_ARG(bool, true)));
  EXPECT_EQ(box.value(), 750);
  EXPECT_EQ(told, 0);
}

TEST_F(ResultGraphicTest, aScaleIsShownInItsBoxAlsoIfThePageIsLocked) {
  QSpinBox& box = scaleBox(1);
  const LockedElsewhere locked(graphic().mutex());
  graphic().setScale(750, true);
  EXPECT_EQ(box.value(), 750);
  EXPECT_TRUE(page.sets.empty());
}

TEST_F(ResultGraphicTest, theScaleIsFiveHundredUnlessTold) {
  items().mapView = item("Map view");
  ASSERT_TRUE(invoke("setScale"));
  EXPECT_EQ(mapNumber(XMaximum) - mapNumber(XMinimum), 80);
}

TEST_F(ResultGraphicTest, theUserEntersAScale) {
  items().mapView = item("Map view");
  scaleBox(1000);
  ASSERT_TRUE(invoke("setMapScale"));
  EXPECT_EQ(mapNumber(XMaximum) - mapNumber(XMinimum), 160);
}

TEST_F(ResultGraphicTest, aScaleOfZeroOrNoBoxDoesNothing) {
  ASSERT_TRUE(invoke("setMapScale"));
  scaleBox(0);
  ASSERT_TRUE(invoke("setMapScale"));
  EXPECT_TRUE(page.sets.empty());
}

TEST_F(ResultGraphicTest, anExtensionOfZeroDoesNothing) {
  ASSERT_TRUE(QMetaObject::invokeMethod(&plugin, "setMapExtention", Q_ARG(double, 0.0)));
  EXPECT_TRUE(page.sets.empty());
}

TEST_F(ResultGraphicTest, anExtensionSetsTheScaleCutToAWholeNumber) {
  items().mapView = item("Map view");
  give(item("Map view"), Size, QSizeF(1540, 120));
  QSpinBox& box = scaleBox(1);
  ASSERT_TRUE(QMetaObject::invokeMethod(&plugin, "setMapExtention", Q_ARG(double, 1500.0)));
  EXPECT_EQ(box.value(), 986);
}

// Isolines

TEST_F(ResultGraphicTest, isolinesThatCouldBeSetMayBeExported) {
  QMainWindow main;
  plugin.addToolBars(&main);
  auto* const action = plugin.findChild<QAction*>("tvr_export_shapefile");
  ASSERT_TRUE(action);
  EXPECT_FALSE(action->isEnabled());
  {
    const LockedElsewhere locked(graphic().mutex());
    items().results = 5;
    plugin.updateIsotherms(0, 10);
    EXPECT_FALSE(action->isEnabled());
  }
  plugin.updateIsotherms(0, 10);
  EXPECT_TRUE(action->isEnabled());
  action->setEnabled(false);
  plugin.updateIsobars();
  EXPECT_TRUE(action->isEnabled());
}

TEST_F(ResultGraphicTest, isothermsOfAStepNeedARun) {
  items().results = page.addItem("Simulation results");
  graphic().calculateIsotherms(secondsPerYear);
  EXPECT_TRUE(page.sets.empty());
  EXPECT_EQ(library.refreshed, 0);
}

TEST_F(ResultGraphicTest, aFinishedGraphicOperationUnlocksThePage) {
  graphic().mutex().lock();
  ASSERT_TRUE(invoke("graphicOperationFinished"));
  bool isFree = false;
  std::thread([&] {
    isFree = graphic().mutex().tryLock();
    if (isFree)
      graphic().mutex().unlock();
  }).join();
  EXPECT_TRUE(isFree);
}

TEST_F(ResultGraphicTest, theDemandPlotRaisesTheLengthOfTheCycle) {
  BatchProject project = BatchProject::doublet();
  project.addPeriod(secondsPerYear);
  project.addPeriod(secondsPerYear);
  project.addPeriodRates({{-0.001, 0}, {-0.002, 0}, {0.001, -3}, {0.002, 4}});
  prepare(project);
  graphic().startup(nullptr);
  ASSERT_TRUE(invoke("setupDemandPlot"));
  EXPECT_EQ(plugin.simulationRun().cycleLength(), 24);
}
