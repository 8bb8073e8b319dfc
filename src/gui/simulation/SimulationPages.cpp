#include "gui/simulation/SimulationPages.h"

#include "gui/simulation/ExtendedSimulationParameterWizardPage.h"
#include "gui/simulation/SimulationParameterWizardPage.h"

namespace TVR::GUI {

QList<QWizardPage*> simulationPages(const PageSurroundings& surroundings, QWidget* wizard) {
  return {new SimulationParameterWizardPage(surroundings, wizard)};
}

QList<QWizardPage*> extendedSimulationPages(const PageSurroundings& surroundings, QWidget* wizard) {
  return {new ExtendedSimulationParameterWizardPage(surroundings, wizard)};
}

} // namespace TVR::GUI
