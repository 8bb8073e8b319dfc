#pragma once

#include <map>

namespace TVR::Data {

/// Where a value of the project comes from.
enum class ValueOrigin {
  ReferenceDatabase, ///< a default, or looked up for what was chosen
  Typed,             ///< by the user, on a page, in a table or with the mouse
  Rule,              ///< computed from other values
  Program,           ///< the program's own work, such as a simulation
  File,              ///< the file that the project was read from
  Settings           ///< what the settings kept of the last project
};

/// Where the values come from that a change wrote, by id; each as it was written last.
using WrittenValues = std::map<int, ValueOrigin>;

} // namespace TVR::Data
