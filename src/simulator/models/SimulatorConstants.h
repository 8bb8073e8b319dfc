#pragma once

/// Magnitudes at or below the smallest normal double count as zero wherever the simulator
/// divides by an area, a flow or a velocity.
inline constexpr double smallestNormalDouble = 2.2250738585072014e-308;
