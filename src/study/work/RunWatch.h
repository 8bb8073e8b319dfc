#pragma once

#include "quantities/PlumeExtent.h"
#include "simulation/RunObserver.h"
#include "study/plan/ResultLayout.h"
#include "study/work/Record.h"

#include <cstddef>
#include <stdexcept>
#include <vector>

namespace TVR {
class SimulationRun;
}

namespace TVR::Study {

class CellField;

/// A run that cannot give the answers of its study. The text says why.
class UnfitRun : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// The place of the output time next to a time [a]; one at least is expected [s].
std::size_t nearestOutputTime(const std::vector<double>& outputTimes, double years);
/// Whether one is so near that its results count for that time: off by no more than 2 % or 0.05
/// years.
bool isNearOutputTime(const std::vector<double>& outputTimes, double years);
/// Why a run with these output times [s] and as many wells can't give what a layout asks for; empty
/// if it can.
QString unfitness(const ResultLayout& layout, const std::vector<double>& outputTimes,
                  std::size_t wells);

/// Takes from a run what a layout asks for, as it reaches its output times.
class RunWatch : public RunObserver {
public:
  /// Both outlive this.
  RunWatch(const ResultLayout& layout, const SimulationRun& run);

  /// Throws UnfitRun for a run with other wells, or with other times.
  void starting(const RunStart& start) override;
  void stepReached(const RunStep& step) override;
  void resultsReached(const RunResults& results) override;

  /// Scalars, series and maps of the run, when it is over. Mesh bands are not a number: one run
  /// does not tell them.
  Record record() const;
  /// Of the mesh.
  int cells() const { return cells_; }

private:
  /// What is taken at one of the times of the layout.
  struct Moment {
    std::size_t step = 0;
    std::vector<Quantities::PlumeExtent> plumes; ///< by level
    std::vector<double> plumeAreas;              ///< by level [m2]
    double drawdownMax = 0;                      ///< [m]
    std::vector<double> drawdowns;               ///< by well [m]
    std::vector<double> temperatures;            ///< by well [deg C]
  };
  /// Numbers of a well over time.
  struct History {
    std::vector<double> times; ///< [s]
    std::vector<double> values;
    double at(double time) const;
  };

  void findWells();
  void take(Moment& moment, const Simulation& simulation, const std::vector<double>& drawdowns);
  void appendMaps(const CellField& changes);
  double valueOf(const Scalar& scalar) const;

  const ResultLayout& layout_;
  const SimulationRun& run_;
  std::vector<Moment> moments_;        ///< by time of the layout
  std::vector<std::size_t> wellCells_; ///< cells of the mesh, by well
  std::vector<History> drawdowns_;     ///< by well
  std::vector<History> temperatures_;  ///< by well
  QByteArray maps_;
  int cells_ = 0;
};

} // namespace TVR::Study
