#include "project/ParameterTable.h"
#include "support/PseudoTranslator.h"
#include "tables/PropertyModel.h"
#include "translations/UntranslatedTexts.h"
#include "translations/WholeProgramTest.h"

#include <QDate>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

class PseudoLanguageTest : public WholeProgramTest {
protected:
  /// From here on every text that is translated has brackets.
  void speakPseudo() {
    pseudo = std::make_unique<PseudoTranslator>();
    ASSERT_TRUE(pseudo->isLoaded());
    takeIn();
  }
  /// What no change of language reaches: the action that only has a shortcut, which is not
  /// translated on purpose, and small parts that Qt names once, when it makes them.
  QStringList leftInWindow() const {
    return without({"stop simulation", "CloseButton ,", "QToolButton ScrollLeftButton",
                    "QToolButton ScrollRightButton", "QDockWidgetTitleButton"},
                   untranslatedTexts(*window));
  }
  /// Without the names of wells, which are the project's, and the date.
  QStringList leftOnPage() const {
    const QString today = QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat);
    return without({"Pump", "Return", today}, untranslatedTexts(page()->canvas()));
  }
  static QStringList without(const QStringList& kept, QStringList texts) {
    for (const QString& part : kept)
      for (const QString& text : texts.filter(part))
        texts.removeAll(text);
    return texts;
  }

  std::unique_ptr<PseudoTranslator> pseudo;
};

std::string lines(const QStringList& texts) {
  return texts.join('\n').toStdString();
}

} // namespace

TEST_F(PseudoLanguageTest, theWindowLeavesNoTextInEnglish) {
  plugin->openWelcomeWindow();
  speakPseudo();
  EXPECT_EQ(lines(leftInWindow()), "");
}

TEST_F(PseudoLanguageTest, anOpenPageLeavesNoTextInEnglish) {
  runToPage();
  speakPseudo();
  EXPECT_EQ(lines(leftOnPage()), "");
  EXPECT_EQ(lines(leftInWindow()), "");
}

TEST_F(PseudoLanguageTest, aNewPageLeavesNoTextInEnglish) {
  speakPseudo();
  runToPage();
  EXPECT_EQ(lines(leftOnPage()), "");
}

TEST_F(PseudoLanguageTest, theSummaryOfEveryKindOfProjectIsTranslated) {
  speakPseudo();
  runToPage();
  for (const int wizard : {EnergyWizardDone, WellWizardDone})
    store.setValue(wizard, true);
  for (const int type : {0, 2})
    for (const bool isUnconfined : {false, true})
      for (const double dispersivity : {0.0, 5.0}) {
        store.setValue(EnergyDemandType, type);
        store.setValue(AquiferUnconfined, isUnconfined);
        store.setValue(ThermalDispersivity, dispersivity);
        QString summary = plugin->resultGraphic().summary(1e9);
        summary.remove(store.value(BuildingType).toString()); // comes from the database
        EXPECT_EQ(leftInEnglish(summary).toStdString(), "");
      }
}

TEST_F(PseudoLanguageTest, labelsOfParametersAndTheirUnitsAreTranslated) {
  speakPseudo();
  for (const ParameterRow& row : parameterTable())
    EXPECT_EQ(leftInEnglish(ParameterName::label(row.id)), "") << row.key;
  for (const int id : {GroundwaterTable, AquiferBasis, HeatingPeriod})
    EXPECT_EQ(leftInEnglish(shownUnit(parameterRow(id))), "");
}

TEST_F(PseudoLanguageTest, headersOfTablesAndNamesOfWellsAreTranslated) {
  read(BatchProject::doublet());
  speakPseudo();
  const std::unique_ptr<QAbstractItemModel> address(store.addressModel(false));
  for (const QAbstractItemModel* table :
       {static_cast<QAbstractItemModel*>(store.wellModel()),
        static_cast<QAbstractItemModel*>(store.demandModel()),
        static_cast<QAbstractItemModel*>(store.wellDemandModel()), address.get()})
    for (int column = 0; column < table->columnCount(); ++column)
      EXPECT_EQ(leftInEnglish(table->headerData(column, Qt::Horizontal).toString()), "");
  store.setValue(NumberOfWells, 3);
  EXPECT_TRUE(store.wellModel()->index(2, 0).data().toString().startsWith("[!! Well"));
}
