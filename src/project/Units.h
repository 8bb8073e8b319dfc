#pragma once

namespace TVR {

inline constexpr double secondsPerHour = 3600.0;
inline constexpr double secondsPerDay = 86400.0;
inline constexpr double hoursPerDay = 24.0;
inline constexpr double daysPerYear = 365.25;
/// A year of 365.25 days [s].
inline constexpr double secondsPerYear = 3.15576e7;
/// A twelfth of that year [s].
inline constexpr double secondsPerMonth = 2629800;
/// So many make 1 m³/s.
inline constexpr double litresPerMinute = 60000;
inline constexpr double megajoulesPerKilowattHour = 3.6;

/// Seconds to years, in the order of operations that tables and labels require. The summary has
/// one of its own.
constexpr double inYears(double seconds) {
  return seconds / daysPerYear / secondsPerDay;
}

/// Whether two times [s] lie apart where years are told with two digits behind the point.
constexpr bool areApart(double one, double other) {
  constexpr double half = 0.005 * secondsPerYear;
  return one - other > half || other - one > half;
}

} // namespace TVR
