#pragma once

namespace TVR {

/// A year of 365.25 days [s].
inline constexpr double secondsPerYear = 31557600.0;

/// Seconds to years, in the order of operations in which all tables and labels do it.
inline double inYears(double seconds) {
  return seconds / 365.25 / 86400;
}

} // namespace TVR
