#pragma once

#include "gui/wizard/PageFields.h"
#include "gui/wizard/PageSurroundings.h"
#include "ui_ExtendedSimulationParameterWizardPage.h"

#include <QWizardPage>

namespace TVR::GUI {

/// Dispersion, tolerances, element sizes and additional output. The page never refuses; leaving it
/// marks the project as complete and its results as outdated, on which a run may follow at once.
class ExtendedSimulationParameterWizardPage : public QWizardPage,
                                              private Ui::ExtendedSimulationParameterWizardPage {
  Q_OBJECT

public:
  explicit ExtendedSimulationParameterWizardPage(const PageSurroundings& surroundings,
                                                 QWidget* parent = nullptr);

  void initializePage() override;
  void cleanupPage() override;
  bool validatePage() override;

protected:
  void changeEvent(QEvent* event) override;

private slots:
  void setWellOutputFile();
  void setTecplotOutputFile();

private:
  void addFields();
  bool isChanged() const;

  Data::Manager& store_;
  PageFields fields_;
};

} // namespace TVR::GUI
