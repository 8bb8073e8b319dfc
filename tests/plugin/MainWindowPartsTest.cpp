#include "gui/DesignPropertyEditor.h"
#include "plugin/PagePluginTest.h"
#include "support/ContextTranslator.h"
#include "support/SettingsOfTheTest.h"
#include "support/TestMessenger.h"

#include <QAbstractButton>
#include <QAction>
#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>
#include <QProgressBar>
#include <QToolBar>
#include <QTreeView>
#include <QWizard>
#include <QtTest>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

/// A host that takes docks.
class DockHost final : public BareHost {
public:
  void addDockWindow(int area, QDockWidget* dock) override {
    areas << area;
    docks << dock;
  }
  QList<int> areas;
  QList<QDockWidget*> docks;
};

class MainWindowPartsTest : public PagePluginTest {
protected:
  ~MainWindowPartsTest() override { setMessenger(nullptr); }

  QDockWidget& dock() { return *plugin.addDockingWindows(&main).first(); }
  template <typename Child>
  Child& child(const char* name) {
    auto* const found = main.findChild<Child*>(name);
    EXPECT_TRUE(found) << name;
    return *found;
  }

  GUI::DesignPropertyEditor& panel() { return *main.findChild<GUI::DesignPropertyEditor*>(); }
  QString valueInDock(int id) { return panel().tree().propertyOfId().at(id)->valueText(); }

  const SettingsOfTheTest settings;
  QMainWindow main;
};

} // namespace

// The tool bar

TEST_F(MainWindowPartsTest, theToolBarHasItsEntriesInOrder) {
  const QToolBar& bar = *plugin.addToolBars(&main).first();
  QStringList entries;
  for (QAction* action : bar.actions()) {
    const QWidget* const widget = bar.widgetForAction(action);
    const bool isBox = widget && widget->objectName().startsWith("tvr_");
    entries << (isBox ? widget->objectName() : action->objectName());
  }
  EXPECT_EQ(entries,
            (QStringList{"tvr_new", "tvr_open", "tvr_save", "tvr_coordinates", "tvr_general",
                         "tvr_energy", "tvr_wells", "tvr_mapping", "tvr_simulation", "tvr_scale"}));
}

TEST_F(MainWindowPartsTest, theCoordinateBoxIsAsWideAsTheLargestCoordinates) {
  plugin.addToolBars(&main);
  const auto& box = child<QLineEdit>("tvr_coordinates");
  EXPECT_EQ(box.minimumSize(), box.maximumSize());
  EXPECT_GE(box.width(), box.fontMetrics().horizontalAdvance("0000000.000  0000000.000"));
  EXPECT_TRUE(box.text().isEmpty());
}

TEST_F(MainWindowPartsTest, theBoxesHaveNamesInTheLanguageOfUse) {
  plugin.addToolBars(&main);
  const ContextTranslator translator;
  plugin.updateLanguage("de");
  EXPECT_EQ(child<QSpinBox>("tvr_scale").accessibleName(), "TVRPlugin/Scale of the map");
  EXPECT_EQ(child<QLineEdit>("tvr_coordinates").accessibleName(),
            "TVRPlugin/Position of the mouse on the map");
}

TEST_F(MainWindowPartsTest, anEntryOfTheScaleBoxIsTyped) {
  items().mapView = item("Map view");
  plugin.addToolBars(&main);
  auto& box = child<QSpinBox>("tvr_scale");
  box.selectAll();
  QTest::keyClicks(&box, "500");
  EXPECT_FALSE(of("Map view", Sketra_lib::Property::XMaximum).isValid());
  QTest::keyClick(&box, Qt::Key_Return);
  EXPECT_EQ(of("Map view", Sketra_lib::Property::XMaximum).toDouble(), 80);
}

// The dock

