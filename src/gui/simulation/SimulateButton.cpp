#include "gui/simulation/SimulateButton.h"

#include <QCoreApplication>
#include <QWizard>

namespace TVR::GUI {

void finishWithSimulation(QWizard* wizard) {
  if (wizard)
    wizard->setButtonText(QWizard::FinishButton,
                          QCoreApplication::translate("SimulationParameterWizardPage", "Simulate"));
}

} // namespace TVR::GUI
