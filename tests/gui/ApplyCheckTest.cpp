#include "gui/editor/ApplyCheck.h"

#include "gui/editor/PropertyEdits.h"
#include "project/ProjectReader.h"
#include "project/Units.h"
#include "support/ProjectTest.h"

using namespace TVR;
using namespace TVR::Parameter;
using namespace TVR::GUI;

namespace {

/// The doublet, with some other values that are not applied.
class ApplyCheckTest : public ProjectTest {
protected:
  ApplyCheckTest() { read(BatchProject::doublet()); }

  bool isAllowed() const {
    const ApplyVerdict verdict = checkApply(edited);
    EXPECT_EQ(verdict.message, "");
    return verdict.isAllowed;
  }
  bool isAllowedWith(int id, const QVariant& value) {
    layEdits(edited, {{id, value}});
    return isAllowed();
  }
  void put(int well, double x, double y) {
    store.setCells(ProjectTable::Well, {{well, WellModel::X, x}, {well, WellModel::Y, y}});
  }

  ProjectOverlay edited{store};
};

const char* const onePlace = "<b>More then one well at one position not supported started with "
                             "version 1.2!<br>Redefine the wells in use!</b><br>";

} // namespace

TEST_F(ApplyCheckTest, aSoundSiteIsAllowed) {
  EXPECT_TRUE(isAllowed());
}

TEST_F(ApplyCheckTest, twoWellsAtOnePlaceAreRefusedWithAMessage) {
  put(1, 0, 0);
  EXPECT_FALSE(checkApply(edited).isAllowed);
  EXPECT_EQ(checkApply(edited).message, onePlace);
  put(1, 0, 1e-9);
  EXPECT_TRUE(isAllowed());
}

TEST_F(ApplyCheckTest, withoutRatesNothingIsSaid) {
  setWell(0, 0, 0);
  setWell(1, 0, 0);
  EXPECT_FALSE(isAllowed());
  setWell(1, 0.5e-25, 0);
  EXPECT_FALSE(isAllowed());
  setWell(1, 1e-25, 0);
  EXPECT_TRUE(isAllowed());
}

TEST_F(ApplyCheckTest, aRateOfAnyPeriodCounts) {
  setWell(0, 0, 0);
  setWell(1, 0, 0);
  store.setValue(NumberOfDemandsPerYear, 2);
  EXPECT_FALSE(isAllowed());
  store.wellModel()->setStepRate(1, 1, -0.001);
  EXPECT_TRUE(isAllowed());
}

TEST_F(ApplyCheckTest, whatTheDesignIsMadeOfHasToBePositive) {
  for (const int id : {EffectivePorosity, HydraulicConductivity, AquiferThickness}) {
    const QVariant before = store.value(id);
    EXPECT_FALSE(isAllowedWith(id, 0.0)) << id;
    EXPECT_TRUE(isAllowedWith(id, before)) << id;
  }
  EXPECT_FALSE(isAllowedWith(GroundwaterGradient, -0.1)); // and so has what comes out
}

TEST_F(ApplyCheckTest, anUnconfinedAquiferNeedsWaterAboveItsBase) {
  edited.set(AquiferUnconfined, true);
  edited.set(AquiferThickness, 0.0);
  edited.set(GroundwaterTable, 4.0);
  EXPECT_FALSE(isAllowedWith(AquiferBasis, 4.0));
  EXPECT_FALSE(isAllowedWith(AquiferBasis, 3.0));
  EXPECT_TRUE(isAllowedWith(AquiferBasis, 9.0));
}

TEST_F(ApplyCheckTest, withOnePeriodLessThanAYearIsNoTime) {
  EXPECT_FALSE(isAllowedWith(SimulationTime, 0.99 * secondsPerYear));
  EXPECT_TRUE(isAllowedWith(SimulationTime, secondsPerYear));
  EXPECT_FALSE(isAllowedWith(SimulationTime, 0.0));
}

TEST_F(ApplyCheckTest, withOnePeriodItsLengthIsTheTimeOfAYear) {
  store.setCells(ProjectTable::Demand, {{0, 0, 0.0}});
  EXPECT_FALSE(isAllowed());
  EXPECT_TRUE(isAllowedWith(SimulationTime, 100 * secondsPerYear)); // a century stands for itself
}

TEST_F(ApplyCheckTest, withSeveralPeriodsAnyTimeAboveZeroIsOne) {
  store.setValue(NumberOfDemandsPerYear, 2);
  EXPECT_TRUE(isAllowedWith(SimulationTime, 0.1 * secondsPerYear));
  EXPECT_FALSE(isAllowedWith(SimulationTime, 0.0));
}

TEST_F(ApplyCheckTest, wellsAtOnePlaceAreNotLookedAtWithoutATime) {
  put(1, 0, 0);
  EXPECT_FALSE(isAllowedWith(SimulationTime, 0.0));
}
