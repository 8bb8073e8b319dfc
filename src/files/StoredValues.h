#pragma once

namespace TVR {
class ProjectTarget;
}

namespace TVR::Data {

/// Files before this version hold rates without a sign, and count pairs of wells.
inline constexpr double firstVersionWithSignedRates = 1.2;

/// How often a file may say how many wells or demand periods there are. Saying it once is usual,
/// and each time costs a look at all pairs of wells.
inline constexpr int maxSizings = 20;

/// What follows from a value that has just been taken from a project file: the rock's density and
/// heat conductivity go on to the aquifer and its surroundings, and the number of wells, doubled
/// for a file that counts pairs, sizes the tables.
void settleStoredValue(int id, double fileVersion, ProjectTarget& project);

} // namespace TVR::Data
