#include "simulation/ResultCheck.h"

#include "SimulationRunTest.h"

#include <cmath>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

/// A doublet that returns water 3 K colder, over two demand periods of a year, with temperatures
/// that a test makes up.
class ResultCheckTest : public testing::Test {
protected:
  static constexpr double year = secondsPerYear;

  ResultCheckTest() {
    input.referenceTemperature = 10;
    input.times = {year, 2 * year};
    input.demandSteps = {0, 1};
    for (const int period : {0, 1}) {
      pump.setRate(period, -0.001);
      injection.setRate(period, 0.001);
      injection.setTemperatureChange(period, -3);
    }
  }

  /// The wells had these temperatures after half a year and after a year and a half.
  std::string fault(std::vector<double> pumped, std::vector<double> injected,
                    const std::vector<double>& cells = {10}) {
    const std::vector<double> times{year / 2, 3 * year / 2};
    return temperatureFault(
               input, {&pump, &injection},
               {{"Pump", times, std::move(pumped)}, {"Return", times, std::move(injected)}}, cells)
        .toStdString();
  }

  SimulationInput input;
  Well pump{0, 0, 0};
  Well injection{1, 40, 0};
};

} // namespace

TEST_F(ResultCheckTest, temperaturesBetweenGroundwaterAndInjectedWaterAreSound) {
  EXPECT_EQ(fault({10, 9}, {8, 7}), "");
}

TEST_F(ResultCheckTest, theErrorOfTheIntegratorIsForgiven) {
  EXPECT_EQ(fault({10.09, 10}, {8, 6.91}), "");
}

TEST_F(ResultCheckTest, waterColderThanAnyThatFlowsInIsAFault) {
  EXPECT_EQ(fault({10, 10}, {7, 4.7}), "the temperature of \"Return\" after 1.50 years would be "
                                       "4.7 °C, but what flows in has 7 to 10 °C");
}

TEST_F(ResultCheckTest, waterWarmerThanAnyThatFlowsInIsAFault) {
  EXPECT_EQ(fault({1009, 10}, {7, 7}), "the temperature of \"Pump\" after 0.50 years would be 1009 "
                                       "°C, but what flows in has 7 to 10 °C");
}

TEST_F(ResultCheckTest, whatIsNoNumberIsAFault) {
  EXPECT_NE(fault({10, std::nan("")}, {7, 7}), "");
}

TEST_F(ResultCheckTest, aCellOutsideIsAFaultToo) {
  EXPECT_EQ(fault({10, 10}, {7, 7}, {10, 6.5}), "the temperature of a cell would be 6.5 °C at the "
                                                "end, but what flows in has 7 to 10 °C");
}

TEST_F(ResultCheckTest, waterIsInjectedInItsPeriodAndNotBefore) {
  injection.setTemperatureChange(0, 0);
  EXPECT_EQ(fault({10, 10}, {10, 7}), "");
  EXPECT_NE(fault({10, 10}, {7, 7}), "");
}

TEST_F(ResultCheckTest, aPeriodWithoutInjectionBringsNothing) {
  for (const int period : {0, 1})
    injection.setRate(period, 0);
  EXPECT_NE(fault({10, 10}, {10, 9}), "");
}

TEST_F(ResultCheckTest, aClosedLoopInjectsWhatItPumps) {
  input.closedLoop = true;
  EXPECT_EQ(fault({9, 8}, {7, 5}), "");
  EXPECT_NE(fault({9, 8}, {7, 4.8}), "");
  input.closedLoop = false;
  EXPECT_NE(fault({9, 8}, {7, 5}), "");
}

TEST_F(ResultCheckTest, aClosedLoopDoesNotCoolItsWaterToIce) {
  input.closedLoop = true;
  EXPECT_EQ(fault({2, 1}, {0, -0.05}), "");
  EXPECT_EQ(fault({2, 1}, {0, -2}),
            "the temperature of \"Return\" after 1.50 years would be -2 °C, "
            "but water has 0 to 100 °C");
}

TEST_F(ResultCheckTest, aRunWithoutRecordsHasNoFault) {
  EXPECT_EQ(temperatureFault(input, {&pump}, {{"Pump", {}, {}}}, {10}), "");
}

// In a run. A conductivity far below any range lets the solver lose itself.

TEST_F(SimulationRunTest, aBatchRunWithTemperaturesThatCannotBeThrowsAndWritesNoTable) {
  read(BatchProject::doublet().set("hydraulic", "kf", 1e-300));
  EXPECT_THROW(run.runSimulation(true), ResultError);
  EXPECT_FALSE(QFile::exists(path("project.out")));
  EXPECT_FALSE(run.isRunning());
  EXPECT_EQ(run.simulation(), nullptr);
}

TEST_F(SimulationRunTest, anInteractiveRunWithTemperaturesThatCannotBeFails) {
  read(BatchProject::doublet().set("hydraulic", "kf", 1e-300));
  store.setValue(WriteWellOutput, true);
  store.setValue(WellOutputFile, path("table.txt"));
  runInteractively();
  EXPECT_TRUE(seen.error.contains("what flows in has 7 to 10 °C")) << seen.error.toStdString();
  EXPECT_FALSE(seen.summary);
  EXPECT_FALSE(QFile::exists(path("table.txt")));
  EXPECT_FALSE(run.isRunning());
}
