#include "design/ParameterId.h"
#include "gui/EnergyPagesTest.h"

#include <QComboBox>

namespace TVR::GUI {
namespace {

using namespace Parameter;

constexpr const char* objectives[] = {"ReplaceHeating", "NewHeating", "NewCoolingAndHeating"};

class ObjectivePage : public EnergyPagesTest {
protected:
  bool isChecked(const char* button) {
    return in<QAbstractButton>(page(Feature), button)->isChecked();
  }
  QComboBox& buildings() { return *in<QComboBox>(page(Feature), "BuildingType"); }
};

TEST_F(ObjectivePage, aButtonStandsForEachObjective) {
  const char* const texts[] = {
      "Replacement of an existing heating installation (e.g. oil or gas fueled)",
      "Install a new system for heating", "Install a new system for cooling and heating"};
  for (int objective = 0; objective < 3; ++objective) {
    store.setValue(EnergyDemandType, objective);
    enter(Feature);
    EXPECT_TRUE(isChecked(objectives[objective]));
    EXPECT_EQ(in<QAbstractButton>(page(Feature), objectives[objective])->text(), texts[objective]);
  }
}

TEST_F(ObjectivePage, anObjectiveBeyondTheLastIsTheLast) {
  store.setValue(EnergyDemandType, "4");
  enter(Feature);
  EXPECT_TRUE(isChecked("NewCoolingAndHeating"));
}

TEST_F(ObjectivePage, whatIsChosenIsWritten) {
  store.setValue(EnergyDemandType, 2);
  enter(Feature);
  for (int objective = 0; objective < 3; ++objective) {
    press(page(Feature), objectives[objective]);
    buildings().setFocus();
    QTest::keyClick(&buildings(), Qt::Key_Down);
    EXPECT_EQ(written(page(Feature)), (QVector<int>{EnergyDemandType, BuildingType}));
    EXPECT_EQ(store.stored(EnergyDemandType), QVariant(objective));
    EXPECT_EQ(store.stored(BuildingType).toInt(), 3 + objective);
  }
}

TEST_F(ObjectivePage, theBuildingTypeIsFoundByItsNumber) {
  for (const QVariant& stored : {QVariant(5), QVariant(5.0), QVariant("5"), QVariant("5.0")}) {
    store.setStored(BuildingType, stored);
    enter(Feature);
    EXPECT_EQ(buildings().currentData(), QVariant(5));
    EXPECT_EQ(buildings().currentText(), store.value(BuildingType).toString());
  }
  store.setStored(BuildingType, 0);
  enter(Feature);
  EXPECT_EQ(buildings().currentIndex(), 0);
  EXPECT_EQ(buildings().count(), store.choices(BuildingType).size());
}

TEST_F(ObjectivePage, leavingItAsItIsChangesNothing) {
  store.setValue(EnergyDemandType, 1);
  store.setValue(BuildingType, 4);
  const Project before = store.project();
  enter(Feature);
  EXPECT_TRUE(page(Feature).validatePage());
  EXPECT_EQ(changedSince(before), QVector<int>());
}

TEST_F(ObjectivePage, aResetAsksNothing) {
  const Project before = store.project();
  enter(Feature);
  press(page(Feature), "NewCoolingAndHeating");
  QTest::keyClick(&buildings(), Qt::Key_Down);
  EXPECT_TRUE(page(Feature).validatePage());
  EXPECT_NE(changedSince(before), QVector<int>());
  page(Feature).cleanupPage();
  EXPECT_EQ(changedSince(before), QVector<int>());
  EXPECT_EQ(answers.shown, QStringList());
}

TEST_F(ObjectivePage, anotherLanguageGivesTheBuildingsOtherNames) {
  store.setValue(BuildingType, 5);
  enter(Feature);
  const QString english = buildings().currentText();
  store.setValue(GuiLanguage, "de");
  tellOfLanguage(page(Feature));
  EXPECT_EQ(buildings().currentData().toInt(), 5);
  EXPECT_EQ(buildings().currentText(), store.value(BuildingType).toString());
  EXPECT_NE(buildings().currentText(), english);
  EXPECT_EQ(buildings().count(), store.choices(BuildingType).size());
  store.setValue(GuiLanguage, "en");
}

TEST_F(ObjectivePage, theObjectiveDecidesTheWay) {
  enter(Feature);
  const int next[] = {Consumption, Definition, Cooling};
  for (int objective = 0; objective < 3; ++objective) {
    press(page(Feature), objectives[objective]);
    EXPECT_EQ(placeAfter(Feature), next[objective]);
  }
}

class DefinitionPage : public EnergyPagesTest {
protected:
  bool isChecked(const char* button) {
    return in<QAbstractButton>(page(Definition), button)->isChecked();
  }
};

TEST_F(DefinitionPage, whetherTheDemandIsCalculatedIsShownAndDecidesTheWay) {
  store.setValue(CalculateEnergyDemand, true);
  enter(Definition);
  EXPECT_TRUE(isChecked("DemandApproximated"));
  EXPECT_EQ(placeAfter(Definition), Approximation);
  store.setValue(CalculateEnergyDemand, false);
  enter(Definition);
  EXPECT_TRUE(isChecked("DemandDetermined"));
  EXPECT_EQ(placeAfter(Definition), Determination);
}

TEST_F(DefinitionPage, whatIsChosenIsWrittenAsAFlag) {
  enter(Definition);
  press(page(Definition), "DemandApproximated");
  EXPECT_TRUE(page(Definition).validatePage());
  EXPECT_EQ(store.stored(CalculateEnergyDemand), QVariant(true));
  press(page(Definition), "DemandDetermined");
  EXPECT_TRUE(page(Definition).validatePage());
  EXPECT_EQ(store.stored(CalculateEnergyDemand), QVariant(false));
}

TEST_F(DefinitionPage, leavingItAsItIsChangesNothing) {
  for (const bool isCalculated : {false, true}) {
    store.setValue(CalculateEnergyDemand, isCalculated);
    const Project before = store.project();
    enter(Definition);
    EXPECT_TRUE(page(Definition).validatePage());
    EXPECT_EQ(changedSince(before), QVector<int>());
  }
}

TEST_F(DefinitionPage, aResetAsksNothing) {
  enter(Definition);
  press(page(Definition), "DemandApproximated");
  EXPECT_TRUE(page(Definition).validatePage());
  page(Definition).cleanupPage();
  EXPECT_FALSE(store.flag(CalculateEnergyDemand));
  EXPECT_EQ(answers.shown, QStringList());
}

TEST_F(DefinitionPage, anotherLanguageKeepsTheChoice) {
  enter(Definition);
  press(page(Definition), "DemandApproximated");
  tellOfLanguage(page(Definition));
  EXPECT_TRUE(isChecked("DemandApproximated"));
}

} // namespace
} // namespace TVR::GUI
