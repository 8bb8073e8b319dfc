#pragma once

#include "project/ParameterValues.h"
#include "project/Wells.h"

namespace TVR {

/// Which tables of a project have been made: a file holds no others.
struct MadeTables {
  bool wells = false;
  bool periods = false;
  bool wellPeriods = false;

  bool operator==(const MadeTables& other) const = default;
};

/// A project as a value: what was entered and what the rules made of it. Copies share their data
/// until one of them is changed.
struct Project {
  ParameterValues values;
  Wells wells;
  ByPeriod durations; ///< of the demand periods [s]; none where nobody asked for them yet
  MadeTables made;    ///< those that somebody has asked for

  /// Exact; see isSameValue. A table that is made makes no other project.
  bool operator==(const Project& other) const;
};

void swap(Project& one, Project& other) noexcept;

} // namespace TVR
