#pragma once

#include "gui/wizard/PageFields.h"
#include "gui/wizard/PageSurroundings.h"
#include "ui_AquiferWizardPage.h"

#include <QWizardPage>

namespace TVR::GUI {

/// Flow, thickness, conductivity and porosity of the aquifer. Of confined and unconfined one is
/// always checked; conductivity and porosity are known, or those of a material.
class AquiferWizardPage : public QWizardPage, private Ui::AquiferWizardPage {
  Q_OBJECT

public:
  explicit AquiferWizardPage(const PageSurroundings& surroundings, QWidget* parent = nullptr);

  void initializePage() override;
  void cleanupPage() override;
  bool validatePage() override;

protected:
  void changeEvent(QEvent* event) override;

private slots:
  /// The sender is one of the two types of aquifer: the other one becomes its opposite.
  void toggleType();

private:
  void addFields();
  void addTests();
  void fillMaterials();
  QString conductivityOf(int material) const;
  void showMaterialValues();

  const Data::Manager& store_;
  PageFields fields_;
};

} // namespace TVR::GUI
