#include "desktop/MainWindow.h"
#include "desktop/Workspace.h"
#include "host/PageProperty.h"
#include "page/model/Items.h"
#include "page/window/PageWindow.h"
#include "plugin/PluginTest.h"
#include "plugin/ProjectHistory.h"
#include "plugin/WizardCommands.h"
#include "support/SettingsOfTheTest.h"
#include "support/TestMessenger.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QWizard>
#include <QtTest>

using namespace TVR;
using namespace TVR::Parameter;
using namespace Sketra_lib::Property;

namespace {

/// The program with its main window, a project of two wells that was opened, and its page.
class UndoInWindowTest : public PluginTest {
protected:
  UndoInWindowTest() {
    setMessenger(&user);
    window.start("en");
    window.resize(1200, 900);
    window.show();
    QApplication::setActiveWindow(&window);
    prepare();
    plugin.updateCurrentGraphicWindow();
    plugin.resultGraphic().fitView();
    plugin.save(path("doublet.tvr"));
    plugin.load(path("doublet.tvr"));
    QApplication::processEvents();
  }
  ~UndoInWindowTest() override {
    user.unsaved = Unsaved::Discard;
    setMessenger(nullptr);
  }

  QAction& action(const char* name) const { return *window.findChild<QAction*>(name); }
  QString undoText() const { return action("undo").text(); }
  QString redoText() const { return action("redo").text(); }
  bool canUndo() const { return action("undo").isEnabled(); }
  bool canRedo() const { return action("redo").isEnabled(); }
  void undo() const { action("undo").trigger(); }
  void redo() const { action("redo").trigger(); }
  bool isModified() const { return window.isWindowModified(); }

  Page::PageWindow* page() const { return window.findChild<Desktop::Workspace*>()->currentPage(); }
  int wellCurve() { return plugin.resultGraphic().items().wells; }
  QPolygonF wellsOnPage() { return page()->itemProperty(wellCurve(), Points).value<QPolygonF>(); }
  /// Where a well is seen in the window of the page [pixel].
  QPoint seenWell(int row) {
    const auto* const curve = page()->canvas().item<Page::CurveItem>(wellCurve());
    const auto* const map = dynamic_cast<const Page::PlotItem*>(curve->parent);
    return page()->view().toWindow(map->toPage(curve->points[row])).toPoint();
  }
  /// Drags a well with the mouse in many small moves.
  void drag(int row, const QPoint& by) {
    page()->setCurrentItem(wellCurve());
    const QPoint from = seenWell(row);
    QTest::mousePress(page(), Qt::LeftButton, {}, from);
    constexpr int moves = 10;
    for (int move = 1; move <= moves; ++move) {
      QMouseEvent event(QEvent::MouseMove, from + by * move / moves, Qt::NoButton, Qt::LeftButton,
                        {});
      QApplication::sendEvent(page(), &event);
    }
    QTest::mouseRelease(page(), Qt::LeftButton, {}, from + by);
  }

  QWizard& openSimulationWizard() {
    plugin.showSimulationWizard();
    QApplication::processEvents();
    return *plugin.wizards().wizard();
  }
  /// Leaves the first page, so that all rules have run that it runs, and begins again.
  QWizard& openSettledSimulationWizard() {
    openSimulationWizard().next();
    plugin.wizards().closeWizard();
    plugin.history().clear();
    return openSimulationWizard();
  }
  static void type(QWizard& wizard, const char* field, const QString& text) {
    auto* const edit = wizard.findChild<QLineEdit*>(field);
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, text);
  }

  const SettingsOfTheTest settings;
  TestMessenger user;
  TVRPlugin plugin;
  Desktop::MainWindow window{plugin};
};

} // namespace

TEST_F(UndoInWindowTest, anOpenedProjectHasNothingToUndo) {
  EXPECT_FALSE(canUndo());
  EXPECT_FALSE(canRedo());
  EXPECT_EQ(undoText(), "&Undo");
  EXPECT_EQ(redoText(), "&Redo");
  store.setValue(GroundwaterGradient, 0.7);
  EXPECT_TRUE(canUndo());
  user.unsaved = Unsaved::Discard;
  plugin.load(path("doublet.tvr"));
  EXPECT_FALSE(canUndo());
}

