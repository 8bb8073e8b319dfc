#include "gui/PageUser.h"
#include "gui/mapping/CompassWidget.h"
#include "gui/simulation/SimulationPages.h"
#include "project/Units.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QSpinBox>

namespace TVR::GUI {
namespace {

using namespace Parameter;

class SimulationParameterPageTest : public PageTest {
protected:
  QComboBox& box(const char* name) { return *in<QComboBox>(page, name); }
  bool isChecked(const char* button) { return in<QAbstractButton>(page, button)->isChecked(); }
  QSpinBox& direction() { return *in<QSpinBox>(page, "FlowDirection"); }
  CompassWidget& compass() { return *page.findChild<CompassWidget*>(); }

  InputWizard wizard;
  QWizardPage& page = *simulationPages({store}, &wizard).at(0);
};

TEST_F(SimulationParameterPageTest, theFormHasItsRangesAndDefaults) {
  EXPECT_EQ(direction().minimum(), 0);
  EXPECT_EQ(direction().maximum(), 360);
  EXPECT_EQ(direction().value(), 90);
  auto& elements = *in<QSpinBox>(page, "FVelements");
  EXPECT_EQ(elements.minimum(), 1000);
  EXPECT_EQ(elements.maximum(), 100000);
  EXPECT_EQ(elements.value(), 2500);
  EXPECT_FALSE(in<QGroupBox>(page, "EnergyExchangeGroupBox")->isChecked());
  QStringList years;
  for (int i = 0; i < box("SimulationTime").count(); ++i)
    years << box("SimulationTime").itemText(i);
  EXPECT_EQ(years, (QStringList{"10", "30"}));
  QStringList isotherms;
  for (int i = 0; i < box("Isotherms").count(); ++i)
    isotherms << box("Isotherms").itemText(i);
  EXPECT_EQ(isotherms, (QStringList{"none", ".5", "2", "4", "5"}));
}

TEST_F(SimulationParameterPageTest, whatIsStoredIsShown) {
  store.setValue(GroundwaterFlowDirection, 123.7);
  store.setValue(SimulationTime, 10 * secondsPerYear);
  store.setValue(AdditionalIsotherm, 4.0);
  store.setValue(MaxNumberOfElements, 5000);
  store.setValue(ExchangeBedrock, true);
  store.setValue(ExchangeCaprock, false);
  page.initializePage();
  EXPECT_EQ(direction().value(), store.value(GroundwaterFlowDirection).toInt());
  EXPECT_EQ(compass().angle(), direction().value());
  EXPECT_EQ(box("SimulationTime").currentText(), "10");
  EXPECT_EQ(box("Isotherms").currentText(), "4");
  EXPECT_EQ(in<QSpinBox>(page, "FVelements")->value(), 5000);
  EXPECT_TRUE(isChecked("bedrockEnergyExchangeCheckBox"));
  EXPECT_FALSE(isChecked("caprockEnergyExchangeCheckBox"));
}

TEST_F(SimulationParameterPageTest, countsOfAFileAreTextsAndMayHaveAPoint) {
  store.setStored(GroundwaterFlowDirection, "135.5");
  store.setStored(MaxNumberOfElements, "5000.0");
  page.initializePage();
  EXPECT_EQ(direction().value(), 136);
  EXPECT_EQ(compass().angle(), 136);
  EXPECT_EQ(in<QSpinBox>(page, "FVelements")->value(), 5000);
  EXPECT_TRUE(page.validatePage());
  store.setValue(GroundwaterFlowDirection, "135.5");
  page.cleanupPage();
  EXPECT_EQ(answers.shown, QStringList()) << "5000 is what 5000.0 was";
}

TEST_F(SimulationParameterPageTest, theGroupOfTheExchangeIsCheckedWithEitherOfBoth) {
  for (const auto& [caprock, bedrock] :
       {std::pair{false, false}, {true, false}, {false, true}, {true, true}}) {
    store.setValue(ExchangeCaprock, caprock);
    store.setValue(ExchangeBedrock, bedrock);
    page.initializePage();
    EXPECT_EQ(in<QGroupBox>(page, "EnergyExchangeGroupBox")->isChecked(), caprock || bedrock);
  }
}

TEST_F(SimulationParameterPageTest, theExchangeIsWrittenWhateverTheGroupAroundItShows) {
  store.setValue(ExchangeCaprock, true);
  store.setValue(ExchangeBedrock, false);
  page.initializePage();
  toggle(page, "EnergyExchangeGroupBox");
  ASSERT_FALSE(in<QGroupBox>(page, "EnergyExchangeGroupBox")->isChecked());
  EXPECT_TRUE(page.validatePage());
  EXPECT_TRUE(store.value(ExchangeCaprock).toBool());
  EXPECT_FALSE(store.value(ExchangeBedrock).toBool());
}

TEST_F(SimulationParameterPageTest, whatIsChosenIsStored) {
  store.setValue(ExchangeCaprock, true);
  store.setValue(ExchangeBedrock, false);
  page.initializePage();
  direction().setValue(200);
  box("SimulationTime").setCurrentIndex(0);
  box("Isotherms").setCurrentIndex(4);
  in<QSpinBox>(page, "FVelements")->setValue(12345);
  if (!in<QGroupBox>(page, "EnergyExchangeGroupBox")->isChecked())
    toggle(page, "EnergyExchangeGroupBox");
  in<QCheckBox>(page, "caprockEnergyExchangeCheckBox")->setChecked(false);
  in<QCheckBox>(page, "bedrockEnergyExchangeCheckBox")->setChecked(true);
  EXPECT_EQ(written(page),
            (QVector<int>{AdditionalIsotherm, GroundwaterFlowDirection, SimulationTime,
                          MaxNumberOfElements, ExchangeBedrock, ExchangeCaprock}));
  EXPECT_EQ(number(GroundwaterFlowDirection), 200);
  EXPECT_EQ(number(SimulationTime), 315576000.0);
  EXPECT_EQ(number(AdditionalIsotherm), 5);
  EXPECT_EQ(number(MaxNumberOfElements), 12345);
  EXPECT_FALSE(store.value(ExchangeCaprock).toBool());
  EXPECT_TRUE(store.value(ExchangeBedrock).toBool());
}

TEST_F(SimulationParameterPageTest, aTimeThatIsNoItemShowsNothingAndStays) {
  store.setValue(SimulationTime, 20 * secondsPerYear);
  page.initializePage();
  EXPECT_EQ(box("SimulationTime").currentIndex(), -1);
  EXPECT_EQ(box("SimulationTime").currentText(), "");
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(number(SimulationTime), 20 * secondsPerYear);
}

TEST_F(SimulationParameterPageTest, theYearsAreWholeOnes) {
  store.setValue(SimulationTime, 10.9 * secondsPerYear);
  page.initializePage();
  EXPECT_EQ(box("SimulationTime").currentText(), "10");
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(number(SimulationTime), 315576000.0);
}

TEST_F(SimulationParameterPageTest, noIsothermIsStoredAsMinusOne) {
  store.setValue(AdditionalIsotherm, 2.0);
  page.initializePage();
  box("Isotherms").setCurrentIndex(0);
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(store.value(AdditionalIsotherm), -1.0);
  page.initializePage();
  EXPECT_EQ(box("Isotherms").currentIndex(), 0);
}

TEST_F(SimulationParameterPageTest, anIsothermThatIsNoItemIsShownAsNone) {
  store.setValue(AdditionalIsotherm, 3.0);
  page.initializePage();
  EXPECT_EQ(box("Isotherms").currentIndex(), 0);
}

TEST_F(SimulationParameterPageTest, halfAKelvinHasNoZeroBeforeThePoint) {
  store.setValue(AdditionalIsotherm, 0.5);
  page.initializePage();
  EXPECT_EQ(box("Isotherms").currentText(), ".5");
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(store.value(AdditionalIsotherm), 0.5);
}

TEST_F(SimulationParameterPageTest, compassAndNumberFollowEachOther) {
  page.initializePage();
  direction().setValue(45);
  EXPECT_EQ(compass().angle(), 45);
  QTest::keyClick(&compass(), Qt::Key_Right);
  EXPECT_EQ(direction().value(), 46);
  compass().resize(100, 100);
  QTest::mouseClick(&compass(), Qt::LeftButton, {}, QPoint(50, 10));
  EXPECT_EQ(direction().value(), 360);
  EXPECT_EQ(compass().angle(), 360);
}

TEST_F(SimulationParameterPageTest, aPressInTheCentreOfTheCompassGivesTheLeastDirection) {
  page.initializePage();
  compass().resize(100, 100);
  QTest::mouseClick(&compass(), Qt::LeftButton, {}, QPoint(50, 50));
  EXPECT_EQ(direction().value(), 0);
}

TEST_F(SimulationParameterPageTest, theNeedleShowsWhereTheWaterComesFrom) {
  page.initializePage();
  direction().setValue(0);
  const QImage picture = compass().grab().toImage();
  const int x = picture.width() / 2 + 1;
  const int y = picture.height() / 2;
  const int nearEdge = std::min(picture.width(), picture.height()) / 2 - 3;
  EXPECT_LT(picture.pixelColor(x, y + nearEdge).red(), 120);
  EXPECT_GT(picture.pixelColor(x, y - nearEdge).red(), 200);
}

TEST_F(SimulationParameterPageTest, leavingItUntouchedChangesNoEntry) {
  const Project before = store.project();
  page.initializePage();
  EXPECT_TRUE(page.validatePage());
  const QVector<int> derived{AMin, BMin, DMin};
  for (const int id : changedSince(before))
    EXPECT_TRUE(derived.contains(id)) << id;
}

TEST_F(SimulationParameterPageTest, withoutAChangeNoResetIsAskedFor) {
  page.initializePage();
  page.cleanupPage();
  EXPECT_EQ(answers.shown, QStringList());
}

TEST_F(SimulationParameterPageTest, eachChangeIsAskedForAndPutBack) {
  store.setValue(AdditionalIsotherm, 2.0);
  const std::pair<int, QVariant> changes[] = {
      {GroundwaterFlowDirection, 11},
      {SimulationTime, 10 * secondsPerYear},
      {AdditionalIsotherm, 2.25},
      {MaxNumberOfElements, 4321},
      {ExchangeBedrock, !store.value(ExchangeBedrock).toBool()},
      {ExchangeCaprock, !store.value(ExchangeCaprock).toBool()}};
  for (const auto& [id, value] : changes) {
    page.initializePage();
    const QVariant before = store.value(id);
    store.setValue(id, value);
    answers.shown.clear();
    answers.yes = false;
    page.cleanupPage();
    EXPECT_EQ(answers.shown, QStringList{"Reset all changes on the simulation parameter?"}) << id;
    EXPECT_EQ(store.value(id), value) << id;
    answers.yes = true;
    page.cleanupPage();
    EXPECT_EQ(store.value(id), before) << id;
  }
}

TEST_F(SimulationParameterPageTest, theFinishButtonSaysWhatFollows) {
  for (QWizardPage* const each :
       simulationPages({store}, &wizard) + extendedSimulationPages({store}, &wizard))
    wizard.addPage(each);
  QStringList names;
  for (const int id : wizard.pageIds())
    names << wizard.page(id)->metaObject()->className();
  EXPECT_EQ(names, (QStringList{"TVR::GUI::SimulationParameterWizardPage",
                                "TVR::GUI::ExtendedSimulationParameterWizardPage"}));
  wizard.restart();
  EXPECT_EQ(wizard.buttonText(QWizard::FinishButton), "Simulate");
}

TEST_F(SimulationParameterPageTest, onlyAPageWithActionsTakesItsTextsAnew) {
  page.initializePage();
  box("Isotherms").setCurrentIndex(3);
  auto& group = *in<QGroupBox>(page, "timeGroup");
  group.setTitle("other");
  QEvent change(QEvent::LanguageChange);
  QCoreApplication::sendEvent(&page, &change);
  EXPECT_EQ(group.title(), "other");
  tellOfLanguage(page);
  EXPECT_EQ(group.title(), "Time");
  EXPECT_EQ(box("Isotherms").currentIndex(), 3);
}

} // namespace
} // namespace TVR::GUI
