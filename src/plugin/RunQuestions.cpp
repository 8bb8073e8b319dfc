#include "plugin/RunQuestions.h"

#include "host/ApplicationInterface.h"
#include "messages/PluginText.h"
#include "messages/UserMessages.h"
#include "plugin/AppInterface.h"
#include "simulation/Simulation.h"
#include "simulation/SimulationRun.h"
#include "simulation/SimulationThread.h"

#include <QPointer>

namespace TVR {

bool isUnderWay(const SimulationRun& run) {
  return run.isRunning() || (run.request().isInteractive && run.simulation());
}

bool refusesDuringRun(const SimulationRun& run) {
  if (!isUnderWay(run))
    return false;
  const QString title =
      AppInterface::instance() ? AppInterface::instance()->applicationName() : programTitle;
  tellUser(Severity::Information, title,
           PluginText::tr("Operation abort because simulation is running."));
  return true;
}

void cancelRun(SimulationRun& run) {
  if (!run.isRunning() || !run.simulation())
    return;
  // A run of lower priority keeps the dialog responsive. It may end while the dialog is open.
  const QPointer<Simulation> simulation = run.simulation();
  const QPointer<SimulationThread> thread = qobject_cast<SimulationThread*>(simulation->parent());
  QThread::Priority priority = thread ? thread->priority() : QThread::InheritPriority;
  if (priority == QThread::InheritPriority)
    priority = QThread::NormalPriority; // an inherited one can't be given back
  if (thread)
    thread->setPriority(QThread::IdlePriority);
  const bool cancels =
      userAgrees(programTitle, PluginText::tr("Simulation will be stopped at next step!"));
  if (!simulation || simulation != run.simulation())
    return;
  if (cancels)
    run.stop();
  if (thread && thread->isRunning())
    thread->setPriority(priority);
}

} // namespace TVR
