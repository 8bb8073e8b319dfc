#include "simulation/SimulationThread.h"

#include <QMutexLocker>

namespace TVR {

SimulationThread::SimulationThread(const SimulationInput& input, QObject* parent)
    : QThread(parent), simulation_(new Simulation(input, this)) {}

SimulationThread::~SimulationThread() {
  if (isRunning()) {
    setFinished();
    wait();
  }
}

void SimulationThread::run() {
  simulation_->run();
  while (!isFinishedFlagSet())
    yieldCurrentThread();
  simulation_->deleteLater();
  exit(0);
}

void SimulationThread::setFinished() {
  const QMutexLocker lock(&mutex_);
  if (finished_)
    return; // the simulation may be gone by now
  simulation_->stop();
  finished_ = true;
}

bool SimulationThread::isFinishedFlagSet() {
  const QMutexLocker lock(&mutex_);
  return finished_;
}

} // namespace TVR
