#include "gui/wells/AquiferAndWellSummaryWizardPage.h"

#include "design/ParameterId.h"
#include "gui/wells/WellTexts.h"
#include "gui/wizard/PageFields.h"
#include "store/Manager.h"

#include <QEvent>

namespace TVR::GUI {

using namespace Parameter;

AquiferAndWellSummaryWizardPage::AquiferAndWellSummaryWizardPage(
    const PageSurroundings& surroundings, QWidget* parent)
    : QWizardPage(parent), store_(surroundings.store) {
  setupUi(this);
}

void AquiferAndWellSummaryWizardPage::initializePage() {
  showTitle();
  constexpr double tooManyWells = 1000;
  if (store_.value(NumberOfWells).toDouble() < tooManyWells) {
    showWells();
    feedback_page2->clear();
  } else {
    feedback_page2->setText(feedbackText(
        WellTexts::tr("An installation is not possible. More than 1000 wells are required.")));
  }
}

void AquiferAndWellSummaryWizardPage::showTitle() {
  summaryBox->setTitle(store_.value(CalculateWellConstruction).toBool()
                           ? WellTexts::tr("Calculated values")
                           : WellTexts::tr("Values used"));
}

void AquiferAndWellSummaryWizardPage::showWells() {
  const double wells = store_.value(NumberOfWells).toDouble();
  NrOfWellsRes->setText(QString::number(static_cast<int>(wells * 0.5)));
  const struct {
    QLabel* label;
    int id;
    double factor;
  } rows[] = {{DistanceWellRes, RadiusOfInfluence, 1},
              {FilterLengthRes, FilterLength, 1},
              {FilterDiameterRes, FilterDiameter, 1},
              {WellDiameterRes, WellRadius, 2},
              {MaxDrawdownRes, Drawdown, 1}};
  for (const auto& row : rows)
    row.label->setText(QString::number(store_.value(row.id).toDouble() * row.factor, 'f', 2));
  if (static_cast<int>(wells) < 3) // one pair has no wells of the same kind
    DistanceWellRes->setText(QStringLiteral("-"));
}

bool AquiferAndWellSummaryWizardPage::validatePage() {
  store_.setValue(WellWizardDone, feedback_page2->text().isEmpty());
  return true;
}

void AquiferAndWellSummaryWizardPage::changeEvent(QEvent* event) {
  if (asksForTexts(*this, *event)) {
    retranslateUi(this);
    initializePage(); // its texts are gone
  }
  QWizardPage::changeEvent(event);
}

} // namespace TVR::GUI
