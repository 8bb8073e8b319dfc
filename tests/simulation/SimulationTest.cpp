#include "simulation/Simulation.h"

#include "design/ParameterId.h"
#include "simulator/models/FVGeothermSite.h"
#include "simulator/solvers/FVCvodeSolver.h"
#include "support/IntegratorTolerance.h"
#include "support/MethodsOf.h"
#include "support/SmallSite.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <future>
#include <limits>
#include <set>
#include <sstream>
#include <stdexcept>
#include <thread>

using namespace TVR;

namespace {

/// What one emission of `finished` said.
struct Step {
  int step;
  int type;
  bool error;
  bool last;
  bool operator==(const Step&) const = default;
};

[[maybe_unused]] void PrintTo(const Step& step, std::ostream* out) {
  *out << '{' << step.step << ", " << step.type << ", " << step.error << ", " << step.last << '}';
}

using Steps = std::vector<Step>;

class SimulationTest : public testing::Test {
protected:
  /// Notes every emission and lets the simulation go on.
  static void listen(Simulation& simulation, Steps& steps) {
    QObject::connect(&simulation, &Simulation::finished, &simulation,
                     [&](int step, int type, bool error, bool last) {
                       steps.push_back({step, type, error, last});
                       simulation.done();
                     });
  }

  Steps run(Simulation& simulation, Simulation::Type type) {
    Steps steps;
    listen(simulation, steps);
    simulation.start(type);
    return steps;
  }

  std::vector<double> temperatures(const Simulation& simulation) const {
    std::vector<double> values(site_.cells(), -99);
    simulation.getTemperatures(values);
    return values;
  }

  std::vector<double> drawdowns(const Simulation& simulation) const {
    std::vector<double> values(site_.cells(), -99);
    simulation.getDrawdowns(values);
    return values;
  }

  static std::vector<double> energies(const Simulation& simulation) {
    std::vector<double> values;
    simulation.getEnergyContent(values);
    return values;
  }

  SmallSite site_;
};

} // namespace

TEST_F(SimulationTest, methodsOfTheMetaObjectStandInTheirOrder) {
  EXPECT_EQ(methodsOf(Simulation::staticMetaObject), (QStringList{
                                                         "signal finished(int,int,bool,bool)",
                                                         "slot start(TVR::Simulation::Type)",
                                                         "slot run()",
                                                         "slot setTime(double)",
                                                         "slot setType(TVR::Simulation::Type)",
                                                         "slot setRelativeTolerance(double,double)",
                                                         "slot setAbsoluteTolerance(double,double)",
                                                         "slot currentTime()",
                                                         "slot isStoped()",
                                                         "slot isDone()",
                                                         "slot stop()",
                                                         "slot done(bool)",
                                                         "slot done()",
                                                     }));
}

TEST_F(SimulationTest, runModesHaveTheirNumbers) {
  EXPECT_EQ(Simulation::GroundwaterOnly, 0);
  EXPECT_EQ(Simulation::HeatOnly, 1);
  EXPECT_EQ(Simulation::Coupled, 2);
}

TEST_F(SimulationTest, beginsAtItsStartTimeWithoutResults) {
  SimulationInput input = site_.input(SmallSite::years(1));
  input.startTime = 1000;
  const Simulation simulation(input);
  EXPECT_EQ(simulation.currentTime(), 1000);
  EXPECT_TRUE(simulation.isDone());
  EXPECT_FALSE(simulation.isStoped());
  EXPECT_FALSE(simulation.groundwaterDone());
  EXPECT_TRUE(simulation.errorText().isEmpty());
  EXPECT_EQ(temperatures(simulation), std::vector<double>(site_.cells(), -99));
}

