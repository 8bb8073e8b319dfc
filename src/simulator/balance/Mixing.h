#pragma once

#include <cmath>
#include <cstddef>

/// True if water is produced at all. `sumRate`: sum of the rates of the production wells [m3/s].
inline bool isProduced(double sumRate) {
  constexpr double noProduction = 1e-25; // [m3/s]
  return std::abs(sumRate) > noProduction;
}

/// State value of the water that wells inject in a closed loop: the mean over the production wells,
/// weighted with their rates. `sumRate`: sum of their rates [m3/s]; `sumValue`: sum of rate *
/// (state value - reference); without production it is `reference`.
inline double mixedValue(double sumRate, double sumValue, double reference) {
  return isProduced(sumRate) ? sumValue / sumRate + reference : reference;
}

/// What the cell of a well gives to the mixing of the produced water and takes from it.
struct MixedCell {
  std::size_t cell;
  double share;    ///< derivative of the inflow value to the state of the cell [-]
  double response; ///< derivative of the cell's rate of change to the inflow value [1/s]
};
