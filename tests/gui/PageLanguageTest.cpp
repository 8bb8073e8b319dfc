#include "gui/EveryPage.h"
#include "support/ContextTranslator.h"

namespace TVR::GUI {
namespace {

using namespace Parameter;

/// A page that refuses to be left while one of its edits is empty, what it says then and what it
/// asks on the way back, in the context that the translations have for it.
struct Speaking {
  const char* page;
  const char* edit;
  const char* feedback;
  const char* context;
  const char* message;
  const char* question;
};

constexpr char energy[] = "EngerieVerbrauchWizard";
constexpr char wells[] = "BrunnenWizard";
constexpr char map[] = "GraphicWizard";

constexpr Speaking pages[] = {
    {"EnergyConsumptionWizardPage", "OldEnergyDemandOil", "feedback_page1", energy,
     "Please provide a valid value for the fuel oil demand.",
     "Reset all changes on the old energy demand configuration?"},
    {"EnergyDemandDeterminationWizardPage", "NewRequirement", "feedback_page3", energy,
     "Please provide a valid value for the energy demand.",
     "Reset all changes on the energy demand definition?"},
    {"EnergyDemandApproximationWizardPage", "HeatedFootSize", "feedback_page4", energy,
     "Please provide a valid value for the area to be heated.",
     "Reset all changes on the energy demand approximation?"},
    {"HeatPumpSpecificationWizardPage", "DeltaT", "feedback_page5", energy,
     "Please provide a valid value for the temperature change.",
     "Reset all changes on the heat pump specification?"},
    {"CoolingAndHeatingInstallationWizardPage", "CoolingDemandYear", "feedback_page6", energy,
     "Please provide a valid value for the cooling demand.",
     "Reset all changes on the energy demand configuration?"},
    {"AquiferWizardPage", "GW_gradient", "feedback_page0", wells,
     "Please provide a valid value for the hydraulic gradient.",
     "Reset all changes on the aquifer parameter?"},
    {"ProvidedWellsWizardPage", "DistanceWell", "feedback_page1", wells,
     "Please provide a valid value for the distance between wells.",
     "Reset all changes of the well configuration?"},
    {"MappingWizardPage", "XMap", "feedback_page0", map,
     "Please provide a valid value for the x coordinate of the map origin.",
     "Reset all changes on the mapping information?"},
};

class PageLanguage : public EveryPage {
protected:
  PageLanguage() { store.setValue(CalculateWellConstruction, false); }

  static QString inContext(const Speaking& speaking, const char* text) {
    return QString("%1/%2").arg(speaking.context, text);
  }
  QString feedback(const Speaking& speaking) {
    return in<QLabel>(pageOf(speaking.page), speaking.feedback)->text();
  }
  /// Leads to the message of a page.
  void refuse(const Speaking& speaking) {
    QWizardPage& page = pageOf(speaking.page);
    page.initializePage();
    type(page, speaking.edit, "");
    EXPECT_FALSE(page.validatePage()) << speaking.page;
  }
};

TEST_F(PageLanguage, messagesAndQuestionsStandInTheContextsOfTheTranslations) {
  for (const Speaking& speaking : pages) {
    const ContextTranslator translator;
    refuse(speaking);
    EXPECT_EQ(feedback(speaking), red(qPrintable(inContext(speaking, speaking.message))));
    answers.shown.clear();
    pageOf(speaking.page).cleanupPage();
    EXPECT_EQ(answers.shown, QStringList{inContext(speaking, speaking.question)});
    EXPECT_EQ(answers.titles.last(), "Tevrane");
  }
}

TEST_F(PageLanguage, aMessageIsSaidAgainInAnotherLanguage) {
  for (const Speaking& speaking : pages) {
    refuse(speaking);
    EXPECT_EQ(feedback(speaking), red(speaking.message));
    const ContextTranslator translator;
    tellOfLanguage(pageOf(speaking.page));
    EXPECT_EQ(feedback(speaking), red(qPrintable(inContext(speaking, speaking.message))));
  }
}

TEST_F(PageLanguage, aResetAnsweredWithNoLeavesTheMessage) {
  answers.yes = false;
  for (const Speaking& speaking : pages) {
    refuse(speaking);
    const Project before = store.project();
    pageOf(speaking.page).cleanupPage();
    EXPECT_EQ(feedback(speaking), red(speaking.message));
    EXPECT_EQ(store.project(), before) << speaking.page;
  }
}

TEST_F(PageLanguage, aResetAnsweredWithYesTakesTheMessageAway) {
  for (const Speaking& speaking : pages) {
    refuse(speaking);
    pageOf(speaking.page).cleanupPage();
    EXPECT_EQ(feedback(speaking), "") << speaking.page;
  }
}

TEST_F(PageLanguage, aRefusalOfTooManyWellsStandsInTheContextOfTheWells) {
  const ContextTranslator translator;
  store.setStored(NumberOfWells, 1000);
  QWizardPage& page = pageOf("AquiferAndWellSummaryWizardPage");
  page.initializePage();
  EXPECT_EQ(in<QLabel>(page, "feedback_page2")->text(),
            red("BrunnenWizard/An installation is not possible. More than 1000 wells are "
                "required."));
}

TEST_F(PageLanguage, bothPagesOfTheSimulationSayWhatFollowsThem) {
  const ContextTranslator translator;
  for (const char* const page :
       {"SimulationParameterWizardPage", "ExtendedSimulationParameterWizardPage"}) {
    wizard.setButtonText(QWizard::FinishButton, "Finish");
    pageOf(page).initializePage();
    EXPECT_EQ(wizard.buttonText(QWizard::FinishButton), "SimulationParameterWizardPage/Simulate");
  }
}

} // namespace
} // namespace TVR::GUI
