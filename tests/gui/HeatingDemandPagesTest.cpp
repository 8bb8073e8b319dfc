#include "design/ParameterId.h"
#include "gui/EnergyPagesTest.h"
#include "support/ContextTranslator.h"

#include <QCheckBox>
#include <QComboBox>

namespace TVR::GUI {
namespace {

using namespace Parameter;

class DeterminationPage : public EnergyPagesTest {
protected:
  QString refusal() { return EnergyPagesTest::refusal(page(Determination), "feedback_page3"); }

  static constexpr char message[] = "Please provide a valid value for the energy demand.";
};

TEST_F(DeterminationPage, theDemandIsShownAndWritten) {
  store.setValue(EnergyDemand, 12345.678);
  enter(Determination);
  EXPECT_EQ(textIn(page(Determination), "NewRequirement"), "12345.68");
  type(page(Determination), "NewRequirement", "20000");
  EXPECT_EQ(written(page(Determination)), QVector<int>{EnergyDemand});
  EXPECT_EQ(number(EnergyDemand), 20000);
}

TEST_F(DeterminationPage, beforeItIsEnteredItHoldsTheDemandOfItsForm) {
  EXPECT_EQ(textIn(page(Determination), "NewRequirement"), "10000.0");
}

TEST_F(DeterminationPage, aDemandIsNeededUpToAHundredMillion) {
  enter(Determination);
  const Project before = store.project();
  type(page(Determination), "NewRequirement", "");
  EXPECT_EQ(refusal(), red(message));
  type(page(Determination), "NewRequirement", "100000000.5");
  EXPECT_EQ(refusal(), red(message));
  EXPECT_EQ(store.project(), before);
  type(page(Determination), "NewRequirement", "1e8");
  EXPECT_EQ(refusal(), "");
  type(page(Determination), "NewRequirement", "0.125");
  EXPECT_EQ(textIn(page(Determination), "NewRequirement"), "0.12");
}

TEST_F(DeterminationPage, leavingItAsItIsChangesNothing) {
  store.setValue(EnergyDemand, 12345.6789);
  const Project before = store.project();
  enter(Determination);
  EXPECT_EQ(refusal(), "");
  EXPECT_EQ(changedSince(before), QVector<int>());
}

TEST_F(DeterminationPage, aDemandBeyondItsRangeMayStay) {
  store.setValue(EnergyDemand, 2e8);
  enter(Determination);
  EXPECT_EQ(refusal(), "");
  EXPECT_EQ(number(EnergyDemand), 2e8);
}

TEST_F(DeterminationPage, aResetPutsTheDemandBackOnYes) {
  enter(Determination);
  const Project before = store.project();
  type(page(Determination), "NewRequirement", "5000");
  EXPECT_EQ(refusal(), "");
  type(page(Determination), "NewRequirement", "");
  EXPECT_EQ(refusal(), red(message));
  answers.yes = false;
  page(Determination).cleanupPage();
  EXPECT_EQ(number(EnergyDemand), 5000);
  EXPECT_EQ(in<QLabel>(page(Determination), "feedback_page3")->text(), red(message));
  answers.yes = true;
  page(Determination).cleanupPage();
  EXPECT_EQ(answers.shown.last(), "Reset all changes on the energy demand definition?");
  EXPECT_EQ(changedSince(before), QVector<int>());
  EXPECT_EQ(in<QLabel>(page(Determination), "feedback_page3")->text(), "");
}

TEST_F(DeterminationPage, anotherLanguageKeepsWhatWasTyped) {
  enter(Determination);
  type(page(Determination), "NewRequirement", "5000");
  tellOfLanguage(page(Determination));
  EXPECT_EQ(textIn(page(Determination), "NewRequirement"), "5000");
}

class ApproximationPage : public EnergyPagesTest {
protected:
  QString refusal() { return EnergyPagesTest::refusal(page(Approximation), "feedback_page4"); }
  QComboBox& places() { return *in<QComboBox>(page(Approximation), "ClosestLocation"); }

