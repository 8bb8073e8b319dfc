#pragma once

#include <cmath>
#include <numbers>

namespace Verification {

/// Time in breakthrough times at which a share of the produced water comes at injection
/// temperature. A streamline that meets the production well at the angle phi to the line of the
/// wells takes 3 (1 - phi cot phi) / sin^2 phi breakthrough times, and phi / pi of the water comes
/// on faster ones.
inline double arrivalTime(double share) {
  const double phi = std::numbers::pi * share;
  return 3.0 * (1.0 - phi / std::tan(phi)) / std::pow(std::sin(phi), 2);
}

/// The share of the water that has arrived at time t in breakthrough times, by bisection.
inline double producedShare(double t) {
  if (t <= 1.0)
    return 0.0;
  double low = 1e-5;
  double high = 1.0 - 1e-6;
  for (int i = 0; i < 100; ++i) {
    const double share = 0.5 * (low + high);
    (arrivalTime(share) < t ? low : high) = share;
  }
  return 0.5 * (low + high);
}

} // namespace Verification
