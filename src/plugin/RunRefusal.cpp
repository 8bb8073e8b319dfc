#include "plugin/RunRefusal.h"

#include "host/ApplicationInterface.h"
#include "messages/PluginText.h"
#include "messages/UserMessages.h"
#include "plugin/AppInterface.h"
#include "simulation/SimulationRun.h"

namespace TVR {

bool refusesDuringRun(const SimulationRun& run) {
  if (!run.isRunning())
    return false;
  const QString title =
      AppInterface::instance() ? AppInterface::instance()->applicationName() : programTitle;
  tellUser(Severity::Information, title,
           PluginText::tr("Operation abort because simulation is running."));
  return true;
}

} // namespace TVR
