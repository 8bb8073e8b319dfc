#pragma once

#include "simulation/SimulationRun.h"
#include "support/EventWait.h"
#include "support/ProjectTest.h"

#include <functional>
#include <optional>

/// Notes what a run tells, and lets a test look at the run in the middle of a step.
class Recorder final : public TVR::RunObserver {
public:
  void initialising(const TVR::RunRequest& request) override {
    events
        << QStringLiteral("initialising %1").arg(request.isInteractive ? "interactive" : "batch");
  }
  void outputTimesMade() override { events << "times"; }
  void starting(const TVR::RunStart& start) override {
    EXPECT_GT(start.cells, 0);
    events << QStringLiteral("starting %1").arg(start.outputTimes);
    simulatedTime = start.simulatedTime;
  }
  void stepReached(const TVR::RunStep& step) override {
    events << QStringLiteral("step %1/%2 %3")
                  .arg(step.index)
                  .arg(step.count)
                  .arg(step.time / TVR::secondsPerYear);
    steps.push_back(step.index);
    if (atStep)
      atStep(step.index);
  }
  void setOff() override { events << "set off"; }
  void drawdownsReached(const TVR::RunStep&) override { events << "drawdowns"; }
  void temperaturesReached(const TVR::RunStep& step) override {
    events << QStringLiteral("temperatures %1").arg(step.time / TVR::secondsPerYear);
  }
  void resultsReached(const TVR::RunResults&) override {
    events << "results";
    if (atEvent)
      atEvent();
  }
  void completing(const TVR::RunResults& results) override {
    events << "completing";
    wasCancelled = results.wasCancelled;
    if (atEvent)
      atEvent();
  }
  void beginCellTables(const FVMesh&) override { events << "begin tables"; }
  void continueCellTables(const TVR::RunStep& step) override {
    events << QStringLiteral("tables %1").arg(step.time / TVR::secondsPerYear);
  }
  void failed(double time, const QString& text) override {
    events << QStringLiteral("failed %1").arg(time / TVR::secondsPerYear);
    error = text;
  }
  void abandoned() override {
    events << "abandoned";
    wasAbandoned = true;
  }
  void finished(const TVR::RunSummary& result) override {
    events << "finished";
    summary = result;
  }

  bool isOver() const { return summary || !error.isEmpty() || wasAbandoned; }

  QStringList events;
  std::vector<int> steps;
  std::function<void(int)> atStep;
  std::function<void()> atEvent; ///< the last results, and their completion
  std::optional<TVR::RunSummary> summary;
  QString error;
  double simulatedTime = 0;
  bool wasCancelled = false;
  bool wasAbandoned = false;
};

/// Runs of projects in the real store, with an observer that notes what it is told.
class SimulationRunTest : public ProjectTest {
protected:
  static constexpr double year = TVR::secondsPerYear;

  SimulationRunTest() { run.addObserver(&seen); }

  void runInteractively() {
    ASSERT_TRUE(run.runSimulation(false));
    ASSERT_TRUE(waitUntil([this] { return seen.isOver(); }));
  }

  /// Wide cells keep the runs short.
  QString read(const BatchProject& project) {
    const QString file = ProjectTest::read(project);
    store.setValue(TVR::Parameter::MinElementLength, 8.0);
    return file;
  }

  Recorder seen;
  TVR::SimulationRun run{store, [this] { return path("."); }};
};
