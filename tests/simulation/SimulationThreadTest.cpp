#include "simulation/SimulationThread.h"

#include "simulator/models/FVGeothermSite.h"
#include "support/EventWait.h"
#include "support/MethodsOf.h"
#include "support/SmallSite.h"

#include <QPointer>
#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace TVR;

namespace {

/// A simulation on a thread of its own, with its reader on the main thread.
class SimulationThreadTest : public testing::Test {
protected:
  SmallSite site_;
};

} // namespace

TEST_F(SimulationThreadTest, hasOneSlotOfItsOwn) {
  EXPECT_EQ(methodsOf(SimulationThread::staticMetaObject), QStringList{"slot run()"});
}

TEST_F(SimulationThreadTest, ownsItsSimulation) {
  QPointer<Simulation> simulation;
  {
    const SimulationThread thread(site_.input(SmallSite::years(1)));
    simulation = thread.simulation();
    EXPECT_EQ(simulation->parent(), &thread);
  }
  EXPECT_FALSE(simulation);
}

TEST_F(SimulationThreadTest, theSimulationRunsOnTheThreadThatIsItsParent) {
  SimulationThread thread(site_.input(SmallSite::years(1)));
  QThread* emitter = nullptr;
  QObject::connect(
      thread.simulation(), &Simulation::finished, &thread,
      [&] { emitter = QThread::currentThread(); }, Qt::DirectConnection);
  thread.simulation()->start(Simulation::GroundwaterOnly);
  thread.setFinished(); // the run tells its end however early it is stopped
  EXPECT_TRUE(thread.wait(patience));
  EXPECT_EQ(emitter, &thread);
}

TEST_F(SimulationThreadTest, standsStillWhileTheReaderTakesAStep) {
  SimulationThread thread(site_.input(SmallSite::years(3)));
  Simulation& simulation = *thread.simulation();
  std::vector<double> timesSeen;
  bool isLast = false;
  QObject::connect(
      &simulation, &Simulation::finished, &simulation,
      [&](int, int, bool, bool last) {
        EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
        timesSeen.push_back(simulation.model()->time());
        isLast = last;
        simulation.done();
      },
      Qt::BlockingQueuedConnection);
  simulation.start(Simulation::Coupled);
  EXPECT_TRUE(waitUntil([&] { return isLast; }));
  thread.setFinished();
  EXPECT_TRUE(thread.wait(patience));
  std::vector<double> expected = SmallSite::years(3);
  expected.push_back(expected.back());
  EXPECT_EQ(timesSeen, expected);
}

TEST_F(SimulationThreadTest, aSlowReaderDelaysTheNextReportButNotTheModel) {
  SimulationThread thread(site_.input(SmallSite::years(3)));
  Simulation& simulation = *thread.simulation();
  QSignalSpy steps(&simulation, &Simulation::finished);
  simulation.start(Simulation::Coupled);
  ASSERT_TRUE(waitUntil([&] { return !steps.isEmpty(); }));
  EXPECT_FALSE(simulation.isDone());

  // The model reaches the next time, and there the run holds: no further word comes.
  EXPECT_FALSE(steps.wait(50));
  ASSERT_EQ(steps.size(), 1);

  for (int reports = 2; reports <= 3; ++reports) {
    simulation.done();
    ASSERT_TRUE(waitUntil([&] { return steps.size() >= reports; }));
  }
  EXPECT_TRUE(waitUntil([&] { return steps.size() == 4; }));
  EXPECT_EQ(steps.last(), (QVariantList{3, 2, false, true}));
  thread.setFinished();
  EXPECT_TRUE(thread.wait(patience));
}

TEST_F(SimulationThreadTest, theHoldForASlowReaderEndsOnAStop) {
  SimulationThread thread(site_.input(SmallSite::years(3)));
  Simulation& simulation = *thread.simulation();
  QSignalSpy steps(&simulation, &Simulation::finished);
  simulation.start(Simulation::Coupled);
  ASSERT_TRUE(waitUntil([&] { return !steps.isEmpty(); }));
  simulation.stop();
  EXPECT_TRUE(waitUntil([&] { return steps.size() == 2; }));
  EXPECT_EQ(steps.last().at(2), QVariant(false));
  EXPECT_EQ(steps.last().at(3), QVariant(true));
  thread.setFinished();
  EXPECT_TRUE(thread.wait(patience));
}

TEST_F(SimulationThreadTest, keepsTheSimulationUntilItsResultsAreTaken) {
  auto* thread = new SimulationThread(site_.input(SmallSite::years(1)));
  QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
  const QPointer<SimulationThread> threadLife = thread;
  const QPointer<Simulation> simulation = thread->simulation();
  bool isLast = false;
  QObject::connect(
      simulation, &Simulation::finished, simulation,
      [&](int, int, bool, bool last) {
        isLast = last;
        simulation->done();
      },
      Qt::BlockingQueuedConnection);
  simulation->start(Simulation::Coupled);
  ASSERT_TRUE(waitUntil([&] { return isLast; }));
  EXPECT_FALSE(thread->wait(20)) << "the thread waits for its reader";
  EXPECT_TRUE(simulation);

  thread->setFinished();
  EXPECT_TRUE(waitUntil([&] { return !threadLife; }));
  EXPECT_FALSE(simulation);
}

TEST_F(SimulationThreadTest, tellingItTwiceThatItIsOverDoesNoHarm) {
  SimulationThread thread(site_.input(SmallSite::years(1)));
  const QPointer<Simulation> simulation = thread.simulation();
  thread.setFinished();
  thread.start();
  ASSERT_TRUE(waitUntil([&] { return !simulation; }));
  thread.setFinished();
  EXPECT_TRUE(thread.wait(patience));
}

TEST_F(SimulationThreadTest, endsARunningSimulationWhenItIsDestroyed) {
  QPointer<Simulation> simulation;
  {
    SimulationThread thread(site_.input(SmallSite::years(1000)));
    simulation = thread.simulation();
    QSignalSpy steps(simulation, &Simulation::finished);
    simulation->start(Simulation::Coupled);
    ASSERT_TRUE(waitUntil([&] { return !steps.isEmpty(); }));
  }
  EXPECT_FALSE(simulation);
}
