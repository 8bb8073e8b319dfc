#include "gui/ProjectWizards.h"

#include "store/Manager.h"
#include "support/ContextTranslator.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWizard>
#include <QWizardPage>

#include <gtest/gtest.h>

using namespace TVR::GUI;

namespace {

/// Stand-ins: each group has one page that is called by its number.
PageFactories pagesOfAllGroups() {
  PageFactories factories;
  for (int i = 0; i <= static_cast<int>(PageGroup::ExtendedParameters); ++i)
    factories[static_cast<PageGroup>(i)] = [i] {
      auto* const page = new QWizardPage;
      page->setTitle(QString::number(i));
      return QList<QWizardPage*>{page};
    };
  return factories;
}

std::vector<PageGroup> groupsOf(const QWizard& wizard) {
  std::vector<PageGroup> groups;
  for (const int id : wizard.pageIds())
    groups.push_back(static_cast<PageGroup>(wizard.page(id)->title().toInt()));
  return groups;
}

struct Expected {
  Wizard wizard;
  const char* title;
  const char* context;
  bool staysOnTop;
  bool isModal;
  bool isRefused;
  std::vector<PageGroup> pages;
};

const Expected wizards[] = {
    {Wizard::NewProject,
     "New project wizard",
     "TVRPlugin",
     false,
     false,
     true,
     {PageGroup::General, PageGroup::Energy, PageGroup::Aquifer, PageGroup::WellDesign,
      PageGroup::Mapping, PageGroup::WellPositions, PageGroup::SimulationParameters,
      PageGroup::ExtendedParameters}},
    {Wizard::General, "General wizard", "GeneralWizard", false, true, false, {PageGroup::General}},
    {Wizard::Energy,
     "Energy demand wizard",
     "EnergieVerbrauchWizard",
     false,
     true,
     true,
     {PageGroup::Energy}},
    {Wizard::Wells,
     "Aquifer & well wizard",
     "TVRPlugin",
     false,
     true,
     true,
     {PageGroup::Aquifer, PageGroup::WellDesign}},
    {Wizard::Mapping,
     "Graphical mapping wizard",
     "TVRPlugin",
     true,
     true,
     true,
     {PageGroup::Mapping}},
    {Wizard::Simulation,
     "Simulation wizard",
     "TVRPlugin",
     true,
     false,
     true,
     {PageGroup::Aquifer, PageGroup::WellPositions, PageGroup::SimulationParameters,
      PageGroup::ExtendedParameters}},
    {Wizard::ExtendedSimulation,
     "Extenetd Simulation wizard",
     "TVRPlugin",
     true,
     true,
     true,
     {PageGroup::ExtendedParameters}},
};

} // namespace

TEST(ProjectWizards, standAsTheirTableSays) {
  for (const Expected& expected : wizards) {
    const auto wizard = makeWizard(expected.wizard, pagesOfAllGroups());
    ASSERT_TRUE(wizard) << expected.title;
    EXPECT_EQ(wizard->windowTitle(), expected.title);
    EXPECT_EQ(wizard->windowFlags().testFlag(Qt::WindowStaysOnTopHint), expected.staysOnTop)
        << expected.title;
    EXPECT_EQ(wizard->isModal(), expected.isModal) << expected.title;
    EXPECT_EQ(refusesDuringRun(expected.wizard), expected.isRefused) << expected.title;
    EXPECT_EQ(groupsOf(*wizard), expected.pages) << expected.title;
    EXPECT_EQ(wizard->parent(), nullptr) << expected.title;
  }
}

TEST(ProjectWizards, titlesHaveTheContextsOfTheirTable) {
  const TVR::ContextTranslator translator;
  for (const Expected& expected : wizards)
    EXPECT_EQ(makeWizard(expected.wizard, pagesOfAllGroups())->windowTitle(),
              QString("%1/%2").arg(expected.context, expected.title));
}

