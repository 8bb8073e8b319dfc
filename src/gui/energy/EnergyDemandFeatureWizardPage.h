#pragma once

#include "gui/wizard/PageFields.h"
#include "gui/wizard/PageSurroundings.h"
#include "ui_EnergyDemandFeatureWizardPage.h"

#include <QWizardPage>

namespace TVR::GUI {

/// What the installation is for, which decides the way through the wizard, and the kind of
/// building.
class EnergyDemandFeatureWizardPage : public QWizardPage,
                                      private Ui::EnergyDemandFeatureWizardPage {
  Q_OBJECT

public:
  EnergyDemandFeatureWizardPage(const PageSurroundings& surroundings, QWizardPage* consumption,
                                QWizardPage* definition, QWizardPage* cooling,
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
  QWizardPage* const consumption_;
  QWizardPage* const definition_;
  QWizardPage* const cooling_;
};

} // namespace TVR::GUI
