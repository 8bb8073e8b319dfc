#include "simulation/Simulation.h"

#include "project/Constants.h"
#include "project/Units.h"
#include "simulation/SolverMessages.h"
#include "simulator/models/FVGeothermSite.h"

#include <QThread>

#include <algorithm>
#include <chrono>
#include <limits>
#include <mutex>
#include <ostream>
#include <stdexcept>

namespace TVR {

namespace {

std::unique_ptr<FVGeothermSite> makeSite(const SimulationInput& input) {
  return std::make_unique<FVGeothermSite>(
      std::make_unique<FVMesh>(*input.mesh), input.aquifer, input.pressureGradient, input.wells,
      input.referenceTemperature, input.waterDensity, input.waterHeatCapacity, input.viscosity,
      input.dispersivity, input.startTime, input.bedrock + input.caprock, input.surrounding,
      input.exchangeLength, input.closedLoop, input.linearSolver);
}

void copyCommonPart(const std::vector<double>& from, std::vector<double>& to) {
  std::copy_n(from.begin(), std::min(from.size(), to.size()), to.begin());
}

using ResultLock = std::unique_lock<QRecursiveMutex>;

} // namespace

Simulation::Simulation(const SimulationInput& input, QObject* parent)
    : QObject(parent), times_(input.times), demandSteps_(input.demandSteps),
      model_(makeSite(input)), currentTime_(input.startTime), waterDensity_(input.waterDensity),
      referenceTemperature_(input.referenceTemperature) {
  fillEnergies();
}

Simulation::~Simulation() = default;

const FVMesh& Simulation::mesh() const {
  return model_->mesh();
}

std::vector<Well*> Simulation::wells() const {
  return model_->wells();
}

bool Simulation::groundwaterDone() const {
  return model_->groundwaterDone();
}

void Simulation::getDrawdowns(std::vector<double>& out) const {
  const ResultLock lock(drawdownMutex_);
  copyCommonPart(drawdowns_, out);
}

void Simulation::getTemperatures(std::vector<double>& out) const {
  const ResultLock lock = holdTemperatures();
  copyCommonPart(temperatures_, out);
}

void Simulation::getEnergyContent(std::vector<double>& out) const {
  const ResultLock lock(drawdownMutex_);
  out = energies_;
}

void Simulation::setTime(double t) {
  targetTime_ = t;
}

void Simulation::setRelativeTolerance(double groundwater, double heat) {
  relTolGroundwater_ = groundwater;
  relTolHeat_ = heat;
}

void Simulation::setAbsoluteTolerance(double groundwater, double heat) {
  absTolGroundwater_ = groundwater;
  absTolHeat_ = heat;
}

void Simulation::setType(Type type) {
  if (type == type_)
    return;
  targetTime_ = type == GroundwaterOnly ? model_->groundwater.lastStepTime : model_->time();
  type_ = type;
}

void Simulation::start(Type type) {
  setType(type);
  if (auto* thread = qobject_cast<QThread*>(parent()))
    thread->start(QThread::InheritPriority);
  else
    run();
}

bool Simulation::isStoped() const {
  const std::lock_guard lock(modelMutex_);
  return model_->isStopped();
}

void Simulation::stop() {
  const std::lock_guard lock(modelMutex_);
  model_->stop();
}

bool Simulation::isDone() const {
  const std::lock_guard lock(doneMutex_);
  return done_;
}

void Simulation::done(bool done) {
  const std::lock_guard lock(doneMutex_);
  done_ = done;
}

void Simulation::done() {
  done(true);
}

bool Simulation::goesOn() const {
  return !isStoped() && step_ < times_.size() && error_.isEmpty();
}

double Simulation::reachedTime() const {
  return type_ == GroundwaterOnly ? model_->groundwater.lastStepTime : model_->time();
}

void Simulation::run() {
  done(true);
  targetTime_ = times_.at(0);
  patience_ = 1;
  step_ = 0;
  bool isUnreported = false;

  while (goesOn()) {
    currentTime_ = reachedTime();
    if (targetTime_ > currentTime_) {
      isUnreported = solve();
    } else if (!isUnreported || !isDone()) {
      QThread::msleep(1); // a reader is slow, or has to name a later time
      continue;
    }
    if (!isUnreported || !isDone())
      continue;
    isUnreported = false;
    if (type_ == GroundwaterOnly)
      reportGroundwater();
    else
      reportStep();
  }
  reportEnd();
}

/// Brings the models of the run mode to the target time. False after an error.
bool Simulation::solve() {
  try {
    if (type_ != HeatOnly)
      model_->solveGroundwater(targetTime_, relTolGroundwater_, absTolGroundwater_);
    if (type_ != GroundwaterOnly)
      model_->solveHeat(targetTime_, true, relTolHeat_, absTolHeat_);
    return true;
  } catch (const std::runtime_error& error) {
    error_ = solverMessage(QString::fromStdString(error.what()), groundwaterDone());
    stop();
    return false;
  }
}

void Simulation::announce() {
  done(false);
  emit finished(static_cast<int>(step_), type_, !error_.isEmpty(), false);
  patience_ = 1;
}

/// Fills results that `mutex` guards and announces them, unless the reader holds them: then it gets
/// more time at the next attempt.
void Simulation::announceWhenFree(QRecursiveMutex& mutex, void (Simulation::*fill)()) {
  ResultLock lock(mutex, std::chrono::milliseconds(patience_));
  if (!lock) {
    patience_ = std::min(patience_, std::numeric_limits<int>::max() / 3) * 3;
    return;
  }
  (this->*fill)();
  lock.unlock();
  announce();
}

void Simulation::reportStep() {
  if (const ResultLock lock(drawdownMutex_, std::chrono::milliseconds(patience_)); lock) {
    if (type_ == Coupled)
      fillDrawdowns();
    fillEnergies();
  }
  announceWhenFree(temperatureMutex_, &Simulation::fillTemperatures);
  ++step_;
  if (step_ < times_.size()) {
    model_->setDemandStep(demandSteps_.at(step_));
    targetTime_ = times_[step_];
  }
}

/// Required oddity: from here on the flow field stays as it was at the first output time.
void Simulation::reportGroundwater() {
  announceWhenFree(drawdownMutex_, &Simulation::fillDrawdowns);
  targetTime_ = model_->time();
  type_ = HeatOnly;
  if (step_ < times_.size())
    targetTime_ = times_[step_];
}

void Simulation::reportEnd() {
  currentTime_ = model_->time();
  {
    const ResultLock lock(drawdownMutex_);
    if (type_ != HeatOnly)
      fillDrawdowns();
    fillEnergies();
  }
  if (type_ != GroundwaterOnly) {
    const ResultLock lock = holdTemperatures();
    fillTemperatures();
  }
  emit finished(static_cast<int>(step_), type_, !error_.isEmpty(), true);
}

std::vector<double> Simulation::presentDrawdowns() const {
  std::vector<double> drawdowns(model_->groundwater.elementCount());
  for (std::size_t i = 0; i < drawdowns.size(); ++i)
    drawdowns[i] = model_->pressureChange(i) / gravity / waterDensity_;
  return drawdowns;
}

std::vector<double> Simulation::presentTemperatureChanges() const {
  std::vector<double> changes(model_->groundwater.elementCount());
  for (std::size_t i = 0; i < changes.size(); ++i)
    changes[i] = model_->temperature(i) - referenceTemperature_;
  return changes;
}

void Simulation::fillDrawdowns() {
  drawdowns_ = presentDrawdowns();
}

void Simulation::fillEnergies() {
  energies_.resize(model_->groundwater.elementCount());
  for (std::size_t i = 0; i < energies_.size(); ++i)
    energies_[i] = model_->energy(i, referenceTemperature_);
}

void Simulation::fillTemperatures() {
  temperatures_ = presentTemperatureChanges();
}

void Simulation::writeTecplotFrame(std::ostream& stream) const {
  const FVMesh& cells = mesh();
  const QString title = QStringLiteral("t=%1 a").arg(inYears(model_->time()));
  cells.writeZoneHeader(stream, title.toStdString());
  cells.writeCoordinates(stream);

  std::vector<double> values(cells.elements.size());
  const auto writeValues = [&] {
    for (const double value : values)
      stream << value << '\n';
    stream << '\n';
  };
  getDrawdowns(values);
  writeValues();
  getTemperatures(values);
  writeValues();
  stream.flush();
  for (std::size_t i = 0; i < values.size(); ++i)
    values[i] = model_->groundwater.elements[i]->pressure;
  writeValues();
}

} // namespace TVR
