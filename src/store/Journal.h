#pragma once

#include "project/ChangeScope.h"
#include "project/Project.h"

class QString;

namespace TVR::Data {

/// One change of the project with all that the rules made of it: the outermost write, and what the
/// project was before and after it.
struct JournalEntry {
  int what; ///< the id of the parameter that was written, or a ChangedPart
  Project before;
  Project after;
  bool isOfProgram = false; ///< within ProgramWork, so that no user asked for this very change
};

/// Is told of every change of the store that left the project another one; a table that is made is
/// none. Called on the thread of the change when it is complete, after its signals, or when the
/// program's own work begins within it. Must neither write to the store, nor add or remove a
/// journal, nor throw.
class Journal {
public:
  virtual ~Journal() = default;
  virtual void record(const JournalEntry& entry) = 0;
  /// An action of the user begins: the entries until endStep() belong together under this name.
  /// Steps do not lie within each other.
  virtual void beginStep(const QString& /*name*/) {}
  virtual void endStep() {}
};

} // namespace TVR::Data
