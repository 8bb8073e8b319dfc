#include "plugin/InteractiveRun.h"

#include "design/ParameterId.h"
#include "host/ApplicationInterface.h"
#include "messages/UserMessages.h"
#include "plugin/AppInterface.h"
#include "plugin/ProgressPanel.h"
#include "plugin/ResultGraphic.h"
#include "plugin/RunQuestions.h"
#include "plugin/WizardCommands.h"
#include "simulation/SetupFault.h"
#include "simulation/SimulationRun.h"
#include "simulation/SiteCheck.h"
#include "simulation/SiteWriteBack.h"
#include "store/Manager.h"
#include "store/UserStep.h"

namespace TVR {

namespace {

/// Why a project can't be run, for the user.
struct Refusal {
  QString reason;
};

} // namespace

void InteractiveRun::start(const RunRequest& request) {
  if (isUnderWay(run_))
    return;
  const Data::ProgramWork work(store_);
  QByteArray replaced;
  QMap<QString, int> replacedIds;
  if (QWizard* const wizard = wizards_.wizard()) {
    wizard->hide();
    progress_.setVisible(false);
  } else {
    replaced = graphic_.contents();
    replacedIds = graphic_.items().fieldIds();
    graphic_.startup(graphic_.access().window);
  }
  try {
    runOnOpenPage(request);
  } catch (const Refusal& refusal) {
    progress_.setVisible(false);
    if (!replaced.isEmpty())
      graphic_.show(replaced, replacedIds);
    tellUser(Severity::Critical, programTitle, refusal.reason);
  }
}

void InteractiveRun::runOnOpenPage(const RunRequest& request) {
  makeTables(store_);
  // The map has just settled where wells stand that nobody gave a place.
  if (const QString reason = wellsAtOnePlace(store_); !reason.isEmpty())
    throw Refusal{reason};
  if (AppInterface::instance() && AppInterface::instance()->mainWindow())
    graphic_.findWells();
  try {
    if (run_.run(request))
      store_.setValue(Parameter::SimulationUpToDate, 1);
  } catch (...) {
    throw Refusal{setupFault()};
  }
}

} // namespace TVR
