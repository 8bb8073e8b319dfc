#include "design/ParameterId.h"
#include "gui/EnergyPagesTest.h"
#include "gui/Keyboard.h"

#include <QComboBox>
#include <QGroupBox>

namespace TVR::GUI {
namespace {

using namespace Parameter;

class EnergyWizard : public EnergyPagesTest {
protected:
  /// The wizard on the screen, at its first page.
  void open() {
    wizard.show();
    wizard.resize(400, 620);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&wizard));
    ASSERT_TRUE(isAt(Feature));
  }

  bool isAt(int place) { return wizard.currentPage() == &page(place); }
};

TEST_F(EnergyWizard, pagesStandInTheOrderOfAdding) {
  const char* const classes[] = {
      "EnergyDemandFeatureWizardPage",       "CoolingAndHeatingInstallationWizardPage",
      "EnergyConsumptionWizardPage",         "EnergyDemandDefinitionWizardPage",
      "EnergyDemandDeterminationWizardPage", "EnergyDemandApproximationWizardPage",
      "HeatPumpSpecificationWizardPage",     "EnergyDemandResultWizardPage"};
  ASSERT_EQ(wizard.pageIds().size(), 8);
  for (int place = 0; place < 8; ++place)
    EXPECT_EQ(page(place).metaObject()->className(), QString("TVR::GUI::") + classes[place]);
}

TEST_F(EnergyWizard, pagesWithOneSuccessorLeadThere) {
  EXPECT_EQ(placeAfter(Consumption), HeatPump);
  EXPECT_EQ(placeAfter(Determination), HeatPump);
  EXPECT_EQ(placeAfter(Approximation), HeatPump);
  EXPECT_EQ(placeAfter(HeatPump), Result);
  EXPECT_EQ(placeAfter(Cooling), Result);
  EXPECT_EQ(placeAfter(Result), -1);
}

TEST_F(EnergyWizard, whereItsSuccessorIsMissingAPageLeadsToTheNextOne) {
  wizard.removePage(wizard.pageIds().at(HeatPump));
  EXPECT_EQ(placeAfter(Consumption), Definition);
}

TEST_F(EnergyWizard, anOilHeatingIsReplacedByKeyboardAlone) {
  open();
  hit(Qt::Key_Return);
  ASSERT_TRUE(isAt(Consumption));
  retypeAt("OldEnergyDemandOil", "2500");
  hit(Qt::Key_Return);
  ASSERT_TRUE(isAt(HeatPump));
  retypeAt("NrYearWorking", "4");
  retypeAt("DeltaT", "3,5");
  hit(Qt::Key_Return);
  ASSERT_TRUE(isAt(Result));
  hit(Qt::Key_Return);
  EXPECT_EQ(wizard.result(), QDialog::Accepted);
  EXPECT_TRUE(store.flag(EnergyWizardDone));
  EXPECT_EQ(number(EnergyDemandType), 0);
  EXPECT_EQ(number(OilDemand), 2500);
  EXPECT_DOUBLE_EQ(number(EnergyDemand), 2500 * 10.7 / 0.85);
  EXPECT_EQ(number(SystemCop), 4);
  EXPECT_EQ(number(UsedTemperatureChange), 3.5);
}

TEST_F(EnergyWizard, aNewHeatingIsEstimatedByKeyboardAlone) {
  open();
  hit(Qt::Key_Down);
  ASSERT_TRUE(tabTo("BuildingType"));
  hit(Qt::Key_Home);
  hit(Qt::Key_Return);
  ASSERT_TRUE(isAt(Definition));
  hit(Qt::Key_Down);
  hit(Qt::Key_Return);
  ASSERT_TRUE(isAt(Approximation));
  retypeAt("HeatedFootSize", "160");
  ASSERT_TRUE(tabTo("HotwaterProvided"));
  hit(Qt::Key_Space);
  ASSERT_TRUE(tabTo("ClosestLocation"));
  hit(Qt::Key_End);
  hit(Qt::Key_Return);
  ASSERT_TRUE(isAt(HeatPump));
  hit(Qt::Key_Return);
  ASSERT_TRUE(isAt(Result));
  hit(Qt::Key_Return);
  EXPECT_EQ(wizard.result(), QDialog::Accepted);
  EXPECT_TRUE(store.flag(EnergyWizardDone));
  EXPECT_EQ(number(EnergyDemandType), 1);
  EXPECT_EQ(store.stored(BuildingType).toInt(), 1);
  EXPECT_TRUE(store.flag(CalculateEnergyDemand));
  EXPECT_TRUE(store.flag(HotWaterProvided));
  EXPECT_EQ(store.stored(ClosestLocation).toInt(), store.choices(ClosestLocation).last().row);
  EXPECT_DOUBLE_EQ(number(EnergyDemand),
                   (190 + 50) / 3.6 * 160 * (number(HeatingDegreeDays) / 3587));
}