TEST_F(UndoInWindowTest, theSameProjectOpenedAgainHasNothingToRedo) {
  store.setValue(GroundwaterGradient, 0.7);
  undo();
  plugin.load(path("doublet.tvr"));
  EXPECT_FALSE(canRedo());
}

TEST_F(UndoInWindowTest, theMenuNamesWhatItUndoes) {
  store.setValue(GroundwaterGradient, 0.7);
  EXPECT_EQ(undoText(), "&Undo: Change hydraulic gradient");
  undo();
  EXPECT_EQ(number(GroundwaterGradient), 0.2);
  EXPECT_EQ(undoText(), "&Undo");
  EXPECT_EQ(redoText(), "&Redo: Change hydraulic gradient");
  redo();
  EXPECT_EQ(number(GroundwaterGradient), 0.7);
}

TEST_F(UndoInWindowTest, theKeysUndoAndRedo) {
  store.setValue(GroundwaterGradient, 0.7);
  QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(number(GroundwaterGradient), 0.2);
  QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(number(GroundwaterGradient), 0.7);
}

TEST_F(UndoInWindowTest, aTextFieldWithTheFocusUndoesItsOwnText) {
  store.setValue(GroundwaterGradient, 0.7);
  QLineEdit field(&window);
  field.show();
  field.setFocus();
  QTest::keyClicks(&field, "typed");
  QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(field.text(), "");
  QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(number(GroundwaterGradient), 0.7);
}

TEST_F(UndoInWindowTest, backAtTheSavedStateTheProjectIsUnmodified) {
  EXPECT_FALSE(isModified());
  store.setValue(GroundwaterGradient, 0.7);
  EXPECT_TRUE(isModified());
  undo();
  EXPECT_FALSE(isModified());
  redo();
  EXPECT_TRUE(isModified());
  plugin.save(path("doublet.tvr"));
  EXPECT_FALSE(isModified());
  undo();
  EXPECT_TRUE(isModified());
  redo();
  EXPECT_FALSE(isModified());
}

TEST_F(UndoInWindowTest, aDragOnTheMapIsOneStep) {
  ASSERT_TRUE(page());
  const QPolygonF before = wellsOnPage();
  drag(1, {40, 24});
  const QPolygonF after = wellsOnPage();
  ASSERT_NE(after, before);
  EXPECT_EQ(store.wellPositions(), after);
  EXPECT_EQ(undoText(), "&Undo: Move wells");
  undo();
  EXPECT_FALSE(canUndo());
  EXPECT_EQ(store.wellPositions(), before);
  EXPECT_EQ(wellsOnPage(), before);
  EXPECT_FALSE(isModified());
  redo();
  EXPECT_EQ(wellsOnPage(), after);
  EXPECT_TRUE(isModified());
}

TEST_F(UndoInWindowTest, twoDragsAreTwoSteps) {
  const QPolygonF before = wellsOnPage();
  drag(1, {40, 24});
  const QPolygonF between = wellsOnPage();
  drag(1, {-20, 10});
  ASSERT_NE(wellsOnPage(), between);
  undo();
  EXPECT_EQ(wellsOnPage(), between);
  undo();
  EXPECT_EQ(wellsOnPage(), before);
}

TEST_F(UndoInWindowTest, theMapIsShownAsItWas) {
  const double left =
      page()->itemProperty(plugin.resultGraphic().items().mapView, XMinimum).toDouble();
  const auto shownLeft = [this] {
    return page()->itemProperty(plugin.resultGraphic().items().mapView, XMinimum).toDouble();
  };
  store.setValue(ViewX, store.value(ViewX).toDouble() + 500);
  plugin.resultGraphic().updateMapView();
  ASSERT_NEAR(shownLeft(), left + 500, 1e-6);
  undo();
  EXPECT_NEAR(shownLeft(), left, 1e-6);
}

