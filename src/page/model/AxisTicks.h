#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace TVR::Page {

/// Places of the ticks of an axis, in its own units and rising.
struct AxisTicks {
  double step = 0; ///< between two major ticks; 0 if there are none
  std::vector<double> major;
  std::vector<double> minor; ///< between the major ones
};

/// The smallest of 1, 2 and 5 times a power of ten that is not below `least`; not below 1 if
/// `whole`. 0 if `least` is not above 0 or not finite.
double niceStep(double least, bool whole);

/// Ticks at the multiples of `step` from `minimum` to `maximum`, both ends included, and up to
/// `subTicks` minor ones between two of them: fewer where that makes their distance a rounder
/// number, or a whole one if `whole`. None for an empty range, a step that is not above 0 or more
/// than a thousand ticks.
AxisTicks axisTicks(double minimum, double maximum, double step, int subTicks, bool whole);

/// A distance of ticks for `range` units over `length` [mm]: `wished` if it is above 0, its labels
/// find room and it gives at least three intervals, else the smallest nice one whose labels do.
/// `labelRoom` tells the length [mm] that the labels need from tick to tick at a step. 0 for an
/// empty range or length.
double fittingStep(double range, double length, double wished, bool whole,
                   const std::function<double(double)>& labelRoom);

/// The number in plain decimals, with as many places as the distance of the ticks has.
QString tickLabel(double value, double step);

} // namespace TVR::Page
