#include "translations/WholeProgramTest.h"

#include <QAction>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QTextBrowser>

using namespace TVR;
using namespace TVR::Parameter;
using namespace Sketra_lib::Property;

namespace {

class LanguageSwitchTest : public WholeProgramTest {
protected:
  QVariant of(const char* name, int property) const {
    return page()->itemProperty(page()->itemByName(name, 0), property);
  }
  /// The legends of all isotherms.
  QStringList isotherms() const {
    const int grid = plugin->resultGraphic().items().results;
    page()->setItemProperty(grid, SelectedSet, static_cast<int>(Temperature));
    QStringList legends;
    for (const QVariant& line : page()->itemProperty(grid, IsolineIds).toList())
      legends << page()->itemProperty(line.toInt(), LegendText).toMap()["Text"].toString();
    return legends;
  }
  QStringList legendsOfWells() const {
    QStringList legends;
    const int wells = plugin->resultGraphic().items().wells;
    for (const QVariant& mark : page()->itemProperty(wells, PointMarks).toList())
      legends << mark.toMap()["Legend"].toString();
    return legends;
  }
  QStringList menuTitles() const {
    QStringList titles;
    for (const QAction* menu : window->menuBar()->actions())
      titles << menu->text();
    return titles;
  }
};

} // namespace

TEST_F(LanguageSwitchTest, menusAndActionsFollow) {
  const QStringList english = menuTitles();
  auto* const wells = plugin->findChild<QAction*>("tvr_wells");
  ASSERT_TRUE(wells);
  choose("setGerman");
  EXPECT_TRUE(menuTitles().contains("&Datei")) << menuTitles().join(' ').toStdString();
  EXPECT_EQ(wells->text(), "&Brunnen und Grundwasserleiter");
  EXPECT_EQ(wells->statusTip(), "Zeigt den Assistenten für die Brunnen");
  choose("setFrench");
  EXPECT_TRUE(menuTitles().contains("&Fichier"));
  EXPECT_EQ(wells->text(), "&Puits et aquifère");
  choose("setEnglish");
  EXPECT_EQ(menuTitles(), english);
  EXPECT_EQ(wells->text(), "&Wells and aquifer");
}

TEST_F(LanguageSwitchTest, theOpenPageFollows) {
  runToPage();
  ASSERT_FALSE(HasFatalFailure());
  choose("setGerman");
  EXPECT_GT(page()->itemByName("Kartenausschnitt", 0), 0);
  EXPECT_TRUE(of("Zusammenfassung", Html).toString().contains("Art des Grundwasserleiters: "));
  EXPECT_TRUE(of("Zusammenfassung", Html).toString().contains(">nein<"));
  EXPECT_EQ(of("Kartenausschnitt", LegendText).toMap()["Text"], QVariant("Legende"));
  EXPECT_TRUE(of("Maßstab der Karte", Html).toString().startsWith("<b>Maßstab der Karte 1:"));
  ASSERT_FALSE(isotherms().isEmpty());
  EXPECT_TRUE(isotherms().first().startsWith("Isotherme (")) << isotherms().first().toStdString();
  EXPECT_EQ(legendsOfWells(), (QStringList{"Entnahmebrunnen", "Rückgabebrunnen"}));
  choose("setFrench");
  EXPECT_TRUE(of("Résumé", Html).toString().contains("Type de nappe\u00a0: "));
  EXPECT_EQ(legendsOfWells(), (QStringList{"Puits de prélèvement", "Puits de restitution"}));
  choose("setEnglish");
  EXPECT_TRUE(of("Summary", Html).toString().contains("Aquifer type: "));
  EXPECT_TRUE(isotherms().first().startsWith("Isotherm ("));
  EXPECT_EQ(legendsOfWells(), (QStringList{"Withdrawal wells", "Injection wells"}));
}

TEST_F(LanguageSwitchTest, theSelectedSetOfThePageStays) {
  runToPage();
  ASSERT_FALSE(HasFatalFailure());
  const int grid = plugin->resultGraphic().items().results;
  for (const int set : {Drawdowns, Temperature}) {
    page()->setItemProperty(grid, SelectedSet, set);
    choose("setGerman");
    EXPECT_EQ(page()->itemProperty(grid, SelectedSet), QVariant(set));
  }
}

TEST_F(LanguageSwitchTest, theDockFollows) {
  const QString label = store.label(HydraulicConductivity).toString();
  choose("setGerman");
  EXPECT_NE(store.label(HydraulicConductivity), QVariant(label));
  auto* const dock = window->findChild<QDockWidget*>("tvr_dock");
  ASSERT_TRUE(dock);
  EXPECT_EQ(dock->widget()->windowTitle(), "Entwurfsgrößen");
  choose("setFrench");
  EXPECT_EQ(dock->widget()->windowTitle(), "Grandeurs du projet");
}

TEST_F(LanguageSwitchTest, theWelcomeWindowFollows) {
  plugin->openWelcomeWindow();
  auto* const text = window->findChild<QTextBrowser*>("textBrowser");
  ASSERT_TRUE(text);
  const QString english = text->toPlainText();
  choose("setGerman");
  const QString german = text->toPlainText();
  choose("setFrench");
  EXPECT_NE(german, english);
  EXPECT_NE(text->toPlainText(), german);
  choose("setEnglish");
  EXPECT_EQ(text->toPlainText(), english);
}
