#include "study/page/SeriesBand.h"

#include "study/answers/Statistics.h"
#include "study/work/Results.h"

namespace TVR::Study {

namespace {

/// The numbers of all runs at some times of a series.
class Collected {
public:
  explicit Collected(std::size_t times) : values_(times) {}

  void add(const std::vector<double>& series, int repeats) {
    for (std::size_t i = 0; i < values_.size(); ++i)
      values_[i].push_back(series[series.size() - values_.size() + i]);
    repeats_.push_back(repeats);
  }
  Sample at(std::size_t time) const { return {values_[time], repeats_}; }

private:
  std::vector<std::vector<double>> values_; ///< by time, the last ones
  std::vector<int> repeats_;
};

Collected collected(const Results& results, std::size_t series, std::size_t times) {
  Collected values(times);
  results.eachRecord([&](const Record& record) {
    if (!record.hasFailed())
      values.add(record.series[series], record.repeats);
  });
  return values;
}

} // namespace

SeriesBand seriesBand(const ResultLayout& layout, const Results& results, std::size_t series) {
  SeriesBand band;
  const Collected values = collected(results, series, layout.seriesTimes.size());
  for (std::size_t time = 0; time < layout.seriesTimes.size(); ++time) {
    const Sample sample = values.at(time);
    if (sample.size() == 0)
      continue;
    band.times.push_back(layout.seriesTimes[time]);
    band.low.push_back(sample.percentile(0.1));
    band.middle.push_back(sample.percentile(0.5));
    band.high.push_back(sample.percentile(0.9));
  }
  return band;
}

std::optional<std::size_t> extremeSeries(const Results& results,
                                         const std::vector<std::size_t>& series, Extreme extreme) {
  std::optional<std::size_t> found;
  double best = 0;
  for (const std::size_t one : series) {
    const Sample atEnd = collected(results, one, 1).at(0);
    if (atEnd.size() == 0)
      continue;
    const double median = atEnd.percentile(0.5);
    if (!found || (extreme == Extreme::Greatest ? median > best : median < best)) {
      found = one;
      best = median;
    }
  }
  return found;
}

} // namespace TVR::Study
