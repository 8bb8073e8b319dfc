#include "tables/WellModel.h"
#include "tables/WellParameters.h"

#include <gtest/gtest.h>

namespace TVR {
namespace {

constexpr int withdrawal = 0;
constexpr int injection = 1;

/// Two wells: a withdrawal and an injection well, with all rates derived.
class WellStepsTest : public testing::Test {
protected:
  WellStepsTest() : model(wells, parameters) {}

  void setRate(int well, double rate) { model.setData(model.index(well, 3), rate); }
  void setTemperatureChange(int well, double change) {
    model.setData(model.index(well, 4), change);
  }

  MapParameters parameters = wellParameters(2);
  Wells wells = wellsAt({{0.0, 0.0}, {10.0, 0.0}});
  WellModel model;
};

TEST_F(WellStepsTest, firstPeriodHasTheMeanAnnualRate) {
  EXPECT_DOUBLE_EQ(model.stepRate(withdrawal, 0, Qt::EditRole), -0.004);
  EXPECT_DOUBLE_EQ(model.stepRate(withdrawal, 0, Qt::DisplayRole), -14.4);
}

TEST_F(WellStepsTest, furtherPeriodsHaveNoRate) {
  EXPECT_EQ(model.stepRate(withdrawal, 1, Qt::EditRole), 0.0);
  EXPECT_EQ(model.stepRate(withdrawal, 1, Qt::DisplayRole), 0.0);
}

TEST_F(WellStepsTest, setRateOfAPeriodIsShownPerHourAndEditedPerSecond) {
  EXPECT_TRUE(model.setStepRate(injection, 1, 0.25));
  EXPECT_EQ(model.stepRate(injection, 1, Qt::EditRole), 0.25);
  EXPECT_EQ(model.stepRate(injection, 1, Qt::DisplayRole), 900.0);
}

TEST_F(WellStepsTest, setRateOfTheFirstPeriodHidesTheMeanAnnualRate) {
  model.setStepRate(injection, 0, 0.25);
  EXPECT_EQ(model.stepRate(injection, 0, Qt::EditRole), 0.25);
  EXPECT_DOUBLE_EQ(model.data(model.index(injection, 3), Qt::EditRole).toDouble(), meanFlowRate);
}

TEST_F(WellStepsTest, rateOfOnePeriodLeavesTheOthersAlone) {
  model.setStepRate(injection, 1, 0.25);
  EXPECT_DOUBLE_EQ(model.stepRate(injection, 0, Qt::EditRole), meanFlowRate);
  EXPECT_EQ(model.stepRate(injection, 2, Qt::EditRole), 0.0);
}

TEST_F(WellStepsTest, firstPeriodHasTheTemperatureChangeOfTheWell) {
  setRate(injection, 0.1);
  setTemperatureChange(injection, -3.0);
  EXPECT_EQ(model.stepTemperatureChange(injection, 0, Qt::EditRole), -3.0);
  EXPECT_EQ(model.stepTemperatureChange(injection, 0, Qt::DisplayRole), -3.0);
}

TEST_F(WellStepsTest, furtherPeriodsHaveNoTemperatureChange) {
  EXPECT_EQ(model.stepTemperatureChange(injection, 1, Qt::EditRole), 0.0);
}

TEST_F(WellStepsTest, withdrawalHasNoTemperatureChangeEvenIfOneIsSet) {
  model.setStepRate(injection, 1, -0.1);
  EXPECT_TRUE(model.setStepTemperatureChange(injection, 1, -3.0));
  EXPECT_EQ(model.stepTemperatureChange(injection, 1, Qt::EditRole), 0.0);
}

TEST_F(WellStepsTest, setTemperatureChangeOfAPeriodIsTaken) {
  model.setStepTemperatureChange(injection, 1, -3.0);
  EXPECT_EQ(model.stepTemperatureChange(injection, 1, Qt::EditRole), -3.0);
  EXPECT_EQ(model.stepTemperatureChange(injection, 1, Qt::DisplayRole), -3.0);
}

TEST_F(WellStepsTest, wellWithSomeSetPeriodsHasTheUsedTemperatureChangeInTheFirst) {
  setRate(injection, 0.1);
  setTemperatureChange(injection, -3.0);
  model.setStepTemperatureChange(injection, 1, -2.0);
  EXPECT_EQ(model.stepTemperatureChange(injection, 0, Qt::EditRole), usedTemperatureChange);
}

TEST_F(WellStepsTest, wellWithSomeSetPeriodsHasNoTemperatureChangeInTheOthers) {
  model.setStepTemperatureChange(injection, 1, -2.0);
  EXPECT_EQ(model.stepTemperatureChange(injection, 2, Qt::EditRole), 0.0);
}

TEST_F(WellStepsTest, wellBeyondTheRowsHasNoRateAndNoTemperatureChange) {
  for (const int role : {Qt::DisplayRole, Qt::EditRole}) {
    EXPECT_EQ(model.stepRate(2, 0, role), 0.0);
    EXPECT_EQ(model.stepTemperatureChange(2, 0, role), 0.0);
  }
}

TEST_F(WellStepsTest, meanValuesOfAWellThatLostItsRowDoNotCountForItsPeriods) {
  setRate(injection, 0.1);
  setTemperatureChange(injection, -3.0);
  parameters.values[Parameter::NumberOfWells] = 1.0;
  EXPECT_EQ(model.stepRate(injection, 0, Qt::EditRole), 0.0);
  EXPECT_EQ(model.stepTemperatureChange(injection, 0, Qt::EditRole), 0.0);
}

TEST_F(WellStepsTest, wellBeyondTheRowsHasTheValuesThatWereSetForItsPeriods) {
  model.setStepRate(2, 1, 0.25);
  model.setStepTemperatureChange(2, 1, -3.0);
  EXPECT_EQ(model.stepRate(2, 1, Qt::EditRole), 0.25);
  EXPECT_EQ(model.stepTemperatureChange(2, 1, Qt::EditRole), -3.0);
}

TEST_F(WellStepsTest, periodThatInjectsGivesAWithdrawalWellItsSetTemperatureChange) {
  model.setStepRate(withdrawal, 1, 0.1);
  model.setStepTemperatureChange(withdrawal, 1, 4.0);
  EXPECT_EQ(model.stepTemperatureChange(withdrawal, 1, Qt::EditRole), 4.0);
}

} // namespace
} // namespace TVR
