#include "plugin/RunWatch.h"

#include "simulation/SimulationRun.h"

namespace TVR {

void RunWatch::stop() {
  run_.stop();
}

void RunWatch::note(bool isRunning) {
  if (isRunning == isRunning_)
    return;
  isRunning_ = isRunning;
  emit changed();
}

} // namespace TVR
