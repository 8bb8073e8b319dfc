#include "plugin/WizardCommands.h"

#include "plugin/PagePluginTest.h"
#include "support/SettingsOfTheTest.h"
#include "support/TestMessenger.h"

#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>
#include <QTimer>
#include <QWizardPage>
#include <QtTest>

using namespace TVR;
using namespace TVR::Parameter;
using namespace Sketra_lib::Property;

namespace {

/// A page that asks for the graphic to be brought up to date, and counts how often it is told to
/// look where wells have been moved to.
class AskingPage final : public QWizardPage {
  Q_OBJECT

public:
  int updates = 0;

public slots:
  void update() { ++updates; }

signals:
  void updateGraphics();
};

/// Stand-in pages for each group, and a user who answers wizards.
class WizardCommandsTest : public PagePluginTest {
protected:
  WizardCommandsTest() {
    setMessenger(&user);
    plugin.wizards().setPages(pages());
    store.setValue(ProjectName, "Before");
  }
  ~WizardCommandsTest() override { setMessenger(nullptr); }

  static GUI::PageFactories pages() {
    GUI::PageFactories factories;
    for (int i = 0; i <= static_cast<int>(GUI::PageGroup::ExtendedParameters); ++i)
      factories[static_cast<GUI::PageGroup>(i)] = [i] {
        auto* const made = new AskingPage;
        made->setTitle(QString::number(i));
        return QList<QWizardPage*>{made};
      };
    return factories;
  }
  static bool has(const QWizard& wizard, GUI::PageGroup group) {
    for (const int id : wizard.pageIds())
      if (wizard.page(id)->title().toInt() == static_cast<int>(group))
        return true;
    return false;
  }
  QWizard* wizard() { return plugin.wizards().wizard(); }
  /// How often the pages of the open wizard were told to look at the wells, in their order.
  QVector<int> updatesOfPages() {
    QVector<int> updates;
    for (const int id : wizard()->pageIds())
      updates << qobject_cast<AskingPage*>(wizard()->page(id))->updates;
    return updates;
  }
  /// The page tells of a change.
  void notify(int itemId, int property) {
    page.changedItem = itemId;
    page.changedProperty = property;
    plugin.update(nullptr);
  }

  /// Runs a slot whose wizard waits; answers it.
  void answer(const char* slot, QDialog::DialogCode code) {
    seenTitle.clear();
    QTimer::singleShot(0, [&] {
      auto* const modal = qobject_cast<QWizard*>(QApplication::activeModalWidget());
      if (!modal)
        return;
      seenTitle = modal->windowTitle();
      forget();
      code == QDialog::Accepted ? modal->accept() : modal->reject();
    });
    ASSERT_TRUE(invoke(slot)) << slot;
    QCoreApplication::processEvents();
  }

  const SettingsOfTheTest settings;
  TestMessenger user;
  QString seenTitle;
};

const std::pair<const char*, const char*> waitingWizards[] = {
    {"showGeneralWizard", "General wizard"},
    {"showEnergieWizard", "Energy demand wizard"},
    {"showWellWizard", "Aquifer & well wizard"},
    {"showGraphicWizard", "Graphical mapping wizard"},
    {"showExtendedSimulationWizard", "Extenetd Simulation wizard"}};

constexpr char refusal[] = "Host: Operation abort because simulation is running.";

} // namespace

// Wizards that wait

TEST_F(WizardCommandsTest, theWizardsOfPartsWaitForTheUser) {
  for (const auto& [slot, title] : waitingWizards) {
    answer(slot, QDialog::Rejected);
    EXPECT_EQ(seenTitle, title);
    EXPECT_FALSE(wizard()) << "it is not kept";
  }
}

TEST_F(WizardCommandsTest, thePanelFollowsAfterAWizard) {
  int finished = 0;
  QObject::connect(&plugin.wizards(), &WizardCommands::finished, [&finished] { ++finished; });
  for (const auto& [slot, title] : waitingWizards) {
    finished = 0;
    answer(slot, QDialog::Rejected);
    EXPECT_EQ(finished, 1) << title;
  }
}

