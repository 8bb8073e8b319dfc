#include "terminal/ChildProcess.h"

#include "terminal/StopSignals.h"

#include <unistd.h>

namespace TVR {

ChildProcess::ChildProcess() : parent_(getpid()) {}

void ChildProcess::setupChildProcess() {
  StopSignals::prepareChild(parent_);
}

} // namespace TVR
