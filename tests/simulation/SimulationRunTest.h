#pragma once

#include "simulation/SimulationRun.h"
#include "support/EventWait.h"
#include "support/ProjectTest.h"

#include <functional>
#include <optional>

/// Notes what a run tells, and lets a test look at the run in the middle of a step.
class Recorder final : public TVR::RunObserver {
public:
  void initialising(bool batch) override {
    events << QStringLiteral("initialising %1").arg(batch ? "batch" : "interactive");
  }
  void outputTimesMade() override { events << "times"; }
  void starting(int cells, int outputTimes) override {
    EXPECT_GT(cells, 0);
    events << QStringLiteral("starting %1").arg(outputTimes);
  }
  void stepReached(int step, int count, double time) override {
    events << QStringLiteral("step %1/%2 %3").arg(step).arg(count).arg(time / TVR::secondsPerYear);
    steps.push_back(step);
    if (atStep)
      atStep(step);
  }
  void setOff() override { events << "set off"; }
  void headsReached() override { events << "heads"; }
  void temperaturesReached(double time) override {
    events << QStringLiteral("temperatures %1").arg(time / TVR::secondsPerYear);
  }
  void resultsReached() override {
    events << "results";
    if (atEvent)
      atEvent();
  }
  void completing() override {
    events << "completing";
    if (atEvent)
      atEvent();
  }
  void beginCellTables() override { events << "begin tables"; }
  void continueCellTables(double time) override {
    events << QStringLiteral("tables %1").arg(time / TVR::secondsPerYear);
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
