#include "gui/energy/EnergyPages.h"

#include "gui/energy/CoolingAndHeatingInstallationWizardPage.h"
#include "gui/energy/EnergyConsumptionWizardPage.h"
#include "gui/energy/EnergyDemandApproximationWizardPage.h"
#include "gui/energy/EnergyDemandDefinitionWizardPage.h"
#include "gui/energy/EnergyDemandDeterminationWizardPage.h"
#include "gui/energy/EnergyDemandFeatureWizardPage.h"
#include "gui/energy/EnergyDemandResultWizardPage.h"
#include "gui/energy/HeatPumpSpecificationWizardPage.h"

namespace TVR::GUI {

QList<QWizardPage*> energyPages(const PageSurroundings& surroundings, QWidget* wizard) {
  // From the end backwards: a page is told which ones follow.
  auto* const result = new EnergyDemandResultWizardPage(surroundings, wizard);
  auto* const heatPump = new HeatPumpSpecificationWizardPage(surroundings, result, wizard);
  auto* const approximation =
      new EnergyDemandApproximationWizardPage(surroundings, heatPump, wizard);
  auto* const determination =
      new EnergyDemandDeterminationWizardPage(surroundings, heatPump, wizard);
  auto* const definition =
      new EnergyDemandDefinitionWizardPage(surroundings, determination, approximation, wizard);
  auto* const consumption = new EnergyConsumptionWizardPage(surroundings, heatPump, wizard);
  auto* const cooling = new CoolingAndHeatingInstallationWizardPage(surroundings, result, wizard);
  auto* const feature =
      new EnergyDemandFeatureWizardPage(surroundings, consumption, definition, cooling, wizard);
  return {feature,       cooling,       consumption, definition,
          determination, approximation, heatPump,    result};
}

} // namespace TVR::GUI
