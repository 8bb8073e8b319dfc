#include "gui/energy/EnergyDemandResultWizardPage.h"

#include "design/ParameterId.h"
#include "project/Units.h"
#include "store/Manager.h"

#include <QEvent>

namespace TVR::GUI {

using namespace Parameter;

EnergyDemandResultWizardPage::EnergyDemandResultWizardPage(const PageSurroundings& surroundings,
                                                           QWidget* parent)
    : QWizardPage(parent), store_(surroundings.store) {
  setupUi(this);
}

void EnergyDemandResultWizardPage::initializePage() {
  const struct {
    QLabel* label;
    int id;
    int decimals;
    double factor;
  } rows[] = {{EnergyDemandRes, EnergyDemand, 0, 1},
              {PowerRes, Power, 0, 1},
              {TemperatureChangeRes, UsedTemperatureChange, 1, 1},
              {MaximumRateRes, MaximumFlowRate, 1, secondsPerHour},
              {MaximumRateLitresRes, MaximumFlowRate, 1, litresPerMinute},
              {AnnualRateRes, MeanFlowRate, 2, secondsPerHour},
              {AnnualRateLitresRes, MeanFlowRate, 1, litresPerMinute}};
  for (const auto& row : rows)
    row.label->setText(QString::number(store_.number(row.id) * row.factor, 'f', row.decimals));
  constexpr int coolingAndHeating = 2;
  annualDemandBox->setVisible(store_.count(EnergyDemandType) != coolingAndHeating);
}

/// Required oddity: an incomplete demand is refused without a word.
bool EnergyDemandResultWizardPage::validatePage() {
  const bool isComplete = store_.number(EnergyDemand) > 0 && store_.number(Power) > 0 &&
                          store_.number(UsedTemperatureChange) > 0;
  store_.setValue(EnergyWizardDone, isComplete);
  return isComplete;
}

void EnergyDemandResultWizardPage::changeEvent(QEvent* event) {
  if (asksForTexts(*this, *event))
    retranslateUi(this);
  QWizardPage::changeEvent(event);
}

} // namespace TVR::GUI