  static constexpr char message[] = "Please provide a valid value for the area to be heated.";
};

TEST_F(ApproximationPage, areaHotWaterAndPlaceAreShown) {
  store.setValue(HeatedFootSpace, 180.456);
  store.setValue(HotWaterProvided, true);
  store.setValue(ClosestLocation, 7);
  enter(Approximation);
  EXPECT_EQ(textIn(page(Approximation), "HeatedFootSize"), "180.46");
  EXPECT_TRUE(in<QCheckBox>(page(Approximation), "HotwaterProvided")->isChecked());
  EXPECT_EQ(places().currentData().toInt(), 7);
  EXPECT_EQ(places().currentText(), store.value(ClosestLocation).toString());
  EXPECT_EQ(places().count(), store.choices(ClosestLocation).size());
}

TEST_F(ApproximationPage, noPlaceIsTheFirstOne) {
  store.setValue(ClosestLocation, 0);
  enter(Approximation);
  EXPECT_EQ(places().currentIndex(), 0);
}

TEST_F(ApproximationPage, hotWaterAreaAndPlaceAreWrittenInThisOrder) {
  enter(Approximation);
  press(page(Approximation), "HotwaterProvided");
  type(page(Approximation), "HeatedFootSize", "150");
  QTest::keyClick(&places(), Qt::Key_End);
  EXPECT_EQ(written(page(Approximation)),
            (QVector<int>{HotWaterProvided, HeatedFootSpace, ClosestLocation}));
  EXPECT_EQ(store.stored(HotWaterProvided), QVariant(true));
  EXPECT_EQ(number(HeatedFootSpace), 150);
  EXPECT_EQ(store.stored(ClosestLocation), places().currentData());
}

TEST_F(ApproximationPage, theDemandIsThatOfAreaBuildingAndPlace) {
  enter(Approximation);
  type(page(Approximation), "HeatedFootSize", "150");
  EXPECT_EQ(refusal(), "");
  EXPECT_DOUBLE_EQ(number(EnergyDemand), 480 / 3.6 * 150 * (number(HeatingDegreeDays) / 3587));
}

TEST_F(ApproximationPage, anAreaIsNeeded) {
  enter(Approximation);
  type(page(Approximation), "HeatedFootSize", "");
  const Project before = store.project();
  EXPECT_EQ(refusal(), red(message));
  EXPECT_EQ(store.project(), before);
  type(page(Approximation), "HeatedFootSize", "100000001");
  EXPECT_EQ(refusal(), red(message));
  type(page(Approximation), "HeatedFootSize", "1.234");
  EXPECT_EQ(textIn(page(Approximation), "HeatedFootSize"), "1.23");
  EXPECT_EQ(refusal(), "");
}

TEST_F(ApproximationPage, leavingItAsItIsChangesNothing) {
  store.setValue(ClosestLocation, 7);
  store.setValue(HeatedFootSpace, 123.456789);
  const Project before = store.project();
  enter(Approximation);
  EXPECT_EQ(refusal(), "");
  EXPECT_EQ(changedSince(before), QVector<int>());
}

TEST_F(ApproximationPage, hotWaterIsAddedEachTimeThePageIsLeft) {
  store.setValue(BuildingType, 2);
  store.setValue(HotWaterProvided, true);
  EXPECT_EQ(store.stored(SpecificHeatDemand), QVariant(530.0));
  enter(Approximation);
  EXPECT_EQ(refusal(), "");
  EXPECT_EQ(store.stored(SpecificHeatDemand), QVariant(580.0));
}

TEST_F(ApproximationPage, aResetPutsEverythingBackOnYes) {
  store.setValue(ClosestLocation, 7);
  store.setValue(HeatedFootSpace, 200.0);
  const Project before = store.project();
  enter(Approximation);
  press(page(Approximation), "HotwaterProvided");
  type(page(Approximation), "HeatedFootSize", "150");
  QTest::keyClick(&places(), Qt::Key_End);
  EXPECT_EQ(refusal(), "");
  type(page(Approximation), "HeatedFootSize", "");
  EXPECT_EQ(refusal(), red(message));

  answers.yes = false;
  const Project changed = store.project();
  page(Approximation).cleanupPage();
  EXPECT_EQ(store.project(), changed);
  EXPECT_EQ(in<QLabel>(page(Approximation), "feedback_page4")->text(), red(message));

  answers.yes = true;
  page(Approximation).cleanupPage();
  EXPECT_EQ(answers.shown.last(), "Reset all changes on the energy demand approximation?");
  EXPECT_EQ(in<QLabel>(page(Approximation), "feedback_page4")->text(), "");
  EXPECT_EQ(changedSince(before), QVector<int>());
}

TEST_F(ApproximationPage, anotherLanguageKeepsThePlace) {
  enter(Approximation);
  QTest::keyClick(&places(), Qt::Key_End);
  const QString place = places().currentText();
  tellOfLanguage(page(Approximation));
  EXPECT_EQ(places().currentText(), place);
  EXPECT_EQ(places().count(), store.choices(ClosestLocation).size());
}

class HeatPumpPage : public EnergyPagesTest {
protected:
  QString refusal() { return EnergyPagesTest::refusal(page(HeatPump), "feedback_page5"); }

