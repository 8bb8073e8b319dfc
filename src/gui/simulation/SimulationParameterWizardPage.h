#pragma once

#include "gui/wizard/PageFields.h"
#include "gui/wizard/PageSurroundings.h"
#include "ui_SimulationParameterWizardPage.h"

#include <QWizardPage>

namespace TVR::GUI {

class CompassWidget;

/// What a user of the model decides: direction of the flow, time, isotherm, elements, exchange with
/// the rock. The page never refuses.
class SimulationParameterWizardPage : public QWizardPage,
                                      private Ui::SimulationParameterWizardPage {
  Q_OBJECT

public:
  explicit SimulationParameterWizardPage(const PageSurroundings& surroundings,
                                         QWidget* parent = nullptr);

  void initializePage() override;
  void cleanupPage() override;
  bool validatePage() override;

protected:
  void changeEvent(QEvent* event) override;

private:
  void addCompass();
  void addFields();
  bool isChanged(int id) const;

  const Data::Manager& store_;
  PageFields fields_;
  CompassWidget* const compass_;
};

} // namespace TVR::GUI
