#include "gui/mapping/MappingPages.h"

#include "gui/mapping/MappingWizardPage.h"

namespace TVR::GUI {

QList<QWizardPage*> mappingPages(const PageSurroundings& surroundings, QWidget* wizard) {
  return {new MappingWizardPage(surroundings, wizard)};
}

} // namespace TVR::GUI
