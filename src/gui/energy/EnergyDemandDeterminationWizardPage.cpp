#include "gui/energy/EnergyDemandDeterminationWizardPage.h"

#include "design/ParameterId.h"
#include "gui/energy/EnergyMessages.h"
#include "store/Manager.h"

#include <QCoreApplication>
#include <QEvent>

namespace TVR::GUI {

using namespace Parameter;

EnergyDemandDeterminationWizardPage::EnergyDemandDeterminationWizardPage(
    const PageSurroundings& surroundings, QWizardPage* heatPump, QWidget* parent)
    : QWizardPage(parent), fields_(surroundings.store, energyMessages), heatPump_(heatPump) {
  setupUi(this);
  fields_.showMessagesIn(feedback_page3);
  fields_.add(numberField(EnergyDemand, NewRequirement, {0, 1e8}));
  fields_.test([this] { return lacksNumber(NewRequirement); },
               QT_TRANSLATE_NOOP("EngerieVerbrauchWizard",
                                 "Please provide a valid value for the energy demand."));
}

void EnergyDemandDeterminationWizardPage::initializePage() {
  fields_.enter();
}

void EnergyDemandDeterminationWizardPage::cleanupPage() {
  fields_.reset(QCoreApplication::translate("EngerieVerbrauchWizard",
                                            "Reset all changes on the energy demand definition?"));
}

bool EnergyDemandDeterminationWizardPage::validatePage() {
  return fields_.leave();
}

int EnergyDemandDeterminationWizardPage::nextId() const {
  return idOfPage(wizard(), heatPump_, QWizardPage::nextId());
}

void EnergyDemandDeterminationWizardPage::changeEvent(QEvent* event) {
  if (asksForTexts(*this, *event)) {
    retranslateUi(this);
    fields_.sayAgain();
  }
  QWizardPage::changeEvent(event);
}

} // namespace TVR::GUI
