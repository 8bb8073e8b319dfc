#include "plugin/WholePlugin.h"
#include "support/SettingsOfTheTest.h"
#include "support/TestMessenger.h"

#include <QAbstractButton>
#include <QTimer>
#include <QWizardPage>
#include <QtTest>

using namespace TVR;
using namespace TVR::Parameter;
using namespace Sketra_lib::Property;

namespace {

/// The wizards that lead to a simulation, with their pages, over a doublet that could be simulated.
class SimulationWizard : public WholePlugin {
protected:
  SimulationWizard() {
    setMessenger(&user);
    prepareDoublet();
    store.setValue(WellWizardDone, true);
    // The design has needed what the wells take.
    store.setStored(MeanFlowRate, 0.002);
  }
  ~SimulationWizard() override {
    plugin->wizards().closeWizard();
    setMessenger(nullptr);
  }

  QWizard* wizard() { return plugin->wizards().wizard(); }
  static QString nameOf(const QWizardPage* page) {
    return QString(page->metaObject()->className()).section("::", -1);
  }
  static void press(const QWizard& dialog, QWizard::WizardButton button) {
    QTest::keyClick(dialog.button(button), Qt::Key_Space);
  }
  /// Goes on to the last page and presses "Simulate".
  void simulate() {
    while (wizard()->nextId() != -1)
      press(*wizard(), QWizard::NextButton);
    ASSERT_EQ(nameOf(wizard()->currentPage()), "ExtendedSimulationParameterWizardPage");
    press(*wizard(), QWizard::FinishButton);
  }
  bool isOver() {
    return waitUntil([this] { return !plugin->simulationRun().simulation(); });
  }
  int isotherms() {
    window()->setItemProperty(items().results, SelectedSet, Temperature);
    return of(items().results, IsolineIds).toList().size();
  }

  const SettingsOfTheTest settings;
  TestMessenger user;
};

} // namespace

TEST_F(SimulationWizard, leadsToAFinishedPage) {
  plugin->showSimulationWizard();
  ASSERT_EQ(nameOf(wizard()->currentPage()), "WellPositionAndUsageWizardPage");
  simulate();
  EXPECT_TRUE(plugin->running()) << "the program goes on beside it";
  EXPECT_FALSE(wizard());
  ASSERT_TRUE(isOver());
  EXPECT_EQ(user.told, QStringList());
  EXPECT_GE(isotherms(), 2);
  EXPECT_EQ(store.count(SimulationWizardDone), 1);
  EXPECT_TRUE(store.flag(SimulationUpToDate));
}

TEST_F(SimulationWizard, tellsOnceWhyARunIsRefused) {
  plugin->showSimulationWizard();
  store.setCells(ProjectTable::Well,
                 {{1, WellColumns::X, 681000.0}, {1, WellColumns::Y, 227000.0}});
  simulate();
  EXPECT_FALSE(plugin->simulationRun().simulation());
  EXPECT_EQ(user.told.size(), 1);
  EXPECT_FALSE(store.flag(SimulationUpToDate));
}

TEST_F(SimulationWizard, ofTheExtendedParametersLeadsToAFinishedPageToo) {
  QTimer::singleShot(0, [] {
    const auto* const dialog = qobject_cast<QWizard*>(QApplication::activeModalWidget());
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog->buttonText(QWizard::FinishButton), "Simulate");
    press(*dialog, QWizard::FinishButton);
  });
  plugin->showExtendedSimulationWizard();
  ASSERT_TRUE(isOver());
  EXPECT_EQ(user.told, QStringList());
  EXPECT_GE(isotherms(), 2);
}

TEST_F(SimulationWizard, asksForTheAquiferFirstWhileItIsNotKnown) {
  store.setValue(WellWizardDone, false);
  plugin->showSimulationWizard();
  EXPECT_EQ(nameOf(wizard()->currentPage()), "AquiferWizardPage");
  press(*wizard(), QWizard::NextButton);
  EXPECT_EQ(nameOf(wizard()->currentPage()), "WellPositionAndUsageWizardPage");
}

TEST_F(SimulationWizard, staysAtItsPageUntilTheWellsFit) {
  plugin->showSimulationWizard();
  store.setCells(ProjectTable::Well, {{1, WellColumns::Rate, 0.004}});
  press(*wizard(), QWizard::NextButton);
  EXPECT_EQ(nameOf(wizard()->currentPage()), "WellPositionAndUsageWizardPage");
  store.setCells(ProjectTable::Well, {{1, WellColumns::Rate, 0.002}});
  press(*wizard(), QWizard::NextButton);
  EXPECT_EQ(nameOf(wizard()->currentPage()), "SimulationParameterWizardPage");
}
