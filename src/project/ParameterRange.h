#pragma once

#include <QString>

#include <limits>

namespace TVR {

/// The numbers that a parameter may hold, in the unit of its row; the bounds belong to it. A value
/// outside `least` to `most` makes no physical sense, one outside the usual bounds deserves a
/// second look. Without bounds every finite number is usual.
struct ParameterRange {
  double least = -std::numeric_limits<double>::infinity();
  double most = std::numeric_limits<double>::infinity();
  double usualLeast = least;
  double usualMost = most;

  /// The same range in a unit of which `factor` make one of the row's.
  ParameterRange inUnitOf(double factor) const {
    return {least * factor, most * factor, usualLeast * factor, usualMost * factor};
  }
};

enum class RangeVerdict { Usual, Unusual, Impossible };

/// How a value stands to a range; what is not finite is impossible.
RangeVerdict judge(const ParameterRange& range, double value);

/// The bounds that a verdict speaks of, with their unit (none for "-"): "1e-08 to 10 m/s". The
/// usual ones for a usual or an unusual value, the outer ones for an impossible one.
QString boundsText(const ParameterRange& range, RangeVerdict verdict, const QString& unit);

/// What to say of a value that is not usual, `shown` as the user wrote it: what was expected and
/// what was found. Empty for a usual one.
QString rangeRemark(const ParameterRange& range, double value, const QString& unit,
                    const QString& shown);

} // namespace TVR
