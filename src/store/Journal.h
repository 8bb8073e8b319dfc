#pragma once

#include "project/ChangeScope.h"
#include "project/Project.h"
#include "store/ValueOrigin.h"

#include <QString>

namespace TVR::Data {

/// One change of the project with all that the rules made of it: the outermost write, and what the
/// project was before and after it.
struct JournalEntry {
  int what; ///< the id of the parameter that was written, or a ChangedPart
  Project before;
  Project after;
  bool isOfProgram = false; ///< within ProgramWork, so that no user asked for this very change
};

/// What an action of the user is called, and which changes are part of it.
struct StepName {
  QString text; ///< translated, an imperative without a full stop: "Move wells"
  /// The name is one for several values: where a single one is changed, that one gives the name.
  bool isForSeveral = false;
  /// The action goes on: with the step before, if that has the same name and goes on too.
  bool goesOn = false;
};

/// Is told of every change of the store that left the project another one. Called on the thread of
/// the change when it is complete, after its signals, or when the program's own work begins within
/// it. Must neither write to the store, nor add or remove a journal, nor throw.
class Journal {
public:
  virtual ~Journal() = default;
  virtual void record(const JournalEntry& entry) = 0;
  /// The store has made a table that was asked for, which is no change to a user: `entry.what` is
  /// MadeTable.
  virtual void tableMade(const JournalEntry& /*entry*/) {}
  /// Values were written, whether they left the project another one or not. Before record().
  virtual void wrote(const WrittenValues& /*values*/, const Project& /*project*/) {}
  /// An action of the user begins: the entries until endStep() belong together under this name.
  /// Steps do not lie within each other.
  virtual void beginStep(const StepName& /*name*/) {}
  virtual void endStep() {}
};

} // namespace TVR::Data
