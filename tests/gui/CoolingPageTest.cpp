#include "design/ParameterId.h"
#include "gui/EnergyPagesTest.h"
#include "support/ContextTranslator.h"

#include <QGroupBox>
#include <QRadioButton>

namespace TVR::GUI {
namespace {

using namespace Parameter;

/// What the page refuses, in the order of its tests.
constexpr struct {
  const char* edit;
  const char* message;
} tests[] = {
    {"C_VLZ", "Please provide a valid value for the cooling coefficient of full load hours."},
    {"C_Power", "Please provide a valid value for the cooling power."},
    {"CoolingDemandYear", "Please provide a valid value for the cooling demand."},
    {"C_DeltaT", "We need a valid value for the temperature change, used for cooling!"},
    {"H_VLZ", "We need a valid value for the colling coefficent of full load hours!"},
    {"H_Power", "We need a valid value for the cooling power!"},
    {"HeatingDemandYear", "We need a valid value for the heating demand!"},
    {"H_DeltaT", "We need a valid value for the temperature change, used for heating!"},
    {"H_NrYearWorking",
     "We need a valid value for the coefficient of performance (COP), used for heating!"}};
constexpr int firstOfHeating = 4;

constexpr struct {
  const char* edit;
  int id;
  double maximum;
} fields[] = {{"CoolingDemandYear", CoolingDemand, 100000},
              {"C_VLZ", CoolingPeakLoadDuration, 8784},
              {"C_Power", CoolingPower, 100000},
              {"C_DeltaT", CoolingTemperatureChange, 100},
              {"HeatingDemandYear", HeatingDemand, 100000},
              {"H_VLZ", HeatingPeakLoadDuration, 8784},
              {"H_Power", HeatingPower, 100000},
              {"H_DeltaT", HeatingTemperatureChange, 100},
              {"H_NrYearWorking", SystemCop, 6}};

/// The page of an installation that cools and heats, both by hours of full load.
class CoolingPage : public EnergyPagesTest {
protected:
  CoolingPage() {
    store.setValue(EnergyDemandType, 2);
    store.setValue(CoolingDemand, 60000.0);
    store.setValue(CoolingPeakLoadDuration, 1000.0);
    store.setValue(CoolingTemperatureChange, 4.0);
    store.setValue(HeatingDemand, 45000.0);
    store.setValue(HeatingPeakLoadDuration, 1800.0);
    store.setValue(HeatingTemperatureChange, 3.0);
  }

  QWizardPage& open() { return enter(Cooling); }
  QString refusal() { return EnergyPagesTest::refusal(page(Cooling), "feedback_page6"); }
  QString feedback() { return in<QLabel>(page(Cooling), "feedback_page6")->text(); }
  bool isChecked(const char* button) {
    return in<QRadioButton>(page(Cooling), button)->isChecked();
  }
  bool isOpen(const char* edit) { return in<QLineEdit>(page(Cooling), edit)->isEnabled(); }

  void heat(bool heats) {
    auto* const box = in<QGroupBox>(page(Cooling), "HeatingGroupBox");
    if (box->isChecked() != heats)
      QTest::keyClick(box, Qt::Key_Space);
    ASSERT_EQ(box->isChecked(), heats);
  }