TEST_F(SimulationTest, keepsCopiesOfMeshAndWells) {
  const Simulation simulation(site_.input(SmallSite::years(1)));
  EXPECT_NE(&simulation.mesh(), &site_.mesh());
  EXPECT_EQ(simulation.mesh().elements.size(), site_.cells());
  ASSERT_EQ(simulation.wells().size(), 2u);
  EXPECT_EQ(simulation.wells()[1]->id(), 1);
  EXPECT_NE(simulation.wells()[0], site_.input(SmallSite::years(1)).wells[0]);
}

TEST_F(SimulationTest, exchangesHeatWithEachRockThatIsFlagged) {
  SimulationInput input = site_.input(SmallSite::years(1));
  EXPECT_EQ(Simulation(input).model()->heat.elementCount(), site_.cells());
  input.bedrock = 1;
  const Simulation one(input);
  input.caprock = 1;
  const Simulation both(input);
  const std::size_t chains = 5 * (site_.cells() - 2);
  EXPECT_EQ(one.model()->heat.elementCount(), site_.cells() + chains);
  EXPECT_EQ(both.model()->heat.elementCount(), site_.cells() + chains);
  const std::size_t firstChainLink = one.model()->groundwater.connections.size();
  EXPECT_DOUBLE_EQ(both.model()->heat.connections[firstChainLink]->a,
                   2 * one.model()->heat.connections[firstChainLink]->a);
}

TEST_F(SimulationTest, coupledRunReportsEveryOutputTimeAndItsEnd) {
  Simulation simulation(site_.input(SmallSite::years(3)));
  EXPECT_EQ(
      run(simulation, Simulation::Coupled),
      (Steps{
          {0, 2, false, false}, {1, 2, false, false}, {2, 2, false, false}, {3, 2, false, true}}));
  EXPECT_DOUBLE_EQ(simulation.currentTime(), 3 * secondsPerYear);
  EXPECT_TRUE(simulation.errorText().isEmpty());
}

TEST_F(SimulationTest, frozenFlowReportsTheFirstStepInBothModes) {
  Simulation simulation(site_.input(SmallSite::years(3)));
  EXPECT_EQ(run(simulation, Simulation::GroundwaterOnly), (Steps{{0, 0, false, false},
                                                                 {0, 1, false, false},
                                                                 {1, 1, false, false},
                                                                 {2, 1, false, false},
                                                                 {3, 1, false, true}}));
}

TEST_F(SimulationTest, frozenFlowStaysAsItWasAtTheFirstOutputTime) {
  Simulation simulation(site_.input(SmallSite::years(3)));
  run(simulation, Simulation::GroundwaterOnly);
  EXPECT_DOUBLE_EQ(simulation.model()->groundwater.lastStepTime, secondsPerYear);
  EXPECT_DOUBLE_EQ(simulation.model()->time(), 3 * secondsPerYear);
}

TEST_F(SimulationTest, theFlowAloneIsAtTheTimeOfItsOwnSteps) {
  SimulationInput input = site_.input(SmallSite::years(2));
  input.startTime = 1000;
  Simulation simulation(input);
  std::vector<double> times;
  QObject::connect(&simulation, &Simulation::finished, &simulation, [&] {
    times.push_back(simulation.currentTime());
    simulation.done();
  });
  simulation.start(Simulation::GroundwaterOnly);
  EXPECT_EQ(times, (std::vector<double>{0, 1000, secondsPerYear, 2 * secondsPerYear}))
      << "before each step; the groundwater has none before its first";
}

TEST_F(SimulationTest, aRunWithoutOutputTimesIsOutOfRange) {
  Simulation simulation(site_.input({}));
  Steps steps;
  listen(simulation, steps);
  EXPECT_THROW(simulation.run(), std::out_of_range);
  EXPECT_EQ(steps, Steps{});
}

TEST_F(SimulationTest, bothModesArriveAtTheSameTemperatures) {
  Simulation frozen(site_.input(SmallSite::years(2)));
  Simulation coupled(site_.input(SmallSite::years(2)));
  run(frozen, Simulation::GroundwaterOnly);
  run(coupled, Simulation::Coupled);
  const std::vector<double> a = temperatures(frozen);
  const std::vector<double> b = temperatures(coupled);
  for (std::size_t i = 0; i < a.size(); ++i)
    EXPECT_NEAR(a[i], b[i], 1e-3);
}

