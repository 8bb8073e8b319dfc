#pragma once

#include "gui/wizard/PageFields.h"
#include "gui/wizard/PageSurroundings.h"
#include "ui_UserWizardPage.h"

#include <QWizardPage>

namespace TVR::GUI {

/// Who plans: name, address and logo. The table writes to the store at once.
class UserWizardPage : public QWizardPage, private Ui::UserWizardPage {
  Q_OBJECT

public:
  explicit UserWizardPage(const PageSurroundings& surroundings, QWidget* parent = nullptr);

  void initializePage() override;
  void cleanupPage() override;
  bool validatePage() override;

protected:
  void changeEvent(QEvent* event) override;

private slots:
  void on_toolButtonLogoFileSelection_clicked();
  void on_toolButtonDeleteLogo_clicked();

private:
  void showLogo(const QString& file);

  const PageSurroundings surroundings_;
  PageFields fields_;
  QString logo_; ///< the file; empty for none
};

} // namespace TVR::GUI
