#include "page/model/AxisTicks.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace TVR::Page {

namespace {

constexpr double tolerance = 1e-6;
constexpr int mostTicks = 1000;
constexpr int fewestSteps = 3; // on an axis, of the step that was wished for

bool isWhole(double value) {
  return std::abs(value - std::round(value)) < tolerance * std::max(1.0, std::abs(value));
}

/// The first digits of the step as a number from 1 to below 10.
double leadingDigits(double step) {
  return step / std::pow(10, std::floor(std::log10(step)));
}

/// Into how many parts the minor ticks divide a step, at most `most`.
int partsOfStep(double step, int most, bool whole) {
  constexpr std::array roundDigits = {1.0, 2.0, 5.0, 10.0};
  for (const int parts : {10, 5, 4, 2}) {
    if (parts > most || (whole && !isWhole(step / parts)))
      continue;
    const double digits = leadingDigits(step / parts);
    if (std::any_of(roundDigits.begin(), roundDigits.end(),
                    [digits](double round) { return std::abs(digits - round) < tolerance; }))
      return parts;
  }
  return 1;
}

std::vector<double> multiplesWithin(double minimum, double maximum, double step) {
  const double first = std::ceil(minimum / step - tolerance);
  const double last = std::floor(maximum / step + tolerance);
  std::vector<double> multiples;
  if (!(last >= first) || last - first > mostTicks)
    return multiples;
  for (double k = first; k <= last; ++k)
    multiples.push_back(k * step);
  return multiples;
}

} // namespace

double niceStep(double least, bool whole) {
  if (!(least > 0) || !std::isfinite(least))
    return 0;
  const double power = std::pow(10, std::floor(std::log10(least)));
  for (const double digits : {1.0, 2.0, 5.0, 10.0}) {
    const double step = digits * power;
    if (step >= least * (1 - tolerance))
      return whole ? std::max(1.0, step) : step;
  }
  return 10 * power;
}

AxisTicks axisTicks(double minimum, double maximum, double step, int subTicks, bool whole) {
  if (!(maximum > minimum) || !(step > 0) || !std::isfinite(maximum - minimum))
    return {};
  AxisTicks ticks;
  ticks.major = multiplesWithin(minimum, maximum, step);
  if (ticks.major.empty())
    return {};
  ticks.step = step;
  const int parts = partsOfStep(step, subTicks + 1, whole);
  if (parts == 1)
    return ticks;
  for (const double place : multiplesWithin(minimum, maximum, step / parts))
    if (!isWhole(place / step))
      ticks.minor.push_back(place);
  return ticks;
}

double fittingStep(double range, double length, double wished, bool whole,
                   const std::function<double(double)>& labelRoom) {
  if (!(range > 0) || !(length > 0) || !std::isfinite(range))
    return 0;
  const auto fits = [&](double step) { return step / range * length >= labelRoom(step); };
  if (wished > 0 && fewestSteps * wished <= range && (!whole || isWhole(wished)) && fits(wished))
    return wished;
  const double usual = std::clamp(length / 6, 5.0, 20.0); // [mm] between two ticks
  double step = niceStep(range * usual / length, whole);
  while (step < range && !fits(step))
    step = niceStep(step * 1.5, whole);
  return step;
}

QString tickLabel(double value, double step) {
  int places = 0;
  for (double digits = std::abs(step); places < 10 && !isWhole(digits); digits *= 10)
    ++places;
  const bool vanishes = std::abs(value) < 0.5 * std::pow(10, -places);
  return QString::number(vanishes ? 0 : value, 'f', places);
}

} // namespace TVR::Page
