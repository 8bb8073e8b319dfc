#include "desktop/MainWindowTest.h"

#include <QDir>
#include <QStatusBar>

namespace TVR::Desktop {
namespace {

class StartTest : public MainWindowTest {
protected:
  QStringList callsOfStart() {
    window->start();
    return plugin.calls;
  }
};

TEST_F(StartTest, thePluginIsIntroducedStepByStep) {
  EXPECT_EQ(callsOfStart(),
            (QStringList{"setAppInterface", "addFileTypes", "addMenus", "addToolBars",
                         "addDockingWindows", "connectPlugin", "updatePlugin"}));
}

TEST_F(StartTest, aLanguageOfTheCommandLineCountsMoreThanThatOfTheSettings) {
  window->start("fr");
  EXPECT_EQ(plugin.calls.last(), "setLanguage fr");
  EXPECT_EQ(plugin.calls[plugin.calls.size() - 2], "updatePlugin");
}

TEST_F(StartTest, theWelcomeWindowComesFirstWhereNoFileIsNamed) {
  start();
  window->openFirst({});
  EXPECT_EQ(plugin.calls, QStringList{"openWelcomeWindow"});
}

TEST_F(StartTest, aFileOfTheCommandLineIsOpenedInsteadByItsWholeName) {
  start();
  window->openFirst({"a.tvr"});
  EXPECT_EQ(plugin.calls, QStringList{"load " + QDir::current().absoluteFilePath("a.tvr")});
  EXPECT_EQ(window->statusBar()->currentMessage(), "");
}

TEST_F(StartTest, ofSeveralFilesOfTheCommandLineTheFirstIsOpenedAndTheUserTold) {
  start();
  window->openFirst({"/tmp/a.tvr", "/tmp/b.tbat"});
  EXPECT_EQ(plugin.calls, QStringList{"load /tmp/a.tvr"});
  EXPECT_EQ(window->statusBar()->currentMessage(),
            "Only the first file is opened: there is one project at a time.");
}

TEST_F(StartTest, theCopyrightIsShownAtTheVeryFirstStartOnly) {
  start();
  SettingsOfTheTest::current().remove("window/started");
  window->openFirst({});
  EXPECT_EQ(plugin.calls, (QStringList{"firstApplicationStart", "openWelcomeWindow"}));
  plugin.calls.clear();
  window->openFirst({});
  EXPECT_EQ(plugin.calls, QStringList{"openWelcomeWindow"});
}

TEST_F(StartTest, whatWasLeftUnsavedIsOfferedWhenAllElseIsThere) {
  startWithDocument();
  window->openFirst({});
  EXPECT_EQ(plugin.calls, (QStringList{"openWelcomeWindow", "offerRecovery"}));
}

TEST_F(StartTest, theHostGoesFromThePluginWithItsWindow) {
  start();
  window.reset();
  EXPECT_EQ(plugin.calls, QStringList{"setAppInterface null"});
}

TEST_F(StartTest, theHostKnowsItsWindowItsNameAndItsGraphicsLibrary) {
  start();
  EXPECT_EQ(plugin.host->mainWindow(), window.get());
  EXPECT_EQ(plugin.host->applicationName(), "Tevrane");
  EXPECT_TRUE(
      qobject_cast<Sketra_lib::GraphicsInterface*>(plugin.host->pluginByName("Sketra_lib")));
  EXPECT_FALSE(plugin.host->pluginByName("another"));
}

TEST_F(StartTest, theHostKeepsTheWorkingPathForTheNextStart) {
  start();
  EXPECT_TRUE(plugin.host->keepsWorkingPath());
  plugin.host->setWorkingPath(directory.path());
  EXPECT_EQ(plugin.host->workingPath(), directory.path());
  EXPECT_EQ(SettingsOfTheTest::current().value("working_path").toString(), directory.path());
}

TEST_F(StartTest, aWorkingPathThatIsGoneIsNotProposed) {
  start();
  plugin.host->setWorkingPath(path("gone"));
  EXPECT_NE(plugin.host->workingPath(), path("gone"));
  EXPECT_TRUE(QDir(plugin.host->workingPath()).exists());
}

TEST_F(StartTest, aDockOfAreaOneLiesOnTheLeft) {
  start();
  auto* const dock = new QDockWidget("more");
  plugin.host->addDockWindow(1, dock);
  EXPECT_EQ(window->dockWidgetArea(dock), Qt::LeftDockWidgetArea);
}

} // namespace
} // namespace TVR::Desktop
