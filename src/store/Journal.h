#pragma once

#include "project/ChangeScope.h"
#include "project/Project.h"

namespace TVR::Data {

/// One change of the project with all that the rules made of it: the outermost write, and what the
/// project was before and after it.
struct JournalEntry {
  int what; ///< the id of the parameter that was written, or a ChangedPart
  Project before;
  Project after;
};

/// Is told of every change of the store that left the project another one; a table that is made is
/// none. Called on the thread of the change when it is complete, after its signals; must neither
/// write to the store nor throw.
class Journal {
public:
  virtual ~Journal() = default;
  virtual void record(const JournalEntry& entry) = 0;
};

} // namespace TVR::Data
