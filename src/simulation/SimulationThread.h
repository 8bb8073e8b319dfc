#pragma once

#include "simulation/Simulation.h"

#include <QMutex>
#include <QThread>

namespace TVR {

/// The thread of an interactive run. It keeps itself and its simulation alive after the last output
/// time until the plug-in has taken the results and says so with `setFinished`.
class SimulationThread : public QThread {
  Q_OBJECT

public:
  /// Creates the simulation as a child of this thread object; throws what Simulation throws.
  explicit SimulationThread(const SimulationInput& input, QObject* parent = nullptr);
  ~SimulationThread() override;

  Simulation* simulation() const { return simulation_; }
  /// Stops the simulation and lets `run` return. Any thread.
  void setFinished();

public slots:
  void run() override;

private:
  bool isFinishedFlagSet();

  Simulation* simulation_;
  QMutex mutex_;
  bool finished_ = false; ///< guarded by mutex_
};

} // namespace TVR
