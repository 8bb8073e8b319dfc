#pragma once

#include "gui/wizard/PageFields.h"
#include "gui/wizard/PageSurroundings.h"
#include "ui_HeatPumpSpecificationWizardPage.h"

#include <QWizardPage>

namespace TVR::GUI {

/// How well the heat pump works and how far it cools the water.
class HeatPumpSpecificationWizardPage : public QWizardPage,
                                        private Ui::HeatPumpSpecificationWizardPage {
  Q_OBJECT

public:
  HeatPumpSpecificationWizardPage(const PageSurroundings& surroundings, QWizardPage* result,
                                  QWidget* parent = nullptr);

  void initializePage() override;
  void cleanupPage() override;
  bool validatePage() override;
  int nextId() const override;

protected:
  void changeEvent(QEvent* event) override;

private:
  Data::Manager& store_;
  PageFields fields_;
  QWizardPage* const result_;
};

} // namespace TVR::GUI
