#pragma once

#include "gui/wizard/PageFields.h"
#include "gui/wizard/PageSurroundings.h"
#include "ui_EnergyConsumptionWizardPage.h"

#include <QWizardPage>

namespace TVR::GUI {

/// The consumption of a heating that is to be replaced, by its fuel.
class EnergyConsumptionWizardPage : public QWizardPage, private Ui::EnergyConsumptionWizardPage {
  Q_OBJECT

public:
  EnergyConsumptionWizardPage(const PageSurroundings& surroundings, QWizardPage* heatPump,
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
