#pragma once

#include "store/Journal.h"

namespace TVR::Data {

class ChangeRecorder;
class Manager;

/// One action of the user, from beginning to end of the scope: all changes of the store within it
/// are one step to undo, under a name like "Change hydraulic conductivity". Within another step, or
/// within a change, the scope adds nothing to what is around it. A change outside of any is a step
/// of its own.
class UserStep {
public:
  UserStep(Manager& store, const StepName& name);
  UserStep(Manager& store, const QString& name) : UserStep(store, StepName{name}) {}
  UserStep(const UserStep&) = delete;
  UserStep& operator=(const UserStep&) = delete;
  ~UserStep();

private:
  ChangeRecorder& changes_;
};

/// What the program writes down without being asked for it, such as the results of a run: changes
/// within the scope are no step of the user, wherever it stands.
class ProgramWork {
public:
  explicit ProgramWork(Manager& store);
  ProgramWork(const ProgramWork&) = delete;
  ProgramWork& operator=(const ProgramWork&) = delete;
  ~ProgramWork();

private:
  ChangeRecorder& changes_;
};

} // namespace TVR::Data
