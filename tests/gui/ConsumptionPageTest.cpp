#include "design/ParameterId.h"
#include "gui/EnergyPagesTest.h"
#include "support/ContextTranslator.h"

namespace TVR::GUI {
namespace {

using namespace Parameter;

constexpr struct {
  int id;
  const char* button;
  const char* edit;
  const char* label;
  const char* message;
} fuels[] = {{OilDemand, "OldEnergyDemand0", "OldEnergyDemandOil", "Fuel oil",
              "Please provide a valid value for the fuel oil demand."},
             {GasDemand, "OldEnergyDemand1", "OldEnergyDemandGas", "Natural gas",
              "Please provide a valid value for the gas demand."},
             {EnergyDemand, "OldEnergyDemand2", "OldEnergyDemandCurrent", "Electric power",
              "Please provide a valid value for the energy demand."}};

class ConsumptionPage : public EnergyPagesTest {
protected:
  QWizardPage& open() { return enter(Consumption); }
  QString refusal() { return EnergyPagesTest::refusal(page(Consumption), "feedback_page1"); }
};

TEST_F(ConsumptionPage, theStoredKindIsChosenAndItsFieldOpen) {
  for (int kind = 0; kind < 3; ++kind) {
    store.setValue(ProvidedEnergyDemandType, kind);
    open();
    for (int other = 0; other < 3; ++other) {
      EXPECT_EQ(in<QAbstractButton>(page(Consumption), fuels[other].button)->isChecked(),
                other == kind);
      EXPECT_EQ(in<QLineEdit>(page(Consumption), fuels[other].edit)->isEnabled(), other == kind);
      EXPECT_EQ(in<QAbstractButton>(page(Consumption), fuels[other].button)->text(),
                fuels[other].label);
    }
  }
}

TEST_F(ConsumptionPage, aButtonOpensItsFieldAndNoOther) {
  open();
  for (const auto& fuel : fuels) {
    press(page(Consumption), fuel.button);
    for (const auto& other : fuels)
      EXPECT_EQ(in<QLineEdit>(page(Consumption), other.edit)->isEnabled(), fuel.id == other.id);
  }
}

TEST_F(ConsumptionPage, onlyADemandAboveZeroShows) {
  store.setStored(OilDemand, 2500.456);
  store.setStored(GasDemand, 0.0);
  store.setStored(EnergyDemand, -1.0);
  open();
  EXPECT_EQ(textIn(page(Consumption), "OldEnergyDemandOil"), "2500.46");
  EXPECT_EQ(textIn(page(Consumption), "OldEnergyDemandGas"), "");
  EXPECT_EQ(textIn(page(Consumption), "OldEnergyDemandCurrent"), "");
}

TEST_F(ConsumptionPage, anOilDemandOfZeroIsEmptyAndRefused) {
  store.setValue(ProvidedEnergyDemandType, 0);
  store.setValue(OilDemand, 0.0);
  open();
  EXPECT_EQ(textIn(page(Consumption), "OldEnergyDemandOil"), "");
  EXPECT_EQ(refusal(), red(fuels[0].message));
}

TEST_F(ConsumptionPage, onlyTheChosenFieldIsTested) {
  store.setStored(EnergyDemand, 0.0);
  open();
  for (const auto& fuel : fuels) {
    press(page(Consumption), fuel.button);
    const Project before = store.project();
    EXPECT_EQ(refusal(), red(fuel.message));
    EXPECT_EQ(store.project(), before);
  }
  press(page(Consumption), fuels[1].button);
  type(page(Consumption), fuels[1].edit, "100");
  EXPECT_EQ(refusal(), "");
}

TEST_F(ConsumptionPage, aSecondExponentCannotBeTyped) {
  open();
  type(page(Consumption), "OldEnergyDemandOil", "1e");
  EXPECT_EQ(textIn(page(Consumption), "OldEnergyDemandOil"), "1e");
  EXPECT_EQ(refusal(), red(fuels[0].message));
  type(page(Consumption), "OldEnergyDemandOil", "1e5e");
  EXPECT_EQ(textIn(page(Consumption), "OldEnergyDemandOil"), "1e5");
}

TEST_F(ConsumptionPage, demandsReachAHundredMillionWithTwoDecimals) {
  open();
  for (const auto& fuel : fuels) {
    press(page(Consumption), fuel.button);
    type(page(Consumption), fuel.edit, "100000001");
    EXPECT_EQ(refusal(), red(fuel.message));
    type(page(Consumption), fuel.edit, "-1");
    EXPECT_EQ(textIn(page(Consumption), fuel.edit), "1");
    type(page(Consumption), fuel.edit, "100000000");
    EXPECT_EQ(refusal(), "");
    type(page(Consumption), fuel.edit, "1.234");
    EXPECT_EQ(textIn(page(Consumption), fuel.edit), "1.23");
  }
}

TEST_F(ConsumptionPage, oilCountsByItsHeatingValue) {
  open();
  press(page(Consumption), "OldEnergyDemand0");
  type(page(Consumption), "OldEnergyDemandOil", "2500");
  EXPECT_TRUE(page(Consumption).validatePage());
  EXPECT_EQ(number(OilDemand), 2500);
  EXPECT_DOUBLE_EQ(number(EnergyDemand), 2500 * 10.7 / 0.85);
}

TEST_F(ConsumptionPage, gasCountsAtOnceAsTheKindIsWrittenFirst) {
  store.setValue(ProvidedEnergyDemandType, 0);
  open();
  press(page(Consumption), "OldEnergyDemand1");
  type(page(Consumption), "OldEnergyDemandGas", "2000");
  EXPECT_EQ(written(page(Consumption)), (QVector<int>{ProvidedEnergyDemandType, GasDemand}));
  EXPECT_DOUBLE_EQ(number(EnergyDemand), 2000 * 9.6 / 0.85);
}

TEST_F(ConsumptionPage, electricPowerIsTheDemandItselfAndLeavesTheOilAlone) {
  store.setValue(OilDemand, 1234.0);
  open();
  press(page(Consumption), "OldEnergyDemand2");
  type(page(Consumption), "OldEnergyDemandCurrent", "18000");
  EXPECT_EQ(written(page(Consumption)), (QVector<int>{ProvidedEnergyDemandType, EnergyDemand}));
  EXPECT_EQ(number(EnergyDemand), 18000);
  EXPECT_EQ(number(OilDemand), 1234);
  EXPECT_EQ(store.stored(ProvidedEnergyDemandType), QVariant(2));
}

TEST_F(ConsumptionPage, leavingItAsItIsChangesNothing) {
  for (int kind = 0; kind < 3; ++kind) {
    store.setValue(ProvidedEnergyDemandType, kind);
    store.setValue(fuels[kind].id, 1234.56789);
    const Project before = store.project();
    open();
    EXPECT_EQ(refusal(), "");
    EXPECT_EQ(changedSince(before), QVector<int>());
  }
}

TEST_F(ConsumptionPage, aResetPutsBackTheKindAndItsDemandOnly) {
  store.setValue(ProvidedEnergyDemandType, 0);
  store.setValue(OilDemand, 1000.0);
  const double demand = number(EnergyDemand);
  open();
  type(page(Consumption), "OldEnergyDemandOil", "2000");
  EXPECT_EQ(refusal(), "");
  press(page(Consumption), "OldEnergyDemand1");
  type(page(Consumption), "OldEnergyDemandGas", "500");
  EXPECT_EQ(refusal(), "");
  type(page(Consumption), "OldEnergyDemandGas", "");
  EXPECT_EQ(refusal(), red(fuels[1].message));

  answers.yes = false;
  const Project before = store.project();
  page(Consumption).cleanupPage();
  EXPECT_EQ(store.project(), before);
  EXPECT_EQ(in<QLabel>(page(Consumption), "feedback_page1")->text(), red(fuels[1].message));

  answers.yes = true;
  page(Consumption).cleanupPage();
  EXPECT_EQ(answers.shown.last(), "Reset all changes on the old energy demand configuration?");
  EXPECT_EQ(answers.titles.last(), "Tevrane");
  EXPECT_EQ(store.count(ProvidedEnergyDemandType), 0);
  EXPECT_EQ(number(OilDemand), 1000);
  EXPECT_EQ(number(EnergyDemand), demand);
  EXPECT_EQ(number(GasDemand), 500);
  EXPECT_EQ(in<QLabel>(page(Consumption), "feedback_page1")->text(), "");
}

TEST_F(ConsumptionPage, eachKindIsPutBackByItsOwnDemand) {
  for (int kind = 0; kind < 3; ++kind) {
    store.setValue(ProvidedEnergyDemandType, kind);
    store.setValue(fuels[kind].id, 1000.0 + kind);
    const Project before = store.project();
    open();
    type(page(Consumption), fuels[kind].edit, "7777");
    EXPECT_EQ(refusal(), "");
    EXPECT_EQ(number(fuels[kind].id), 7777);
    page(Consumption).cleanupPage();
    EXPECT_EQ(changedSince(before), QVector<int>());
  }
}

TEST_F(ConsumptionPage, aMessageAndWhatWasTypedOutliveAnotherLanguage) {
  store.setValue(OilDemand, 0.0);
  open();
  press(page(Consumption), "OldEnergyDemand1");
  type(page(Consumption), "OldEnergyDemandGas", "12");
  press(page(Consumption), "OldEnergyDemand0");
  EXPECT_EQ(refusal(), red(fuels[0].message));
  const ContextTranslator translator;
  tellOfLanguage(page(Consumption));
  EXPECT_EQ(in<QLabel>(page(Consumption), "feedback_page1")->text(),
            red("EngerieVerbrauchWizard/Please provide a valid value for the fuel oil demand."));
  EXPECT_EQ(in<QAbstractButton>(page(Consumption), "OldEnergyDemand0")->text(),
            "EnergyConsumptionWizardPage/Fuel oil");
  EXPECT_EQ(textIn(page(Consumption), "OldEnergyDemandGas"), "12");
}

} // namespace
} // namespace TVR::GUI