TEST_F(EnergyWizard, aKnownDemandIsEnteredByKeyboardAlone) {
  open();
  hit(Qt::Key_Down);
  hit(Qt::Key_Return);
  ASSERT_TRUE(isAt(Definition));
  hit(Qt::Key_Return);
  ASSERT_TRUE(isAt(Determination));
  retypeAt("NewRequirement", "22000");
  hit(Qt::Key_Return);
  hit(Qt::Key_Return);
  ASSERT_TRUE(isAt(Result));
  hit(Qt::Key_Return);
  EXPECT_EQ(wizard.result(), QDialog::Accepted);
  EXPECT_EQ(number(EnergyDemand), 22000);
  EXPECT_FALSE(store.flag(CalculateEnergyDemand));
}

TEST_F(EnergyWizard, coolingAndHeatingAreEnteredByKeyboardAlone) {
  open();
  hit(Qt::Key_Down);
  hit(Qt::Key_Down);
  hit(Qt::Key_Return);
  ASSERT_TRUE(isAt(Cooling));
  retypeAt("CoolingDemandYear", "60000");
  retypeAt("C_VLZ", "800");
  retypeAt("C_DeltaT", "4");
  retypeAt("HeatingDemandYear", "30000");
  ASSERT_TRUE(tabTo("use_heating_VLZ"));
  hit(Qt::Key_Down);
  retypeAt("H_Power", "18");
  retypeAt("H_DeltaT", "3");
  retypeAt("H_NrYearWorking", "4");
  hit(Qt::Key_Return);
  ASSERT_TRUE(isAt(Result));
  hit(Qt::Key_Return);
  EXPECT_EQ(wizard.result(), QDialog::Accepted);
  EXPECT_EQ(number(EnergyDemandType), 2);
  EXPECT_EQ(number(CoolingPower), 75);
  EXPECT_EQ(number(HeatingPower), 18);
  EXPECT_EQ(number(EnergyDemand), 60000 - 0.75 * 30000);
  EXPECT_EQ(number(Power), 75);
  EXPECT_EQ(number(UsedTemperatureChange), 4);
}

TEST_F(EnergyWizard, coolingAloneIsEnteredByKeyboardAlone) {
  open();
  hit(Qt::Key_Down);
  hit(Qt::Key_Down);
  hit(Qt::Key_Return);
  retypeAt("CoolingDemandYear", "60000");
  ASSERT_TRUE(tabTo("HeatingGroupBox"));
  hit(Qt::Key_Space);
  hit(Qt::Key_Return);
  ASSERT_TRUE(isAt(Result));
  EXPECT_TRUE(store.flag(CoolingOnly));
  EXPECT_EQ(number(EnergyDemand), 60000);
}

TEST_F(EnergyWizard, cancelledItKeepsWhatItsPagesTookAndAsksNothing) {
  open();
  hit(Qt::Key_Down);
  hit(Qt::Key_Return);
  hit(Qt::Key_Return);
  retypeAt("NewRequirement", "22000");
  hit(Qt::Key_Return);
  ASSERT_TRUE(isAt(HeatPump));
  retypeAt("DeltaT", "5");
  hit(Qt::Key_Escape);
  EXPECT_FALSE(wizard.isVisible());
  EXPECT_EQ(answers.shown, QStringList());
  EXPECT_EQ(number(EnergyDemandType), 1);
  EXPECT_EQ(number(EnergyDemand), 22000);
  EXPECT_EQ(number(UsedTemperatureChange), 3);
}

TEST_F(EnergyWizard, aRefusedPageStaysAndOnTheWayBackItAsks) {
  open();
  hit(Qt::Key_Return);
  ASSERT_TRUE(isAt(Consumption));
  hit(Qt::Key_Return);
  EXPECT_TRUE(isAt(Consumption));
  QApplication::processEvents();
  const auto* const feedback = in<QLabel>(page(Consumption), "feedback_page1");
  EXPECT_NE(feedback->text(), "");
  EXPECT_GE(feedback->height(), feedback->heightForWidth(feedback->width()));
  ASSERT_TRUE(tabTo(wizard.button(QWizard::BackButton)->objectName()));
  hit(Qt::Key_Space);
  EXPECT_TRUE(isAt(Feature));
  EXPECT_EQ(answers.shown,
            QStringList{"Reset all changes on the old energy demand configuration?"});
}

} // namespace
} // namespace TVR::GUI
