#include "gui/PageUser.h"
#include "gui/wells/AquiferPages.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QRadioButton>
#include <QSpinBox>

namespace TVR::GUI {
namespace {

using namespace Parameter;

class ProvidedWellsPageTest : public PageTest {
protected:
  /// A construction of one's own, as the page shows it.
  void provide() {
    store.setValue(CalculateWellConstruction, false);
    store.setValue(SuperposeDrawdown, false);
    page.initializePage();
  }
  bool isChecked(const char* button) { return in<QAbstractButton>(page, button)->isChecked(); }
  /// Four pairs of wells, with other values than the defaults in all fields but the check.
  void enterConstruction() {
    count(page, "MaxWell", 4);
    type(page, "DistanceWell", "44");
    type(page, "Depth", "25");
    type(page, "FilterLength", "7");
    type(page, "FilterDiameter", "300");
    toggle(page, "superposition_check_box");
  }
  /// A filter too narrow for the flow, which is to be checked.
  void enterTooNarrowFilter() {
    provide();
    type(page, "FilterDiameter", "0.5");
    toggle(page, "CheckConceivabillity");
  }
  /// What the design makes of the wells.
  void design(const QVariant& wells) {
    store.setStored(NumberOfWells, wells);
    store.setStored(Parameter::FilterLength, 8.5);
    store.setStored(Parameter::FilterDiameter, 250.0);
  }

