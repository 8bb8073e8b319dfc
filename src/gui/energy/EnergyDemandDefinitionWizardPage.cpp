#include "gui/energy/EnergyDemandDefinitionWizardPage.h"

#include "design/ParameterId.h"
#include "gui/energy/EnergyMessages.h"
#include "store/Manager.h"

#include <QEvent>

namespace TVR::GUI {

using namespace Parameter;

EnergyDemandDefinitionWizardPage::EnergyDemandDefinitionWizardPage(
    const PageSurroundings& surroundings, QWizardPage* determination, QWizardPage* approximation,
    QWidget* parent)
    : QWizardPage(parent), fields_(surroundings.store, energyMessages),
      determination_(determination), approximation_(approximation) {
  setupUi(this);
  fields_.add(flagField(CalculateEnergyDemand, DemandApproximated, DemandDetermined));
}

void EnergyDemandDefinitionWizardPage::initializePage() {
  fields_.enter();
}

void EnergyDemandDefinitionWizardPage::cleanupPage() {
  fields_.restoreAll();
}

bool EnergyDemandDefinitionWizardPage::validatePage() {
  return fields_.leave();
}

int EnergyDemandDefinitionWizardPage::nextId() const {
  return idOfPage(wizard(), DemandApproximated->isChecked() ? approximation_ : determination_,
                  QWizardPage::nextId());
}

void EnergyDemandDefinitionWizardPage::changeEvent(QEvent* event) {
  if (asksForTexts(*this, *event))
    retranslateUi(this);
  QWizardPage::changeEvent(event);
}

} // namespace TVR::GUI
