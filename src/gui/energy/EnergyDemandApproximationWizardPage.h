#pragma once

#include "gui/wizard/PageFields.h"
#include "gui/wizard/PageSurroundings.h"
#include "ui_EnergyDemandApproximationWizardPage.h"

#include <QWizardPage>

namespace TVR::GUI {

/// What the demand of a new heating is estimated from.
class EnergyDemandApproximationWizardPage : public QWizardPage,
                                            private Ui::EnergyDemandApproximationWizardPage {
  Q_OBJECT

public:
  EnergyDemandApproximationWizardPage(const PageSurroundings& surroundings, QWizardPage* heatPump,
                                      QWidget* parent = nullptr);

  void initializePage() override;
  void cleanupPage() override;
  bool validatePage() override;
  int nextId() const override;

protected:
  void changeEvent(QEvent* event) override;

private:
  const Data::Manager& store_;
  PageFields fields_;
  QWizardPage* const heatPump_;
};

} // namespace TVR::GUI
