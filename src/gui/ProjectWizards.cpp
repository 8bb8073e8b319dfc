#include "gui/ProjectWizards.h"

#include "gui/energy/EnergyPages.h"
#include "gui/general/GeneralPages.h"
#include "gui/mapping/MappingPages.h"
#include "gui/positions/PositionPages.h"
#include "gui/simulation/SimulationPages.h"
#include "gui/wells/AquiferPages.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QWizard>
#include <QWizardPage>

namespace TVR::GUI {

namespace {

constexpr int width = 400;
constexpr int height = 620;

struct WizardRow {
  Wizard wizard;
  const char* context; ///< of the translation of the title
  const char* title;
  Qt::WindowFlags flags;
  bool isModal;
  bool refusesDuringRun;
  std::initializer_list<PageGroup> pages; ///< in their order
};

using Group = PageGroup;

constexpr WizardRow rows[] = {
    {Wizard::NewProject,
     "TVRPlugin",
     QT_TRANSLATE_NOOP("TVRPlugin", "New project wizard"),
     {},
     false,
     true,
     {Group::General, Group::Energy, Group::Aquifer, Group::WellDesign, Group::Mapping,
      Group::WellPositions, Group::SimulationParameters, Group::ExtendedParameters}},
    {Wizard::General,
     "GeneralWizard",
     QT_TRANSLATE_NOOP("GeneralWizard", "General wizard"),
     {},
     true,
     false,
     {Group::General}},
    {Wizard::Energy,
     "EnergieVerbrauchWizard",
     QT_TRANSLATE_NOOP("EnergieVerbrauchWizard", "Energy demand wizard"),
     {},
     true,
     true,
     {Group::Energy}},
    {Wizard::Wells,
     "TVRPlugin",
     QT_TRANSLATE_NOOP("TVRPlugin", "Aquifer & well wizard"),
     {},
     true,
     true,
     {Group::Aquifer, Group::WellDesign}},
    {Wizard::Mapping,
     "TVRPlugin",
     QT_TRANSLATE_NOOP("TVRPlugin", "Graphical mapping wizard"),
     Qt::WindowStaysOnTopHint,
     true,
     true,
     {Group::Mapping}},
    {Wizard::Simulation,
     "TVRPlugin",
     QT_TRANSLATE_NOOP("TVRPlugin", "Simulation wizard"),
     Qt::WindowStaysOnTopHint,
     false,
     true,
     {Group::Aquifer, Group::WellPositions, Group::SimulationParameters,
      Group::ExtendedParameters}},
    {Wizard::ExtendedSimulation,
     "TVRPlugin",
     QT_TRANSLATE_NOOP("TVRPlugin", "Extenetd Simulation wizard"), // Required oddity: the spelling
     Qt::WindowStaysOnTopHint,
     true,
     true,
     {Group::ExtendedParameters}},
};

const WizardRow& rowOf(Wizard wizard) {
  return rows[static_cast<std::size_t>(wizard)];
}

/// In the middle of the primary screen.
QRect place() {
  const QSize screen = QGuiApplication::primaryScreen()->size();
  return {screen.width() / 2 - width / 2, screen.height() / 2 - height / 2, width, height};
}

} // namespace

PageFactories projectPages(Data::Manager& store,
                           const std::function<BrenvikApp::ApplicationInterface*()>& host) {
  using Pages = QList<QWizardPage*>(const PageSurroundings&, QWidget*);
  const auto made = [&store, &host](Pages* pages) {
    return [&store, host, pages] { return pages({store, host()}, nullptr); };
  };
  return {{Group::General, made(generalPages)},
          {Group::Energy, made(energyPages)},
          {Group::Aquifer, made(aquiferPages)},
          {Group::WellDesign, made(wellDesignPages)},
          {Group::Mapping, made(mappingPages)},
          {Group::WellPositions, made(positionPages)},
          {Group::SimulationParameters, made(simulationPages)},
          {Group::ExtendedParameters, made(extendedSimulationPages)}};
}

bool refusesDuringRun(Wizard wizard) {
  return rowOf(wizard).refusesDuringRun;
}

std::unique_ptr<InputWizard> makeWizard(Wizard wizard, const PageFactories& factories,
                                        const PageGroups& leftOut) {
  const WizardRow& row = rowOf(wizard);
  auto made = std::make_unique<InputWizard>(nullptr, row.flags);
  made->setWindowTitle(QCoreApplication::translate(row.context, row.title));
  made->setModal(row.isModal);
  for (const PageGroup group : row.pages)
    if (const auto factory = factories.find(group);
        factory != factories.end() && !leftOut.count(group))
      for (QWizardPage* const page : factory->second())
        made->addPage(page);
  if (made->pageIds().isEmpty())
    return nullptr;
  made->setGeometry(place());
  return made;
}

} // namespace TVR::GUI
