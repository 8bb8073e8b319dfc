#pragma once

#include "simulator/mesh/FVMesh.h"
#include "simulator/mesh/Well.h"
#include "simulator/models/FVMaterial.h"
#include "simulator/solvers/LinearSolver.h"

#include <QMutex>
#include <QObject>
#include <QString>

#include <iosfwd>
#include <memory>
#include <mutex>
#include <vector>

class FVGeothermSite;

namespace TVR {

/// What a simulation is made of. `mesh` and `wells` are copied; `times` [s] ascends and has one
/// entry at least, `demandSteps` has one demand period for each time.
struct SimulationInput {
  const FVMesh* mesh = nullptr;
  FVMaterial aquifer;
  double pressureGradient = 0; ///< of the regional flow along +x [Pa/m]
  std::vector<Well*> wells;
  double referenceTemperature = 0; ///< [deg C]
  double waterDensity = 0;         ///< [kg/m3]
  double waterHeatCapacity = 0;    ///< [J/(kg K)]
  double viscosity = 0;            ///< [Pa s]
  double dispersivity = 0;         ///< longitudinal [m]
  double startTime = 0;            ///< [s]
  double bedrock = 0;              ///< exchange with the rock below: 0 or 1
  double caprock = 0;              ///< exchange with the rock above: 0 or 1
  FVMaterial surrounding;
  double exchangeLength = 0; ///< reference length of the exchange chains [m]
  bool closedLoop = false;
  LinearSolver linearSolver = LinearSolver::Structured;
  std::vector<double> times;
  std::vector<int> demandSteps;
};

/// Drives the model of a site through a list of output times, on the caller's thread or inside a
/// SimulationThread, and keeps copies of the results that a reader on another thread may fetch. It
/// lives on its input alone.
/// `finished` tells of each output time; the reader answers with `done`, and until then the run
/// stands still. Errors of the simulator become `errorText` and a last `finished` with the error
/// flag.
class Simulation : public QObject {
  Q_OBJECT

public:
  /// Which models advance: with GroundwaterOnly the flow field is computed up to the first output
  /// time and then stays, and the run goes on as HeatOnly.
  enum Type { GroundwaterOnly = 0, HeatOnly = 1, Coupled = 2 };
  Q_ENUM(Type)

  /// Builds the model. Throws what FVGeothermSite throws.
  explicit Simulation(const SimulationInput& input, QObject* parent = nullptr);
  ~Simulation() override;

  // Results for readers on any thread, while the run goes on too: copies of what stood at an
  // output time.

  /// Drawdown [m] and temperature change [K] of each cell of the aquifer at the last output time.
  /// As many entries are copied as both lists have.
  void getDrawdowns(std::vector<double>& out) const;
  void getTemperatures(std::vector<double>& out) const;
  /// Keeps the temperatures as they are while the lock lives, for a reader that takes its time. An
  /// output time that the run reaches meanwhile is not reported; only its end waits for the lock.
  [[nodiscard]] std::unique_lock<QRecursiveMutex> holdTemperatures() const {
    return std::unique_lock(temperatureMutex_);
  }
  /// Heat content [J] of each cell of the aquifer at the last output time, or before the first one
  /// at the start, reckoned from the reference temperature.
  void getEnergyContent(std::vector<double>& out) const;

  /// Empty as long as no error occurred.
  QString errorText() const { return error_; }
  /// The wells with their histories; to be read when the run has ended.
  std::vector<Well*> wells() const;
  bool groundwaterDone() const;
  FVGeothermSite* model() const { return model_.get(); }
  const FVMesh& mesh() const;
  const std::vector<double>& times() const { return times_; }
  /// How long the run would wait for results that a reader holds [ms]: 1, and three times as long
  /// after each output time that was not reported for it. To be asked on the run's thread.
  int patience() const { return patience_; }

  /// Drawdown [m] and temperature change [K] of each cell of the aquifer as they stand now, for
  /// who drives the model, on its thread.
  std::vector<double> presentDrawdowns() const;
  std::vector<double> presentTemperatureChanges() const;

  /// Writes the present state of the aquifer's cells as one Tecplot zone.
  void writeTecplotFrame(std::ostream& stream) const;

signals:
  /// An output time was reached: its index, the run mode, whether an error ended the run, and
  /// whether this is the last word of the run.
  void finished(int step, int type, bool error, bool last);

public slots:
  /// Chooses the mode and starts: on the parent if that is a SimulationThread, else right here.
  void start(TVR::Simulation::Type type);
  /// The time loop. Returns when the last output time is reached, on a stop and on an error.
  virtual void run();
  void setTime(double t);
  void setType(TVR::Simulation::Type type);
  void setRelativeTolerance(double groundwater, double heat);
  void setAbsoluteTolerance(double groundwater, double heat);
  double currentTime() const { return currentTime_; }
  bool isStoped() const;
  bool isDone() const;
  /// Ends the run at the next integrator step. Any thread.
  void stop();
  /// The reader's answer to `finished`. Any thread.
  void done(bool done);
  void done();

private:
  bool goesOn() const;
  double reachedTime() const;
  bool solve();
  void reportStep();
  void reportGroundwater();
  void reportEnd();
  void fillDrawdowns();
  void fillTemperatures();
  void fillEnergies();
  void announce();
  void announceWhenFree(QRecursiveMutex& mutex, void (Simulation::*fill)());

  double relTolGroundwater_ = 1e-6;
  double relTolHeat_ = 1e-6;
  double absTolGroundwater_ = 1e-6;
  double absTolHeat_ = 1e-6;
  const std::vector<double> times_;
  const std::vector<int> demandSteps_;
  std::unique_ptr<FVGeothermSite> model_;
  std::vector<double> temperatures_; ///< guarded by temperatureMutex_
  std::vector<double> drawdowns_;    ///< guarded by drawdownMutex_
  std::vector<double> energies_;     ///< guarded by drawdownMutex_
  mutable QRecursiveMutex temperatureMutex_;
  mutable QRecursiveMutex modelMutex_; ///< guards stop requests
  mutable QRecursiveMutex doneMutex_;
  mutable QRecursiveMutex drawdownMutex_;
  double currentTime_;
  QString error_;
  double targetTime_ = 0;
  bool done_ = true; ///< the reader has finished with the last results; guarded by doneMutex_
  Type type_ = Coupled;

  const double waterDensity_;         ///< [kg/m3]
  const double referenceTemperature_; ///< [deg C]
  std::size_t step_ = 0;              ///< index of the next output time
  int patience_ = 1;                  ///< time-out of the next attempt to lock a result [ms]
};

} // namespace TVR
