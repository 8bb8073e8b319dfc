#pragma once

#include "host/RunState.h"
#include "simulation/RunObserver.h"

#include <QObject>

namespace TVR {

class SimulationRun;

/// Tells a host whether an interactive run is on: from when it has set off until it is over, by
/// whatever end.
class RunWatch final : public QObject, public RunObserver, public BrenvikApp::RunState {
  Q_OBJECT
  Q_INTERFACES(BrenvikApp::RunState)

public:
  /// `run` outlives this object.
  RunWatch(SimulationRun& run, QObject* parent) : QObject(parent), run_(run) {}

  bool isRunning() const override { return isRunning_; }
  void stop() override;

  void setOff() override { note(true); }
  void failed(double, const QString&) override { note(false); }
  void abandoned() override { note(false); }
  void finished(const RunSummary&) override { note(false); }

signals:
  void changed();

private:
  void note(bool isRunning);

  SimulationRun& run_;
  bool isRunning_ = false;
};

} // namespace TVR
