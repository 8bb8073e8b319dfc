#include "gui/energy/EnergyDemandFeatureWizardPage.h"

#include "design/ParameterId.h"
#include "gui/energy/EnergyMessages.h"
#include "store/Manager.h"

#include <QEvent>

namespace TVR::GUI {

using namespace Parameter;

EnergyDemandFeatureWizardPage::EnergyDemandFeatureWizardPage(const PageSurroundings& surroundings,
                                                             QWizardPage* consumption,
                                                             QWizardPage* definition,
                                                             QWizardPage* cooling, QWidget* parent)
    : QWizardPage(parent), store_(surroundings.store), fields_(surroundings.store, energyMessages),
      consumption_(consumption), definition_(definition), cooling_(cooling) {
  setupUi(this);
  fields_.add(buttonsField(EnergyDemandType, {ReplaceHeating, NewHeating, NewCoolingAndHeating}));
  fields_.add(choiceField(store_, Parameter::BuildingType,
                          Ui::EnergyDemandFeatureWizardPage::BuildingType));
}

void EnergyDemandFeatureWizardPage::initializePage() {
  fields_.enter();
}

void EnergyDemandFeatureWizardPage::cleanupPage() {
  fields_.restoreAll();
}

bool EnergyDemandFeatureWizardPage::validatePage() {
  return fields_.leave();
}

int EnergyDemandFeatureWizardPage::nextId() const {
  const QWizardPage* const next = ReplaceHeating->isChecked() ? consumption_
                                  : NewHeating->isChecked()   ? definition_
                                                              : cooling_;
  return idOfPage(wizard(), next, QWizardPage::nextId());
}

void EnergyDemandFeatureWizardPage::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange)
    fillChoices(store_, Parameter::BuildingType, Ui::EnergyDemandFeatureWizardPage::BuildingType);
  if (asksForTexts(*this, *event))
    retranslateUi(this);
  QWizardPage::changeEvent(event);
}

} // namespace TVR::GUI
