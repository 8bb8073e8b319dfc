#pragma once

#include <cmath>

/// State value of the water that wells inject in a closed loop: the mean over the production wells,
/// weighted with their rates. `sumRate`: sum of their rates [m3/s]; `sumValue`: sum of rate *
/// (state value - reference); without production it is `reference`.
inline double mixedValue(double sumRate, double sumValue, double reference) {
  constexpr double noProduction = 1e-25; // [m3/s]
  return std::abs(sumRate) > noProduction ? sumValue / sumRate + reference : reference;
}
