#include "simulator/mesh/Well.h"

#include <gtest/gtest.h>

#include <stdexcept>

TEST(Well, keepsIdAndPosition) {
  const Well well(7, 1.5, -2.5);
  EXPECT_EQ(well.id(), 7);
  EXPECT_EQ(well.x(), 1.5);
  EXPECT_EQ(well.y(), -2.5);
}

TEST(Well, takesDefaultsBeyondTheEndOfTheLists) {
  Well well(0, 0.0, 0.0, -0.01, 4.0);
  well.setRate(1, 0.5);
  well.setTemperatureChange(0, 3.0);
  EXPECT_EQ(well.rate(1), 0.5);
  EXPECT_EQ(well.rate(2), -0.01);
  EXPECT_EQ(well.temperatureChange(0), 3.0);
  EXPECT_EQ(well.temperatureChange(1), 4.0);
}

TEST(Well, fillsTheGapWithZerosWhenALaterStepIsSet) {
  Well well(0, 0.0, 0.0, -0.01, 4.0);
  well.setRate(2, 0.5);
  well.setTemperatureChange(2, 1.0);
  EXPECT_EQ(well.rate(0), 0.0);
  EXPECT_EQ(well.rate(1), 0.0);
  EXPECT_EQ(well.temperatureChange(1), 0.0);
}

TEST(Well, settingAnEarlierStepKeepsTheLaterOnes) {
  Well well(0, 0.0, 0.0);
  well.setRate(2, 0.5);
  well.setRate(0, 0.25);
  EXPECT_EQ(well.rate(0), 0.25);
  EXPECT_EQ(well.rate(2), 0.5);
}

TEST(Well, refusesToSetANegativeStep) {
  Well well(0, 0.0, 0.0, 0.125);
  EXPECT_THROW(well.setRate(-1, 1.0), std::out_of_range);
  EXPECT_EQ(well.rate(-1), 0.125);
}

TEST(Well, recordsTimesAndTemperaturesInOrder) {
  Well well(0, 0.0, 0.0);
  well.record(10.0, 11.5);
  well.record(20.0, 12.5);
  EXPECT_EQ(well.times(), (std::vector<double>{10.0, 20.0}));
  EXPECT_EQ(well.temperatures(), (std::vector<double>{11.5, 12.5}));
}

TEST(Well, copiesAreIndependent) {
  Well well(0, 0.0, 0.0);
  well.setRate(0, 1.0);
  well.record(1.0, 2.0);
  const Well copy(well);
  well.setRate(0, 9.0);
  well.record(3.0, 4.0);
  EXPECT_EQ(copy.rate(0), 1.0);
  EXPECT_EQ(copy.times().size(), 1u);
}
