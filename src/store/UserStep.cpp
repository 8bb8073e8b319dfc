#include "store/UserStep.h"

#include "store/Manager.h"

namespace TVR::Data {

UserStep::UserStep(Manager& store, const StepName& name) : store_(store) {
  store_.beginStep(name);
}

UserStep::~UserStep() {
  store_.endStep();
}

ProgramWork::ProgramWork(Manager& store) : store_(store) {
  store_.beginProgramWork();
}

ProgramWork::~ProgramWork() {
  store_.endProgramWork();
}

} // namespace TVR::Data
