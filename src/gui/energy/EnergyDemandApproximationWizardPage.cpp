#include "gui/energy/EnergyDemandApproximationWizardPage.h"

#include "design/ParameterId.h"
#include "gui/energy/EnergyMessages.h"
#include "store/Manager.h"

#include <QCoreApplication>
#include <QEvent>

namespace TVR::GUI {

using namespace Parameter;

EnergyDemandApproximationWizardPage::EnergyDemandApproximationWizardPage(
    const PageSurroundings& surroundings, QWizardPage* heatPump, QWidget* parent)
    : QWizardPage(parent), store_(surroundings.store), fields_(surroundings.store, energyMessages),
      heatPump_(heatPump) {
  setupUi(this);
  fields_.showMessagesIn(feedback_page4);
  fields_.add(flagField(HotWaterProvided, HotwaterProvided));
  fields_.add(numberField(HeatedFootSpace, HeatedFootSize, {0, 1e8}));
  fields_.add(choiceField(store_, Parameter::ClosestLocation,
                          Ui::EnergyDemandApproximationWizardPage::ClosestLocation));
  fields_.test([this] { return lacksNumber(HeatedFootSize); },
               QT_TRANSLATE_NOOP("EngerieVerbrauchWizard",
                                 "Please provide a valid value for the area to be heated."));
}

void EnergyDemandApproximationWizardPage::initializePage() {
  fields_.enter();
}

void EnergyDemandApproximationWizardPage::cleanupPage() {
  fields_.reset(QCoreApplication::translate(
      "EngerieVerbrauchWizard", "Reset all changes on the energy demand approximation?"));
}

bool EnergyDemandApproximationWizardPage::validatePage() {
  return fields_.leave();
}

int EnergyDemandApproximationWizardPage::nextId() const {
  return idOfPage(wizard(), heatPump_, QWizardPage::nextId());
}

void EnergyDemandApproximationWizardPage::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange)
    fillChoices(store_, Parameter::ClosestLocation,
                Ui::EnergyDemandApproximationWizardPage::ClosestLocation);
  if (asksForTexts(*this, *event)) {
    retranslateUi(this);
    fields_.sayAgain();
  }
  QWizardPage::changeEvent(event);
}

} // namespace TVR::GUI
