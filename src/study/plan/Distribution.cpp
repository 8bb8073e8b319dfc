#include "study/plan/Distribution.h"

#include "study/plan/NormalLaw.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <utility>

namespace TVR::Study {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

/// What is to be known of a shape: its name in a study file, how many numbers it takes, and what
/// they have to be.
struct ShapeRow {
  Shape shape;
  const char* name;
  int numbers; ///< 0: any, one at least
  const char* expected;
};

constexpr ShapeRow shapeRows[] = {
    {Shape::Uniform, "uniform", 2, "uniform(LEAST, GREATEST), the first below the second"},
    {Shape::LogUniform, "log-uniform", 2,
     "log-uniform(LEAST, GREATEST), both above 0, the first below the second"},
    {Shape::Normal, "normal", 2, "normal(MEAN, STANDARD DEVIATION), the second above 0"},
    {Shape::LogNormal, "log-normal", 2,
     "log-normal(MEDIAN, FACTOR), the first above 0, the second above 1"},
    {Shape::Triangular, "triangular", 3,
     "triangular(LEAST, MOST LIKELY, GREATEST), in ascending order"},
    {Shape::List, "list", 0, "list(VALUE, VALUE, ...)"},
};

constexpr char anyShape[] = "uniform(...), log-uniform(...), normal(...), log-normal(...), "
                            "triangular(...) or list(...)";

std::optional<double> numberIn(const QString& text) {
  bool ok = false;
  const double number = text.trimmed().toDouble(&ok);
  return ok && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<std::vector<double>> numbersIn(const QString& text) {
  std::vector<double> numbers;
  for (const QString& part : text.split(',')) {
    const std::optional<double> number = numberIn(part);
    if (!number)
      return {};
    numbers.push_back(*number);
  }
  return numbers;
}

bool makesSense(const ShapeRow& row, const std::vector<double>& n) {
  if (row.numbers != 0 && n.size() != static_cast<std::size_t>(row.numbers))
    return false;
  switch (row.shape) {
  case Shape::Uniform:
    return n[0] < n[1];
  case Shape::LogUniform:
    return n[0] > 0 && n[0] < n[1];
  case Shape::Normal:
    return n[1] > 0;
  case Shape::LogNormal:
    return n[0] > 0 && n[1] > 1;
  case Shape::Triangular:
    return n[0] <= n[1] && n[1] <= n[2] && n[0] < n[2];
  case Shape::List:
    return !n.empty();
  }
  return false;
}

/// The share of a normal law below -z, for a z from `farTail`, beyond which numbers can't hold it,
/// as a share of that below -`from`: of its asymptotic series (Abramowitz and Stegun 1964, 26.2.12)
/// the exponential counts.
constexpr double farTail = 35;
double farShare(double z, double from) {
  return std::exp((from - z) * (from + z) / 2);
}

/// The value of a normal law between two bounds, all in standard deviations from the mean. In the
/// upper tail the shares above are told apart where those below are all 1.
double boundedNormal(double share, double least, double most) {
  if (least > 0)
    return -boundedNormal(1 - share, -most, -least);
  if (most < -farTail) {
    const double below = farShare(-least, -most);
    const double z = std::sqrt(most * most - 2 * std::log(below + share * (1 - below)));
    return std::clamp(-z, least, most);
  }
  const double below = normalShare(least);
  return std::clamp(normalQuantile(below + share * (normalShare(most) - below)), least, most);
}

double triangular(double share, const std::vector<double>& n) {
  const double width = n[2] - n[0];
  const double peak = (n[1] - n[0]) / width;
  return share < peak ? n[0] + std::sqrt(share * width * (n[1] - n[0]))
                      : n[2] - std::sqrt((1 - share) * width * (n[2] - n[1]));
}

double triangularShare(double value, const std::vector<double>& n) {
  if (value <= n[0])
    return 0;
  if (value >= n[2])
    return 1;
  const double width = n[2] - n[0];
  return value < n[1] ? (value - n[0]) * (value - n[0]) / (width * (n[1] - n[0]))
                      : 1 - (n[2] - value) * (n[2] - value) / (width * (n[2] - n[1]));
}

/// The least and the greatest value that the shape alone can give.
std::pair<double, double> reachOf(const Distribution& distribution) {
  if (distribution.shape == Shape::Normal)
    return {-infinity, infinity};
  if (distribution.shape == Shape::LogNormal)
    return {0, infinity};
  const auto [least, most] =
      std::minmax_element(distribution.numbers.begin(), distribution.numbers.end());
  return {*least, *most};
}

/// A value of a normal or log-normal distribution in standard deviations from its middle.
double inDeviations(double value, const Distribution& distribution) {
  const std::vector<double>& n = distribution.numbers;
  if (distribution.shape == Shape::Normal)
    return (value - n[0]) / n[1];
  return value <= 0 ? -infinity : std::log(value / n[0]) / std::log(n[1]);
}

/// The share of a shape that lies below a value, without regard to its bounds.
double shareBelow(double value, const Distribution& distribution) {
  const std::vector<double>& n = distribution.numbers;
  switch (distribution.shape) {
  case Shape::Uniform:
    return std::clamp((value - n[0]) / (n[1] - n[0]), 0.0, 1.0);
  case Shape::LogUniform:
    return value <= n[0] ? 0 : std::min(std::log(value / n[0]) / std::log(n[1] / n[0]), 1.0);
  case Shape::Normal:
  case Shape::LogNormal:
    return normalShare(inDeviations(value, distribution));
  case Shape::Triangular:
    return triangularShare(value, n);
  case Shape::List: // has no bounds
    break;
  }
  return 0;
}

} // namespace

double Distribution::quantile(double share) const {
  const std::vector<double>& n = numbers;
  switch (shape) {
  case Shape::Uniform: {
    const double from = std::max(n[0], least);
    return from + share * (std::min(n[1], most) - from);
  }
  case Shape::LogUniform: {
    const double from = std::max(n[0], least);
    const double to = std::min(n[1], most);
    return std::clamp(from * std::pow(to / from, share), from, to);
  }
  case Shape::Normal:
  case Shape::LogNormal: {
    const double z = boundedNormal(share, inDeviations(least, *this), inDeviations(most, *this));
    const double value =
        shape == Shape::Normal ? n[0] + n[1] * z : n[0] * std::exp(std::log(n[1]) * z);
    return std::clamp(value, least, most);
  }
  case Shape::Triangular: {
    const double below = triangularShare(least, n);
    const double above = triangularShare(most, n);
    return std::clamp(triangular(below + share * (above - below), n), least, most);
  }
  case Shape::List: {
    const auto count = static_cast<double>(n.size());
    return n[static_cast<std::size_t>(std::min(share * count, count - 1))];
  }
  }
  return 0;
}

double keptShare(const Distribution& distribution) {
  if (distribution.shape == Shape::List)
    return 1;
  return shareBelow(distribution.most, distribution) - shareBelow(distribution.least, distribution);
}

std::optional<Distribution> parseDistribution(const QString& text, QString& expected) {
  static const QRegularExpression form(
      R"(^([a-z-]+)\s*\(([^()]*)\)(?:\s+within\s+(\S+)\s+to\s+(\S+))?$)");
  const QRegularExpressionMatch match = form.match(text);
  const auto* row =
      std::find_if(std::begin(shapeRows), std::end(shapeRows),
                   [&](const ShapeRow& one) { return match.captured(1) == one.name; });
  expected = anyShape;
  if (row == std::end(shapeRows))
    return {};
  expected = row->expected;
  const auto numbers = numbersIn(match.captured(2));
  const bool isBounded = !match.captured(3).isEmpty();
  if (!numbers || !makesSense(*row, *numbers) || (isBounded && row->shape == Shape::List))
    return {};
  Distribution distribution{row->shape, *numbers};
  if (!isBounded)
    return distribution;
  const std::optional<double> least = numberIn(match.captured(3));
  const std::optional<double> most = numberIn(match.captured(4));
  if (!least || !most || !(*least < *most)) {
    expected = "within LEAST to GREATEST, the first below the second";
    return {};
  }
  distribution.least = *least;
  distribution.most = *most;
  return distribution;
}

QString toText(const Distribution& distribution) {
  const auto* row =
      std::find_if(std::begin(shapeRows), std::end(shapeRows),
                   [&](const ShapeRow& one) { return one.shape == distribution.shape; });
  QStringList numbers;
  for (const double number : distribution.numbers)
    numbers << QString::number(number);
  const QString text = QStringLiteral("%1(%2)").arg(row->name, numbers.join(", "));
  const auto [least, most] = reachOf(distribution);
  const bool isCut = distribution.least > least || distribution.most < most;
  return isCut ? QStringLiteral("%1 within %2 to %3")
                     .arg(text)
                     .arg(distribution.least)
                     .arg(distribution.most)
               : text;
}

std::optional<Distribution> within(Distribution distribution, const ParameterRange& range) {
  const auto [least, most] = reachOf(distribution);
  const bool isUnbounded =
      distribution.shape == Shape::Normal || distribution.shape == Shape::LogNormal;
  if (!isUnbounded && (least < range.least || most > range.most))
    return {};
  if (distribution.shape == Shape::List)
    return distribution;
  distribution.least = std::max({distribution.least, range.least, least});
  distribution.most = std::min({distribution.most, range.most, most});
  return distribution.least < distribution.most ? std::optional(distribution) : std::nullopt;
}

} // namespace TVR::Study
