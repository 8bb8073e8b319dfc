#pragma once

#include "project/ParameterValues.h"
#include "project/Wells.h"

namespace TVR {

/// A project as a value: what was entered and what the rules made of it. Copies share their data
/// until one of them is changed.
struct Project {
  ParameterValues values;
  Wells wells;
  ByPeriod durations; ///< of the demand periods [s]; none where nobody asked for them yet

  /// Exact; see isSameValue.
  bool operator==(const Project& other) const;
};

void swap(Project& one, Project& other) noexcept;

} // namespace TVR
