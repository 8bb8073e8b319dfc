#pragma once

#include "simulation/WellTemperatureTable.h"

#include <QString>

#include <vector>

class FVMesh;

namespace TVR {

class Simulation;
struct OutputTimes;
struct RunRequest;

/// A run whose model stands.
struct RunStart {
  int cells;
  int outputTimes;
  double simulatedTime; ///< that the project asks for [s]
};

/// An output time that was reached. The simulation stands still for as long as it is told.
struct RunStep {
  int index;   ///< from 0
  int count;   ///< of all output times
  double time; ///< [s]
  const Simulation& simulation;
};

/// The last results of a run.
struct RunResults {
  const Simulation& simulation;
  const OutputTimes& outputTimes;
  bool wasCancelled; ///< before its last output time
};

/// The temperatures that a well had during a run [deg C].
struct WellRange {
  QString name;
  double lowest;
  double highest;
};

/// What a run was and where its results lie.
struct RunSummary {
  int cells = 0;
  int outputTimes = 0;
  long groundwaterSteps = 0; ///< accepted integrator steps
  long heatSteps = 0;
  std::vector<WellRange> wells;
  std::vector<WellHistory> histories;
  QString tableFile; ///< empty if no table was to be written
  bool tableWritten = false;
};

/// Is told how a run goes: the seam between the run and whatever shows it. An event carries what it
/// is about; what it refers to holds during the call only. An observer leaves alone what runs read;
/// the page notes in the project how far the isotherm of 3 K reaches. All calls come on the thread
/// that writes the project. Every operation may be left out.
class RunObserver {
public:
  virtual ~RunObserver() = default;

  /// The run begins to read the project; nothing is computed yet.
  virtual void initialising(const RunRequest& /*request*/) {}
  /// The list of output times was made anew.
  virtual void outputTimesMade() {}
  /// Tables of all cells are to be begun.
  virtual void beginCellTables(const FVMesh& /*mesh*/) {}
  /// The model stands and the first step follows.
  virtual void starting(const RunStart& /*start*/) {}
  /// An interactive run is on and computes its first step next.
  virtual void setOff() {}
  /// Tables of all cells are to be continued with the values of a step.
  virtual void continueCellTables(const RunStep& /*step*/) {}
  virtual void stepReached(const RunStep& /*step*/) {}
  /// After `stepReached` of an interactive run: the step has new drawdowns, or new temperatures.
  virtual void drawdownsReached(const RunStep& /*step*/) {}
  virtual void temperaturesReached(const RunStep& /*step*/) {}
  /// The last results stand; the table of well temperatures is not written yet.
  virtual void resultsReached(const RunResults& /*results*/) {}
  /// The table is written, if it was wanted; the simulation is released next.
  virtual void completing(const RunResults& /*results*/) {}
  /// An interactive run ended with an error at `time` [s].
  virtual void failed(double /*time*/, const QString& /*text*/) {}
  /// An interactive run ended without results, see SimulationRun::abandon.
  virtual void abandoned() {}
  virtual void finished(const RunSummary& /*summary*/) {}
};

} // namespace TVR