  /// Types into a field that may first have to be opened by its button, and goes back to the hours.
  void fill(const char* edit, const QString& text) {
    const QString name(edit);
    press(page(Cooling), name == "C_Power" ? "use_cooling_power" : "use_cooling_VLZ");
    press(page(Cooling), name == "H_Power" ? "use_heating_power" : "use_heating_VLZ");
    type(page(Cooling), edit, text);
    press(page(Cooling), "use_cooling_VLZ");
    press(page(Cooling), "use_heating_VLZ");
  }
};

TEST_F(CoolingPage, allFiguresAreShownWithTwoDecimals) {
  double value = 1.2345;
  for (const auto& field : fields)
    store.setStored(field.id, value += 1);
  open();
  value = 1.2345;
  for (const auto& field : fields)
    EXPECT_EQ(textIn(page(Cooling), field.edit), QString::number(value += 1, 'f', 2)) << field.edit;
}

TEST_F(CoolingPage, hoursAboveZeroAreTheChoiceAndElseAPowerAboveZero) {
  const struct {
    double hours;
    double power;
    bool byHours;
    bool byPower;
  } cases[] = {
      {1000, 60, true, false}, {1000, 0, true, false}, {0, 60, false, true}, {0, 0, false, false}};
  for (const auto& c : cases) {
    store.setStored(CoolingPeakLoadDuration, c.hours);
    store.setStored(CoolingPower, c.power);
    store.setStored(HeatingPeakLoadDuration, c.hours);
    store.setStored(HeatingPower, c.power);
    open();
    EXPECT_EQ(isChecked("use_cooling_VLZ"), c.byHours);
    EXPECT_EQ(isChecked("use_cooling_power"), c.byPower);
    EXPECT_EQ(isChecked("use_heating_VLZ"), c.byHours);
    EXPECT_EQ(isChecked("use_heating_power"), c.byPower);
    EXPECT_EQ(isOpen("C_VLZ"), c.byHours);
    EXPECT_EQ(isOpen("C_Power"), c.byPower);
    EXPECT_EQ(isOpen("H_VLZ"), c.byHours);
    EXPECT_EQ(isOpen("H_Power"), c.byPower);
  }
}

TEST_F(CoolingPage, aButtonOpensItsFieldAndShutsTheOther) {
  open();
  press(page(Cooling), "use_cooling_power");
  EXPECT_TRUE(isOpen("C_Power"));
  EXPECT_FALSE(isOpen("C_VLZ"));
  EXPECT_FALSE(isOpen("H_Power"));
  press(page(Cooling), "use_heating_power");
  EXPECT_TRUE(isOpen("H_Power"));
  EXPECT_FALSE(isOpen("H_VLZ"));
  press(page(Cooling), "use_cooling_VLZ");
  EXPECT_TRUE(isOpen("C_VLZ"));
  EXPECT_FALSE(isOpen("C_Power"));
}

TEST_F(CoolingPage, withoutHeatingItsFieldsAreShut) {
  store.setStored(CoolingOnly, true);
  open();
  EXPECT_FALSE(in<QGroupBox>(page(Cooling), "HeatingGroupBox")->isChecked());
  EXPECT_TRUE(isChecked("use_heating_VLZ"));
  EXPECT_FALSE(isOpen("H_VLZ"));
  heat(true);
  EXPECT_TRUE(isOpen("H_VLZ"));
  EXPECT_FALSE(isOpen("H_Power"));
  heat(false);
  EXPECT_FALSE(isOpen("H_VLZ"));
  EXPECT_FALSE(isOpen("HeatingDemandYear"));
}

TEST_F(CoolingPage, eachEmptyFieldIsRefusedByItsMessage) {
  open();
  const Project before = store.project();
  for (const auto& test : tests) {
    const QString text = textIn(page(Cooling), test.edit);
    fill(test.edit, "");
    EXPECT_EQ(refusal(), red(test.message));
    fill(test.edit, text);
  }
  EXPECT_EQ(store.project(), before);
}

TEST_F(CoolingPage, ofTwoEmptyFieldsTheOneThatIsTestedLaterIsNamed) {
  open();
  for (const auto& one : tests)
    for (const auto& later : tests) {
      if (&later <= &one)
        continue;
      const QString oneText = textIn(page(Cooling), one.edit);
      const QString laterText = textIn(page(Cooling), later.edit);
      fill(one.edit, "");
      fill(later.edit, "");
      EXPECT_EQ(refusal(), red(later.message)) << one.edit << ' ' << later.edit;
      fill(one.edit, oneText);
      fill(later.edit, laterText);
    }
  EXPECT_EQ(refusal(), "");
}

TEST_F(CoolingPage, aPowerIsAskedForThoughTheHoursAreUsed) {
  open();
  fill("C_Power", "");
  EXPECT_TRUE(isChecked("use_cooling_VLZ"));
  EXPECT_EQ(refusal(), red("Please provide a valid value for the cooling power."));
  fill("C_Power", "1");
  fill("H_Power", "");
  EXPECT_TRUE(isChecked("use_heating_VLZ"));
  EXPECT_EQ(refusal(), red("We need a valid value for the cooling power!"));
}

TEST_F(CoolingPage, hoursAreNotAskedForWhereThePowerIsUsed) {
  open();
  fill("C_VLZ", "");
  fill("H_VLZ", "");
  press(page(Cooling), "use_cooling_power");
  EXPECT_EQ(refusal(), red(tests[firstOfHeating].message));
  press(page(Cooling), "use_heating_power");
  EXPECT_EQ(refusal(), "");
}

TEST_F(CoolingPage, figuresReachTheirMaximumWithTwoDecimals) {
  open();
  for (const auto& field : fields) {
    const QString text = textIn(page(Cooling), field.edit);
    fill(field.edit, QString::number(field.maximum + 0.01, 'f', 2));
    EXPECT_NE(refusal(), "") << field.edit;
    fill(field.edit, "0.999");
    EXPECT_EQ(textIn(page(Cooling), field.edit), "0.99");
    fill(field.edit, QString::number(field.maximum, 'f', 0));
    EXPECT_EQ(refusal(), "") << field.edit;
    fill(field.edit, text);
  }
}

TEST_F(CoolingPage, figuresAreWrittenInTheirOrderAndOnlyTheHoursOfEachPair) {
  store.setStored(CoolingOnly, true);
  open();
  heat(true);
  const char* const typed[] = {"50000", "500", "7", "5", "40000", "2000", "8", "2", "4"};
  for (std::size_t i = 0; i < std::size(fields); ++i)
    fill(fields[i].edit, typed[i]);
  EXPECT_EQ(
      written(page(Cooling)),
      (QVector<int>{CoolingDemand, CoolingTemperatureChange, CoolingPeakLoadDuration, CoolingOnly,
                    HeatingDemand, HeatingTemperatureChange, HeatingPeakLoadDuration, SystemCop}));
  EXPECT_EQ(number(CoolingPower), 100);
  EXPECT_EQ(number(HeatingPower), 20);
  EXPECT_FALSE(store.flag(CoolingOnly));
  EXPECT_EQ(number(SystemCop), 4);
}

TEST_F(CoolingPage, powersAreWrittenWhereTheyAreUsedAndTheHoursStay) {
  open();
  fill("C_Power", "70");
  fill("H_Power", "30");
  press(page(Cooling), "use_cooling_power");
  press(page(Cooling), "use_heating_power");
  EXPECT_EQ(written(page(Cooling)), (QVector<int>{CoolingPower, HeatingPower}));
  EXPECT_EQ(number(CoolingPower), 70);
  EXPECT_EQ(number(HeatingPower), 30);
  EXPECT_EQ(number(CoolingPeakLoadDuration), 1000);
  EXPECT_EQ(number(HeatingPeakLoadDuration), 1800);
}

TEST_F(CoolingPage, aPowerIsWrittenWhereNeitherButtonIsChecked) {
  store.setStored(CoolingPeakLoadDuration, 0.0);
  store.setStored(CoolingPower, 0.0);
  open();
  EXPECT_EQ(refusal(), "");
  EXPECT_EQ(number(CoolingPeakLoadDuration), 0);
}

TEST_F(CoolingPage, withoutHeatingNoneOfItsFieldsIsTested) {
  open();
  for (const auto& test : tests)
    if (&test >= tests + firstOfHeating)
      fill(test.edit, "");
  heat(false);
  EXPECT_EQ(refusal(), "");
}

TEST_F(CoolingPage, withoutHeatingNoneOfItsFieldsIsWritten) {
  const double performance = number(SystemCop);
  open();
  for (const auto& test : tests)
    if (&test >= tests + firstOfHeating)
      fill(test.edit, "2");
  heat(false);
  EXPECT_EQ(written(page(Cooling)), QVector<int>{CoolingOnly});
  EXPECT_TRUE(store.flag(CoolingOnly));
  EXPECT_EQ(number(SystemCop), performance);
  for (const int id :
       {HeatingDemand, HeatingPeakLoadDuration, HeatingPower, HeatingTemperatureChange})
    EXPECT_EQ(number(id), 0); // by the rule of a system that only cools
}

TEST_F(CoolingPage, leavingItAsItIsChangesNothing) {
  store.setValue(CoolingDemand, 60000.12345);
  const Project before = store.project();
  open();
  EXPECT_EQ(refusal(), "");
  EXPECT_EQ(changedSince(before), QVector<int>());
}

TEST_F(CoolingPage, leavingItAsItIsChangesNothingWithPowersOrWithoutHeating) {
  store.setValue(CoolingPeakLoadDuration, 0.0);
  store.setValue(CoolingPower, 55.5);
  store.setValue(HeatingPeakLoadDuration, 0.0);
  store.setValue(HeatingPower, 22.2);
  Project before = store.project();
  open();
  EXPECT_EQ(refusal(), "");
  EXPECT_EQ(changedSince(before), QVector<int>());
  store.setValue(CoolingOnly, true);
  before = store.project();
  open();
  EXPECT_EQ(refusal(), "");
  EXPECT_EQ(changedSince(before), QVector<int>());
}

TEST_F(CoolingPage, aResetAnsweredWithNoLeavesEverything) {
  open();
  fill("CoolingDemandYear", "1");
  EXPECT_EQ(refusal(), "");
  fill("CoolingDemandYear", "");
  EXPECT_EQ(refusal(), red(tests[2].message));
  const Project before = store.project();
  answers.yes = false;
  page(Cooling).cleanupPage();
  EXPECT_EQ(answers.shown, QStringList{"Reset all changes on the energy demand configuration?"});
  EXPECT_EQ(answers.titles, QStringList{"Tevrane"});
  EXPECT_EQ(store.project(), before);
  EXPECT_EQ(feedback(), red(tests[2].message));
}

TEST_F(CoolingPage, aResetGivesTheCoolingDemandTheHeatingDemand) {
  open();
  for (const auto& field : fields)
    fill(field.edit, "1");
  EXPECT_EQ(refusal(), "");
  fill("CoolingDemandYear", "");
  EXPECT_NE(refusal(), "");
  page(Cooling).cleanupPage();
  EXPECT_EQ(number(CoolingDemand), 45000);
  EXPECT_EQ(number(CoolingTemperatureChange), 4);
  EXPECT_EQ(number(CoolingPeakLoadDuration), 1000);
  EXPECT_EQ(number(CoolingPower), 45); // the new demand by the old hours
  EXPECT_EQ(number(HeatingDemand), 45000);
  EXPECT_EQ(number(HeatingTemperatureChange), 3);
  EXPECT_EQ(number(HeatingPeakLoadDuration), 1800);
  EXPECT_EQ(number(HeatingPower), 25);
  EXPECT_EQ(number(SystemCop), 3.5);
  EXPECT_EQ(feedback(), "");
}

TEST_F(CoolingPage, aResetGivesPowersBackWhereThereWereNoHours) {
  store.setStored(CoolingPeakLoadDuration, 0.0);
  store.setStored(CoolingPower, "55.5");
  store.setStored(HeatingPeakLoadDuration, 0.0);
  store.setStored(HeatingPower, 22.2);
  open();
  fill("C_VLZ", "500");
  fill("H_VLZ", "500");
  EXPECT_EQ(refusal(), "");
  page(Cooling).cleanupPage();
  EXPECT_TRUE(isSameValue(store.stored(CoolingPower), 55.5)); // a number, though it was a text
  EXPECT_EQ(number(HeatingPower), 22.2);
  EXPECT_EQ(number(CoolingPeakLoadDuration), 500);
  EXPECT_EQ(number(HeatingPeakLoadDuration), 500);
}

TEST_F(CoolingPage, aResetToCoolingOnlyLeavesTheFiguresOfHeatingToTheRule) {
  store.setValue(CoolingOnly, true);
  open();
  heat(true);
  fill("HeatingDemandYear", "9000");
  fill("H_NrYearWorking", "5");
  EXPECT_EQ(refusal(), "");
  EXPECT_FALSE(store.flag(CoolingOnly));
  page(Cooling).cleanupPage();
  EXPECT_TRUE(store.flag(CoolingOnly));
  EXPECT_EQ(number(HeatingDemand), 0);
  EXPECT_EQ(number(SystemCop), 5);
}

TEST_F(CoolingPage, textsStandInTheirContextsAndFiguresOutliveAnotherLanguage) {
  open();
  fill("CoolingDemandYear", "");
  const ContextTranslator translator;
  EXPECT_EQ(refusal(), red("EngerieVerbrauchWizard/Please provide a valid value for the cooling "
                           "demand."));
  tellOfLanguage(page(Cooling));
  EXPECT_EQ(in<QGroupBox>(page(Cooling), "HeatingGroupBox")->title(),
            "CoolingAndHeatingInstallationWizardPage/Heating specification");
  EXPECT_EQ(textIn(page(Cooling), "C_DeltaT"), "4.00");
  EXPECT_EQ(feedback(), red("EngerieVerbrauchWizard/Please provide a valid value for the cooling "
                            "demand."));
}

} // namespace
} // namespace TVR::GUI
