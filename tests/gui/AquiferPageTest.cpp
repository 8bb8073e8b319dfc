#include "gui/PageUser.h"
#include "gui/wells/AquiferPages.h"

#include <QComboBox>
#include <QGroupBox>

#include <cmath>

namespace TVR::GUI {
namespace {

using namespace Parameter;

class AquiferPageTest : public PageTest {
protected:
  AquiferPageTest() {
    store.setValue(AquiferUnconfined, false);
    store.setValue(UseProvidedAquiferProperties, false);
  }
  ~AquiferPageTest() override { store.setValue(GuiLanguage, "en"); }

  bool isChecked(const char* box) { return in<QGroupBox>(page, box)->isChecked(); }
  QComboBox& materials() { return *in<QComboBox>(page, "AquifierMaterial"); }

  InputWizard wizard;
  QWizardPage& page = *aquiferPages({store}, &wizard).at(0);
};

TEST_F(AquiferPageTest, allNumbersAreShownInTheirFormats) {
  store.setValue(GroundwaterGradient, 0.12345);
  store.setValue(AquiferThickness, 12.345);
  store.setValue(GroundwaterTable, 3.5);
  store.setValue(AquiferBasis, 20);
  store.setValue(HydraulicConductivity, 0.00234);
  store.setValue(EffectivePorosity, 0.185);
  page.initializePage();
  EXPECT_EQ(textIn(page, "GW_gradient"), "0.1235");
  EXPECT_EQ(textIn(page, "GW_thickness"), "12.35");
  EXPECT_EQ(textIn(page, "GW_pegel"), "3.50");
  EXPECT_EQ(textIn(page, "GW_basis"), "20.00");
  EXPECT_EQ(textIn(page, "GW_conductivity"), "2.3e-03");
  EXPECT_EQ(textIn(page, "GW_porosity"), "18.5");
}

TEST_F(AquiferPageTest, whatIsTypedIsStored) {
  page.initializePage();
  type(page, "GW_gradient", "0.25");
  type(page, "GW_thickness", "14.5");
  type(page, "GW_conductivity", "2.5e-3");
  type(page, "GW_porosity", "19");
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(number(GroundwaterGradient), 0.25);
  EXPECT_EQ(number(AquiferThickness), 14.5);
  EXPECT_EQ(number(HydraulicConductivity), 2.5e-3);
  EXPECT_EQ(number(EffectivePorosity), 0.19);
}

TEST_F(AquiferPageTest, whatCanBeTypedIsLimited) {
  page.initializePage();
  expectTypeable(page, {{"GW_gradient", 0, 100, 4},
                        {"GW_thickness", 0, 1000, 2},
                        {"GW_pegel", 0, 1000, 2},
                        {"GW_basis", 0, 1000, 2},
                        {"GW_conductivity", 0, 1, 5},
                        {"GW_porosity", 0, 100, 2}});
  type(page, "GW_conductivity", "1e-3e5");
  EXPECT_EQ(textIn(page, "GW_conductivity"), "1e-35");
}

TEST_F(AquiferPageTest, ofTheTwoTypesExactlyOneIsChecked) {
  page.initializePage();
  EXPECT_TRUE(isChecked("confinedBox"));
  EXPECT_FALSE(isChecked("unconfinedBox"));
  toggle(page, "unconfinedBox");
  EXPECT_FALSE(isChecked("confinedBox"));
  EXPECT_TRUE(isChecked("unconfinedBox"));
  toggle(page, "unconfinedBox");
  EXPECT_TRUE(isChecked("confinedBox"));
  EXPECT_FALSE(isChecked("unconfinedBox"));
  toggle(page, "confinedBox");
  EXPECT_TRUE(isChecked("unconfinedBox"));
  store.setValue(AquiferUnconfined, true);
  page.initializePage();
  EXPECT_FALSE(isChecked("confinedBox"));
  EXPECT_TRUE(isChecked("unconfinedBox"));
}

TEST_F(AquiferPageTest, theTypeThatIsNotTakenKeepsItsValues) {
  const double thickness = number(AquiferThickness);
  page.initializePage();
  type(page, "GW_thickness", "77");
  toggle(page, "unconfinedBox");
  type(page, "GW_pegel", "2");
  type(page, "GW_basis", "22");
  EXPECT_TRUE(page.validatePage());
  EXPECT_TRUE(store.value(AquiferUnconfined).toBool());
  EXPECT_EQ(number(AquiferThickness), thickness);
  EXPECT_EQ(number(GroundwaterTable), 2);
  EXPECT_EQ(number(AquiferBasis), 22);
  page.initializePage();
  type(page, "GW_pegel", "5");
  toggle(page, "confinedBox");
  type(page, "GW_thickness", "33");
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(number(AquiferThickness), 33);
  EXPECT_EQ(number(GroundwaterTable), 2);
}

TEST_F(AquiferPageTest, theParametersAreWrittenInTheirOrder) {
  page.initializePage();
  type(page, "GW_gradient", "0.25");
  toggle(page, "unconfinedBox");
  type(page, "GW_pegel", "2");
  type(page, "GW_basis", "22");
  type(page, "GW_conductivity", "3e-3");
  type(page, "GW_porosity", "11");
  EXPECT_EQ(written(page), (QVector<int>{GroundwaterGradient, AquiferUnconfined, GroundwaterTable,
                                         AquiferBasis, HydraulicConductivity, EffectivePorosity}));
  page.initializePage();
  toggle(page, "confinedBox");
  type(page, "GW_thickness", "33");
  toggle(page, "knownConductivityAndPorosity");
  materials().setCurrentIndex(6);
  EXPECT_EQ(written(page), (QVector<int>{AquiferUnconfined, AquiferThickness,
                                         UseProvidedAquiferProperties, AquiferMaterial}));
}

TEST_F(AquiferPageTest, aMissingConductivityIsShownAsTypicalAndWritten) {
  store.setStored(HydraulicConductivity, 0.0);
  page.initializePage();
  EXPECT_EQ(textIn(page, "GW_conductivity"), "1.0e-03");
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(number(HydraulicConductivity), 0.001);
}

TEST_F(AquiferPageTest, aMissingPorosityIsShownAsTypicalAndWritten) {
  store.setStored(EffectivePorosity, 0.0);
  store.setStored(AquiferPorosity, 0.0);
  page.initializePage();
  EXPECT_EQ(textIn(page, "GW_porosity"), "20.0");
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(number(EffectivePorosity), 0.2);
}

TEST_F(AquiferPageTest, ofAConfinedAquiferTheLastMistakeIsNamed) {
  expectLastMistakeNamed(page, "feedback_page0",
                         {{[this] { type(page, "GW_gradient", ""); },
                           "Please provide a valid value for the hydraulic gradient."},
                          {[this] { type(page, "GW_thickness", ""); },
                           "Please provide a valid value for the aquifer thickness."},
                          {[this] { type(page, "GW_conductivity", ""); },
                           "Please provide a valid value for the hydraulic conductivity."},
                          {[this] { type(page, "GW_porosity", ""); },
                           "Please provide a valid value for the aquifer porosity."}},
                         store);
}

TEST_F(AquiferPageTest, ofAnUnconfinedAquiferTheLastMistakeIsNamed) {
  store.setValue(AquiferUnconfined, true);
  store.setValue(GroundwaterTable, 0);
  expectLastMistakeNamed(
      page, "feedback_page0",
      {{[this] { type(page, "GW_gradient", ""); },
        "Please provide a valid value for the hydraulic gradient."},
       {[this] { type(page, "GW_pegel", ""); },
        "Please provide a valid value for the depth of the groundwater table."},
       {[this] { type(page, "GW_basis", ""); },
        "Please provide a valid value for the depth of the aquifer base."},
       {[this] {
          type(page, "GW_pegel", "20");
          type(page, "GW_basis", "19.99");
        },
        "Please provide a valid value for the depth of the aquifer base or of the groundwater "
        "table."},
       {[this] { type(page, "GW_conductivity", ""); },
        "Please provide a valid value for the hydraulic conductivity."},
       {[this] { type(page, "GW_porosity", ""); },
        "Please provide a valid value for the aquifer porosity."}},
      store);
}

TEST_F(AquiferPageTest, fieldsOfTheOtherTypeAreNotLookedAt) {
  page.initializePage();
  in<QLineEdit>(page, "GW_pegel")->clear();
  in<QLineEdit>(page, "GW_basis")->clear();
  EXPECT_TRUE(page.validatePage());
  page.initializePage();
  in<QLineEdit>(page, "GW_thickness")->clear();
  toggle(page, "unconfinedBox");
  EXPECT_TRUE(page.validatePage());
}

TEST_F(AquiferPageTest, aGroundwaterTableAtTheBaseIsAccepted) {
  page.initializePage();
  toggle(page, "unconfinedBox");
  type(page, "GW_pegel", "12");
  type(page, "GW_basis", "12");
  EXPECT_TRUE(page.validatePage());
  EXPECT_EQ(number(GroundwaterTable), 12);
}

TEST_F(AquiferPageTest, withoutKnownValuesThoseOfTheMaterialAreTaken) {
  store.setValue(AquiferMaterial, 2);
  page.initializePage();
  auto& predefined = *in<QWidget>(page, "providedConductivityAndPorosity");
  EXPECT_FALSE(predefined.isEnabled());
  in<QLineEdit>(page, "GW_conductivity")->clear();
  toggle(page, "knownConductivityAndPorosity");
  EXPECT_TRUE(predefined.isEnabled());
  EXPECT_EQ(materials().currentData(), 2);
  QTest::keyClick(&materials(), Qt::Key_Down);
  EXPECT_TRUE(page.validatePage());
  EXPECT_TRUE(store.value(UseProvidedAquiferProperties).toBool());
  EXPECT_EQ(number(AquiferMaterial), 3);
  EXPECT_NEAR(number(HydraulicConductivity), std::sqrt(1e-5 * 1e-4), 1e-12);
  EXPECT_EQ(number(EffectivePorosity), 0.12);
  page.initializePage();
  EXPECT_TRUE(predefined.isEnabled());
  EXPECT_FALSE(isChecked("knownConductivityAndPorosity"));
  EXPECT_EQ(materials().currentData(), 3);
}

TEST_F(AquiferPageTest, withoutAMaterialTheFirstOneIsShown) {
  store.setStored(AquiferMaterial, 0);
  page.initializePage();
  EXPECT_EQ(materials().currentData(), 1);
}

TEST_F(AquiferPageTest, materialsShowTheRangeOfTheirConductivity) {
  page.initializePage();
  ASSERT_EQ(materials().count(), 9);
  EXPECT_TRUE(materials().itemText(0).endsWith(" (1e-08 to 1e-06 m/s)"))
      << materials().itemText(0).toStdString();
  EXPECT_TRUE(materials().itemText(4).endsWith("(0.0005 to 0.005 m/s)"))
      << materials().itemText(4).toStdString();
  EXPECT_EQ(materials().itemData(4), 5);
}

TEST_F(AquiferPageTest, theValuesOfTheChosenMaterialAreShown) {
  store.setValue(AquiferMaterial, 2);
  page.initializePage();
  auto& values = *in<QLabel>(page, "materialValues");
  EXPECT_EQ(values.text(), "Hydraulic conductivity 1e-07 to 1e-05 m/s, porosity 7 %");
  materials().setCurrentIndex(2);
  EXPECT_EQ(values.text(), "Hydraulic conductivity 1e-05 to 0.0001 m/s, porosity 12 %");
  tellOfLanguage(page);
  EXPECT_EQ(values.text(), "Hydraulic conductivity 1e-05 to 0.0001 m/s, porosity 12 %");
}

TEST_F(AquiferPageTest, materialsFollowTheLanguageAndKeepTheChoice) {
  page.initializePage();
  materials().setCurrentIndex(4);
  const QString english = materials().currentText();
  store.setValue(GuiLanguage, "de");
  QEvent change(QEvent::LanguageChange);
  QCoreApplication::sendEvent(&page, &change);
  EXPECT_EQ(materials().currentData(), 5);
  EXPECT_NE(materials().currentText(), english);
  EXPECT_TRUE(materials().currentText().contains("m/s"));
}

TEST_F(AquiferPageTest, onlyAPageWithActionsTakesItsTextsAnew) {
  auto& heading = *in<QLabel>(page, "label");
  const QString text = heading.text();
  heading.setText("other");
  QEvent change(QEvent::LanguageChange);
  QCoreApplication::sendEvent(&page, &change);
  EXPECT_EQ(heading.text(), "other");
  tellOfLanguage(page);
  EXPECT_EQ(heading.text(), text);
}

TEST_F(AquiferPageTest, leavingItUntouchedChangesNoEntry) {
  for (const bool isUnconfined : {false, true}) {
    store.setValue(AquiferUnconfined, isUnconfined);
    store.setValue(AquiferBasis, 13.1234);
    store.setValue(HydraulicConductivity, 0.00123456);
    const Project before = store.project();
    page.initializePage();
    EXPECT_TRUE(page.validatePage());
    // What the rules derive of the same entries is theirs.
    const QVector<int> derived{AMin, BMin, DMin, RadiusOfInfluence};
    for (const int id : changedSince(before))
      EXPECT_TRUE(derived.contains(id)) << id;
  }
}

TEST_F(AquiferPageTest, aResetWithNoLeavesEverything) {
  page.initializePage();
  type(page, "GW_gradient", "0.77");
  page.validatePage();
  in<QLabel>(page, "feedback_page0")->setText("message");
  answers.yes = false;
  const Project before = store.project();
  page.cleanupPage();
  EXPECT_EQ(answers.shown, QStringList{"Reset all changes on the aquifer parameter?"});
  EXPECT_EQ(store.project(), before);
  EXPECT_EQ(in<QLabel>(page, "feedback_page0")->text(), "message");
}

TEST_F(AquiferPageTest, aResetWithYesPutsTheEntriesBack) {
  store.setValue(AquiferMaterial, 0);
  store.setValue(HydraulicConductivity, 0.0007);
  store.setValue(EffectivePorosity, 0.17);
  const Project before = store.project();
  page.initializePage();
  type(page, "GW_gradient", "0.77");
  type(page, "GW_conductivity", "0.009");
  type(page, "GW_porosity", "30");
  toggle(page, "unconfinedBox");
  type(page, "GW_pegel", "4");
  type(page, "GW_basis", "44");
  ASSERT_TRUE(page.validatePage());
  page.cleanupPage();
  for (const int id :
       {GroundwaterGradient, AquiferUnconfined, GroundwaterTable, AquiferBasis, AquiferThickness,
        UseProvidedAquiferProperties, HydraulicConductivity, EffectivePorosity, AquiferMaterial})
    EXPECT_EQ(store.values().value(id), before.values.value(id)) << id;
}

TEST_F(AquiferPageTest, aResetBringsTheValuesOfTheMaterialAlong) {
  store.setValue(AquiferMaterial, 3);
  store.setValue(HydraulicConductivity, 0.0007);
  page.initializePage();
  page.cleanupPage();
  EXPECT_NEAR(number(HydraulicConductivity), std::sqrt(1e-5 * 1e-4), 1e-12);
  EXPECT_EQ(number(EffectivePorosity), 0.12);
}

} // namespace
} // namespace TVR::GUI
