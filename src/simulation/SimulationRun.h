#pragma once

#include "simulation/OutputTimes.h"
#include "simulation/RunObserver.h"
#include "simulation/RunRequest.h"
#include "simulation/SiteSetup.h"
#include "simulation/WellTemperatureTable.h"

#include <QMutex>
#include <QObject>
#include <QString>

#include <atomic>
#include <fstream>
#include <functional>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <vector>

namespace TVR {

class ProjectTarget;
class Simulation;

/// A batch run was told to end before its time.
class RunAbandoned : public std::runtime_error {
public:
  RunAbandoned() : std::runtime_error("abandoned") {}
};

/// One run at a time, from set-up to completion: in a batch on the calling thread, interactively on
/// a thread of its own. It owns what a run needs, and tells its observers how it goes.
class SimulationRun : public QObject {
  Q_OBJECT

public:
  /// `project` outlives the run. `dataDirectory` names the directory of results without a name.
  SimulationRun(ProjectTarget& project, std::function<QString()> dataDirectory,
                QObject* parent = nullptr);
  ~SimulationRun() override;

  /// The observer outlives this object or is removed; it is not owned.
  void addObserver(RunObserver* observer);
  void removeObserver(RunObserver* observer);

  /// Sets a run of the project up and starts it. A batch run ends a simulation that still is there,
  /// returns when it is over, and lets errors through: CvodeError, KinsolError, std::range_error,
  /// SetupError, ResultError. An interactive run returns at once, and false if there is a
  /// simulation already; it throws SetupError for a project without times.
  bool run(const RunRequest& request);
  /// The same without any wishes.
  bool runSimulation(bool batch) { return run({.isInteractive = !batch}); }

  /// The time [s] of output step `step`, counted from 1, while a run is on, else -1. A negative
  /// step makes the table of output times from the project.
  double timeOfSimulationStep(int step);

  /// Takes a step of an interactive run: the answer to Simulation::finished.
  void simulationStepFinished(int step, int type, bool error, bool last);
  /// Writes the table of well temperatures and releases the simulation, if there is one. Results
  /// that can't be (temperatureFault) are an error: of a batch thrown, else told to the observers.
  void simulationFinishedSuccessful();
  /// Ends an interactive run at its next step.
  void stop();
  /// Ends a run at the integrator's next step, and every later one at once. Nothing is written; a
  /// batch run lets RunAbandoned through. May be called from any thread.
  void abandon();

  bool isRunning() const { return running_; }
  /// What the last run was asked for.
  const RunRequest& request() const { return request_; }
  Simulation* simulation() const { return simulation_; }
  const FVMesh* mesh() const { return setup_ ? setup_->mesh.get() : nullptr; }
  /// How the mesh lies on the map; null without one.
  const RunFrame* frame() const { return setup_ ? &setup_->frame : nullptr; }
  const OutputTimes& outputTimes() const { return outputTimes_; }

  /// Output steps of a year where the year is resolved.
  int cycleLength() const { return cycleLength_; }
  void setCycleLength(int steps) { cycleLength_ = steps; }

  /// Stream of the Tecplot frames of a batch run. Nothing opens it, so that the frames go nowhere.
  std::ofstream& tecplotStream() { return tecplotStream_; }

private:
  bool isBatch() const { return !request_.isInteractive; }
  void logSettings() const;
  void runBatch();
  void startThread();
  void startInteractively();
  bool writesTecplot() const;
  /// Ends a run whose results can't be, without a table.
  void refuseResult(const QString& fault);
  std::optional<QString> tableFile() const;
  RunResults results() const;
  RunSummary summary() const;
  void releaseSimulation();
  void discardSimulation();
  void setSimulation(Simulation* simulation);
  void endIfAbandoned() const;
  void endAbandoned();
  void tell(const std::function<void(RunObserver&)>& event) const;

  ProjectTarget& project_;
  const std::function<QString()> dataDirectory_;
  std::vector<RunObserver*> observers_;
  OutputTimes outputTimes_;
  std::optional<SiteSetup> setup_;
  /// A child of this object or of its thread; set under the mutex, which others need to read it.
  Simulation* simulation_ = nullptr;
  std::mutex simulationMutex_;
  std::atomic<bool> abandoned_ = false;
  int cycleLength_ = usualCycleLength;
  RunRequest request_;
  bool running_ = false;
  QRecursiveMutex stepMutex_; ///< held while a step is handed over
  std::ofstream tecplotStream_;
};

} // namespace TVR
