#pragma once

#include "project/ParameterRange.h"

#include <QString>

#include <limits>
#include <optional>
#include <vector>

namespace TVR::Study {

enum class Shape { Uniform, LogUniform, Normal, LogNormal, Triangular, List };

/// How likely the values of a varied key are. What its numbers mean:
/// uniform and log-uniform: least and greatest value; normal: mean and standard deviation;
/// log-normal: median and the factor that is exceeded upwards, and downwards, as often as a normal
/// value lies more than a standard deviation off; triangular: least, most likely and greatest
/// value; list: values of equal weight.
struct Distribution {
  Shape shape = Shape::Uniform;
  std::vector<double> numbers;
  /// The values are those between these bounds only.
  double least = -std::numeric_limits<double>::infinity();
  double most = std::numeric_limits<double>::infinity();

  /// The value that a share (0 to 1, both excluded) of all values do not exceed.
  double quantile(double share) const;
};

/// Reads "log-uniform(0.001, 0.01)", or "normal(0.25, 0.1) within 0.1 to 0.5". Without a
/// distribution `expected` says what was expected.
std::optional<Distribution> parseDistribution(const QString& text, QString& expected);

/// The distribution as parseDistribution reads it, with bounds that cut something off.
QString toText(const Distribution& distribution);

/// How much of a distribution lies within its bounds: 1 if they cut nothing off, or of a list.
double keptShare(const Distribution& distribution);

/// The distribution without what lies outside of a range; none if its bounds, or a value of a list,
/// lie outside, or nothing is left.
std::optional<Distribution> within(Distribution distribution, const ParameterRange& range);

} // namespace TVR::Study
