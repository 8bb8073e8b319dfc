#include "gui/Keyboard.h"
#include "gui/PositionPageTest.h"
#include "gui/simulation/SimulationPages.h"
#include "gui/wells/AquiferPages.h"
#include "project/Units.h"

namespace TVR::GUI {
namespace {

using namespace Parameter;

/// The wizard of a simulation, over the wells of the page that places them.
class SimulationWizard : public PositionPageTest {
protected:
  /// Shows the wizard at its first page.
  void openWizard(bool isAquiferKnown) {
    wizard = std::make_unique<InputWizard>();
    if (!isAquiferKnown)
      add(aquiferPages({store}, wizard.get()));
    page = positionPages({store}, wizard.get()).first();
    add({page});
    add(simulationPages({store}, wizard.get()));
    add(extendedSimulationPages({store}, wizard.get()));
    wizard->resize(400, 620);
    wizard->show();
    QApplication::setActiveWindow(wizard.get());
  }
  QString place() const {
    return QString(wizard->currentPage()->metaObject()->className()).remove("TVR::GUI::");
  }
  static void check(const QString& widget) {
    ASSERT_TRUE(tabTo(widget)) << widget.toStdString();
    hit(Qt::Key_Space);
  }
  /// Types into the cell with the focus and goes on to the next one.
  static void fillCell(const QString& text) {
    hit(Qt::Key_A, Qt::ControlModifier);
    keys(text);
    hit(Qt::Key_Tab);
    QCoreApplication::processEvents(); // what was typed is taken a moment later
  }

