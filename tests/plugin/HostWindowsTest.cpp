#include "plugin/PagePluginTest.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QSpinBox>
#include <QToolBar>

using namespace TVR;
using namespace TVR::Parameter;
using namespace Sketra_lib::Property;

namespace {

/// A page that tells where the mouse is.
class PointedPage final : public RecordingPage {
  Q_OBJECT

signals:
  void currentCoordinates(double x, double y, QEvent::Type type, Qt::MouseButton button);
};

/// A workspace that takes windows.
class Workspace final : public QWidget {
  Q_OBJECT

public:
  QList<BrenvikApp::WorkspaceWindow*> taken;

public slots:
  void addWindowToWorkspace(BrenvikApp::WorkspaceWindow* window) { taken << window; }
};

/// A page whose window is a page before all else and has a widget.
class PlainPage final : public PageRecord {
public:
  QWidget* widget() override { return &widget_; }

private:
  QWidget widget_;
};

class HostWindowsTest : public PagePluginTest {
protected:
  HostWindowsTest() { plugin.addToolBars(&main); }

  template <typename Child>
  Child& child(const char* name) {
    auto* const found = main.findChild<Child*>(name);
    EXPECT_TRUE(found) << name;
    return *found;
  }
  QAction& action(const char* name) { return *plugin.findChild<QAction*>(name); }
  QSpinBox& scaleBox() { return child<QSpinBox>("tvr_scale"); }

  /// The page as it is when its user has changed something.
  void notify(int itemId, int property) {
    page.changedItem = itemId;
    page.changedProperty = property;
    plugin.update(nullptr);
  }

  /// The map shows 100 m x 80 m on an area of 160 mm x 100 mm.
  void showMapAndActivate() {
    items().mapView = item("Map view");
    items().mapScale = item("Map scale");
    give(items().mapView, XMinimum, 0);
    give(items().mapView, XMaximum, 100);
    give(items().mapView, YMinimum, 0);
    give(items().mapView, YMaximum, 80);
    main.show();
    QApplication::setActiveWindow(&main);
    ASSERT_TRUE(QApplication::activeWindow());
  }

  QMainWindow main;
};

} // namespace

// Boxes and actions

TEST_F(HostWindowsTest, theToolBarHoldsTheTwoBoxes) {
  const QList<QToolBar*> bars = plugin.addToolBars(&main);
  ASSERT_EQ(bars.size(), 1);
  EXPECT_EQ(bars.first()->objectName(), "tvr_toolbar");
  EXPECT_EQ(bars.first()->windowTitle(), "&Tevrane");
  EXPECT_EQ(main.findChildren<QToolBar*>().size(), 1) << "it is made once";
  EXPECT_EQ(scaleBox().prefix(), "1 : ");
  EXPECT_EQ(scaleBox().minimum(), 1);
  EXPECT_EQ(scaleBox().maximum(), 100000);
  EXPECT_EQ(scaleBox().buttonSymbols(), QAbstractSpinBox::NoButtons);
  EXPECT_EQ(scaleBox().value(), store.count(ViewScale));
  const auto& coordinates = child<QLineEdit>("tvr_coordinates");
  EXPECT_TRUE(coordinates.isReadOnly());
  EXPECT_TRUE(coordinates.text().isEmpty());
  EXPECT_EQ(coordinates.alignment(), Qt::AlignCenter);
}

TEST_F(HostWindowsTest, theToolBarGoesToTheHostsMainWindow) {
  TVRPlugin other;
  QMainWindow hosts;
  host.main = &hosts;
  other.addToolBars(nullptr);
  EXPECT_EQ(hosts.findChildren<QToolBar*>().size(), 1);
}

TEST_F(HostWindowsTest, aToolBarThatTheHostDestroyedIsMadeAnew) {
  TVRPlugin other;
  {
    QMainWindow gone;
    other.addToolBars(&gone);
  }
  QMainWindow next;
  ASSERT_EQ(other.addToolBars(&next).size(), 1);
  EXPECT_EQ(next.findChildren<QToolBar*>("tvr_toolbar").size(), 1);
  EXPECT_TRUE(next.findChild<QSpinBox*>("tvr_scale"));
}

TEST_F(HostWindowsTest, aMissingMenuStillMakesTheActions) {
  TVRPlugin other;
  other.addMenus(nullptr);
  EXPECT_EQ(other.findChild<QAction*>("tvr_import_results")->text(),
            "Import results of TVR project");
  EXPECT_EQ(other.findChild<QAction*>("tvr_export_shapefile")->text(), "Export to &Shapefile");
}