TEST_F(SimulationTest, temperaturesAreChangesFromTheReferenceTemperature) {
  SimulationInput input = site_.input(SmallSite::years(1));
  input.referenceTemperature = 8;
  Simulation simulation(input);
  run(simulation, Simulation::Coupled);
  const std::vector<double> values = temperatures(simulation);
  for (std::size_t i = 0; i < values.size(); ++i)
    EXPECT_DOUBLE_EQ(values[i], simulation.model()->temperature(i) - 8);
  EXPECT_LT(*std::min_element(values.begin(), values.end()), -2) << "the injection cools";
}

TEST_F(SimulationTest, drawdownsFollowFromThePressureWithAConstantOfTheirOwn) {
  SimulationInput input = site_.input(SmallSite::years(1));
  input.waterDensity = 998;
  Simulation simulation(input);
  run(simulation, Simulation::Coupled);
  const std::vector<double> values = drawdowns(simulation);
  for (std::size_t i = 0; i < values.size(); ++i)
    EXPECT_DOUBLE_EQ(values[i], simulation.model()->pressureChange(i) / 9.81 / 998);
  EXPECT_LT(*std::min_element(values.begin(), values.end()), 0);
  EXPECT_GT(*std::max_element(values.begin(), values.end()), 0);
}

TEST_F(SimulationTest, chainsOfTheRockAreNotReported) {
  SimulationInput input = site_.input(SmallSite::years(1));
  input.bedrock = 1;
  Simulation simulation(input);
  run(simulation, Simulation::Coupled);
  std::vector<double> values(site_.cells() + 1, -99);
  simulation.getTemperatures(values);
  EXPECT_EQ(values.back(), -99);
  EXPECT_NE(values[site_.cells() - 1], -99);
}

TEST_F(SimulationTest, resultsAreCopiedAsFarAsBothListsReach) {
  Simulation simulation(site_.input(SmallSite::years(1)));
  run(simulation, Simulation::Coupled);
  std::vector<double> two(2, -99);
  simulation.getDrawdowns(two);
  const std::vector<double> all = drawdowns(simulation);
  EXPECT_EQ(two, (std::vector<double>{all[0], all[1]}));
}

TEST_F(SimulationTest, energyIsReckonedFromTheReferenceTemperature) {
  Simulation simulation(site_.input(SmallSite::years(1)));
  run(simulation, Simulation::Coupled);
  const std::vector<double> values = energies(simulation);
  ASSERT_EQ(values.size(), site_.cells());
  for (std::size_t i = 0; i < values.size(); ++i)
    EXPECT_DOUBLE_EQ(values[i], simulation.model()->energy(i, 10));
}

TEST_F(SimulationTest, beforeTheFirstOutputTimeTheEnergyIsThatOfTheStart) {
  const Simulation simulation(site_.input(SmallSite::years(1)));
  EXPECT_EQ(energies(simulation), std::vector<double>(site_.cells(), 0.0));
}

TEST_F(SimulationTest, betweenOutputTimesTheResultsStayAsTheyWere) {
  Simulation simulation(site_.input(SmallSite::years(1)));
  run(simulation, Simulation::Coupled);
  const std::vector<double> before = energies(simulation);
  simulation.model()->solveHeat(2 * secondsPerYear, true, 1e-6, 1e-6);
  EXPECT_EQ(energies(simulation), before);
}

