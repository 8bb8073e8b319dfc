#pragma once

#include "gui/wizard/PageFields.h"
#include "gui/wizard/PageSurroundings.h"
#include "ui_ProjectWizardPage.h"

#include <QWizardPage>

namespace TVR::GUI {

/// What is planned: name, address and description of the project.
class ProjectWizardPage : public QWizardPage, private Ui::ProjectWizardPage {
  Q_OBJECT

public:
  explicit ProjectWizardPage(const PageSurroundings& surroundings, QWidget* parent = nullptr);

  void initializePage() override;
  void cleanupPage() override;
  bool validatePage() override;

protected:
  void changeEvent(QEvent* event) override;

private:
  const PageSurroundings surroundings_;
  PageFields fields_;
};

} // namespace TVR::GUI
