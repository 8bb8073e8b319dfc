#pragma once

#include "gui/wizard/InputWizard.h"

#include <QList>

#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <set>

namespace BrenvikApp {
class ApplicationInterface;
}
namespace TVR::Data {
class Manager;
}

class QString;
class QWizardPage;

namespace TVR::GUI {

/// The wizards that lead through a project.
enum class Wizard { NewProject, General, Energy, Wells, Mapping, Simulation, ExtendedSimulation };

/// The pages that belong together in each wizard that has them.
enum class PageGroup {
  General,
  Energy,
  Aquifer,
  WellDesign,
  Mapping,
  WellPositions,
  SimulationParameters,
  ExtendedParameters
};
using PageGroups = std::set<PageGroup>;

/// Makes the pages of a group in the order in which a wizard takes them; they have no parent.
using PageFactory = std::function<QList<QWizardPage*>()>;
using PageFactories = std::map<PageGroup, PageFactory>;

/// The pages of the program: they work on `store`, and on the host that `host` names when they are
/// made, which may be null.
PageFactories projectPages(Data::Manager& store,
                           const std::function<BrenvikApp::ApplicationInterface*()>& host);

/// Whether the wizard is refused while a simulation runs.
bool refusesDuringRun(Wizard wizard);

/// A wizard with its title, window flags, modality and pages, at its place on the screen; without
/// the pages of the groups that are left out. Null if there is none of its pages.
std::unique_ptr<InputWizard> makeWizard(Wizard wizard, const PageFactories& factories,
                                        const PageGroups& leftOut = {});

} // namespace TVR::GUI