  InputWizard wizard;
  QWizardPage& page = *wellDesignPages({store}, &wizard).at(0);
};

TEST_F(ProvidedWellsPageTest, whatIsStoredIsShown) {
  store.setValue(CalculateWellConstruction, false);
  store.setValue(NumberOfWells, 7);
  store.setValue(DistanceBetweenWells, 45.678);
  store.setValue(WellDepth, 30);
  store.setValue(AquiferBasis, 20);
  store.setValue(FilterLengthProvided, 6.5);
  store.setValue(FilterDiameterProvided, 200);
  page.initializePage();
  EXPECT_EQ(in<QSpinBox>(page, "MaxWell")->value(), 3);
  EXPECT_EQ(textIn(page, "DistanceWell"), "45.68");
  EXPECT_EQ(textIn(page, "Depth"), "30.00");
  EXPECT_EQ(textIn(page, "FilterLength"), "6.50");
  EXPECT_EQ(textIn(page, "FilterDiameter"), "200.00");
  EXPECT_FALSE(isChecked("Calculate"));
  EXPECT_TRUE(in<QGroupBox>(page, "ProvideValues")->isChecked());
}

TEST_F(ProvidedWellsPageTest, whatIsTooSmallToCountHasASubstitute) {
  store.setStored(DistanceBetweenWells, 0.99);
  store.setStored(DMinUsed, 33.0);
  store.setStored(WellDepth, 5.0);
  store.setStored(AquiferBasis, 21.0);
  store.setStored(FilterLengthProvided, 0.5);
  store.setStored(AquiferThickness, 9.0);
  store.setStored(FilterDiameterProvided, 0.009);
  store.setStored(Parameter::FilterDiameter, 150.0);
  page.initializePage();
  EXPECT_EQ(textIn(page, "DistanceWell"), "33.00");
  EXPECT_EQ(textIn(page, "Depth"), "21.00");
  EXPECT_EQ(textIn(page, "FilterLength"), "9.00");
  EXPECT_EQ(textIn(page, "FilterDiameter"), "150.00");
}

TEST_F(ProvidedWellsPageTest, whatCanBeTypedIsLimited) {
  page.initializePage();
  expectTypeable(page, {{"DistanceWell", 0, 1000, 2},
                        {"Depth", 0, 1000, 2},
                        {"FilterLength", 0, 1000, 2},
                        {"FilterDiameter", 0, 1000, 2}});
  in<QComboBox>(page, "DiameterUnit")->setCurrentIndex(1);
  expectTypeable(page, {{"FilterDiameter", 0, 39.37007874015748, 2}});
  EXPECT_EQ(in<QSpinBox>(page, "MaxWell")->minimum(), 1);
  EXPECT_EQ(in<QSpinBox>(page, "MaxWell")->maximum(), 10000);
}

TEST_F(ProvidedWellsPageTest, exactlyOneOfTheTwoWaysIsChecked) {
  auto& provided = *in<QGroupBox>(page, "ProvideValues");
  store.setValue(CalculateWellConstruction, true);
  page.initializePage();
  EXPECT_TRUE(isChecked("Calculate"));
  EXPECT_FALSE(provided.isChecked());
  toggle(page, "ProvideValues");
  EXPECT_FALSE(isChecked("Calculate"));
  EXPECT_TRUE(provided.isChecked());
  toggle(page, "ProvideValues");
  EXPECT_TRUE(isChecked("Calculate"));
  EXPECT_FALSE(provided.isChecked());
  toggle(page, "ProvideValues");
  toggle(page, "Calculate");
  EXPECT_TRUE(isChecked("Calculate"));
  EXPECT_FALSE(provided.isChecked());
  toggle(page, "ProvideValues");
  page.initializePage();
  EXPECT_TRUE(isChecked("Calculate"));
}

TEST_F(ProvidedWellsPageTest, determinedWellsAreNeitherTestedNorWritten) {
  store.setValue(CalculateWellConstruction, true);
  page.initializePage();
  toggle(page, "ProvideValues");
  type(page, "DistanceWell", "");
  type(page, "FilterLength", "3");
  toggle(page, "Calculate");
  const Project before = store.project();
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(store.project(), before);
  EXPECT_EQ(answers.shown, QStringList());
}

TEST_F(ProvidedWellsPageTest, theChoiceOfTheWayIsNotStored) {
  store.setValue(CalculateWellConstruction, true);
  page.initializePage();
  toggle(page, "ProvideValues");
  EXPECT_TRUE(page.validatePage());
  EXPECT_TRUE(store.value(CalculateWellConstruction).toBool());
}

TEST_F(ProvidedWellsPageTest, theLastMistakeIsNamed) {
  provide();
  expectLastMistakeNamed(
      page, "feedback_page1",
      {{[this] { type(page, "DistanceWell", ""); },
        "Please provide a valid value for the distance between wells."},
       {[this] {
          type(page, "Depth", "");
          type(page, "FilterLength", "0");
        },
        "Please provide a valid value for the well depth."},
       {[this] { type(page, "FilterLength", ""); },
        "Please provide a valid value for the filter length."},
       {[this] {
          type(page, "Depth", "10");
          type(page, "FilterLength", "10.01");
        },
        "Please provide a valid value for the well depth and/or the filter length."},
       {[this] { type(page, "FilterDiameter", ""); },
        "Please provide a valid value for the filter diameter."}},
      store);
}

TEST_F(ProvidedWellsPageTest, aFilterAsLongAsTheWellIsAccepted) {
  provide();
  type(page, "Depth", "10");
  type(page, "FilterLength", "10");
  EXPECT_TRUE(page.validatePage());
}

TEST_F(ProvidedWellsPageTest, whatIsProvidedIsForcedOnTheDesign) {
  provide();
  enterConstruction();
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(answers.shown, QStringList());
  EXPECT_EQ(number(NumberOfWells), 8);
  EXPECT_TRUE(store.value(SuperposeDrawdown).toBool());
  EXPECT_EQ(number(DistanceBetweenWells), 44);
  EXPECT_EQ(number(RadiusOfInfluence), 44);
  EXPECT_EQ(number(WellDepth), 25);
  EXPECT_EQ(number(FilterLengthProvided), 7);
  EXPECT_EQ(number(Parameter::FilterLength), 7);
  EXPECT_EQ(number(FilterDiameterProvided), 300);
  EXPECT_EQ(number(Parameter::FilterDiameter), 300);
  EXPECT_FALSE(store.value(CheckWellConstruction).toBool());
  EXPECT_DOUBLE_EQ(number(WellRadius), 0.375);
}

TEST_F(ProvidedWellsPageTest, theParametersAreWrittenInTheirOrder) {
  provide();
  enterConstruction();
  toggle(page, "CheckConceivabillity");
  ASSERT_FALSE(store.flag(CheckWellConstruction));
  answers.yes = false;
  EXPECT_EQ(written(page),
            (QVector<int>{NumberOfWellsProvided, SuperposeDrawdown, DistanceBetweenWells, WellDepth,
                          FilterLengthProvided, FilterDiameterProvided, CheckWellConstruction,
                          NumberOfWells, RadiusOfInfluence, Parameter::FilterDiameter,
                          Parameter::FilterLength, WellRadius}));
}

TEST_F(ProvidedWellsPageTest, aDiameterInInchesIsStoredInMillimetres) {
  provide();
  type(page, "FilterDiameter", "10");
  QTest::keyClick(in<QComboBox>(page, "DiameterUnit"), Qt::Key_Down);
  EXPECT_EQ(textIn(page, "FilterDiameter"), "10");
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(number(FilterDiameterProvided), 254);
  EXPECT_DOUBLE_EQ(number(WellRadius), 0.3175);
  page.initializePage();
  EXPECT_EQ(textIn(page, "FilterDiameter"), "10.00");
}

TEST_F(ProvidedWellsPageTest, theUnitDecidesHowLargeADiameterCanBe) {
  provide();
  type(page, "FilterDiameter", "1000");
  EXPECT_TRUE(in<QLineEdit>(page, "FilterDiameter")->hasAcceptableInput());
  QTest::keyClick(in<QComboBox>(page, "DiameterUnit"), Qt::Key_Down);
  EXPECT_FALSE(in<QLineEdit>(page, "FilterDiameter")->hasAcceptableInput());
  type(page, "FilterDiameter", "39.37");
  EXPECT_TRUE(in<QLineEdit>(page, "FilterDiameter")->hasAcceptableInput());
  page.initializePage();
  type(page, "FilterDiameter", "39.38");
  EXPECT_FALSE(in<QLineEdit>(page, "FilterDiameter")->hasAcceptableInput());
}

TEST_F(ProvidedWellsPageTest, aDiameterThatItsNewUnitMakesTooLargeIsRefused) {
  store.setValue(FilterDiameterProvided, 200);
  provide();
  QTest::keyClick(in<QComboBox>(page, "DiameterUnit"), Qt::Key_Down);
  EXPECT_EQ(textIn(page, "FilterDiameter"), "200.00");
  EXPECT_FALSE(page.validatePage());
  EXPECT_EQ(in<QLabel>(page, "feedback_page1")->text(),
            red("Please provide a valid value for the filter diameter."));
}

TEST_F(ProvidedWellsPageTest, theCheckMarkOfTheCheckComesFromTheSuperposition) {
  store.setValue(CalculateWellConstruction, false);
  store.setValue(SuperposeDrawdown, true);
  store.setValue(CheckWellConstruction, false);
  page.initializePage();
  EXPECT_TRUE(isChecked("superposition_check_box"));
  EXPECT_TRUE(isChecked("CheckConceivabillity"));
  store.setValue(SuperposeDrawdown, false);
  store.setValue(CheckWellConstruction, true);
  page.initializePage();
  EXPECT_FALSE(isChecked("superposition_check_box"));
  EXPECT_FALSE(isChecked("CheckConceivabillity"));
  toggle(page, "CheckConceivabillity");
  page.validatePage();
  EXPECT_TRUE(store.value(CheckWellConstruction).toBool());
}

TEST_F(ProvidedWellsPageTest, aRefusedConstructionIsToldWithAProposal) {
  enterTooNarrowFilter();
  design(5);
  store.setStored(Drawdown, 1.5);
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(answers.titles, QStringList{"Tevrane"});
  EXPECT_EQ(answers.shown,
            QStringList{
                "<b>The configuration is incorrect.</b><br>"
                "The corrected configuration is:<br>"
                "<table border=\"0\">"
                "<tr><td align=\"left\">Number of wells</td><td align=\"right\">2</td></tr>"
                "<tr><td align=\"left\">Filter length</td><td align=\"right\">8.50 m</td></tr>"
                "<tr><td align=\"left\">Filter diameter</td><td align=\"right\">250.00 mm</td></tr>"
                "</table><br><br>"
                "With a maximum drawdown in the well of 1.50 m.<br>"
                "Should the configuration be changed?"});
}

TEST_F(ProvidedWellsPageTest, aProposalThatIsTakenBecomesWhatIsProvided) {
  enterTooNarrowFilter();
  design(6);
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(number(NumberOfWellsProvided), 3);
  EXPECT_EQ(number(FilterLengthProvided), 8.5);
  EXPECT_EQ(number(FilterDiameterProvided), 250);
  EXPECT_EQ(number(NumberOfWells), 6);
  EXPECT_EQ(number(Parameter::FilterLength), 8.5);
  EXPECT_DOUBLE_EQ(number(WellRadius), 0.3125);
}

TEST_F(ProvidedWellsPageTest, countsOfAFileAreTexts) {
  enterTooNarrowFilter();
  design("6.0");
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(number(NumberOfWellsProvided), 3);
}

TEST_F(ProvidedWellsPageTest, aProposalThatIsDiscardedChangesNothingOfWhatIsProvided) {
  enterTooNarrowFilter();
  count(page, "MaxWell", 1);
  answers.yes = false;
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(answers.shown.size(), 1);
  EXPECT_EQ(number(NumberOfWells), 2);
  EXPECT_EQ(number(Parameter::FilterLength), number(FilterLengthProvided));
  EXPECT_EQ(number(Parameter::FilterDiameter), 0.5);
  EXPECT_DOUBLE_EQ(number(WellRadius), 0.000625);
}

TEST_F(ProvidedWellsPageTest, aRefusedConstructionThatIsNotToBeCheckedIsTaken) {
  provide();
  type(page, "FilterDiameter", "0.5");
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(answers.shown, QStringList());
}

TEST_F(ProvidedWellsPageTest, leavingItUntouchedChangesNoEntry) {
  store.setValue(DistanceBetweenWells, 45.6789);
  store.setValue(FilterLengthProvided, 5.4321);
  provide();
  page.validatePage();
  const Project before = store.project();
  page.initializePage();
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(changedSince(before), QVector<int>{});
  EXPECT_EQ(number(DistanceBetweenWells), 45.6789);
  EXPECT_EQ(number(FilterLengthProvided), 5.4321);
}

TEST_F(ProvidedWellsPageTest, aResetWithNoLeavesEverything) {
  provide();
  type(page, "DistanceWell", "44");
  page.validatePage();
  answers.yes = false;
  const Project before = store.project();
  page.cleanupPage();
  EXPECT_EQ(answers.shown, QStringList{"Reset all changes of the well configuration?"});
  EXPECT_EQ(store.project(), before);
}

TEST_F(ProvidedWellsPageTest, aResetWithYesPutsItsValuesBack) {
  store.setValue(CheckWellConstruction, false);
  provide();
  const Project before = store.project();
  enterConstruction();
  toggle(page, "CheckConceivabillity");
  page.validatePage();
  page.cleanupPage();
  for (const int id : {CalculateWellConstruction, NumberOfWells, DistanceBetweenWells, WellDepth,
                       AquiferBasis, FilterLengthProvided, AquiferThickness, FilterDiameterProvided,
                       Parameter::FilterDiameter, SuperposeDrawdown})
    EXPECT_EQ(store.values().value(id), before.values.value(id)) << id;
  EXPECT_TRUE(store.value(CheckWellConstruction).toBool()); // none of those that are put back
}

} // namespace
} // namespace TVR::GUI
