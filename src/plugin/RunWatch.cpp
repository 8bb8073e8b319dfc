#include "plugin/RunWatch.h"

namespace TVR {

void RunWatch::note(bool isRunning) {
  if (isRunning == isRunning_)
    return;
  isRunning_ = isRunning;
  emit changed();
}

} // namespace TVR