TEST_F(SimulationTest, aReaderOnAnotherThreadSeesTheEnergiesOfOutputTimesOnly) {
  Simulation simulation(site_.input(SmallSite::years(20)));
  std::set<std::vector<double>> told{energies(simulation)};
  std::atomic<int> reads = 0;
  QObject::connect(&simulation, &Simulation::finished, &simulation, [&] {
    std::vector<double> now(site_.cells());
    for (std::size_t i = 0; i < now.size(); ++i)
      now[i] = simulation.model()->energy(i, 10);
    told.insert(now);
    for (const int before = reads; reads < before + 2;) // the reader sees them too
      std::this_thread::yield();
    simulation.done();
  });
  std::atomic<bool> isOver = false;
  std::set<std::vector<double>> seen;
  std::thread reader([&] {
    for (; !isOver; ++reads) {
      seen.insert(energies(simulation));
      std::this_thread::yield();
    }
  });
  simulation.start(Simulation::Coupled);
  isOver = true;
  reader.join();
  EXPECT_GT(seen.size(), 2u); // a step at which the reader holds the results is passed over
  EXPECT_TRUE(std::includes(told.begin(), told.end(), seen.begin(), seen.end()));
}

TEST_F(SimulationTest, followsTheDemandPeriods) {
  Simulation simulation(site_.input(SmallSite::years(3), {0, 1, 0}));
  std::vector<int> periods;
  QObject::connect(&simulation, &Simulation::finished, &simulation, [&](int, int, bool, bool last) {
    if (!last)
      periods.push_back(simulation.model()->groundwater.demandStep);
    simulation.done();
  });
  simulation.start(Simulation::Coupled);
  EXPECT_EQ(periods, (std::vector<int>{0, 1, 0}));
}

TEST_F(SimulationTest, aStopBeforeTheFirstStepLeavesTheEndOnly) {
  Simulation simulation(site_.input(SmallSite::years(3)));
  simulation.stop();
  EXPECT_TRUE(simulation.isStoped());
  EXPECT_EQ(run(simulation, Simulation::Coupled), (Steps{{0, 2, false, true}}));
  EXPECT_EQ(simulation.currentTime(), 0);
}

TEST_F(SimulationTest, aStopKeepsTheStateReached) {
  Simulation simulation(site_.input(SmallSite::years(3)));
  Steps steps;
  listen(simulation, steps);
  QObject::connect(&simulation, &Simulation::finished, &simulation, &Simulation::stop);
  simulation.start(Simulation::Coupled);
  EXPECT_EQ(steps, (Steps{{0, 2, false, false}, {1, 2, false, true}}));
  EXPECT_DOUBLE_EQ(simulation.currentTime(), secondsPerYear);
}

TEST_F(SimulationTest, aStoppedRunOfTheFlowAloneEndsInItsMode) {
  Simulation simulation(site_.input(SmallSite::years(3)));
  simulation.stop();
  EXPECT_EQ(run(simulation, Simulation::GroundwaterOnly), (Steps{{0, 0, false, true}}));
}

TEST_F(SimulationTest, anErrorOfTheGroundwaterModelIsTheOnlyWordOfTheRun) {
  Simulation simulation(site_.input(SmallSite::years(3)));
  simulation.setRelativeTolerance(-1, 1e-6);
  EXPECT_EQ(run(simulation, Simulation::Coupled), (Steps{{0, 2, true, true}}));
  EXPECT_EQ(simulation.errorText(),
            "One of the function inputs is illegal.<br>\n\nPlease change the model size and/or "
            "the numerical parameter of the <b>groundwater model</b>.");
  EXPECT_TRUE(simulation.isStoped());
}

TEST_F(SimulationTest, drawdownsOfAGroundwaterModelThatWentOnAreThereAfterAnErrorOfTheHeatModel) {
  Simulation simulation(site_.input(SmallSite::years(3)));
  simulation.setAbsoluteTolerance(1e-6, -1);
  run(simulation, Simulation::Coupled);
  const std::vector<double> values = drawdowns(simulation);
  for (std::size_t i = 0; i < values.size(); ++i)
    EXPECT_DOUBLE_EQ(values[i], simulation.model()->pressureChange(i) / 9.81 / 1000);
  EXPECT_GT(*std::max_element(values.begin(), values.end()), 0);
}

