#pragma once

#include "gui/wizard/PageFields.h"
#include "gui/wizard/PageSurroundings.h"
#include "ui_EnergyDemandResultWizardPage.h"

#include <QWizardPage>

namespace TVR::GUI {

/// What the wells have to carry. The wizard can be finished once demand, power and temperature
/// change are all above 0.
class EnergyDemandResultWizardPage : public QWizardPage, private Ui::EnergyDemandResultWizardPage {
  Q_OBJECT

public:
  EnergyDemandResultWizardPage(const PageSurroundings& surroundings, QWidget* parent = nullptr);

  void initializePage() override;
  bool validatePage() override;

protected:
  void changeEvent(QEvent* event) override;

private:
  Data::Manager& store_;
};

} // namespace TVR::GUI
