#include "gui/Keyboard.h"
#include "gui/PageTest.h"
#include "gui/ProjectWizards.h"

#include <QSignalSpy>

namespace TVR::GUI {
namespace {

using namespace Parameter;

/// The wizard of a new project on the screen, for whoever has no mouse.
class NewProjectWizard : public PageTest {
protected:
  void open() {
    wizard->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(wizard.get()));
  }
  QString page() const {
    return QString(wizard->currentPage()->metaObject()->className()).section("::", -1);
  }
  static void choose(const QString& widget, Qt::Key key) {
    ASSERT_TRUE(tabTo(widget)) << qPrintable(widget);
    hit(key);
  }
  /// Goes on from a page, which has to be this one.
  void leave(const char* expected) {
    ASSERT_EQ(page(), expected);
    ASSERT_TRUE(tabTo(nextButton())) << expected;
    hit(Qt::Key_Space);
  }
  QString nextButton() const {
    const bool isLast = wizard->nextId() == -1;
    return wizard->button(isLast ? QWizard::FinishButton : QWizard::NextButton)->objectName();
  }

  std::unique_ptr<QWizard> wizard =
      makeWizard(Wizard::NewProject, projectPages(store, [] { return nullptr; }));
};

TEST_F(NewProjectWizard, isGoneThroughByKeyboardAlone) {
  QSignalSpy started(&store, &Data::Manager::startSimulation);
  open();
  leave("UserWizardPage");
  retypeAt("projectName", "School");
  leave("ProjectWizardPage");
  leave("EnergyDemandFeatureWizardPage");
  retypeAt("OldEnergyDemandOil", "2500");
  leave("EnergyConsumptionWizardPage");
  retypeAt("NrYearWorking", "4");
  leave("HeatPumpSpecificationWizardPage");
  leave("EnergyDemandResultWizardPage");
  retypeAt("GW_gradient", "0.4");
  leave("AquiferWizardPage");
  leave("ProvidedWellsWizardPage");
  leave("AquiferAndWellSummaryWizardPage");
  retypeAt("XMap", "681000");
  retypeAt("YMap", "227000");
  choose("horizontalExtentionUsed", Qt::Key_Space);
  retypeAt("extensionMap", "300");
  leave("MappingWizardPage");
  retypeAt("wellCountSpinBox", "2");
  leave("WellPositionAndUsageWizardPage");
  retypeAt("FlowDirection", "45");
  choose("SimulationTime", Qt::Key_Home);
  choose("Isotherms", Qt::Key_End);
  leave("SimulationParameterWizardPage");
  retypeAt("minCellWidth", "0,5");
  leave("ExtendedSimulationParameterWizardPage");
  EXPECT_EQ(wizard->result(), QDialog::Accepted);
  EXPECT_EQ(answers.shown, QStringList());
  EXPECT_EQ(started.size(), 1);
  for (const int done : {GeneralWizardDone, EnergyWizardDone, WellWizardDone, GraphicWizardDone,
                         SimulationWizardDone})
    EXPECT_TRUE(store.flag(done)) << done;
  EXPECT_EQ(store.text(ProjectName), "School");
  EXPECT_EQ(number(OilDemand), 2500);
  EXPECT_EQ(number(SystemCop), 4);
  EXPECT_EQ(number(GroundwaterGradient), 0.4);
  EXPECT_EQ(number(ViewX), 681000);
  EXPECT_EQ(number(ViewHorizontalExtension), 300);
  EXPECT_TRUE(store.flag(ViewUseExtension));
  EXPECT_EQ(number(GroundwaterFlowDirection), 45);
  EXPECT_EQ(number(SimulationTime), 315576000.0);
  EXPECT_EQ(number(AdditionalIsotherm), 5);
  EXPECT_EQ(number(MinElementLength), 0.5);
}

} // namespace
} // namespace TVR::GUI
