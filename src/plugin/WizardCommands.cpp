#include "plugin/WizardCommands.h"

#include "design/ParameterId.h"
#include "messages/PluginText.h"
#include "messages/UserMessages.h"
#include "plugin/AppInterface.h"
#include "plugin/ProgressPanel.h"
#include "plugin/ResultGraphic.h"
#include "plugin/RunQuestions.h"
#include "store/Manager.h"
#include "store/UserStep.h"

#include <QWizardPage>

namespace TVR {

using GUI::PageGroup;
using GUI::Wizard;

namespace {

/// The signal of the page that places wells; its slot `update` shows where they have been moved.
constexpr char updatesGraphics[] = "updateGraphics()";

} // namespace

WizardCommands::WizardCommands(Data::Manager& store, const SimulationRun& run,
                               ResultGraphic& graphic, const ProgressPanel& progress)
    : store_(store), run_(run), graphic_(graphic), progress_(progress),
      pages_(GUI::projectPages(store, AppInterface::instance)) {}

bool WizardCommands::isRefused(Wizard wizard) const {
  return GUI::refusesDuringRun(wizard) && refusesDuringRun(run_);
}

std::unique_ptr<QWizard> WizardCommands::make(Wizard wizard, const GUI::PageGroups& leftOut) {
  std::unique_ptr<GUI::InputWizard> made = GUI::makeWizard(wizard, pages_, leftOut);
  if (!made) {
    tellUser(Severity::Information, programTitle, PluginText::tr("This wizard has no pages."));
    return made;
  }
  made->keepStepsIn(store_);
  for (const int id : made->pageIds())
    if (const QWizardPage* const page = made->page(id);
        page->metaObject()->indexOfSignal(updatesGraphics) >= 0)
      connect(page, SIGNAL(updateGraphics()), &graphic_, SLOT(update()));
  return made;
}

WizardCommands::Outcome WizardCommands::run(Wizard wizard) {
  if (isRefused(wizard))
    return Outcome::NotOpened;
  closeWizard();
  const std::unique_ptr<QWizard> made = make(wizard);
  if (!made)
    return Outcome::NotOpened;
  if (wizard == Wizard::ExtendedSimulation)
    connect(made.get(), &QDialog::accepted, this, &WizardCommands::accepted);
  const bool isAccepted = made->exec() == QDialog::Accepted;
  return isAccepted ? Outcome::Accepted : Outcome::Rejected;
}

void WizardCommands::runAndTell(Wizard wizard) {
  if (run(wizard) != Outcome::NotOpened)
    emit finished();
}

void WizardCommands::keep(std::unique_ptr<QWizard> wizard) {
  wizard_ = wizard.release();
  wizard_->setAttribute(Qt::WA_DeleteOnClose);
  connect(wizard_, &QObject::destroyed, this, &WizardCommands::closed);
  connect(wizard_, &QDialog::accepted, this, &WizardCommands::accepted);
}

void WizardCommands::present() {
  wizard_->show();
  wizard_->activateWindow();
  wizard_->raise();
}

void WizardCommands::openNewProject(bool isSimulationOnly) {
  GUI::PageGroups leftOut;
  if (isSimulationOnly)
    leftOut = {PageGroup::General, PageGroup::Energy, PageGroup::WellDesign};
  if (std::unique_ptr<QWizard> made = make(Wizard::NewProject, leftOut)) {
    keep(std::move(made));
    present();
  }
}

void WizardCommands::showMapping() {
  const Outcome outcome = run(Wizard::Mapping);
  if (outcome == Outcome::NotOpened)
    return;
  if (outcome == Outcome::Accepted)
    graphic_.mapView().showMap();
  graphic_.updateMapView();
  emit finished();
}

void WizardCommands::showSimulation() {
  if (isRefused(Wizard::Simulation))
    return;
  graphic_.ensureOpen();
  if (!wizard_) {
    GUI::PageGroups leftOut;
    if (store_.flag(Parameter::WellWizardDone))
      leftOut = {PageGroup::Aquifer};
    if (std::unique_ptr<QWizard> made = make(Wizard::Simulation, leftOut))
      keep(std::move(made));
  }
  if (wizard_)
    present();
  graphic_.selectWells();
}

void WizardCommands::showExtendedSimulation() {
  if (isRefused(Wizard::ExtendedSimulation))
    return;
  graphic_.ensureOpen();
  runAndTell(Wizard::ExtendedSimulation);
}

void WizardCommands::show(Wizard wizard) {
  switch (wizard) {
  case Wizard::NewProject:
    return openNewProject(false);
  case Wizard::General:
    return showGeneral();
  case Wizard::Energy:
    return showEnergy();
  case Wizard::Wells:
    return showWells();
  case Wizard::Mapping:
    return showMapping();
  case Wizard::Simulation:
    return showSimulation();
  case Wizard::ExtendedSimulation:
    return showExtendedSimulation();
  }
}

void WizardCommands::showMovedWells() {
  if (!wizard_)
    return;
  for (const int id : wizard_->pageIds())
    if (QWizardPage* const page = wizard_->page(id);
        page->isVisible() && page->metaObject()->indexOfSignal(updatesGraphics) >= 0)
      QMetaObject::invokeMethod(page, "update");
}

void WizardCommands::showProject() {
  if (!wizard_)
    return;
  for (const int id : wizard_->visitedIds())
    wizard_->page(id)->initializePage();
}

void WizardCommands::closeWizard() {
  QWizard* const wizard = wizard_;
  if (!wizard)
    return;
  discardWizard();
  wizard->close();
}

void WizardCommands::discardWizard() {
  if (!wizard_)
    return;
  wizard_->disconnect(this);
  wizard_->deleteLater();
  wizard_.clear();
}

void WizardCommands::accepted() {
  discardWizard();
  {
    const Data::ProgramWork work(store_);
    store_.setValue(Parameter::SimulationWizardDone, 1);
  }
  progress_.setVisible(false);
  emit finished();
}

void WizardCommands::closed() {
  discardWizard();
  progress_.setVisible(false);
}

} // namespace TVR