TEST_F(SimulationTest, anErrorOfTheHeatModelIsBlamedOnIt) {
  Simulation simulation(site_.input(SmallSite::years(3)));
  simulation.setAbsoluteTolerance(1e-6, -1);
  EXPECT_EQ(run(simulation, Simulation::Coupled), (Steps{{0, 2, true, true}}));
  EXPECT_TRUE(simulation.errorText().endsWith("<b>heat model</b>."));
}

TEST_F(SimulationTest, aMaterialWithoutNumbersIsAnErrorOfTheRun) {
  SimulationInput input = site_.input(SmallSite::years(3));
  input.aquifer.permeability = std::numeric_limits<double>::quiet_NaN();
  Simulation simulation(input);
  EXPECT_EQ(run(simulation, Simulation::Coupled), (Steps{{0, 2, true, true}}));
  EXPECT_FALSE(simulation.errorText().isEmpty());
}

TEST_F(SimulationTest, anErrorAfterTheFlowWasReportedEndsTheRunOfTheHeatModel) {
  Simulation simulation(site_.input(SmallSite::years(3)));
  simulation.setRelativeTolerance(1e-6, -1);
  EXPECT_EQ(run(simulation, Simulation::GroundwaterOnly),
            (Steps{{0, 0, false, false}, {0, 1, true, true}}));
}

TEST_F(SimulationTest, theHeatModelAloneLacksAFlowField) {
  Simulation simulation(site_.input(SmallSite::years(2)));
  EXPECT_EQ(run(simulation, Simulation::HeatOnly), (Steps{{0, 1, true, true}}));
  EXPECT_EQ(simulation.errorText(),
            "KinsolError:: KINSol: -1\n\nPlease change the model size and/or the numerical "
            "parameter of the <b>groundwater model</b>.");
}

TEST_F(SimulationTest, tolerancesReachTheIntegrators) {
  Simulation loose(site_.input(SmallSite::years(1)));
  Simulation tight(site_.input(SmallSite::years(1)));
  loose.setRelativeTolerance(1e-3, 1e-3);
  loose.setAbsoluteTolerance(1e-1, 1e-3);
  tight.setRelativeTolerance(1e-9, 1e-9);
  tight.setAbsoluteTolerance(1e-6, 1e-9);
  run(loose, Simulation::Coupled);
  run(tight, Simulation::Coupled);
  EXPECT_LT(2 * loose.model()->groundwaterSteps(), tight.model()->groundwaterSteps());
  EXPECT_LT(2 * loose.model()->heatSteps(), tight.model()->heatSteps());
}

TEST_F(SimulationTest, relativeAndAbsoluteTolerancesKeepTheirPlaces) {
  Simulation simulation(site_.input(SmallSite::years(1)));
  simulation.setRelativeTolerance(1e-3, 1e-4);
  simulation.setAbsoluteTolerance(1e-5, 1e-8);
  run(simulation, Simulation::Coupled);
  const FVGeothermSite& model = *simulation.model();
  const std::size_t last = site_.cells() - 1;
  const double ofPressure = 1e-3 * std::abs(model.groundwater.elements[last]->pressure) + 1e-5;
  EXPECT_NEAR(toleranceIn(model.groundwater, last), ofPressure, 0.1 * ofPressure);
  const double ofTemperature = 1e-4 * model.temperature(last) + 1e-8;
  EXPECT_NEAR(toleranceIn(model.heat, last), ofTemperature, 0.1 * ofTemperature);
}