TEST_F(WizardCommandsTest, allButTheGeneralWizardAreRefusedDuringARun) {
  startLongRun(plugin);
  user.told.clear();
  for (const char* const slot :
       {"showEnergieWizard", "showWellWizard", "showGraphicWizard", "showSimulationWizard",
        "showExtendedSimulationWizard", "newOpen"}) {
    answer(slot, QDialog::Rejected);
    EXPECT_EQ(user.told, QStringList{refusal}) << slot;
    EXPECT_EQ(seenTitle, "") << slot;
    EXPECT_FALSE(wizard()) << slot;
    user.told.clear();
  }
  answer("showGeneralWizard", QDialog::Rejected);
  EXPECT_EQ(seenTitle, "General wizard");
  EXPECT_EQ(user.told, QStringList());
}

TEST_F(WizardCommandsTest, anOpenWizardIsClosedBeforeAnotherOneOpens) {
  for (const auto& [slot, title] : waitingWizards) {
    plugin.showSimulationWizard();
    const QPointer<QWizard> open = wizard();
    ASSERT_TRUE(open && open->isVisible());
    answer(slot, QDialog::Rejected);
    EXPECT_FALSE(open && open->isVisible()) << title;
    EXPECT_FALSE(wizard()) << title;
  }
}

TEST_F(WizardCommandsTest, aRefusedWizardLeavesTheOpenOne) {
  plugin.showSimulationWizard();
  startLongRun(plugin);
  const QPointer<QWizard> open = wizard();
  answer("showWellWizard", QDialog::Rejected);
  EXPECT_TRUE(open);
  EXPECT_EQ(wizard(), open);
}

TEST_F(WizardCommandsTest, theUserIsToldOfWizardsWithoutPages) {
  plugin.wizards().setPages({});
  for (const auto& [slot, title] : waitingWizards) {
    user.told.clear();
    answer(slot, QDialog::Rejected);
    EXPECT_EQ(user.told, QStringList{"Tevrane: This wizard has no pages."}) << title;
    EXPECT_EQ(seenTitle, "");
  }
}

// The mapping wizard

TEST_F(WizardCommandsTest, anAcceptedMappingWizardShowsTheMap) {
  store.setValue(BackgroundImage, true);
  store.setValue(BackgroundImageFile, ":/TVR/images/tvr.png");
  graphic().startup(nullptr);
  answer("showGraphicWizard", QDialog::Accepted);
  EXPECT_FALSE(page.calls.filter("addPicture").isEmpty() && items().mapImage < 1);
  EXPECT_FALSE(page.valuesOf(items().mapView, XMinimum).isEmpty());
}

TEST_F(WizardCommandsTest, aCancelledMappingWizardStillAppliesTheStoredView) {
  graphic().startup(nullptr);
  store.setValue(ViewUseExtension, false);
  store.setValue(ViewScale, 800);
  store.setValue(ViewX, 5000.0);
  store.setValue(BackgroundImage, true);
  store.setValue(BackgroundImageFile, ":/TVR/images/tvr.png");
  answer("showGraphicWizard", QDialog::Rejected);
  EXPECT_EQ(of("Map view", XMinimum).toDouble(), 5000);
  EXPECT_EQ(of("Map scale", Html), QVariant("<b>Map scale 1:800</b>"));
  EXPECT_TRUE(page.calls.filter("addPicture").isEmpty()) << "the map is not shown";
}

// The simulation wizard

TEST_F(WizardCommandsTest, theSimulationWizardStaysBesideTheMainWindow) {
  plugin.showSimulationWizard();
  ASSERT_TRUE(wizard());
  EXPECT_EQ(wizard()->windowTitle(), "Simulation wizard");
  EXPECT_TRUE(wizard()->isVisible());
  EXPECT_FALSE(wizard()->isModal());
  const QPointer<QWizard> first = wizard();
  first->hide();
  plugin.showSimulationWizard();
  EXPECT_EQ(wizard(), first) << "it is made once";
  EXPECT_TRUE(first->isVisible());
}

TEST_F(WizardCommandsTest, theAquiferIsAskedForOnlyIfItIsNotKnown) {
  for (const bool isKnown : {false, true}) {
    store.setValue(WellWizardDone, isKnown);
    plugin.showSimulationWizard();
    EXPECT_EQ(has(*wizard(), GUI::PageGroup::Aquifer), !isKnown);
    EXPECT_TRUE(has(*wizard(), GUI::PageGroup::WellPositions));
    plugin.wizards().closeWizard();
  }
}

