#include "plugin/PluginActions.h"

#include "support/ContextTranslator.h"

#include <QIcon>
#include <QKeySequence>

#include <gtest/gtest.h>

#include <optional>

using namespace TVR;

namespace {

/// Counts the calls of its slots by name.
class SlotCounter final : public QObject {
  Q_OBJECT

public:
  QStringList called;

public slots:
  void openWelcomeWindow() { called << "openWelcomeWindow"; }
  void newOpen() { called << "newOpen"; }
  void load() { called << "load"; }
  void save() { called << "save"; }
  void importTVRResult() { called << "importTVRResult"; }
  void shapefileExport() { called << "shapefileExport"; }
  void clearRegistry() { called << "clearRegistry"; }
  void setEnglish() { called << "setEnglish"; }
  void setFrench() { called << "setFrench"; }
  void setGerman() { called << "setGerman"; }
  void showGeneralWizard() { called << "showGeneralWizard"; }
  void showEnergieWizard() { called << "showEnergieWizard"; }
  void showWellWizard() { called << "showWellWizard"; }
  void showGraphicWizard() { called << "showGraphicWizard"; }
  void showSimulationWizard() { called << "showSimulationWizard"; }
  void cancelSimulation() { called << "cancelSimulation"; }
};

/// What an action is to be; a tip that is not given may be anything, an icon or shortcut that is
/// empty is none.
struct Expected {
  Command command;
  const char* text;
  std::optional<QString> tip;
  const char* icon;
  QKeySequence shortcut;
  const char* slot;
  bool isEnabled = true;
  bool isCheckable = false;
};

QKeySequence alt(Qt::Key key) {
  return {static_cast<int>(Qt::ALT) | key};
}

const std::vector<Expected>& expectedActions() {
  static const std::vector<Expected> actions{
      {Command::Welcome,
       "TVR Welcome Window",
       "Opens a new TVR welcome window",
       "",
       {},
       "openWelcomeWindow"},
      {Command::New, "&TVR Project", "Opens a new TVR project", "tvr_new.png", QKeySequence::New,
       "newOpen"},
      {Command::Open, "Open TVR &Project", "Opens a TVR project", "tvr_open.png", alt(Qt::Key_O),
       "load"},
      {Command::Save, "Save the TVR project", "Saves a TVR project", "tvr_save.png", alt(Qt::Key_S),
       "save"},
      {Command::ImportResults,
       "Import results of TVR project",
       "Import the results of a TVR project and show them on current graphic.",
       "",
       {},
       "importTVRResult",
       false},
      {Command::ExportShapefile,
       "Export to &Shapefile",
       "Exports the isolines to a shapefile",
       "",
       {},
       "shapefileExport",
       false},
      {Command::ClearRegistry, "&Clear registry entries", {}, "", {}, "clearRegistry"},
      {Command::English, "English", "", "", {}, "setEnglish", true, true},
      {Command::French, "French", "", "", {}, "setFrench", true, true},
      {Command::German, "German", "", "", {}, "setGerman", true, true},
      {Command::General, "&General Project Information", "Shows the general property wizard",
       "tvr_generall.png", Qt::Key_F5, "showGeneralWizard"},
      {Command::Energy, "&Energy Demand", "Shows the energy demand wizard", "tvr_energy.png",
       Qt::Key_F6, "showEnergieWizard"},
      {Command::Wells, "&Wells and aquifer", "Shows the well design wizard", "tvr_borehole.png",
       Qt::Key_F7, "showWellWizard"},
      {Command::Mapping, "&Mapping", "Shows the mapping wizard", "tvr_graphic.png", Qt::Key_F8,
       "showGraphicWizard"},
      {Command::Simulation, "&Simulation", "Shows the simulation wizard", "tvr_newgraphics.png",
       Qt::Key_F9, "showSimulationWizard"},
      {Command::Stop, "stop simulation", "", "", Qt::Key_Escape, "cancelSimulation"},
  };
  return actions;
}

QImage pictureOf(const QIcon& icon) {
  return icon.pixmap(24, 24).toImage();
}

class PluginActionsTest : public testing::Test {
protected:
  SlotCounter plugin;
  PluginActions actions{&plugin};
};

} // namespace

TEST_F(PluginActionsTest, standAsTheirTableSays) {
  EXPECT_EQ(expectedActions().size(), static_cast<std::size_t>(Command::Count));
  for (const Expected& expected : expectedActions()) {
    const QAction& action = *actions[expected.command];
    EXPECT_EQ(action.text(), expected.text);
    EXPECT_EQ(action.statusTip(), expected.tip.value_or(action.statusTip())) << expected.text;
    EXPECT_EQ(action.statusTip().isEmpty(), expected.tip == "") << expected.text;
    EXPECT_EQ(action.shortcut(), expected.shortcut) << expected.text;
    EXPECT_EQ(action.isEnabled(), expected.isEnabled) << expected.text;
    EXPECT_EQ(action.isCheckable(), expected.isCheckable) << expected.text;
    EXPECT_FALSE(action.isChecked()) << expected.text;
    EXPECT_EQ(action.parent(), &plugin) << expected.text;
  }
}