  void placeTwoWells() {
    ASSERT_TRUE(tabTo("wellCountSpinBox"));
    hit(Qt::Key_Tab);
    hit(Qt::Key_Home);
    for (const char* const cell : {"Source", "10.5", "20", "-6"})
      fillCell(cell);
    hit(Qt::Key_Tab); // what is withdrawn has no temperature change
    for (const char* const cell : {"Sink", "50", "60,25", "6"})
      fillCell(cell);
    hit(Qt::Key_Tab, Qt::ControlModifier);
  }
  void choose() {
    retypeAt("FlowDirection", "45");
    ASSERT_TRUE(tabTo("SimulationTime"));
    hit(Qt::Key_Home);
    ASSERT_TRUE(tabTo("Isotherms"));
    hit(Qt::Key_End);
    retypeAt("FVelements", "3000");
    check("EnergyExchangeGroupBox");
    check("caprockEnergyExchangeCheckBox");
  }
  void chooseMore() {
    check("heatDispersionUsed");
    retypeAt("Dispersion_value", "2.5");
    check("useClosedWellLoop");
    check("gw_groupBox");
    retypeAt("abs_error_groundwater", "1e-4");
    retypeAt("relativ_error_groundwater", "1e-5");
    check("heat_groupBox");
    retypeAt("abs_error_heat", "1e-6");
    retypeAt("relativ_error_heat", "1e-7");
    retypeAt("cellIncreaseFactor", "3");
    retypeAt("minCellWidth", "0,5");
    retypeAt("maxCellWidth", "20");
    check("writeTecplotOutput");
    retypeAt("tecplotOutputFilename", "/results/steps");
    check("writeWellOutput");
    retypeAt("wellOutputFilename", "/results/wells.csv");
  }

private:
  void add(const QList<QWizardPage*>& pages) {
    for (QWizardPage* added : pages)
      wizard->addPage(added);
  }
};

TEST_F(SimulationWizard, isGoneThroughByKeyboardAlone) {
  for (const int off :
       {ExchangeCaprock, ExchangeBedrock, ClosedLoop, WriteTecplotOutput, WriteWellOutput,
        UserDefinedGroundwaterTolerances, UserDefinedHeatTolerances})
    store.setValue(off, false);
  store.setValue(ThermalDispersivity, 0.0);
  openWizard(true);
  ASSERT_EQ(place(), "WellPositionAndUsageWizardPage");
  placeTwoWells();
  ASSERT_TRUE(tabTo(wizard->button(QWizard::NextButton)->objectName()));
  hit(Qt::Key_Space);
  ASSERT_EQ(place(), "SimulationParameterWizardPage") << feedback().toStdString();
  choose();
  hit(Qt::Key_Return);
  ASSERT_EQ(place(), "ExtendedSimulationParameterWizardPage");
  chooseMore();
  hit(Qt::Key_Return);
  EXPECT_EQ(wizard->result(), QDialog::Accepted);
  EXPECT_EQ(answers.shown, QStringList());

  EXPECT_EQ(store.wellPositions(), (QVector<QPointF>{{10.5, 20}, {50, 60.25}}));
  const WellModel& wells = *store.wellModel();
  EXPECT_EQ(wells.index(0, WellModel::Name).data().toString(), "Source");
  EXPECT_DOUBLE_EQ(wells.index(0, WellModel::Rate).data(Qt::EditRole).toDouble(), -flow);
  EXPECT_DOUBLE_EQ(wells.index(1, WellModel::Rate).data(Qt::EditRole).toDouble(), flow);
  EXPECT_EQ(number(GroundwaterFlowDirection), 45);
  EXPECT_DOUBLE_EQ(number(SimulationTime), 10 * 365.25 * secondsPerDay);
  EXPECT_EQ(number(AdditionalIsotherm), 5);
  EXPECT_EQ(number(MaxNumberOfElements), 3000);
  EXPECT_TRUE(store.flag(ExchangeCaprock));
  EXPECT_FALSE(store.flag(ExchangeBedrock));
  EXPECT_EQ(number(ThermalDispersivity), 2.5);
  EXPECT_TRUE(store.flag(ClosedLoop));
  EXPECT_EQ(number(AbsTolGroundwater), 1e-4);
  EXPECT_EQ(number(RelTolGroundwater), 1e-5);
  EXPECT_EQ(number(AbsTolHeat), 1e-6);
  EXPECT_EQ(number(RelTolHeat), 1e-7);
  EXPECT_EQ(number(CellIncreaseFactor), 3);
  EXPECT_EQ(number(MinElementLength), 0.5);
  EXPECT_EQ(number(MaxElementLength), 20);
  EXPECT_TRUE(store.flag(WriteTecplotOutput));
  EXPECT_EQ(store.value(TecplotOutputFile).toString(), "/results/steps");
  EXPECT_TRUE(store.flag(WriteWellOutput));
  EXPECT_EQ(store.value(WellOutputFile).toString(), "/results/wells.csv");
  EXPECT_TRUE(store.flag(SimulationWizardDone));
}

TEST_F(SimulationWizard, periodsOfAYearAreFilledInByKeyboardAlone) {
  openWizard(true);
  retypeAt("wellCountSpinBox", "2");
  ASSERT_TRUE(tabTo("tableOfWellPositions"));
  hit(Qt::Key_Tab, Qt::ControlModifier);
  ASSERT_TRUE(tabTo("extendPushButton"));
  hit(Qt::Key_Space);
  retypeAt("demandStepsSpinBox", "2");
  hit(Qt::Key_Tab);
  EXPECT_EQ(store.demandModel()->rowCount(), 2);
  hit(Qt::Key_Home);
  hit(Qt::Key_Tab, Qt::ControlModifier);
  ASSERT_EQ(QApplication::focusWidget()->objectName(), "extendTableView");
  EXPECT_EQ(periods().model()->rowCount(), 2); // of the well that was chosen
  hit(Qt::Key_Home);
  hit(Qt::Key_Right);
  fillCell("4000");
  fillCell("-3");
  EXPECT_EQ(store.demandModel()->durations().first(), 4000 * secondsPerHour);
  EXPECT_DOUBLE_EQ(periods().model()->index(0, WellDemandModel::Rate).data(Qt::EditRole).toDouble(),
                   -flow / 2);
}

TEST_F(SimulationWizard, beginsWithTheAquiferAsLongAsThatIsNotKnown) {
  openWizard(false);
  ASSERT_EQ(place(), "AquiferWizardPage");
  retypeAt("GW_gradient", "0.4");
  hit(Qt::Key_Return);
  EXPECT_EQ(place(), "WellPositionAndUsageWizardPage");
  EXPECT_EQ(number(GroundwaterGradient), 0.4);
}

} // namespace
} // namespace TVR::GUI