TEST_F(MainWindowPartsTest, theDockStandsOnTheLeft) {
  EXPECT_EQ(main.dockWidgetArea(&dock()), Qt::LeftDockWidgetArea);
  EXPECT_EQ(dock().windowTitle(), "Tevrane");
  EXPECT_EQ(dock().objectName(), "tvr_dock");
  EXPECT_EQ(dock().allowedAreas(), Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
  EXPECT_EQ(main.findChildren<QDockWidget*>().size(), 1) << "it is made once";
}

TEST_F(MainWindowPartsTest, theButtonsOfTheDockAreNamedInTheLanguageOfUse) {
  plugin.addToolBars(&main);
  const auto& close = *dock().findChild<QAbstractButton*>("qt_dockwidget_closebutton");
  const auto& floating = *dock().findChild<QAbstractButton*>("qt_dockwidget_floatbutton");
  EXPECT_EQ(close.toolTip(), "Close");
  const ContextTranslator translator;
  plugin.updateLanguage("de");
  EXPECT_EQ(close.accessibleName(), "QDockWidget/Close");
  EXPECT_EQ(close.toolTip(), "QDockWidget/Close");
  EXPECT_EQ(close.accessibleDescription(), "QDockWidget/Closes the dock widget");
  EXPECT_EQ(floating.accessibleName(), "QDockWidget/Float");
  EXPECT_EQ(floating.toolTip(), "QDockWidget/Float");
}

TEST_F(MainWindowPartsTest, withoutAWindowTheHostTakesTheDock) {
  DockHost docks;
  AppInterface::setApplicationInterface(&docks);
  TVRPlugin other;
  const QList<QDockWidget*> made = other.addDockingWindows(nullptr);
  EXPECT_EQ(docks.areas, QList<int>{1});
  EXPECT_EQ(docks.docks, made);
  qDeleteAll(made);
}

TEST_F(MainWindowPartsTest, withoutAHostTheDockStandsAlone) {
  AppInterface::setApplicationInterface(nullptr);
  TVRPlugin other;
  const QList<QDockWidget*> made = other.addDockingWindows(nullptr);
  ASSERT_EQ(made.size(), 1);
  EXPECT_FALSE(made.first()->parent());
  qDeleteAll(made);
}

TEST_F(MainWindowPartsTest, theDockTakesTheLastParameterSetAndShowsIt) {
  store.setValue(ProjectName, "Kept");
  store.saveLastParameterSet();
  store.setValue(ProjectName, "Lost");
  dock();
  EXPECT_EQ(store.value(ProjectName), QVariant("Kept"));
  EXPECT_EQ(valueInDock(ProjectName), "Kept");
  store.setValue(ProjectName, "Edited");
  dock();
  EXPECT_EQ(store.value(ProjectName), QVariant("Edited")) << "only once";
}

TEST_F(MainWindowPartsTest, theWizardThatTheDockAsksForIsOpenedAndItsEndIsShown) {
  dock();
  QStringList titles;
  for (const int id : {ProjectName, Power, HydraulicConductivity, BackgroundImage, RelTolHeat}) {
    QTimer::singleShot(0, [&] {
      auto* const modal = qobject_cast<QWizard*>(QApplication::activeModalWidget());
      ASSERT_TRUE(modal);
      titles << modal->windowTitle();
      store.setValue(ProjectName, QString::number(id));
      modal->reject();
    });
    QtTreePropertyBrowser& browser = *panel().tree().browser();
    browser.setCurrentItem(browser.items(panel().tree().propertyOfId().at(id)).first());
    panel().doubleClicked(browser.view()->currentIndex());
    EXPECT_EQ(valueInDock(ProjectName), QString::number(id));
  }
  EXPECT_EQ(titles, (QStringList{"General wizard", "Energy demand wizard", "Aquifer & well wizard",
                                 "Graphical mapping wizard", "Extenetd Simulation wizard"}));
}

TEST_F(MainWindowPartsTest, theDockIsShownAndHidden) {
  dock();
  main.show();
  plugin.toggleDockingWindow();
  EXPECT_FALSE(dock().isVisible());
  plugin.toggleDockingWindow();
  EXPECT_TRUE(dock().isVisible());
}

TEST_F(MainWindowPartsTest, withoutADockThereIsNothingToShow) {
  plugin.toggleDockingWindow();
  plugin.updateLanguage("de");
}

TEST_F(MainWindowPartsTest, theDockShowsARunAndItsButtonEndsIt) {
  TestMessenger user;
  setMessenger(&user);
  dock();
  main.show();
  EXPECT_FALSE(child<QLabel>("message_label").isVisible());
  startLongRun(plugin);
  EXPECT_TRUE(child<QLabel>("message_label").text().startsWith("Simulate t = 0.00"));
  for (const char* const name :
       {"message_label", "progressBar_step", "progressBar_total", "stop_button"})
    EXPECT_TRUE(child<QWidget>(name).isVisible()) << name;
  EXPECT_GT(child<QProgressBar>("progressBar_total").maximum(), 1);
  QTest::mousePress(&child<QAbstractButton>("stop_button"), Qt::LeftButton);
  EXPECT_TRUE(user.questions.contains("Tevrane: Simulation will be stopped at next step!"));
  EXPECT_FALSE(plugin.running());
  EXPECT_TRUE(waitUntil([&] { return !plugin.simulationRun().simulation(); }));
}

// The welcome window

TEST_F(MainWindowPartsTest, theWelcomeWindowNeedsAHostWithAMainWindow) {
  plugin.openWelcomeWindow();
  EXPECT_EQ(host.windows.size(), 1) << "only the page";
  AppInterface::setApplicationInterface(nullptr);
  plugin.openWelcomeWindow();
}

TEST_F(MainWindowPartsTest, theWelcomeWindowGoesToTheWorkspace) {
  host.main = &main;
  plugin.openWelcomeWindow();
  ASSERT_EQ(host.windows.size(), 2);
  QWidget* const welcome = host.windows.last();
  EXPECT_EQ(host.active->widget(), welcome);
  EXPECT_EQ(welcome->windowTitle(), "TVR: Welcome");
  EXPECT_EQ(welcome->parentWidget(), &main);
  plugin.openWelcomeWindow();
  EXPECT_EQ(host.windows.last(), welcome) << "the one that is open comes to the front";
}

TEST_F(MainWindowPartsTest, theWelcomeWindowLeadsToTheCommandsOfTheProject) {
  class Opener final : public TVRPlugin {
  public:
    using TVRPlugin::load;
    void load(const QString& name) override { loaded << name; }
    QStringList loaded;
  } opener;
  TestMessenger user;
  setMessenger(&user);
  host.main = &main;
  opener.setAppInterface(&host);
  opener.openWelcomeWindow();
  QWidget* const welcome = host.windows.last();
  ASSERT_TRUE(QMetaObject::invokeMethod(welcome, "openProject", Q_ARG(QString, "/a/p.tvr")));
  EXPECT_EQ(opener.loaded, QStringList{"/a/p.tvr"});
  store.setValue(ProjectName, "Before");
  user.unsaved = Unsaved::Discard;
  ASSERT_TRUE(QMetaObject::invokeMethod(welcome, "startNewProject"));
  EXPECT_NE(store.value(ProjectName), QVariant("Before"));
}