TEST_F(PluginActionsTest, showTheirPictures) {
  for (const Expected& expected : expectedActions()) {
    const QImage picture = pictureOf(actions[expected.command]->icon());
    if (*expected.icon == '\0') {
      EXPECT_TRUE(picture.isNull()) << expected.text;
      continue;
    }
    EXPECT_FALSE(picture.isNull()) << expected.text;
    EXPECT_EQ(picture, pictureOf(QIcon(QString(":/TVR/images/") + expected.icon))) << expected.text;
  }
}

TEST_F(PluginActionsTest, callTheirSlots) {
  for (const Expected& expected : expectedActions()) {
    plugin.called.clear();
    actions[expected.command]->setEnabled(true);
    actions[expected.command]->trigger();
    EXPECT_EQ(plugin.called, QStringList{expected.slot});
  }
}

TEST_F(PluginActionsTest, theListHasItsOrder) {
  QStringList texts;
  for (const QAction* action : actions.list())
    texts << action->text();
  EXPECT_EQ(texts,
            (QStringList{"TVR Welcome Window", "&TVR Project", "Open TVR &Project",
                         "Save the TVR project", "English", "German", "French",
                         "&General Project Information", "&Energy Demand", "&Wells and aquifer",
                         "&Mapping", "&Simulation", "stop simulation"}));
}

TEST_F(PluginActionsTest, theMenuHoldsTheLanguages) {
  EXPECT_EQ(actions.languageMenu()->title(), "&Language of use");
  const QList<QAction*> languages = actions.languageMenu()->actions();
  EXPECT_EQ(languages.size(), 3);
  for (const Command command : {Command::English, Command::French, Command::German})
    EXPECT_TRUE(languages.contains(actions[command]));
}

TEST_F(PluginActionsTest, theLanguagesExcludeEachOther) {
  for (const Command command : {Command::English, Command::French, Command::German}) {
    actions[command]->trigger();
    EXPECT_TRUE(actions[command]->isChecked());
    EXPECT_EQ(actions[Command::English]->isChecked() + actions[Command::French]->isChecked() +
                  actions[Command::German]->isChecked(),
              1);
  }
}

TEST_F(PluginActionsTest, aLanguageIsCheckedWithoutBeingChosen) {
  actions.checkLanguage("fr_CH");
  EXPECT_TRUE(actions[Command::French]->isChecked());
  actions.checkLanguage("it");
  EXPECT_TRUE(actions[Command::English]->isChecked());
  EXPECT_TRUE(plugin.called.isEmpty());
}

TEST_F(PluginActionsTest, anotherLanguageSetsAllTextsButThatOfStopping) {
  const ContextTranslator translator;
  actions.retranslate();
  for (const Expected& expected : expectedActions()) {
    const QAction& action = *actions[expected.command];
    if (expected.command == Command::Stop) {
      EXPECT_EQ(action.text(), "stop simulation");
      EXPECT_EQ(action.statusTip(), "");
      continue;
    }
    EXPECT_EQ(action.text(), QString("TVRPlugin/") + expected.text);
    if (expected.tip && !expected.tip->isEmpty()) {
      EXPECT_EQ(action.statusTip(), QString("TVRPlugin/") + *expected.tip);
    }
  }
  EXPECT_EQ(actions.languageMenu()->title(), "TVRPlugin/&Language of use");
}

TEST(PluginActions, areMadeInTheLanguageOfTheMoment) {
  const ContextTranslator translator;
  SlotCounter plugin;
  const PluginActions actions(&plugin);
  EXPECT_EQ(actions[Command::Save]->text(), "TVRPlugin/Save the TVR project");
  EXPECT_EQ(actions[Command::Stop]->text(), "stop simulation");
}

TEST(PluginActions, takeTheirMenuAlongUnlessSomebodyOwnsIt) {
  SlotCounter plugin;
  QWidget owner;
  QPointer<QMenu> owned;
  QPointer<QMenu> own;
  {
    const PluginActions first(&plugin);
    own = first.languageMenu();
    const PluginActions second(&plugin);
    owned = second.languageMenu();
    owned->setParent(&owner);
  }
  EXPECT_FALSE(own);
  EXPECT_TRUE(owned);
}

#include "PluginActionsTest.moc"
