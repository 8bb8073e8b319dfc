#pragma once

namespace TVR::ProjectLimits {

/// The most wells, demand periods of a year, and pairs of both that a project may have: all that
/// the wizard's pages can ask for, hours of a year, and little enough for the store to hold and to
/// write again.
inline constexpr int maxWells = 20'000;
inline constexpr int maxPeriods = 10'000;
inline constexpr int maxWellPeriods = 200'000;

} // namespace TVR::ProjectLimits