TEST(ProjectWizards, leadThroughThePagesOfTheProgram) {
  const auto pagesOf = [](Wizard wizard) {
    const auto made =
        makeWizard(wizard, projectPages(*TVR::Data::Manager::instance(), [] { return nullptr; }));
    QStringList names;
    for (const int id : made->pageIds())
      names << QString(made->page(id)->metaObject()->className()).section("::", -1);
    return names;
  };
  const QStringList general{"UserWizardPage", "ProjectWizardPage"};
  const QStringList energy{
      "EnergyDemandFeatureWizardPage",       "CoolingAndHeatingInstallationWizardPage",
      "EnergyConsumptionWizardPage",         "EnergyDemandDefinitionWizardPage",
      "EnergyDemandDeterminationWizardPage", "EnergyDemandApproximationWizardPage",
      "HeatPumpSpecificationWizardPage",     "EnergyDemandResultWizardPage"};
  const QStringList aquifer{"AquiferWizardPage"};
  const QStringList design{"ProvidedWellsWizardPage", "AquiferAndWellSummaryWizardPage"};
  const QStringList mapping{"MappingWizardPage"};
  const QStringList positions{"WellPositionAndUsageWizardPage"};
  const QStringList simulation{"SimulationParameterWizardPage"};
  const QStringList extended{"ExtendedSimulationParameterWizardPage"};
  EXPECT_EQ(pagesOf(Wizard::General), general);
  EXPECT_EQ(pagesOf(Wizard::Energy), energy);
  EXPECT_EQ(pagesOf(Wizard::Wells), aquifer + design);
  EXPECT_EQ(pagesOf(Wizard::Mapping), mapping);
  EXPECT_EQ(pagesOf(Wizard::Simulation), aquifer + positions + simulation + extended);
  EXPECT_EQ(pagesOf(Wizard::ExtendedSimulation), extended);
  EXPECT_EQ(pagesOf(Wizard::NewProject),
            general + energy + aquifer + design + mapping + positions + simulation + extended);
}

TEST(ProjectWizards, standInTheMiddleOfTheScreen) {
  const QSize screen = QGuiApplication::primaryScreen()->size();
  for (const Expected& expected : wizards)
    EXPECT_EQ(makeWizard(expected.wizard, pagesOfAllGroups())->geometry(),
              QRect(screen.width() / 2 - 200, screen.height() / 2 - 310, 400, 620));
}

TEST(ProjectWizards, groupsThatAreLeftOutAreNotMade) {
  PageFactories factories = pagesOfAllGroups();
  int made = 0;
  factories[PageGroup::Aquifer] = [&made] {
    ++made;
    return QList<QWizardPage*>{new QWizardPage};
  };
  const auto wizard = makeWizard(Wizard::Simulation, factories, {PageGroup::Aquifer});
  EXPECT_EQ(groupsOf(*wizard),
            (std::vector<PageGroup>{PageGroup::WellPositions, PageGroup::SimulationParameters,
                                    PageGroup::ExtendedParameters}));
  EXPECT_EQ(made, 0);
}

TEST(ProjectWizards, aGroupBringsItsPagesInTheirOrder) {
  const auto wizard =
      makeWizard(Wizard::Mapping, {{PageGroup::Mapping, [] {
                                      QList<QWizardPage*> pages;
                                      for (const char* title : {"1", "2", "3"})
                                        (pages << new QWizardPage).last()->setTitle(title);
                                      return pages;
                                    }}});
  QStringList titles;
  for (const int id : wizard->pageIds())
    titles << wizard->page(id)->title();
  EXPECT_EQ(titles, (QStringList{"1", "2", "3"}));
}

TEST(ProjectWizards, thereIsNoWizardWithoutPages) {
  PageFactories factories = pagesOfAllGroups();
  EXPECT_FALSE(makeWizard(Wizard::Energy, {}));
  EXPECT_FALSE(makeWizard(Wizard::General, factories, {PageGroup::General}));
  factories[PageGroup::Mapping] = [] { return QList<QWizardPage*>(); };
  EXPECT_FALSE(makeWizard(Wizard::Mapping, factories));
}