TEST_F(SimulationTest, stepsReachedWhileTheTemperaturesAreHeldAreNotReported) {
  // Rates that change from step to step show in the drawdowns, which are not held, how far the run
  // has come.
  Simulation simulation(site_.input(SmallSite::years(4), {0, 1, 0, 1}));
  Steps steps;
  listen(simulation, steps);
  std::vector<int> waits;
  QObject::connect(&simulation, &Simulation::finished, &simulation,
                   [&] { waits.push_back(simulation.patience()); });

  std::promise<void> held;
  std::thread reader([&] {
    auto lock = simulation.holdTemperatures();
    held.set_value();
    std::vector<double> unknown(site_.cells(), -99);
    const auto waitForChange = [&](const std::vector<double>& before) {
      std::vector<double> now = before;
      while (now == before) {
        std::this_thread::yield();
        simulation.getDrawdowns(now);
      }
      return now;
    };
    waitForChange(waitForChange(unknown));
  });
  held.get_future().wait();
  simulation.start(Simulation::Coupled);
  reader.join();

  ASSERT_FALSE(steps.empty());
  EXPECT_EQ(
      std::count_if(steps.begin(), steps.end(), [](const Step& step) { return step.step == 0; }),
      0);
  EXPECT_EQ(steps.back(), (Step{4, 2, false, true}));
  const int missed = steps.front().step;
  EXPECT_EQ(waits.front(), static_cast<int>(std::pow(3, missed)));
  EXPECT_TRUE(std::all_of(waits.begin() + 1, waits.end(), [](int wait) { return wait == 1; }));
  EXPECT_DOUBLE_EQ(simulation.model()->time(), 4 * secondsPerYear);
}

TEST_F(SimulationTest, choosingAnotherModeAimsAtTheTimeItHasReached) {
  // The new mode has nothing to do until a time is named: a stop ends the wait.
  Simulation simulation(site_.input(SmallSite::years(1)));
  simulation.setType(Simulation::HeatOnly);
  simulation.setTime(2 * secondsPerYear);
  simulation.setType(Simulation::Coupled);
  EXPECT_EQ(run(simulation, Simulation::Coupled),
            (Steps{{0, 2, false, false}, {1, 2, false, true}}));
}

TEST_F(SimulationTest, frameBeforeTheFirstOutputTimeHoldsZeros) {
  const SimulationInput input = site_.input(SmallSite::years(1));
  const Simulation simulation(input);
  std::ostringstream frame;
  simulation.writeTecplotFrame(frame);

  std::ostringstream expected;
  expected << "ZONE T=\"t=0 a\", N=35, E=24, DATAPACKING = BLOCK, ZONETYPE=FEQUADRILATERAL, "
              "CONNECTIVITYSHAREZONE=1\n";
  for (const FVMeshElement& cell : site_.mesh().elements)
    expected << cell.x << '\n';
  for (const FVMeshElement& cell : site_.mesh().elements)
    expected << cell.y << '\n';
  expected << '\n';
  for (int block = 0; block < 2; ++block) {
    for (std::size_t i = 0; i < site_.cells(); ++i)
      expected << "0\n";
    expected << '\n';
  }
  for (const FVMeshElement& cell : site_.mesh().elements)
    expected << (cell.x - site_.mesh().elements.front().x) * input.pressureGradient << '\n';
  expected << '\n';
  EXPECT_EQ(frame.str(), expected.str());
}

TEST_F(SimulationTest, frameHoldsTheLatestResults) {
  Simulation simulation(site_.input(SmallSite::years(1)));
  run(simulation, Simulation::Coupled);
  std::ostringstream frame;
  simulation.writeTecplotFrame(frame);

  std::ostringstream expected;
  for (const double value : drawdowns(simulation))
    expected << value << '\n';
  expected << '\n';
  for (const double value : temperatures(simulation))
    expected << value << '\n';
  expected << '\n';
  for (const auto& cell : simulation.model()->groundwater.elements)
    expected << cell->pressure << '\n';
  expected << '\n';
  EXPECT_EQ(frame.str().rfind("ZONE T=\"t=1 a\", N=35", 0), 0u);
  ASSERT_GE(frame.str().size(), expected.str().size());
  EXPECT_EQ(frame.str().substr(frame.str().size() - expected.str().size()), expected.str());
}
