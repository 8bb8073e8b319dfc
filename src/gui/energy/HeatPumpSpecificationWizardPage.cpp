#include "gui/energy/HeatPumpSpecificationWizardPage.h"

#include "design/ParameterId.h"
#include "gui/energy/EnergyMessages.h"
#include "store/Manager.h"

#include <QCoreApplication>
#include <QEvent>

namespace TVR::GUI {

using namespace Parameter;

HeatPumpSpecificationWizardPage::HeatPumpSpecificationWizardPage(
    const PageSurroundings& surroundings, QWizardPage* result, QWidget* parent)
    : QWizardPage(parent), store_(surroundings.store), fields_(surroundings.store, energyMessages),
      result_(result) {
  setupUi(this);
  fields_.showMessagesIn(feedback_page5);
  fields_.add(numberField(SystemCop, NrYearWorking, {0, 6}));
  fields_.add(numberField(UsedTemperatureChange, DeltaT, {0, 100}));
  fields_.test(
      [this] { return lacksNumber(NrYearWorking); },
      QT_TRANSLATE_NOOP(
          "EngerieVerbrauchWizard",
          "Please provide a valid value for the coefficient of performance (COP) of the system."));
  fields_.test([this] { return lacksNumber(DeltaT); },
               QT_TRANSLATE_NOOP("EngerieVerbrauchWizard",
                                 "Please provide a valid value for the temperature change."));
}

void HeatPumpSpecificationWizardPage::initializePage() {
  fields_.enter();
}

void HeatPumpSpecificationWizardPage::cleanupPage() {
  fields_.reset(QCoreApplication::translate("EngerieVerbrauchWizard",
                                            "Reset all changes on the heat pump specification?"));
}

bool HeatPumpSpecificationWizardPage::validatePage() {
  if (!fields_.leave())
    return false;
  constexpr int heatingDays = 224;
  store_.setValue(HeatingPeriod, heatingDays);
  return true;
}

int HeatPumpSpecificationWizardPage::nextId() const {
  return idOfPage(wizard(), result_, QWizardPage::nextId());
}

void HeatPumpSpecificationWizardPage::changeEvent(QEvent* event) {
  if (asksForTexts(*this, *event)) {
    retranslateUi(this);
    fields_.sayAgain();
  }
  QWizardPage::changeEvent(event);
}

} // namespace TVR::GUI
