#include "gui/positions/PositionPages.h"

#include "gui/positions/WellPositionAndUsageWizardPage.h"

namespace TVR::GUI {

QList<QWizardPage*> positionPages(const PageSurroundings& surroundings, QWidget* wizard) {
  return {new WellPositionAndUsageWizardPage(surroundings, wizard)};
}

} // namespace TVR::GUI