TEST_F(UndoInWindowTest, aRunIsNoStepAndItsResultsAreMarkedOutOfDate) {
  store.setValue(GroundwaterGradient, 0.7);
  run(plugin);
  EXPECT_EQ(undoText(), "&Undo: Change hydraulic gradient");
  EXPECT_TRUE(store.flag(SimulationUpToDate));
  const double extent = number(MaximumExtent3K);
  const double cells = number(UsedNumberOfElements);
  ASSERT_GT(cells, 0);
  undo();
  EXPECT_EQ(number(GroundwaterGradient), 0.2);
  EXPECT_FALSE(store.flag(SimulationUpToDate));
  EXPECT_EQ(number(MaximumExtent3K), extent);
  EXPECT_EQ(number(UsedNumberOfElements), cells);
  redo();
  EXPECT_TRUE(store.flag(SimulationUpToDate));
  EXPECT_FALSE(canRedo());
}

TEST_F(UndoInWindowTest, theSummaryKeepsTheTimeOfTheWholeRun) {
  const auto summary = [this] {
    return page()->itemProperty(plugin.resultGraphic().items().summary, Html).toString();
  };
  store.setValue(GroundwaterGradient, 0.7);
  run(plugin);
  const QRegularExpression time("Operation time.*?</tr>");
  const QString before = time.match(summary()).captured();
  ASSERT_FALSE(before.isEmpty());
  undo();
  EXPECT_EQ(time.match(summary()).captured(), before);
}

TEST_F(UndoInWindowTest, nothingIsUndoneWhileASimulationRuns) {
  prepare(BatchProject::doublet().set("main", "simulation_time", 900));
  store.setValue(GroundwaterGradient, 0.7);
  plugin.startSimulation();
  ASSERT_TRUE(waitUntil([this] { return !canUndo(); }));
  undo();
  QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(number(GroundwaterGradient), 0.7);
  plugin.cancelSimulation();
  EXPECT_TRUE(waitUntil([this] { return !plugin.simulationRun().simulation(); }));
  EXPECT_EQ(undoText(), "&Undo: Change hydraulic gradient");
  undo();
  EXPECT_EQ(number(GroundwaterGradient), 0.2);
}

TEST_F(UndoInWindowTest, aPageOfAWizardIsOneStepAndShowsWhatWasUndone) {
  QWizard& wizard = openSimulationWizard();
  const double thickness = number(AquiferThickness);
  const double gradient = number(GroundwaterGradient);
  const QString shown = wizard.findChild<QLineEdit*>("GW_thickness")->text();
  type(wizard, "GW_thickness", "17");
  type(wizard, "GW_gradient", "0.4");
  wizard.next();
  ASSERT_EQ(number(AquiferThickness), 17);
  EXPECT_EQ(undoText(), "&Undo: Change values (Simulation wizard)");
  undo();
  EXPECT_FALSE(canUndo());
  EXPECT_EQ(number(AquiferThickness), thickness);
  EXPECT_EQ(number(GroundwaterGradient), gradient);
  EXPECT_EQ(wizard.findChild<QLineEdit*>("GW_thickness")->text(), shown);
}

TEST_F(UndoInWindowTest, aPageWithOneNewValueIsNamedAfterIt) {
  QWizard& wizard = openSettledSimulationWizard();
  type(wizard, "GW_gradient", "0.4");
  wizard.next();
  EXPECT_EQ(undoText(), "&Undo: Change hydraulic gradient");
}

TEST_F(UndoInWindowTest, aPageThatIsLeftAsItWasIsNoStep) {
  openSettledSimulationWizard().next();
  EXPECT_FALSE(canUndo());
}

TEST_F(UndoInWindowTest, theKeysWorkInAWizardThatStaysOpen) {
  QWizard& wizard = openSimulationWizard();
  store.setValue(GroundwaterGradient, 0.7);
  QApplication::setActiveWindow(&wizard);
  wizard.setFocus();
  QTest::keyClick(&wizard, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(number(GroundwaterGradient), 0.2);
}

TEST_F(UndoInWindowTest, theLanguageIsNoStep) {
  QMetaObject::invokeMethod(&plugin, "setFrench");
  EXPECT_FALSE(canUndo());
  store.setValue(GroundwaterGradient, 0.7);
  QMetaObject::invokeMethod(&plugin, "setEnglish");
  QApplication::processEvents();
  EXPECT_TRUE(canUndo());
  undo();
  EXPECT_EQ(store.text(GuiLanguage), "en");
}
