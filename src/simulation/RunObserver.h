#pragma once

#include <QString>

#include <vector>

namespace TVR {

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
  QString tableFile; ///< empty if no table was to be written
  bool tableWritten = false;
};

/// Is told how a run goes: the seam between the run and whatever shows it. All calls come on the
/// thread of the store. Every operation may be left out.
class RunObserver {
public:
  virtual ~RunObserver() = default;

  /// The run begins to read the project; nothing is computed yet.
  virtual void initialising(bool /*batch*/) {}
  /// The list of output times was made anew.
  virtual void outputTimesMade() {}
  /// The model stands and the first step follows.
  virtual void starting(int /*cells*/, int /*outputTimes*/) {}
  /// An interactive run is on and computes its first step next.
  virtual void setOff() {}
  /// An output time was reached: its index from 0, the number of all, and the time [s].
  virtual void stepReached(int /*step*/, int /*count*/, double /*time*/) {}
  /// Tables of all cells are to be begun, or to be continued with the present state at `time` [s].
  virtual void beginCellTables() {}
  virtual void continueCellTables(double /*time*/) {}
  /// A step of an interactive run, after `stepReached`: the simulation holds new heads, or new
  /// temperatures at `time` [s]. It stands still during the call.
  virtual void headsReached() {}
  virtual void temperaturesReached(double /*time*/) {}
  /// The last results stand; the table of well temperatures is not written yet.
  virtual void resultsReached() {}
  /// The table is written, if it was wanted; the simulation is released next.
  virtual void completing() {}
  /// An interactive run ended with an error at `time` [s].
  virtual void failed(double /*time*/, const QString& /*text*/) {}
  /// An interactive run ended without results, see SimulationRun::abandon.
  virtual void abandoned() {}
  virtual void finished(const RunSummary& /*summary*/) {}
};

} // namespace TVR
