#pragma once

namespace TVR {

/// What a change is about, where it is no single parameter.
enum ChangedPart {
  ChangedWells = -1,
  ChangedPeriods = -2,
  ChangedProject = -3,
  MadeTable = -4 ///< a table that is made when it is first asked for, which is no change to a user
};

/// Is told where a change of the project begins and ends. Changes lie within each other: one of the
/// user makes the rules change more.
class ChangeKeeper {
public:
  virtual ~ChangeKeeper() = default;
  /// `what` is the id of the parameter that is about to be written, or a ChangedPart.
  virtual void beginChange(int what) = 0;
  virtual void endChange() = 0;
};

/// One change, from beginning to end of the scope. Without a keeper nothing is kept.
class ChangeScope {
public:
  ChangeScope(ChangeKeeper* keeper, int what) : keeper_(keeper) {
    if (keeper_)
      keeper_->beginChange(what);
  }
  ChangeScope(const ChangeScope&) = delete;
  ChangeScope& operator=(const ChangeScope&) = delete;
  ~ChangeScope() {
    if (keeper_)
      keeper_->endChange();
  }

private:
  ChangeKeeper* const keeper_;
};

} // namespace TVR
