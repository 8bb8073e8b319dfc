#pragma once

#include "simulator/models/FVGroundwaterModel.h"
#include "simulator/models/FVHeatModel.h"
#include "simulator/models/FVMaterial.h"
#include "simulator/solvers/LinearSolver.h"

#include <cstddef>
#include <iosfwd>
#include <memory>

class FVCvodeSolver;

/// A groundwater and a heat model side by side, each with a time integrator of its own that is
/// created on first use. The coupling runs one way: the heat model takes over the flows of the
/// groundwater model when solveHeat is told so. Element i is the same cell in both models; the
/// heat model may have more elements behind (exchange chains).
/// One thread uses a model; only stop() and isStopped() may be called from others.
class FVGeothermModel {
public:
  /// T0: reference temperature [deg C]; water density [kg/m3]; water heat capacity [J/(kg K)];
  /// viscosity [Pa s]; start time [s]; closedLoop: injected water takes the mixed temperature of
  /// the produced water; linearSolver: of both integrators.
  FVGeothermModel(double T0, double waterDensity, double waterHeatCapacity, double viscosity,
                  double startTime, bool closedLoop,
                  LinearSolver linearSolver = LinearSolver::Structured);
  virtual ~FVGeothermModel();

  /// Adds a cell to both models: volume [m3], initial pressure [Pa], temperature [deg C].
  void addElement(double volume, const FVMaterial& material, double initialPressure,
                  double temperature);
  /// Adds a cell of fixed state to both models.
  void addBoundaryElement(double volume, const FVMaterial& material, double initialPressure,
                          double temperature);
  /// Adds a link to both models, with no flow yet on the heat side; lengths and areas as in
  /// FVConnection, longitudinal dispersivity [m]. This and the next three throw
  /// std::out_of_range.
  void addConnection(double d1, double d2, double a, double ax, double ay, double dispersivity,
                     std::size_t i1, std::size_t i2);
  /// i1 counts in the elements, i2 in the boundary elements.
  void addBoundaryConnection(double d1, double d2, double a, double ax, double ay,
                             double dispersivity, std::size_t i1, std::size_t i2);
  /// Adds a well to both models; it is not owned and outlives the model.
  void addSource(Well* well, std::size_t elementIndex);
  /// See FVHeatModel::addExchange.
  void addExchange(std::size_t elementIndex, double H, double area, double factor,
                   double rockDensity, double rockHeatCapacity, double conductivity, double L,
                   double T);

  /// Chooses the demand period of both models. Integrators that exist are restarted if the period
  /// changes. Throws CvodeError.
  void setDemandStep(int k);
  /// Advances the groundwater model to t [s] with relative and absolute tolerance ([-], [Pa]),
  /// which count on the first call only. Throws CvodeError and leaves groundwaterDone() false.
  void solveGroundwater(double t, double relTol, double absTol);
  /// Advances the heat model to t [s] with tolerances ([-], [K]) that count on the first call
  /// only; with `updateFlows` it takes over the present groundwater flows first. Throws
  /// CvodeError, and KinsolError if flows are wanted before the groundwater was solved; time()
  /// then stays.
  void solveHeat(double t, bool updateFlows, double relTol, double absTol);
  /// Hands the flows of the groundwater model to the heat model.
  void updateHeatFlows();
  /// Tries for the steady state of the groundwater model. Always ends in
  /// "KinsolError:: KINSol: -1", see FVKinsolSolver; the text also goes to standard output.
  void solveSteadyGroundwater();

  /// Ends a running advance at its next step. May be called from any thread.
  void stop();
  /// True if a stop was requested in both models. May be called from any thread.
  bool isStopped() const;

  double time() const { return time_; } ///< time reached by the heat model [s]
  /// Temperature of an element [deg C]. This and the next two throw std::out_of_range.
  double temperature(std::size_t i) const { return heat.temperature(i); }
  /// Heat content of an element [J], reckoned from a reference temperature [deg C].
  double energy(std::size_t i, double reference) const { return heat.energy(i, reference); }
  /// Pressure change of an element since the start [Pa].
  double pressureChange(std::size_t i) const { return groundwater.pressureChange(i); }
  /// True after a groundwater advance has ended without error.
  bool groundwaterDone() const { return groundwaterDone_; }

  /// Accepted integrator steps of a model so far; 0 before its first solve.
  long groundwaterSteps() const;
  long heatSteps() const;
  /// The integrators, null before the first solve of their model.
  const FVCvodeSolver* groundwaterSolver() const { return groundwaterSolver_.get(); }
  const FVCvodeSolver* heatSolver() const { return heatSolver_.get(); }

  /// Writes all links of the heat model with their flows, one per line, for diagnosis.
  void writeConnections(std::ostream& stream) const;

  FVGroundwaterModel groundwater;
  FVHeatModel heat;

private:
  void takeSteadyFlows();

  std::unique_ptr<FVCvodeSolver> groundwaterSolver_;
  std::unique_ptr<FVCvodeSolver> heatSolver_;
  LinearSolver linearSolver_;
  double porosity_ = 0.0;
  double time_;
  bool groundwaterDone_ = false;
};