  static constexpr char ofPerformance[] =
      "Please provide a valid value for the coefficient of performance (COP) of the system.";
  static constexpr char ofChange[] = "Please provide a valid value for the temperature change.";
};

TEST_F(HeatPumpPage, bothFiguresAreShownAndWrittenAndThenTheHeatingPeriod) {
  store.setValue(SystemCop, 4.124);
  store.setValue(UsedTemperatureChange, 3.456);
  store.setValue(HeatingPeriod, 100.0);
  enter(HeatPump);
  EXPECT_EQ(textIn(page(HeatPump), "NrYearWorking"), "4.12");
  EXPECT_EQ(textIn(page(HeatPump), "DeltaT"), "3.46");
  type(page(HeatPump), "NrYearWorking", "4.5");
  type(page(HeatPump), "DeltaT", "4");
  EXPECT_EQ(written(page(HeatPump)),
            (QVector<int>{SystemCop, UsedTemperatureChange, HeatingPeriod}));
  EXPECT_EQ(number(SystemCop), 4.5);
  EXPECT_EQ(number(UsedTemperatureChange), 4);
  EXPECT_EQ(store.stored(HeatingPeriod), QVariant(224));
}

TEST_F(HeatPumpPage, aReferenceStandsBesideThePerformance) {
  EXPECT_EQ(in<QLabel>(page(HeatPump), "referenceLabel")->text(), "Referenzwert 3.5");
}

TEST_F(HeatPumpPage, ofTwoEmptyFieldsTheLaterOneIsNamed) {
  enter(HeatPump);
  const Project before = store.project();
  type(page(HeatPump), "NrYearWorking", "");
  EXPECT_EQ(refusal(), red(ofPerformance));
  type(page(HeatPump), "DeltaT", "");
  EXPECT_EQ(refusal(), red(ofChange));
  type(page(HeatPump), "NrYearWorking", "3");
  EXPECT_EQ(refusal(), red(ofChange));
  EXPECT_EQ(store.project(), before);
}

TEST_F(HeatPumpPage, performanceReachesSixAndChangeAHundred) {
  enter(HeatPump);
  type(page(HeatPump), "NrYearWorking", "6.01");
  EXPECT_EQ(refusal(), red(ofPerformance));
  type(page(HeatPump), "NrYearWorking", "6");
  EXPECT_EQ(refusal(), "");
  type(page(HeatPump), "DeltaT", "100.01");
  EXPECT_EQ(refusal(), red(ofChange));
  type(page(HeatPump), "DeltaT", "100");
  EXPECT_EQ(refusal(), "");
  type(page(HeatPump), "NrYearWorking", "3.456");
  EXPECT_EQ(textIn(page(HeatPump), "NrYearWorking"), "3.45");
  type(page(HeatPump), "DeltaT", "3,456");
  EXPECT_EQ(textIn(page(HeatPump), "DeltaT"), "3.45");
}

TEST_F(HeatPumpPage, leavingItAsItIsChangesNothingButTheHeatingPeriod) {
  store.setValue(SystemCop, 4.123456);
  store.setValue(UsedTemperatureChange, 3.456789);
  const Project before = store.project();
  enter(HeatPump);
  EXPECT_EQ(refusal(), "");
  EXPECT_EQ(changedSince(before), QVector<int>());
  store.setValue(HeatingPeriod, 200.0);
  EXPECT_EQ(refusal(), "");
  EXPECT_EQ(number(HeatingPeriod), 224);
}

TEST_F(HeatPumpPage, aResetPutsBothFiguresBackOnYes) {
  const Project before = store.project();
  enter(HeatPump);
  type(page(HeatPump), "NrYearWorking", "5");
  type(page(HeatPump), "DeltaT", "4");
  EXPECT_EQ(refusal(), "");
  type(page(HeatPump), "DeltaT", "");
  EXPECT_EQ(refusal(), red(ofChange));

  answers.yes = false;
  const Project changed = store.project();
  page(HeatPump).cleanupPage();
  EXPECT_EQ(store.project(), changed);
  EXPECT_EQ(in<QLabel>(page(HeatPump), "feedback_page5")->text(), red(ofChange));

  answers.yes = true;
  page(HeatPump).cleanupPage();
  EXPECT_EQ(answers.shown.last(), "Reset all changes on the heat pump specification?");
  EXPECT_EQ(in<QLabel>(page(HeatPump), "feedback_page5")->text(), "");
  EXPECT_EQ(changedSince(before), QVector<int>());
}

TEST_F(HeatPumpPage, messagesStandInTheContextOfTheOldWizard) {
  enter(HeatPump);
  type(page(HeatPump), "DeltaT", "");
  const ContextTranslator translator;
  EXPECT_EQ(refusal(), red("EngerieVerbrauchWizard/Please provide a valid value for the "
                           "temperature change."));
  tellOfLanguage(page(HeatPump));
  EXPECT_EQ(in<QLabel>(page(HeatPump), "referenceLabel")->text(),
            "HeatPumpSpecificationWizardPage/Referenzwert 3.5");
}

} // namespace
} // namespace TVR::GUI
