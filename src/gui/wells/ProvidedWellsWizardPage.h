#pragma once

#include "gui/wizard/PageFields.h"
#include "gui/wizard/PageSurroundings.h"
#include "ui_ProvidedWellsWizardPage.h"

#include <QWizardPage>

namespace TVR::GUI {

/// Whether the wells are dimensioned or provided, and those that are provided. Which of both is not
/// stored: it only decides whether what is provided is written.
class ProvidedWellsWizardPage : public QWizardPage, private Ui::ProvidedWellsWizardPage {
  Q_OBJECT

public:
  explicit ProvidedWellsWizardPage(const PageSurroundings& surroundings, QWidget* parent = nullptr);

  void initializePage() override;
  void cleanupPage() override;
  bool validatePage() override;

protected:
  void changeEvent(QEvent* event) override;

private slots:
  /// The sender is one of the two ways to get wells: the other one becomes its opposite.
  void toggleWellSpecification();

private:
  void addFields();
  void addTests();
  PageField diameterField();
  double millimetresPerUnit() const;
  void limitDiameter();
  QString proposal() const;
  void adoptProposal();
  void forceOnDesign();

  Data::Manager& store_;
  PageFields fields_;
};

} // namespace TVR::GUI