TEST_F(WizardCommandsTest, theSimulationWizardOpensAGraphicThatTheUserCanPlaceWellsOn) {
  plugin.showSimulationWizard();
  EXPECT_EQ(graphic().current(), &page);
  ASSERT_GT(items().wells, 0);
  EXPECT_EQ(page.calls.last(), QStringLiteral("setCurrentItem %1").arg(items().wells));
  EXPECT_EQ(library.asked.size(), 1);
  plugin.showSimulationWizard();
  EXPECT_EQ(library.asked.size(), 1) << "it is still open";
  host.windows.clear();
  plugin.showSimulationWizard();
  EXPECT_EQ(library.asked.size(), 2) << "it was closed in between";
}

TEST_F(WizardCommandsTest, theExtendedWizardOpensTheGraphicToo) {
  answer("showExtendedSimulationWizard", QDialog::Rejected);
  EXPECT_EQ(graphic().current(), &page);
}

TEST_F(WizardCommandsTest, withoutWellsOnThePageNothingIsSelected) {
  plugin.showSimulationWizard();
  items().wells = 0;
  forget();
  plugin.showSimulationWizard();
  EXPECT_TRUE(page.calls.filter("setCurrentItem").isEmpty());
}

TEST_F(WizardCommandsTest, aPageBringsTheGraphicUpToDate) {
  plugin.showSimulationWizard();
  forget();
  for (const int id : wizard()->pageIds())
    emit qobject_cast<AskingPage*>(wizard()->page(id))->updateGraphics();
  EXPECT_FALSE(page.valuesOf(items().projectAddress, Html).isEmpty());
}

TEST_F(WizardCommandsTest, onlyThePageThatIsSeenFollowsAWellThatWasMoved) {
  store.setValue(WellWizardDone, true);
  plugin.showSimulationWizard();
  QApplication::setActiveWindow(wizard());
  notify(items().wells, PointMoved);
  EXPECT_EQ(updatesOfPages(), (QVector<int>{1, 0, 0}));
  wizard()->next();
  notify(items().wells, PointMoved);
  EXPECT_EQ(updatesOfPages(), (QVector<int>{1, 1, 0}));
  wizard()->hide();
  QApplication::setActiveWindow(&page);
  notify(items().wells, PointMoved);
  EXPECT_EQ(updatesOfPages(), (QVector<int>{1, 1, 0}));
}

TEST_F(WizardCommandsTest, otherChangesOfTheMapAreNoMovesOfWells) {
  store.setValue(WellWizardDone, true);
  plugin.showSimulationWizard();
  QApplication::setActiveWindow(wizard());
  notify(items().wells, Points);
  notify(items().mapView, PointMoved);
  graphic().setScaleFollowsView(false);
  notify(items().wells, PointMoved);
  EXPECT_EQ(updatesOfPages(), (QVector<int>{0, 0, 0}));
}

TEST_F(WizardCommandsTest, withoutAWizardNoPageFollowsAWell) {
  graphic().startup(nullptr);
  page.show();
  QApplication::setActiveWindow(&page);
  notify(items().wells, PointMoved);
  EXPECT_FALSE(wizard());
  EXPECT_EQ(graphic().lastChangedProperty(), static_cast<int>(PointMoved));
}

TEST_F(WizardCommandsTest, anAcceptedSimulationWizardIsNoted) {
  plugin.showSimulationWizard();
  store.setValue(SimulationWizardDone, false);
  const QPointer<QWizard> open = wizard();
  open->accept();
  EXPECT_FALSE(wizard());
  EXPECT_EQ(store.value(SimulationWizardDone).toInt(), 1);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(open);
}

TEST_F(WizardCommandsTest, anAcceptedExtendedWizardIsNoted) {
  store.setValue(SimulationWizardDone, false);
  answer("showExtendedSimulationWizard", QDialog::Rejected);
  EXPECT_EQ(store.value(SimulationWizardDone).toInt(), 0);
  answer("showExtendedSimulationWizard", QDialog::Accepted);
  EXPECT_EQ(store.value(SimulationWizardDone).toInt(), 1);
}

