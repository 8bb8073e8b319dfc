#pragma once

#include <cmath>

/// True if a pivot is positive and large enough beside the sum of magnitudes of the rest of its row
/// for an elimination without exchange of rows. A dominant row keeps its dominance through the
/// elimination; the factor leaves room for rows in which a change of storage costs a little of it.
inline bool isDominant(double pivot, double restOfRow) {
  constexpr double leastShare = 0.5;
  return std::isfinite(pivot) && pivot > 0.0 && pivot >= leastShare * restOfRow;
}
