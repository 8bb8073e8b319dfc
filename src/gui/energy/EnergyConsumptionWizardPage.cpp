#include "gui/energy/EnergyConsumptionWizardPage.h"

#include "design/ParameterId.h"
#include "design/WellDesign.h"
#include "gui/energy/EnergyMessages.h"
#include "store/Manager.h"

#include <QCoreApplication>
#include <QEvent>

#include <iterator>

namespace TVR::GUI {

using namespace Parameter;

EnergyConsumptionWizardPage::EnergyConsumptionWizardPage(const PageSurroundings& surroundings,
                                                         QWizardPage* heatPump, QWidget* parent)
    : QWizardPage(parent), fields_(surroundings.store, energyMessages), heatPump_(heatPump) {
  setupUi(this);
  fields_.showMessagesIn(feedback_page1);
  constexpr NumberRule demand{0, 1e8};
  const struct {
    int id;
    QRadioButton* button;
    QLineEdit* edit;
    const char* message;
  } rows[] = {
      {OilDemand, OldEnergyDemand0, OldEnergyDemandOil,
       QT_TRANSLATE_NOOP("EngerieVerbrauchWizard",
                         "Please provide a valid value for the fuel oil demand.")},
      {GasDemand, OldEnergyDemand1, OldEnergyDemandGas,
       QT_TRANSLATE_NOOP("EngerieVerbrauchWizard",
                         "Please provide a valid value for the gas demand.")},
      {EnergyDemand, OldEnergyDemand2, OldEnergyDemandCurrent,
       QT_TRANSLATE_NOOP("EngerieVerbrauchWizard",
                         "Please provide a valid value for the energy demand.")},
  };
  fields_.add(buttonsField(ProvidedEnergyDemandType,
                           {OldEnergyDemand0, OldEnergyDemand1, OldEnergyDemand2}));
  for (const auto& row : rows) {
    row.edit->setEnabled(false);
    connect(row.button, &QRadioButton::toggled, row.edit, &QLineEdit::setEnabled);
    fields_.add(positiveNumberField(row.id, row.edit, demand).writtenIf(row.button));
    fields_.test([row] { return row.button->isChecked() && lacksNumber(row.edit); }, row.message);
  }
}

void EnergyConsumptionWizardPage::initializePage() {
  fields_.enter();
}

void EnergyConsumptionWizardPage::cleanupPage() {
  if (!PageFields::agreesToReset(QCoreApplication::translate(
          "EngerieVerbrauchWizard", "Reset all changes on the old energy demand configuration?")))
    return;
  constexpr int demands[] = {OilDemand, GasDemand, EnergyDemand};
  const int type = wholeNumber(fields_.saved(ProvidedEnergyDemandType).toDouble());
  fields_.restore({ProvidedEnergyDemandType});
  if (type >= 0 && type < static_cast<int>(std::size(demands)))
    fields_.restore({demands[type]});
  fields_.clearFeedback();
}

bool EnergyConsumptionWizardPage::validatePage() {
  return fields_.leave();
}

int EnergyConsumptionWizardPage::nextId() const {
  return idOfPage(wizard(), heatPump_, QWizardPage::nextId());
}

void EnergyConsumptionWizardPage::changeEvent(QEvent* event) {
  if (asksForTexts(*this, *event)) {
    retranslateUi(this);
    fields_.sayAgain();
  }
  QWizardPage::changeEvent(event);
}

} // namespace TVR::GUI
