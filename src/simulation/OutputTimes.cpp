#include "simulation/OutputTimes.h"

#include "project/Units.h"

#include <QString>

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace TVR {

namespace {

/// The division of the year before times are pulled onto the ends of demand periods.
struct Raster {
  double step; ///< [s]
  double end;  ///< end of the last demand period [s]
};

/// A period of no length takes no part: it would leave no room for an output time.
bool isValid(double duration) {
  return duration > 0;
}

double sumOfPeriods(const OutputTimeInput& input) {
  double sum = 0;
  for (const double duration : input.durations)
    if (isValid(duration))
      sum += duration;
  return sum;
}

/// Multiples of `perYear` needed to reach `cycleLength`.
int stepsPerPeriod(int perYear, int cycleLength) {
  int multiples = 1;
  for (int reached = perYear; reached < cycleLength; reached += perYear)
    ++multiples;
  return multiples;
}

Raster raster(const OutputTimeInput& input) {
  const int periods = static_cast<int>(input.durations.size());
  const int years = simulatedYears(input.simulationTime);
  const bool resolvesYear = input.dispersivity > 0 || periods > 1;

  int perYear = periods >= 2 ? periods : 1;
  double stepLength = periods > 1 ? secondsPerYear / periods : secondsPerYear;
  int multiples = 1;
  if (resolvesYear) {
    if (perYear < 2)
      perYear = std::max(input.cycleLength, 1);
    multiples = stepsPerPeriod(perYear, input.cycleLength);
    stepLength = secondsPerYear / perYear;
  }

  double end = input.simulationTime;
  if (years < 100 && periods > 1) {
    for (const double duration : input.durations)
      if (isValid(duration))
        stepLength = std::min(stepLength, duration);
    const double sum = sumOfPeriods(input);
    if (sum > 0 && sum != input.simulationTime / years)
      end = sum * years;
  }

  // 32 bits, as the count of steps is kept; a count that does not fit them counts as one step.
  const auto steps = static_cast<std::int32_t>(static_cast<std::uint32_t>(multiples) *
                                               static_cast<std::uint32_t>(perYear) *
                                               static_cast<std::uint32_t>(years));
  const double base = end / std::max(steps, 1);
  return {resolvesYear ? std::min(base, stepLength) : base, end};
}

/// Walks the demand periods through the years and pulls output times onto their ends.
class PeriodWalk {
public:
  PeriodWalk(OutputTimes& result, int periods)
      : times_(result.times), demandSteps_(result.demandSteps),
        half_(std::trunc(secondsPerYear / periods * 0.5)) {}

  void endPeriod(int row, double end, double lastEnd) {
    while (isInside() && std::trunc(end) > std::trunc(times_[position_]))
      demandSteps_[position_++] = row;
    if (isInside())
      pullTo(end, row);
    if (!isInside() && (times_.empty() || times_.back() < lastEnd)) {
      times_.push_back(std::min(lastEnd, end));
      demandSteps_.push_back(row);
    }
    ++position_;
  }

private:
  bool isInside() const { return position_ < times_.size(); }

  void pullTo(double end, int row) {
    const double gap = std::trunc(end - times_[position_]);
    if (gap < half_) {
      times_[position_] = end;
      demandSteps_[position_] = row;
    } else if (gap > half_) {
      demandSteps_[position_++] = row;
      if (isInside()) {
        times_[position_] = end;
        demandSteps_[position_] = row;
      }
    }
  }

  std::vector<double>& times_;
  std::vector<int>& demandSteps_;
  const double half_; ///< half an even share of the year [s]
  std::size_t position_ = 0;
};

} // namespace

int simulatedYears(double simulationTime) {
  return std::max(QString::number(inYears(simulationTime), 'f', 0).toInt(), 1);
}

OutputTimes outputTimes(const OutputTimeInput& input) {
  OutputTimes result;
  if (!(input.simulationTime > 0))
    return result;

  const Raster even = raster(input);
  const auto count = static_cast<std::size_t>(std::max(input.simulationTime / even.step, 0.0));
  result.times.resize(count);
  result.demandSteps.resize(count);
  for (std::size_t k = 0; k < count; ++k)
    result.times[k] = static_cast<double>(k + 1) * even.step;

  const int periods = static_cast<int>(input.durations.size());
  if (periods > 1 && sumOfPeriods(input) > 0) {
    PeriodWalk walk(result, periods);
    double end = 0;
    for (int row = 0; end < even.end; row = (row + 1) % periods) {
      if (!isValid(input.durations[row]))
        continue;
      end += input.durations[row];
      walk.endPeriod(row, end, even.end);
    }
  }
  return result;
}

} // namespace TVR
