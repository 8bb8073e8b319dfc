#include "gui/general/GeneralPages.h"

#include "gui/general/ProjectWizardPage.h"
#include "gui/general/UserWizardPage.h"

namespace TVR::GUI {

QList<QWizardPage*> generalPages(const PageSurroundings& surroundings, QWidget* wizard) {
  return {new UserWizardPage(surroundings, wizard), new ProjectWizardPage(surroundings, wizard)};
}

} // namespace TVR::GUI
