#pragma once

#include "gui/wizard/PageFields.h"
#include "gui/wizard/PageSurroundings.h"
#include "ui_EnergyDemandDeterminationWizardPage.h"

#include <QWizardPage>

namespace TVR::GUI {

/// The known demand of a new heating.
class EnergyDemandDeterminationWizardPage : public QWizardPage,
                                            private Ui::EnergyDemandDeterminationWizardPage {
  Q_OBJECT

public:
  EnergyDemandDeterminationWizardPage(const PageSurroundings& surroundings, QWizardPage* heatPump,
                                      QWidget* parent = nullptr);

  void initializePage() override;
  void cleanupPage() override;
  bool validatePage() override;
  int nextId() const override;

protected:
  void changeEvent(QEvent* event) override;

private:
  PageFields fields_;
  QWizardPage* const heatPump_;
};

} // namespace TVR::GUI
