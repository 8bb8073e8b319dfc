#include "messages/PluginText.h"
#include "plugin/PagePluginTest.h"
#include "support/ContextTranslator.h"
#include "support/SettingsOfTheTest.h"

#include <QAction>
#include <QMainWindow>
#include <QToolBar>
#include <QWizardPage>

using namespace TVR;
using namespace TVR::Parameter;
using namespace Sketra_lib::Property;

namespace {

class LanguageTest : public PagePluginTest {
protected:
  LanguageTest() { host.main = &main; }
  ~LanguageTest() override { setLanguage("en", true); }

  void setLanguage(const QString& locale, bool force) {
    ASSERT_TRUE(QMetaObject::invokeMethod(&plugin, "setLanguage", Q_ARG(QString, locale),
                                          Q_ARG(bool, force)));
  }
  QString nameOf(int id) { return page.itemProperty(id, Name).toString(); }

  const SettingsOfTheTest settings;
  QMainWindow main;
};

} // namespace

// Choosing

TEST_F(LanguageTest, theLanguageInUseIsNotSetAnewUnlessForced) {
  setLanguage("fr", true);
  host.languages.clear();
  setLanguage("fr", false);
  EXPECT_EQ(host.languages, QStringList());
  ASSERT_TRUE(invoke("setFrench"));
  EXPECT_EQ(host.languages, (QStringList{"fr", "fr"}));
}

TEST_F(LanguageTest, anotherLanguageNeedsNoForce) {
  setLanguage("de", false);
  EXPECT_EQ(plugin.language(), "de");
}

TEST_F(LanguageTest, theLanguageThatTheUserChoosesIsThatOfTheNextStart) {
  for (const auto& [slot, language] : {std::pair{"setGerman", "de"}, std::pair{"setFrench", "fr"},
                                       std::pair{"setEnglish", "en"}}) {
    ASSERT_TRUE(invoke(slot));
    EXPECT_EQ(SettingsOfTheTest::current().value("last_parameter_set/gui_language"),
              QVariant(language));
  }
}

TEST_F(LanguageTest, aLanguageWithoutTextsCountsAsEnglish) {
  host.languages.clear();
  setLanguage("it", true);
  EXPECT_EQ(plugin.language(), "en");
  EXPECT_EQ(store.value(GuiLanguage), QVariant("en"));
  EXPECT_EQ(host.languages, (QStringList{"it", "en"}));
}

TEST_F(LanguageTest, theHostHearsOfALanguageBeforeItIsThere) {
  class Asking final : public BareHost {
  public:
    void setHostLanguage(const QString& language) override {
      seen << language + ' ' + PluginText::tr("Withdrawal wells");
    }
    QStringList seen;
  } asking;
  setLanguage("en", true);
  AppInterface::setApplicationInterface(&asking);
  setLanguage("de", true);
  AppInterface::setApplicationInterface(&host);
  EXPECT_EQ(asking.seen.size(), 2);
  EXPECT_EQ(asking.seen.first(), "de Withdrawal wells");
  EXPECT_EQ(asking.seen.last(), "de Entnahmebrunnen");
}

TEST_F(LanguageTest, theActionOfTheLanguageIsChecked) {
  plugin.addMenus(nullptr);
  for (const auto& [slot, name] :
       {std::pair{"setGerman", "tvr_german"}, std::pair{"setFrench", "tvr_french"},
        std::pair{"setEnglish", "tvr_english"}}) {
    ASSERT_TRUE(invoke(slot));
    EXPECT_TRUE(plugin.findChild<QAction*>(name)->isChecked()) << name;
  }
}

// Following

TEST_F(LanguageTest, withoutActionsNothingFollows) {
  items().mapView = item("Map view");
  const ContextTranslator translator;
  forget();
  plugin.updateLanguage("de");
  EXPECT_TRUE(page.sets.empty());
}

