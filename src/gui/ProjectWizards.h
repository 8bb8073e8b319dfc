#pragma once

#include <QList>

#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <set>

class QString;
class QWizard;
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

/// The pages of this version of the program. A group that is not built yet is not there.
PageFactories projectPages();

/// Whether the wizard is refused while a simulation runs.
bool refusesDuringRun(Wizard wizard);

/// A wizard with its title, window flags, modality and pages, at its place on the screen; without
/// the pages of the groups that are left out. Null if none of its pages is built yet.
std::unique_ptr<QWizard> makeWizard(Wizard wizard, const PageFactories& factories,
                                    const PageGroups& leftOut = {});

} // namespace TVR::GUI