TEST_F(WizardCommandsTest, aCancelledSimulationWizardIsGone) {
  plugin.showSimulationWizard();
  const QPointer<QWizard> open = wizard();
  QTest::keyClick(open, Qt::Key_Escape);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(open);
  EXPECT_FALSE(wizard());
}

TEST_F(WizardCommandsTest, theEndOfAWizardHidesTheProgress) {
  QLabel message;
  plugin.setProgressPanel({&message, nullptr, nullptr, nullptr});
  for (const char* const slot : {"acceptedSimulationWizard", "closeSimulationWizard"}) {
    plugin.showSimulationWizard();
    message.show();
    ASSERT_TRUE(invoke(slot));
    EXPECT_FALSE(message.isVisible()) << slot;
    EXPECT_FALSE(wizard()) << slot;
  }
}

TEST_F(WizardCommandsTest, aRunHidesTheWizardAndLeavesThePage) {
  prepare();
  plugin.showSimulationWizard();
  library.asked.clear();
  const QPointer<QWizard> open = wizard();
  plugin.startSimulation();
  EXPECT_TRUE(open);
  EXPECT_FALSE(open->isVisible());
  EXPECT_TRUE(library.asked.isEmpty()) << "the page is not prepared anew";
  EXPECT_TRUE(waitUntil([&] { return !plugin.simulationRun().simulation(); }));
}

TEST_F(WizardCommandsTest, theEndOfTheProgramRejectsAnOpenWizard) {
  plugin.showSimulationWizard();
  const QPointer<QWizard> open = wizard();
  int rejected = 0;
  QObject::connect(open, &QDialog::rejected, [&rejected] { ++rejected; });
  bool ok = true;
  plugin.readyToClose(ok);
  EXPECT_EQ(rejected, 1);
}

// A new project

TEST_F(WizardCommandsTest, aNewProjectIsLedThroughAllPages) {
  user.yes = false;
  ASSERT_TRUE(invoke("newOpen"));
  ASSERT_TRUE(wizard());
  EXPECT_EQ(wizard()->windowTitle(), "New project wizard");
  EXPECT_EQ(wizard()->pageIds().size(), 8);
  EXPECT_TRUE(wizard()->isVisible());
  EXPECT_FALSE(wizard()->isModal());
  const QSize screen = QGuiApplication::primaryScreen()->size();
  EXPECT_EQ(wizard()->geometry(),
            QRect(screen.width() / 2 - 200, screen.height() / 2 - 310, 400, 620));
  EXPECT_NE(store.value(ProjectName), QVariant("Before"));
  EXPECT_EQ(user.questions,
            QStringList{"Tevrane: Should the project only include the simulation part?"});
}

TEST_F(WizardCommandsTest, aProjectThatIsOnlySimulatedLeavesTheDesignOut) {
  user.yes = true;
  ASSERT_TRUE(invoke("newOpen"));
  for (const GUI::PageGroup group :
       {GUI::PageGroup::General, GUI::PageGroup::Energy, GUI::PageGroup::WellDesign})
    EXPECT_FALSE(has(*wizard(), group));
  for (const GUI::PageGroup group :
       {GUI::PageGroup::Aquifer, GUI::PageGroup::Mapping, GUI::PageGroup::WellPositions,
        GUI::PageGroup::SimulationParameters, GUI::PageGroup::ExtendedParameters})
    EXPECT_TRUE(has(*wizard(), group));
}

TEST_F(WizardCommandsTest, aNewProjectDiscardsTheOpenWizardAfterAQuestion) {
  plugin.showSimulationWizard();
  const QPointer<QWizard> open = wizard();
  user.saving = false;
  ASSERT_TRUE(invoke("newOpen"));
  EXPECT_EQ(user.questions.value(0),
            "Tevrane: Should the open project saved before opening a new project?");
  EXPECT_NE(wizard(), open);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(open);
  EXPECT_TRUE(wizard()) << "the end of the former wizard is not taken for that of the new one";
}

TEST_F(WizardCommandsTest, aNewProjectIsNotSavedYet) {
  QMainWindow main;
  plugin.addDockingWindows(&main);
  auto* const file = main.findChild<QLabel*>("file_label");
  file->setText("/a/p.tvr");
  ASSERT_TRUE(invoke("newOpen"));
  EXPECT_EQ(file->text(), "not saved");
}

#include "WizardCommandsTest.moc"
