#include "store/UserStep.h"

#include "store/ChangeRecorder.h"
#include "store/Manager.h"

namespace TVR::Data {

UserStep::UserStep(Manager& store, const StepName& name) : changes_(store.changes()) {
  changes_.beginStep(name);
}

UserStep::~UserStep() {
  changes_.endStep();
}

ProgramWork::ProgramWork(Manager& store) : changes_(store.changes()) {
  changes_.beginProgramWork();
}

ProgramWork::~ProgramWork() {
  changes_.endProgramWork();
}

} // namespace TVR::Data