TEST_F(LanguageTest, actionsAndToolBarFollow) {
  const QToolBar& bar = *plugin.addToolBars(&main).first();
  const ContextTranslator translator;
  plugin.updateLanguage("de");
  EXPECT_EQ(bar.windowTitle(), "TVRPlugin/&Tevrane");
  EXPECT_EQ(plugin.findChild<QAction*>("tvr_save")->text(), "TVRPlugin/Save the TVR project");
  EXPECT_EQ(plugin.findChild<QAction*>("tvr_stop")->text(), "stop simulation");
}

TEST_F(LanguageTest, anOpenWizardIsClosed) {
  plugin.addMenus(nullptr);
  plugin.wizards().setPages(
      {{GUI::PageGroup::WellPositions, [] { return QList<QWizardPage*>{new QWizardPage}; }}});
  plugin.showSimulationWizard();
  const QPointer<QWizard> wizard = plugin.wizards().wizard();
  ASSERT_TRUE(wizard);
  plugin.updateLanguage("de");
  EXPECT_FALSE(plugin.wizards().wizard());
  EXPECT_FALSE(wizard->isVisible());
}

TEST_F(LanguageTest, theItemsOfThePageAreNamedInTheirOrder) {
  plugin.addMenus(nullptr);
  graphic().startup(nullptr);
  items().mapImage = page.addItem("Map image", items().mapView);
  items().results = page.addItem("Simulation results", items().mapView);
  store.setValue(ViewScale, 250);
  const ContextTranslator translator;
  forget();
  plugin.updateLanguage("de");
  QStringList names;
  for (const PageRecord::Set& set : page.sets)
    if (set.property == Name)
      names << set.value.toString().remove("TVRPlugin/");
  EXPECT_EQ(names,
            (QStringList{"Map scale", "Map view", "Program identification", "Project address",
                         "Summary", "Demand plot (rates)", "Rate label",
                         "Demand plot (temperature)", "Temperature label", "Map legend",
                         "Map scale", "Date", "Logo", "Map image", "Wells", "Simulation results"}));
  EXPECT_EQ(nameOf(items().wells), "TVRPlugin/Wells");
  EXPECT_EQ(page.itemProperty(items().mapScale, Html),
            QVariant("<b>TVRPlugin/Map scale 1:250</b>"));
  EXPECT_EQ(page.itemProperty(items().mapView, LegendText).toMap()["Text"],
            QVariant("TVRPlugin/Legend"));
  EXPECT_TRUE(page.itemProperty(items().summary, Html).toString().contains("TVRPlugin/"));
}

TEST_F(LanguageTest, aPageBehindAnotherWindowFollowsWhenItIsActivated) {
  plugin.addMenus(nullptr);
  graphic().startup(nullptr);
  const ContextTranslator translator;
  host.active = nullptr;
  plugin.updateLanguage("de");
  host.active = &page;
  plugin.workspaceWindowActivated(&page);
  EXPECT_EQ(nameOf(items().mapView), "TVRPlugin/Map view");
  forget();
  plugin.workspaceWindowActivated(&page);
  EXPECT_TRUE(page.valuesOf(items().mapView, Name).isEmpty()) << "once";
}

TEST_F(LanguageTest, itemsThatAreNotThereAreLeftAlone) {
  plugin.addMenus(nullptr);
  items() = PageItems();
  items().date = item("Date");
  forget();
  plugin.updateLanguage("de");
  ASSERT_EQ(page.sets.size(), 1U);
  EXPECT_EQ(page.sets.front().item, item("Date"));
}

TEST_F(LanguageTest, aLockedPageKeepsItsNames) {
  plugin.addMenus(nullptr);
  graphic().startup(nullptr);
  const LockedElsewhere locked(graphic().mutex());
  forget();
  plugin.updateLanguage("de");
  EXPECT_TRUE(page.sets.empty());
}

TEST_F(LanguageTest, aWindowThatIsNoPageKeepsItsNames) {
  plugin.addMenus(nullptr);
  graphic().startup(nullptr);
  page.type = "TextWindow";
  forget();
  plugin.updateLanguage("de");
  EXPECT_TRUE(page.sets.empty());
}
