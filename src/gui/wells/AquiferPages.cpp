#include "gui/wells/AquiferPages.h"

#include "gui/wells/AquiferAndWellSummaryWizardPage.h"
#include "gui/wells/AquiferWizardPage.h"
#include "gui/wells/ProvidedWellsWizardPage.h"

namespace TVR::GUI {

QList<QWizardPage*> aquiferPages(const PageSurroundings& surroundings, QWidget* wizard) {
  return {new AquiferWizardPage(surroundings, wizard)};
}

QList<QWizardPage*> wellDesignPages(const PageSurroundings& surroundings, QWidget* wizard) {
  return {new ProvidedWellsWizardPage(surroundings, wizard),
          new AquiferAndWellSummaryWizardPage(surroundings, wizard)};
}

} // namespace TVR::GUI
