#include "design/DesignFormulas.h"
#include "gui/PositionPageTest.h"

namespace TVR::GUI {
namespace {

using namespace Parameter;

/// What the page says of the rates of its wells, and what it makes of them.
class WellRates : public PositionPageTest {
protected:
  /// Types the rate [l/min] of a well in a period.
  void typeRate(int well, int period, const QString& rate) {
    press(wells(), well, WellModel::Name);
    press(periods(), period, WellDemandModel::Rate);
    key(periods(), Qt::Key_F2);
    type(periods(), rate);
    key(periods(), Qt::Key_Return);
  }
};

TEST_F(WellRates, aShortfallRefusesAndClearsTheEnergyFlag) {
  store.setStored(EnergyWizardDone, true);
  open();
  setRate(0, -flow * 0.9);
  setRate(1, flow * 0.9);
  EXPECT_FALSE(validates());
  EXPECT_EQ(feedback(),
            "<body style=color:red><center><b>"
            "There is a mismatch by -10 % between the required pumping rate and the sum of the "
            "currently assigned pumping rates.<br>"
            "There is a mismatch by -10 % between the required injection rate and the sum of the "
            "currently assigned injection rates.<br></b></center></body>");
  EXPECT_FALSE(store.flag(EnergyWizardDone));
}

TEST_F(WellRates, aRefusedPageStoresNoRates) {
  open();
  setRate(0, -2 * flow);
  EXPECT_FALSE(validates());
  EXPECT_EQ(feedback(), red("There is a mismatch by 0 % between the pumping and injection rate."
                            "<br>"));
  EXPECT_FALSE(store.enteredWells().rates.contains(1));
}

TEST_F(WellRates, onePercentBelowPassesAndMoreDoesNot) {
  open();
  setRate(0, -flow * 0.99);
  setRate(1, flow * 0.99);
  EXPECT_TRUE(validates());
  EXPECT_EQ(feedback(), "");
  setRate(0, -flow * 0.989999);
  setRate(1, flow * 0.989999);
  EXPECT_FALSE(validates());
}

TEST_F(WellRates, aSurplusPassesAndOnlyClearsTheFlag) {
  store.setStored(EnergyWizardDone, true);
  open();
  setRate(0, -flow * 1.5);
  setRate(1, flow * 1.5);
  EXPECT_TRUE(validates());
  EXPECT_FALSE(store.flag(EnergyWizardDone));
}

TEST_F(WellRates, withoutTheCheckMarkOnlyCoordinatesAreTested) {
  openWithPeriods(2);
  setRate(0, -5 * flow);
  store.setStored(EnergyWizardDone, true);
  EXPECT_FALSE(validates());
  EXPECT_FALSE(store.flag(EnergyWizardDone));
  click("validationCheckBox");
  store.setStored(EnergyWizardDone, true);
  EXPECT_TRUE(validates());
  EXPECT_TRUE(store.flag(EnergyWizardDone));
  EXPECT_EQ(feedback(), "");
}

TEST_F(WellRates, withoutInjectionWellsThePagePasses) {
  open();
  setRate(0, -flow);
  setRate(1, -flow / 3);
  EXPECT_TRUE(validates());
}

TEST_F(WellRates, aShortfallOfAPeriodIsOnlyToldBesideAnError) {
  openWithPeriods(2);
  store.wellModel()->setStepRate(0, 1, -flow / 2);
  store.wellModel()->setStepRate(1, 1, flow / 2);
  EXPECT_TRUE(validates());
  EXPECT_EQ(feedback(), "");
  store.wellModel()->setStepRate(0, 1, -flow / 4);
  EXPECT_FALSE(validates());
  EXPECT_EQ(feedback(),
            "<body style=color:red><center><b>"
            "There is a mismatch between the pumping and injection rate of demand step 2.<br>"
            "</b></center><center><b>"
            "There is a mismatch by -75 % between the required pumping rate and the sum of the "
            "currently assigned pumping rates of demand step 2.<br>"
            "There is a mismatch by -50 % between the required injection rate and the sum of the "
            "currently assigned injection rates of demand step 2.<br>"
            "</b></center></body>");
}

TEST_F(WellRates, aWellThatCarriesMoreThanAllMakesNewDistances) {
  store.setValue(AquiferUnconfined, false);
  store.setValue(AquiferThickness, 8.0);
  open();
  setRate(0, -2 * flow);
  setRate(1, 2 * flow);
  const auto v = [this](int id) { return number(id); };
  const DesignFormulas f;
  const double a =
      f.aMin(2 * flow, v(SimulationTime), 8, v(GroundwaterVelocity), v(EffectivePorosity),
             v(DensityWater), v(DensityAquifer), v(HeatCapacityWater), v(HeatCapacityStone));
  const double b = f.bMin(2 * flow, v(SimulationTime), 8, v(RadiusOfInfluence));
  const double d = f.dMin(1, 2 * flow, v(SimulationTime), 8, v(GroundwaterVelocity));
  store.setStored(AMin, 0.0);
  store.setStored(BMin, 0.0);
  store.setStored(DMin, 0.0);
  EXPECT_TRUE(validates());
  EXPECT_EQ(v(AMin), a);
  EXPECT_EQ(v(BMin), b);
  EXPECT_EQ(v(DMin), d);
}

TEST_F(WellRates, anUnconfinedAquiferCountsFromItsWaterTable) {
  store.setValue(AquiferUnconfined, true);
  store.setValue(GroundwaterTable, 3.0);
  store.setValue(AquiferBasis, 9.0);
  open();
  setRate(0, -2 * flow);
  setRate(1, 2 * flow);
  const double b =
      DesignFormulas().bMin(2 * flow, number(SimulationTime), 6, number(RadiusOfInfluence));
  store.setStored(BMin, 0.0);
  EXPECT_TRUE(validates());
  EXPECT_EQ(number(BMin), b);
}

TEST_F(WellRates, wellsWithinTheDesignKeepTheDistances) {
  open();
  store.setStored(DMin, 77.0);
  EXPECT_TRUE(validates());
  EXPECT_EQ(number(DMin), 77);
}

TEST_F(WellRates, theRecommendationHidesWhereAWellPumps) {
  open();
  EXPECT_FALSE(isShown("groupBoxRecommendation"));
  setRate(0, flow);
  EXPECT_TRUE(isShown("groupBoxRecommendation"));
  setRate(0, flow * 1.0999);
  EXPECT_TRUE(isShown("groupBoxRecommendation"));
  setRate(0, flow * 1.101);
  EXPECT_FALSE(isShown("groupBoxRecommendation"));
  setRate(0, flow * 0.95);
  EXPECT_TRUE(isShown("groupBoxRecommendation"));
}

TEST_F(WellRates, aProjectBegunAfterAnotherOneIsTestedToo) {
  store.wellDemandModel();
  store.reset();
  store.setValue(MeanFlowRate, flow);
  ASSERT_EQ(store.demandModel()->rowCount(), 0);
  open();
  setRate(0, -2 * flow);
  EXPECT_FALSE(validates());
}

TEST_F(WellRates, whatIsWrongIsSaidInItsOrder) {
  open();
  setRate(0, -flow / 2);
  setRate(1, flow / 4);
  store.setStored(NumberOfWells, 3); // one more than there are places, at two thirds of the flow
  EXPECT_FALSE(validates());
  EXPECT_EQ(
      feedback(),
      "<body style=color:red><center><b>"
      "Please provide a valid x coordinate for the well: Well 3<br>"
      "Please provide a valid y coordinate for the well: Well 3<br>"
      "There is a mismatch by 0 % between the pumping and injection rate.<br>"
      "There is a mismatch by -50 % between the required pumping rate and the sum of the "
      "currently assigned pumping rates.<br>"
      "There is a mismatch by -8.33333 % between the required injection rate and the sum of the "
      "currently assigned injection rates.<br></b></center></body>");
}

TEST_F(WellRates, aPeriodWithoutAnyRateMatchesButFallsShort) {
  openWithPeriods(2);
  EXPECT_FALSE(validates());
  EXPECT_EQ(feedback(),
            "<body style=color:red><center><b>"
            "There is a mismatch by -100 % between the required pumping rate and the sum of the "
            "currently assigned pumping rates.<br>"
            "There is a mismatch by -100 % between the required injection rate and the sum of the "
            "currently assigned injection rates.<br></b></center></body>");
}

TEST_F(WellRates, aPeriodThatPumpsAndInjectsNothingDoesNotMatch) {
  openWithPeriods(2);
  typeRate(0, 1, "-6");
  EXPECT_FALSE(validates());
  EXPECT_TRUE(feedback().startsWith(
      "<body style=color:red><center><b>"
      "There is a mismatch between the pumping and injection rate of demand step 2.<br>"
      "</b></center><center><b>There is a mismatch by -100 % between the required injection rate"))
      << feedback().toStdString();
}

TEST_F(WellRates, aPeriodInWhichAllWellsPumpIsNotLookedAt) {
  openWithPeriods(2);
  typeRate(0, 1, "-1");
  typeRate(1, 1, "-1");
  EXPECT_TRUE(validates());
  EXPECT_EQ(feedback(), "");
}

} // namespace
} // namespace TVR::GUI
