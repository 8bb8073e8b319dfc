#include "plugin/PluginTest.h"

#include <QKeyEvent>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

class InteractiveRunTest : public PluginTest {
protected:
  static bool press(TVRPlugin& plugin, QObject* watched, int key,
                    QEvent::Type type = QEvent::KeyPress) {
    QKeyEvent event(type, key, Qt::NoModifier);
    return plugin.eventFilter(watched, &event);
  }
};

} // namespace

TEST_F(InteractiveRunTest, aProjectThatIsNotUpToDateIsSimulated) {
  TVRPlugin plugin;
  prepare();
  store.setValue(SimulationUpToDate, false);
  EXPECT_TRUE(plugin.running());
  EXPECT_EQ(store.value(SimulationUpToDate), QVariant(true));
  EXPECT_TRUE(waitUntil([&] { return !plugin.running(); }));
}

TEST_F(InteractiveRunTest, aProjectThatCanNotBeSimulatedIsToldToTheUser) {
  TVRPlugin plugin;
  prepare(BatchProject().set("installation", "number_of_wells", 0));
  store.setValue(SimulationUpToDate, true);
  const MessageLog log;
  plugin.startSimulation();
  EXPECT_FALSE(plugin.running());
  EXPECT_TRUE(log.lines().contains("Tevrane: No well has a rate."));
}

TEST_F(InteractiveRunTest, wellsThatNobodyGaveAPlaceAreNotSimulatedAtOnePlace) {
  TVRPlugin plugin;
  prepare();
  store.setValue(NumberOfWells, 0);
  store.setValue(NumberOfWells, 2);
  const MessageLog log;
  plugin.startSimulation();
  EXPECT_FALSE(plugin.running());
  EXPECT_TRUE(log.lines().contains("Tevrane: \"Well 1\" and \"Well 2\" stand at one place (0 0): "
                                   "give each well a place of its own."))
      << log.lines().join('\n').toStdString();
}

TEST_F(InteractiveRunTest, theHostSeesHowARunGoesOn) {
  TVRPlugin plugin;
  Host host;
  plugin.setAppInterface(&host);
  prepare();
  run(plugin);
  const QString nodes =
      QStringLiteral("Using %1 nodes ... [10000]").arg(store.count(UsedNumberOfElements));
  EXPECT_EQ(host.status, (QStringList{
                             "Initialise Simulation [10000]",
                             nodes,
                             "Simulate t = 0.00 a [10000]",
                             "Simulate t = 1.00 a [10000]",
                             "Simulate t = 2.00 a [10000]",
                             "Finished ... [10000]",
                             "Fill-up the resulting mesh element on graphic ... [1000]",
                             "Calculate isohypses ... [1000]",
                             "Calculate isotherms ... [1000]",
                         }));
  const int rows = host.progress.value(3).second;
  EXPECT_GT(rows, 2);
  EXPECT_EQ(host.progress, (QList<QPair<int, int>>{{1, 2}, {2, 2}, {3, 2}, {rows + 1, rows}}));
}

TEST_F(InteractiveRunTest, anErrorOfARunIsToldToTheUser) {
  TVRPlugin plugin;
  Host host;
  plugin.setAppInterface(&host);
  prepare(BatchProject::doublet().set("main", "reltol_groundwater", -1));
  const MessageLog log;
  plugin.startSimulation();
  EXPECT_TRUE(waitUntil([&] { return !plugin.running(); }));
  EXPECT_TRUE(host.status.contains("Error at t = 1.00 a [10000]"));
  EXPECT_TRUE(log.lines().contains(
      "Tevrane: <b>An error occured during the simulation:</b><br>One of the function inputs is "
      "illegal.<br>\n\nPlease change the model size and/or the numerical parameter of the "
      "<b>groundwater model</b>."));
}

TEST_F(InteractiveRunTest, aProjectIsNotLoadedDuringARun) {
  TVRPlugin plugin;
  startLongRun(plugin);
  ASSERT_TRUE(BatchProject().write(path("other.tbat")));
  const MessageLog log;
  plugin.load(path("other.tbat"));
  EXPECT_TRUE(log.lines().contains("Tevrane: Operation abort because simulation is running."));
  EXPECT_EQ(number(SimulationTime), 900 * secondsPerYear);
}

TEST_F(InteractiveRunTest, theRefusalDuringARunBearsTheNameOfTheHost) {
  TVRPlugin plugin;
  Host host;
  plugin.setAppInterface(&host);
  startLongRun(plugin);
  const MessageLog log;
  plugin.load(path("other.tbat"));
  EXPECT_TRUE(log.lines().contains("Host: Operation abort because simulation is running."));
}

TEST_F(InteractiveRunTest, aCancelledRunEndsWithItsResults) {
  TVRPlugin plugin;
  startLongRun(plugin);
  plugin.cancelSimulation();
  EXPECT_FALSE(plugin.running());
  EXPECT_TRUE(waitUntil([&] { return !plugin.simulationRun().simulation(); }));
}

TEST_F(InteractiveRunTest, aProjectIsNotLoadedBeforeACancelledRunHasShownItsResults) {
  TVRPlugin plugin;
  startLongRun(plugin);
  plugin.cancelSimulation();
  ASSERT_TRUE(plugin.simulationRun().simulation());
  ASSERT_TRUE(BatchProject().write(path("other.tbat")));
  const MessageLog log;
  plugin.load(path("other.tbat"));
  EXPECT_TRUE(log.lines().contains("Tevrane: Operation abort because simulation is running."));
  EXPECT_EQ(number(SimulationTime), 900 * secondsPerYear);
  EXPECT_TRUE(waitUntil([&] { return !plugin.simulationRun().simulation(); }));
  EXPECT_TRUE(plugin.readProject(path("other.tbat")));
}

TEST_F(InteractiveRunTest, thereIsNothingToCancelWithoutARun) {
  TVRPlugin plugin;
  const MessageLog log;
  plugin.cancelSimulation();
  EXPECT_TRUE(log.lines().isEmpty());
}

// Keys

TEST_F(InteractiveRunTest, escapeAndEndCancelARunAndPassOn) {
  for (const int key : {Qt::Key_Escape, Qt::Key_End}) {
    TVRPlugin plugin;
    QObject window;
    startLongRun(plugin);
    EXPECT_FALSE(press(plugin, &window, key));
    EXPECT_FALSE(plugin.running());
  }
}

TEST_F(InteractiveRunTest, otherKeysAndEventsDoNotCancelARun) {
  TVRPlugin plugin;
  QObject window;
  startLongRun(plugin);
  EXPECT_FALSE(press(plugin, &window, Qt::Key_Return));
  EXPECT_FALSE(press(plugin, &window, Qt::Key_Home));
  EXPECT_FALSE(press(plugin, &window, Qt::Key_Escape, QEvent::KeyRelease));
  EXPECT_FALSE(press(plugin, nullptr, Qt::Key_Escape));
  QEvent update(QEvent::UpdateRequest);
  EXPECT_FALSE(plugin.eventFilter(&window, &update));
  EXPECT_TRUE(plugin.running());
}

TEST_F(InteractiveRunTest, escapeAndEndPassWithoutARun) {
  TVRPlugin plugin;
  QObject window;
  const MessageLog log;
  EXPECT_FALSE(press(plugin, &window, Qt::Key_Escape));
  EXPECT_FALSE(press(plugin, &window, Qt::Key_End));
  EXPECT_TRUE(log.lines().isEmpty());
}
