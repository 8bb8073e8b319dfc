#include "host/RunState.h"
#include "page/window/PageWindow.h"
#include "plugin/PagePluginTest.h"
#include "support/SettingsOfTheTest.h"
#include "support/TestMessenger.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QToolBar>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

class HostStartTest : public PagePluginTest {
protected:
  QAction& action(const char* name) { return *plugin.findChild<QAction*>(name); }
  static bool hasSavedSettings() {
    return SettingsOfTheTest::current().childGroups().contains("last_parameter_set");
  }

  const SettingsOfTheTest settings;
  QMainWindow main;
};

} // namespace

// The run

TEST_F(HostStartTest, aHostEndsARunWithoutAQuestion) {
  startLongRun(plugin);
  BrenvikApp::RunState* state = nullptr;
  for (QObject* const child : plugin.children())
    if (auto* const found = qobject_cast<BrenvikApp::RunState*>(child))
      state = found;
  ASSERT_TRUE(state);
  const MessageLog log;
  state->stop();
  EXPECT_FALSE(plugin.running());
  EXPECT_TRUE(waitUntil([&] { return !state->isRunning(); }));
  EXPECT_EQ(log.lines().filter("Simulation will be stopped"), QStringList());
}

// The language

TEST_F(HostStartTest, theActionOfTheLanguageIsChecked) {
  plugin.addMenus(nullptr);
  const std::pair<const char*, const char*> actions[] = {{"fr_CH", "tvr_french"},
                                                         {"de_AT", "tvr_german"},
                                                         {"it", "tvr_english"},
                                                         {"en", "tvr_english"}};
  for (const auto& [language, checked] : actions) {
    SettingsOfTheTest::chooseLanguage(language);
    plugin.updatePlugin();
    for (const char* name : {"tvr_french", "tvr_german", "tvr_english"})
      EXPECT_EQ(action(name).isChecked(), qstrcmp(name, checked) == 0) << language << ' ' << name;
  }
}

TEST_F(HostStartTest, theActionOfTheLanguageIsCheckedAlsoBeforeThereAreMenus) {
  SettingsOfTheTest::chooseLanguage("de");
  plugin.updatePlugin();
  plugin.addMenus(nullptr);
  plugin.addToolBars(&main);
  EXPECT_TRUE(action("tvr_german").isChecked());
  EXPECT_EQ(plugin.findChildren<QAction*>("tvr_german").size(), 1);
}

TEST_F(HostStartTest, theHostIsToldTheChosenLanguageAndThenTheOneInUse) {
  SettingsOfTheTest::chooseLanguage("it");
  host.languages.clear();
  plugin.updatePlugin();
  EXPECT_EQ(host.languages, (QStringList{"it", "it", "en"}));
}

TEST_F(HostStartTest, theChosenLanguageIsSetAnew) {
  SettingsOfTheTest::chooseLanguage("fr");
  for (const char* before : {"de", "fr"}) {
    store.setValue(GuiLanguage, before);
    host.languages.clear();
    plugin.updatePlugin();
    EXPECT_EQ(plugin.language(), "fr");
    EXPECT_EQ(host.languages, (QStringList{"fr", "fr", "fr"})) << "also if it is " << before;
  }
}

// The main window and the graphics library

TEST_F(HostStartTest, theMainWindowIsListenedTo) {
  host.main = &main;
  plugin.updatePlugin();
  startLongRun(plugin);
  QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  QApplication::sendEvent(&main, &escape);
  EXPECT_FALSE(plugin.running());
}

TEST_F(HostStartTest, aKeyThatThePageDoesNotUseAsksOnce) {
  auto* const shown = new Page::PageWindow;
  main.setCentralWidget(shown);
  host.main = &main;
  plugin.updatePlugin();
  plugin.updateMenuForCurrentWindow(shown);
  startLongRun(plugin);
  TestMessenger user;
  user.agreeing = false;
  setMessenger(&user);
  for (const ulong time : {1000UL, 2000UL}) {
    user.questions.clear();
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    escape.setTimestamp(time);
    QApplication::sendEvent(shown, &escape);
    EXPECT_EQ(user.questions, QStringList{"Tevrane: Simulation will be stopped at next step!"})
        << time;
  }
  EXPECT_TRUE(plugin.running());
  setMessenger(nullptr);
}

TEST_F(HostStartTest, aMissingGraphicsLibraryIsWarnedOf) {
  const QString warning =
      "Tevrane: No graphics library! The result plots cannot be displayed. To solve this problem, "
      "please re-install the program.";
  {
    const MessageLog log;
    plugin.updatePlugin();
    EXPECT_FALSE(log.lines().contains(warning));
  }
  AppInterface::setGraphicsInterface(nullptr);
  host.library = nullptr;
  const MessageLog log;
  plugin.updatePlugin();
  EXPECT_TRUE(log.lines().contains(warning));
}

TEST_F(HostStartTest, aGraphicsLibraryThatCameLaterIsFound) {
  AppInterface::setGraphicsInterface(nullptr);
  plugin.updatePlugin();
  EXPECT_EQ(AppInterface::graphics(), &library);
}

TEST_F(HostStartTest, aGraphicsLibraryThatIsThereIsNotLookedUpAgain) {
  Library other;
  AppInterface::setGraphicsInterface(&other);
  host.asked.clear();
  plugin.updatePlugin();
  EXPECT_EQ(AppInterface::graphics(), &other);
  EXPECT_TRUE(host.asked.isEmpty());
}

// The end

TEST_F(HostStartTest, theUserIsAskedWhetherToSaveTheSettings) {
  const MessageLog log;
  bool ok = true;
  plugin.readyToClose(ok);
  EXPECT_EQ(log.lines(), QStringList{"Save settings? -- Tevrane: Save all settings?"});
}

TEST_F(HostStartTest, theSettingsAreSavedAtTheEnd) {
  store.setValue(ProjectName, "Kept");
  for (const bool before : {true, false}) {
    bool ok = before;
    plugin.readyToClose(ok);
    EXPECT_EQ(ok, before);
  }
  EXPECT_TRUE(hasSavedSettings());
}

TEST_F(HostStartTest, withoutAHostThePluginStartsAndEndsAllTheSame) {
  plugin.setAppInterface(nullptr);
  AppInterface::setGraphicsInterface(nullptr);
  TVRPlugin other;
  const QList<QToolBar*> bars = other.addToolBars(nullptr);
  ASSERT_EQ(bars.size(), 1);
  EXPECT_FALSE(bars.first()->parentWidget());
  const MessageLog log;
  other.updatePlugin();
  EXPECT_EQ(log.lines().filter("No graphics library!").size(), 1);
  bool ok = true;
  other.readyToClose(ok);
  EXPECT_TRUE(ok);
  EXPECT_TRUE(hasSavedSettings());
  delete bars.first();
}