TEST_F(HostWindowsTest, anEntryInTheScaleBoxScalesTheMap) {
  showMapAndActivate();
  scaleBox().setValue(500);
  emit scaleBox().editingFinished();
  EXPECT_EQ(of("Map view", XMaximum).toDouble(), 80);
}

// Windows of the host

TEST_F(HostWindowsTest, anActivatedPageTakesTheBoxes) {
  store.setValue(ViewScale, 250);
  items().mapScale = item("Map scale");
  items().results = 7;
  plugin.workspaceWindowActivated(&page);
  EXPECT_TRUE(scaleBox().isEnabled());
  EXPECT_EQ(scaleBox().value(), 250);
  EXPECT_EQ(of("Map scale", Html), QVariant("<b>Map scale 1:250</b>"));
  EXPECT_TRUE(child<QLineEdit>("tvr_coordinates").isEnabled());
  EXPECT_TRUE(action("tvr_export_shapefile").isEnabled());
}

TEST_F(HostWindowsTest, anActivatedPageWithoutResultsHasNothingToExport) {
  action("tvr_export_shapefile").setEnabled(true);
  plugin.workspaceWindowActivated(&page);
  EXPECT_FALSE(action("tvr_export_shapefile").isEnabled());
}

TEST_F(HostWindowsTest, anActivatedPageThatIsLockedTakesTheBoxesAllTheSame) {
  const LockedElsewhere locked(graphic().mutex());
  plugin.workspaceWindowActivated(&page);
  EXPECT_TRUE(page.sets.empty());
  EXPECT_TRUE(child<QLineEdit>("tvr_coordinates").isEnabled());
}

TEST_F(HostWindowsTest, anActivatedPageEndsTheObservationOfTheAddress) {
  host.active = nullptr;
  plugin.updateCurrentGraphicWindow();
  ASSERT_TRUE(graphic().current());
  DATA::DataObserver* const observer = &plugin;
  ASSERT_TRUE(page.observers.contains(item("Project address"), observer));
  plugin.workspaceWindowActivated(&page);
  EXPECT_FALSE(page.observers.contains(item("Project address"), observer));
  EXPECT_TRUE(page.observers.contains(item("Map view"), observer));
}

TEST_F(HostWindowsTest, anActivatedPageKeepsTheObservationOfAGraphicThatIsNoFaceOfMore) {
  PlainPage graphicOnly;
  const int address = graphicOnly.addItem("Project address");
  graphicOnly.addItem("Summary");
  library.window = &graphicOnly;
  host.active = nullptr;
  plugin.updateCurrentGraphicWindow();
  ASSERT_EQ(graphic().current(), &graphicOnly);
  DATA::DataObserver* const observer = &plugin;
  ASSERT_TRUE(graphicOnly.observers.contains(address, observer));
  plugin.workspaceWindowActivated(&page);
  EXPECT_TRUE(graphicOnly.observers.contains(address, observer));
}

TEST_F(HostWindowsTest, anyOtherWindowDisablesTheBoxes) {
  QWidget plain;
  RecordingPage text;
  text.type = "TextWindow";
  for (QWidget* const window :
       {&plain, static_cast<QWidget*>(&text), static_cast<QWidget*>(nullptr)}) {
    items().results = 7;
    plugin.workspaceWindowActivated(&page);
    plugin.workspaceWindowActivated(window);
    EXPECT_FALSE(scaleBox().isEnabled());
    EXPECT_FALSE(child<QLineEdit>("tvr_coordinates").isEnabled());
    EXPECT_FALSE(action("tvr_export_shapefile").isEnabled());
  }
}

TEST_F(HostWindowsTest, resultsAreImportedIntoPagesOnly) {
  EXPECT_FALSE(action("tvr_import_results").isEnabled());
  plugin.triggerChangesOfWindow(&page);
  EXPECT_TRUE(action("tvr_import_results").isEnabled());
  QWidget plain;
  plugin.triggerChangesOfWindow(&plain);
  EXPECT_FALSE(action("tvr_import_results").isEnabled());
  plugin.triggerChangesOfWindow(nullptr);
  EXPECT_FALSE(action("tvr_import_results").isEnabled());
}

TEST_F(HostWindowsTest, thePlaceOfTheMouseIsShownWithThreeDecimals) {
  PointedPage pointed;
  host.active = &pointed;
  plugin.triggerChangesOfWindow(&pointed);
  plugin.triggerChangesOfWindow(&pointed);
  emit pointed.currentCoordinates(681234.56789, 12, QEvent::MouseMove, Qt::NoButton);
  EXPECT_EQ(child<QLineEdit>("tvr_coordinates").text(), "681234.568 12.000");
}

