#pragma once

namespace TVR {

/// Gravity [m/s²] of the regional gradient and of the drawdown. Required oddity: neither asks the
/// parameter `__g`.
inline constexpr double gravity = 9.81;

} // namespace TVR
