#pragma once

#include "gui/wizard/PageSurroundings.h"
#include "ui_AquiferAndWellSummaryWizardPage.h"

#include <QWizardPage>

namespace TVR::GUI {

/// The wells that the simulation starts from. The wizard can always be finished, but with too many
/// wells its data count as incomplete.
class AquiferAndWellSummaryWizardPage : public QWizardPage,
                                        private Ui::AquiferAndWellSummaryWizardPage {
  Q_OBJECT

public:
  explicit AquiferAndWellSummaryWizardPage(const PageSurroundings& surroundings,
                                           QWidget* parent = nullptr);

  void initializePage() override;
  bool validatePage() override;

protected:
  void changeEvent(QEvent* event) override;

private:
  void showTitle();
  void showWells();

  Data::Manager& store_;
};

} // namespace TVR::GUI
