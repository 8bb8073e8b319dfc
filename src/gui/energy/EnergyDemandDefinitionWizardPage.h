#pragma once

#include "gui/wizard/PageFields.h"
#include "gui/wizard/PageSurroundings.h"
#include "ui_EnergyDemandDefinitionWizardPage.h"

#include <QWizardPage>

namespace TVR::GUI {

/// Whether the demand of a new heating is known or is to be estimated.
class EnergyDemandDefinitionWizardPage : public QWizardPage,
                                         private Ui::EnergyDemandDefinitionWizardPage {
  Q_OBJECT

public:
  EnergyDemandDefinitionWizardPage(const PageSurroundings& surroundings, QWizardPage* determination,
                                   QWizardPage* approximation, QWidget* parent = nullptr);

  void initializePage() override;
  void cleanupPage() override;
  bool validatePage() override;
  int nextId() const override;

protected:
  void changeEvent(QEvent* event) override;

private:
  PageFields fields_;
  QWizardPage* const determination_;
  QWizardPage* const approximation_;
};

} // namespace TVR::GUI
