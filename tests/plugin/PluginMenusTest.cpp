#include "plugin/PluginMenus.h"

#include "host/MainWindowPluginInterface.h"
#include "plugin/PagePluginTest.h"
#include "plugin/PluginActions.h"

#include <QMainWindow>
#include <QMenu>

using namespace TVR;

namespace {

/// The menus of a host, with some entries of its own in the File menu.
class PluginMenusTest : public PagePluginTest {
protected:
  PluginMenusTest() {
    provider.fileMenu = &file;
    provider.newMenu = &newMenu;
    provider.settingsMenu = &settings;
    provider.helpMenu = &help;
    provider.pluginMenu = &pluginMenu;
  }

  /// Fills the File menu with entries of these names; a number behind a colon makes one known.
  void fillFileMenu(const QStringList& names) {
    for (const QString& name : names) {
      QAction* const action = file.addAction(name.section(':', 0, 0));
      if (name.contains(':'))
        provider.fileActions[name.section(':', 1).toInt()] = action;
    }
  }
  static QStringList textsOf(const QMenu& menu) {
    QStringList texts;
    for (const QAction* action : menu.actions())
      texts << (action->isSeparator() ? QString("-") : action->text());
    return texts;
  }

  QMenu file;
  QMenu newMenu;
  QMenu settings;
  QMenu help;
  QMenu pluginMenu;
  BrenvikApp::MainWindowMenuProvider provider;
};

} // namespace

TEST_F(PluginMenusTest, thePluginMenuLeadsThroughTheProject) {
  plugin.addMenus(&provider);
  EXPECT_EQ(textsOf(pluginMenu),
            (QStringList{"TVR Welcome Window", "-", "&General Project Information",
                         "&Energy Demand", "&Wells and aquifer", "&Mapping", "&Simulation"}));
}

TEST_F(PluginMenusTest, theSettingsClearTheRegistryAndChooseTheLanguage) {
  plugin.addMenus(&provider);
  EXPECT_EQ(textsOf(settings), (QStringList{"&Clear registry entries", "-", "&Language of use"}));
  EXPECT_EQ(settings.actions().last()->menu()->actions().size(), 3);
}

TEST_F(PluginMenusTest, theNewMenuMakesAProject) {
  plugin.addMenus(&provider);
  EXPECT_EQ(textsOf(newMenu), QStringList{"&TVR Project"});
}

TEST_F(PluginMenusTest, theFileMenuHasTheShapefileBehindEntryTwoAndProjectsTwoBeforeEntryThree) {
  fillFileMenu({"New:1", "Export:2", "Print", "Recent", "Quit:3"});
  plugin.addMenus(&provider);
  EXPECT_EQ(textsOf(file), (QStringList{"New", "Export", "Export to &Shapefile", "Print", "-",
                                        "Open TVR &Project", "Save the TVR project",
                                        "Import results of TVR project", "Recent", "Quit"}));
}

TEST_F(PluginMenusTest, theShapefileItselfMayBeTheEntryInFrontOfEntryThree) {
  fillFileMenu({"New:1", "Export:2", "Quit:3"});
  plugin.addMenus(&provider);
  EXPECT_EQ(textsOf(file),
            (QStringList{"New", "Export", "-", "Open TVR &Project", "Save the TVR project",
                         "Import results of TVR project", "Export to &Shapefile", "Quit"}));
}

TEST_F(PluginMenusTest, whatTheHostDoesNotNumberLeavesTheEntriesAtTheEnd) {
  fillFileMenu({"New", "Quit"});
  plugin.addMenus(&provider);
  EXPECT_EQ(textsOf(file),
            (QStringList{"New", "Quit", "Export to &Shapefile", "-", "Open TVR &Project",
                         "Save the TVR project", "Import results of TVR project"}));
}

TEST_F(PluginMenusTest, projectsStandFirstBeforeAnEntryThreeThatIsTheFirst) {
  fillFileMenu({"Quit:3", "Export:2"});
  plugin.addMenus(&provider);
  EXPECT_EQ(textsOf(file), (QStringList{"-", "Open TVR &Project", "Save the TVR project",
                                        "Import results of TVR project", "Quit", "Export",
                                        "Export to &Shapefile"}));
}

TEST_F(PluginMenusTest, stoppingIsInNoMenu) {
  fillFileMenu({"Export:2", "Recent", "Quit:3"});
  plugin.addMenus(&provider);
  for (const QMenu* menu : {&file, &newMenu, &settings, &help, &pluginMenu})
    EXPECT_FALSE(textsOf(*menu).contains("stop simulation"));
}

TEST_F(PluginMenusTest, menusThatTheHostDoesNotHaveStayAway) {
  provider = {};
  plugin.addMenus(&provider);
  EXPECT_TRUE(plugin.findChild<QAction*>("tvr_open"));
}

TEST_F(PluginMenusTest, aMissingProviderStillMakesTheActions) {
  plugin.addMenus(nullptr);
  EXPECT_EQ(plugin.findChildren<QAction*>(QRegularExpression("^tvr_")).size(),
            static_cast<int>(Command::Count));
}

TEST_F(PluginMenusTest, theActionsAreMadeOnce) {
  QMainWindow main;
  plugin.addToolBars(&main);
  plugin.addMenus(&provider);
  plugin.addMenus(nullptr);
  EXPECT_EQ(plugin.findChildren<QAction*>("tvr_open").size(), 1);
}

TEST_F(PluginMenusTest, aLanguageMenuThatWentWithItsHostIsNotAskedFor) {
  {
    QMenu gone;
    BrenvikApp::MainWindowMenuProvider other;
    other.settingsMenu = &gone;
    plugin.addMenus(&other);
  }
  plugin.addMenus(&provider);
  plugin.updateLanguage("de");
  EXPECT_EQ(textsOf(settings), (QStringList{"&Clear registry entries", "-"}));
}
