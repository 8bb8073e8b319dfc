#pragma once

#include "gui/ProjectWizards.h"

#include <QObject>
#include <QPointer>
#include <QWizard>

namespace TVR {

namespace Data {
class Manager;
}

class ResultGraphic;
class SimulationRun;
struct ProgressPanel;

/// The commands that open the wizards of a project. Those for a new project and for a simulation
/// stay open beside the main window, one of them at most; all others wait until they are done. A
/// wizard without any page is not opened, and the user is told. Lives on the main thread.
class WizardCommands : public QObject {
  Q_OBJECT

public:
  /// Everything that is given outlives this object.
  WizardCommands(Data::Manager& store, const SimulationRun& run, ResultGraphic& graphic,
                 const ProgressPanel& progress);

  /// Takes the pages from now on from these factories.
  void setPages(const GUI::PageFactories& pages) { pages_ = pages; }
  /// The wizard that stays open; null if there is none.
  QWizard* wizard() const { return wizard_; }

  /// Opens the wizard of a new project, or of one that is only simulated.
  void openNewProject(bool isSimulationOnly);
  void showGeneral() { runAndTell(GUI::Wizard::General); }
  void showEnergy() { runAndTell(GUI::Wizard::Energy); }
  void showWells() { runAndTell(GUI::Wizard::Wells); }
  void showMapping();
  void showSimulation();
  void showExtendedSimulation();
  /// Opens a wizard by the command that has its name.
  void show(TVR::GUI::Wizard wizard);

  /// Wells were moved on the map: the page that places them follows, if it is seen.
  void showMovedWells();
  /// The pages of the open wizard that were visited show what the project holds now, also in place
  /// of what was typed and not taken yet.
  void showProject();
  /// Closes the wizard that stays open.
  void closeWizard();
  /// Gives up the wizard that stays open, without a word to those that wait for its end.
  void discardWizard();
  /// The user has finished a wizard that leads to a simulation.
  void accepted();
  /// The wizard that stays open has gone.
  void closed();

signals:
  /// A wizard has come to its end; the project may be another one.
  void finished();

private:
  enum class Outcome { NotOpened, Rejected, Accepted };

  bool isRefused(GUI::Wizard wizard) const;
  std::unique_ptr<QWizard> make(GUI::Wizard wizard, const GUI::PageGroups& leftOut = {});
  Outcome run(GUI::Wizard wizard);
  void runAndTell(GUI::Wizard wizard);
  void keep(std::unique_ptr<QWizard> wizard);
  void present();

  Data::Manager& store_;
  const SimulationRun& run_;
  ResultGraphic& graphic_;
  const ProgressPanel& progress_;
  GUI::PageFactories pages_;
  QPointer<QWizard> wizard_;
};

} // namespace TVR
