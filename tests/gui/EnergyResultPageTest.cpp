#include "design/ParameterId.h"
#include "gui/EnergyPagesTest.h"

#include <QGroupBox>

namespace TVR::GUI {
namespace {

using namespace Parameter;

class EnergyResultPage : public EnergyPagesTest {
protected:
  QString text(const char* label) { return in<QLabel>(page(Result), label)->text(); }
};

TEST_F(EnergyResultPage, figuresStandInTheirUnits) {
  store.setStored(EnergyDemand, 12345.6);
  store.setStored(Power, 15.4);
  store.setStored(UsedTemperatureChange, 3.24);
  store.setStored(MaximumFlowRate, 0.00123);
  store.setStored(MeanFlowRate, 0.000321);
  enter(Result);
  EXPECT_EQ(text("EnergyDemandRes"), "12346");
  EXPECT_EQ(text("PowerRes"), "15");
  EXPECT_EQ(text("TemperatureChangeRes"), "3.2");
  EXPECT_EQ(text("MaximumRateRes"), "4.4");
  EXPECT_EQ(text("MaximumRateLitresRes"), "73.8");
  EXPECT_EQ(text("AnnualRateRes"), "1.16");
  EXPECT_EQ(text("AnnualRateLitresRes"), "19.3");
}

TEST_F(EnergyResultPage, theAnnualDemandIsHiddenWithCoolingAndHeating) {
  auto* const box = in<QGroupBox>(page(Result), "annualDemandBox");
  EXPECT_EQ(box->title(), "Annual energy demand");
  for (const int type : {0, 1, 2, 1}) {
    store.setValue(EnergyDemandType, type);
    enter(Result);
    EXPECT_EQ(box->isVisibleTo(&page(Result)), type != 2);
  }
}

TEST_F(EnergyResultPage, withAllThreeFiguresTheWizardIsDone) {
  enter(Result);
  EXPECT_EQ(written(page(Result)), QVector<int>{EnergyWizardDone});
  EXPECT_EQ(store.stored(EnergyWizardDone), QVariant(true));
}

TEST_F(EnergyResultPage, withoutOneOfThemItCannotBeFinishedAndSaysNothing) {
  for (const int id : {EnergyDemand, Power, UsedTemperatureChange}) {
    const QVariant value = store.stored(id);
    store.setStored(EnergyWizardDone, true);
    store.setStored(id, 0.0);
    enter(Result);
    EXPECT_FALSE(page(Result).validatePage());
    EXPECT_EQ(store.stored(EnergyWizardDone), QVariant(false));
    EXPECT_EQ(answers.shown, QStringList());
    for (const QLabel* label : page(Result).findChildren<QLabel*>())
      EXPECT_FALSE(label->text().contains("color:red"));
    store.setStored(id, value);
  }
}

TEST_F(EnergyResultPage, itIsTheLastAndHasNoReset) {
  EXPECT_EQ(page(Result).nextId(), -1);
  enter(Result);
  const Project before = store.project();
  page(Result).cleanupPage();
  EXPECT_EQ(store.project(), before);
  EXPECT_EQ(answers.shown, QStringList());
}

TEST_F(EnergyResultPage, figuresOutliveAnotherLanguage) {
  enter(Result);
  tellOfLanguage(page(Result));
  EXPECT_EQ(text("EnergyDemandRes"), "30000");
}

} // namespace
} // namespace TVR::GUI