TEST_F(HostWindowsTest, windowsGoToTheWorkspace) {
  Workspace workspace;
  plugin.connectPlugin(&workspace);
  emit plugin.addWindowToWorkspace(&page);
  EXPECT_EQ(workspace.taken, QList<BrenvikApp::WorkspaceWindow*>{&page});
}

TEST_F(HostWindowsTest, aKeyInAWindowOfTheHostCancelsARun) {
  QWidget window;
  startLongRun(plugin);
  QKeyEvent end(QEvent::KeyPress, Qt::Key_End, Qt::NoModifier);
  QApplication::sendEvent(&window, &end);
  EXPECT_TRUE(plugin.running());
  plugin.updateMenuForCurrentWindow(nullptr);
  plugin.updateMenuForCurrentWindow(&window);
  QApplication::sendEvent(&window, &end);
  EXPECT_FALSE(plugin.running());
}

// Changes that the user makes on the page

TEST_F(HostWindowsTest, theScaleFollowsARangeOfTheMap) {
  showMapAndActivate();
  scaleBox().setValue(1);
  notify(items().mapView, XMaximum);
  EXPECT_EQ(scaleBox().value(), 625);
  EXPECT_EQ(of("Map scale", Html), QVariant("<b>Map scale 1:625</b>"));
  scaleBox().setValue(1);
  notify(items().mapView, YMinimum);
  EXPECT_EQ(scaleBox().value(), 800);
  EXPECT_EQ(graphic().lastChangedProperty(), static_cast<int>(YMinimum));
}

TEST_F(HostWindowsTest, aScaleThatFitsOneOfTheAxesStays) {
  showMapAndActivate();
  for (const int fitting : {625, 800})
    for (const int property : {XMinimum, YMaximum}) {
      scaleBox().setValue(fitting);
      notify(items().mapView, property);
      EXPECT_EQ(scaleBox().value(), fitting);
    }
  EXPECT_TRUE(page.sets.empty());
}

TEST_F(HostWindowsTest, theScaleFollowsOnlyWhileItIsMeantTo) {
  showMapAndActivate();
  scaleBox().setValue(1);
  graphic().setScaleFollowsView(false);
  notify(items().mapView, XMaximum);
  EXPECT_EQ(scaleBox().value(), 1);
}

TEST_F(HostWindowsTest, otherChangesOfTheMapLeaveTheScale) {
  showMapAndActivate();
  scaleBox().setValue(1);
  notify(items().mapView, Size);
  notify(items().mapScale, XMaximum);
  EXPECT_EQ(scaleBox().value(), 1);
}

TEST_F(HostWindowsTest, theScaleFollowsWithoutItsTextIfThePageIsLocked) {
  showMapAndActivate();
  scaleBox().setValue(1);
  const LockedElsewhere locked(graphic().mutex());
  notify(items().mapView, XMaximum);
  EXPECT_EQ(scaleBox().value(), 625);
  EXPECT_TRUE(page.sets.empty());
}

TEST_F(HostWindowsTest, nothingFollowsInAWindowThatIsNoPage) {
  showMapAndActivate();
  scaleBox().setValue(1);
  host.active = nullptr;
  notify(items().mapView, XMaximum);
  EXPECT_EQ(scaleBox().value(), 1);
  EXPECT_EQ(graphic().lastChangedProperty(), 0);
}

TEST_F(HostWindowsTest, nothingFollowsWhileTheApplicationIsNotActive) {
  showMapAndActivate();
  scaleBox().setValue(1);
  QApplication::setActiveWindow(nullptr);
  notify(items().mapView, XMaximum);
  EXPECT_EQ(scaleBox().value(), 1);
}

TEST_F(HostWindowsTest, aMovedPictureIsStoredByItsLowerLeftCorner) {
  showMapAndActivate();
  items().mapImage = page.addItem("Map image");
  give(items().mapImage, Size, QSizeF(40, 30));
  give(items().mapImage, Position, QPointF(100, 230));
  notify(items().mapImage, Position);
  EXPECT_EQ(number(BackgroundImageX), 100);
  EXPECT_EQ(number(BackgroundImageY), 200);
}

TEST_F(HostWindowsTest, aResizedPictureIsStored) {
  showMapAndActivate();
  items().mapImage = page.addItem("Map image");
  give(items().mapImage, Size, QSizeF(40, 30));
  notify(items().mapImage, Size);
  EXPECT_EQ(number(BackgroundImageWidth), 40);
  EXPECT_EQ(number(BackgroundImageHeight), 30);
}

#include "HostWindowsTest.moc"
