#include "gui/PageUser.h"
#include "gui/wells/AquiferPages.h"

#include <QGroupBox>

namespace TVR::GUI {
namespace {

using namespace Parameter;

class WellSummaryPageTest : public PageTest {
protected:
  QString shown(const char* label) { return in<QLabel>(page, label)->text(); }
  QString title() { return in<QGroupBox>(page, "summaryBox")->title(); }

  InputWizard wizard;
  QWizardPage& page = *wellDesignPages({store}, &wizard).at(1);
};

TEST_F(WellSummaryPageTest, allResultsAreShown) {
  store.setStored(NumberOfWells, 7);
  store.setStored(RadiusOfInfluence, 123.456);
  store.setStored(FilterLength, 8.5);
  store.setStored(FilterDiameter, 125.0);
  store.setStored(WellRadius, 0.15625);
  store.setStored(Drawdown, 1.005);
  page.initializePage();
  EXPECT_EQ(shown("NrOfWellsRes"), "3");
  EXPECT_EQ(shown("DistanceWellRes"), "123.46");
  EXPECT_EQ(shown("FilterLengthRes"), "8.50");
  EXPECT_EQ(shown("FilterDiameterRes"), "125.00");
  EXPECT_EQ(shown("WellDiameterRes"), "0.31");
  EXPECT_EQ(shown("MaxDrawdownRes"), "1.00");
}

TEST_F(WellSummaryPageTest, onePairHasNoDistance) {
  store.setStored(NumberOfWells, 2.9);
  page.initializePage();
  EXPECT_EQ(shown("DistanceWellRes"), "-");
  store.setStored(NumberOfWells, 3);
  page.initializePage();
  EXPECT_NE(shown("DistanceWellRes"), "-");
}

TEST_F(WellSummaryPageTest, theTitleSaysWhereTheWellsComeFrom) {
  store.setStored(CalculateWellConstruction, true);
  page.initializePage();
  EXPECT_EQ(title(), "Calculated values");
  store.setStored(CalculateWellConstruction, false);
  page.initializePage();
  EXPECT_EQ(title(), "Values used");
  tellOfLanguage(page);
  EXPECT_EQ(title(), "Values used");
}

TEST_F(WellSummaryPageTest, aThousandWellsAreRefusedAndTheWizardStaysIncomplete) {
  store.setStored(NumberOfWells, 10);
  page.initializePage();
  store.setStored(NumberOfWells, 1000);
  store.setStored(FilterLength, 1.0);
  page.initializePage();
  EXPECT_EQ(shown("feedback_page2"),
            red("An installation is not possible. More than 1000 wells are required."));
  EXPECT_EQ(shown("NrOfWellsRes"), "5");
  EXPECT_NE(shown("FilterLengthRes"), "1.00");
  store.setValue(WellWizardDone, true);
  EXPECT_TRUE(page.validatePage());
  EXPECT_FALSE(store.value(WellWizardDone).toBool());
}

TEST_F(WellSummaryPageTest, fewerThanAThousandWellsCompleteTheWizard) {
  store.setStored(NumberOfWells, 1000);
  page.initializePage();
  store.setStored(NumberOfWells, 999);
  page.initializePage();
  EXPECT_EQ(shown("feedback_page2"), "");
  EXPECT_EQ(shown("NrOfWellsRes"), "499");
  store.setValue(WellWizardDone, false);
  EXPECT_TRUE(page.validatePage());
  EXPECT_TRUE(store.value(WellWizardDone).toBool());
}

TEST_F(WellSummaryPageTest, resultsAndRefusalOutliveANewLanguage) {
  store.setStored(FilterLength, 8.5);
  page.initializePage();
  tellOfLanguage(page);
  EXPECT_EQ(shown("FilterLengthRes"), "8.50");
  store.setStored(NumberOfWells, 1000);
  page.initializePage();
  tellOfLanguage(page);
  EXPECT_NE(shown("feedback_page2"), "");
}

TEST_F(WellSummaryPageTest, thereIsNothingToReset) {
  page.initializePage();
  const Project before = store.project();
  page.cleanupPage();
  EXPECT_EQ(store.project(), before);
  EXPECT_EQ(answers.shown, QStringList());
}

TEST_F(WellSummaryPageTest, theWizardHasThreePagesInTheirOrder) {
  for (QWizardPage* const each : aquiferPages({store}, &wizard) + wellDesignPages({store}, &wizard))
    wizard.addPage(each);
  QStringList names;
  for (const int id : wizard.pageIds())
    names << wizard.page(id)->metaObject()->className();
  EXPECT_EQ(names, (QStringList{"TVR::GUI::AquiferWizardPage", "TVR::GUI::ProvidedWellsWizardPage",
                                "TVR::GUI::AquiferAndWellSummaryWizardPage"}));
}

} // namespace
} // namespace TVR::GUI
