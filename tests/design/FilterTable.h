#pragma once

#include <array>

/// Filters [mm] from large to small, as the search walks them.
inline constexpr std::array<double, 9> filters{1000.0, 800.0, 600.0, 500.0, 400.0,
                                               300.0,  250.0, 200.0, 150.0};
