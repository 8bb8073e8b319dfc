#pragma once

#include "gui/wizard/PageFields.h"
#include "gui/wizard/PageSurroundings.h"
#include "ui_CoolingAndHeatingInstallationWizardPage.h"

#include <QWizardPage>

namespace TVR::GUI {

/// Demand, power or hours of full load, and temperature change of cooling and, if there is any, of
/// heating.
class CoolingAndHeatingInstallationWizardPage
    : public QWizardPage,
      private Ui::CoolingAndHeatingInstallationWizardPage {
  Q_OBJECT

public:
  CoolingAndHeatingInstallationWizardPage(const PageSurroundings& surroundings, QWizardPage* result,
                                          QWidget* parent = nullptr);

  void initializePage() override;
  void cleanupPage() override;
  bool validatePage() override;
  int nextId() const override;

protected:
  void changeEvent(QEvent* event) override;

private:
  void addFields();
  void addTests();
  void enableEdits();

  Data::Manager& store_;
  PageFields fields_;
  QWizardPage* const result_;
};

} // namespace TVR::GUI
