#pragma once

namespace TVR {

inline constexpr double secondsPerHour = 3600.0;
/// A year of 365.25 days [s].
inline constexpr double secondsPerYear = 3.15576e7;

} // namespace TVR
