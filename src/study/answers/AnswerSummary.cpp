#include "study/answers/AnswerSummary.h"

#include "study/work/Results.h"
#include "study/work/StudySetup.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <memory>

namespace TVR::Study {

namespace {

using Column = std::vector<double>;

/// One number of each run, for many numbers one after the other.
class ColumnReader {
public:
  using NumberOf = std::function<double(const Record&, std::size_t)>;
  using Visit = std::function<void(std::size_t, const Column&)>;

  ColumnReader(const Results& results, std::size_t mostNumbers)
      : results_(results), atOnce_(std::max<std::size_t>(1, mostNumbers / (results.size() + 1))) {}

  /// Calls `visit` for each of `count` numbers; of a run that failed it is not a number.
  void each(std::size_t count, const NumberOf& numberOf, const Visit& visit) const {
    for (std::size_t first = 0; first < count; first += atOnce_) {
      std::vector<Column> columns(std::min(atOnce_, count - first));
      results_.eachRecord([&](const Record& record) {
        for (std::size_t i = 0; i < columns.size(); ++i)
          columns[i].push_back(record.hasFailed() ? std::numeric_limits<double>::quiet_NaN()
                                                  : numberOf(record, first + i));
      });
      for (std::size_t i = 0; i < columns.size(); ++i)
        visit(first + i, columns[i]);
    }
  }

private:
  const Results& results_;
  const std::size_t atOnce_;
};

/// The estimator of total indices for the runs that have an answer: most answers share them.
class SharedEstimator {
public:
  explicit SharedEstimator(const SampledKeys& keys) : keys_(keys) {}

  ChaosIndices indices(const Column& answer) {
    std::vector<bool> wanted;
    for (const double number : answer)
      wanted.push_back(std::isfinite(number));
    if (!estimator_ || wanted != wanted_) {
      estimator_ = std::make_unique<ChaosEstimator>(keys_, wanted);
      wanted_ = wanted;
    }
    return estimator_->indices(answer);
  }

private:
  const SampledKeys& keys_;
  std::vector<bool> wanted_;
  std::unique_ptr<ChaosEstimator> estimator_;
};

/// Takes the values of all runs, and which of them failed.
SampledKeys takeRuns(const Results& results, const StudySetup& setup, AnswerSummary& summary) {
  SampledKeys keys;
  keys.areIndependent = setup.file.correlations.empty();
  keys.values.resize(static_cast<std::size_t>(setup.layout.keys.size()));
  std::vector<Column> failedValues(keys.values.size());
  std::vector<int> failedRepeats;
  results.eachRecord([&](const Record& record) {
    keys.repeats.push_back(record.repeats);
    summary.repeats += static_cast<std::uint64_t>(record.repeats);
    for (std::size_t key = 0; key < keys.values.size(); ++key) {
      keys.values[key].push_back(record.values[key]);
      if (record.hasFailed())
        failedValues[key].push_back(record.values[key]);
    }
    if (!record.hasFailed())
      return;
    failedRepeats.push_back(record.repeats);
    if (summary.failures.size() < AnswerSummary::mostFailures)
      summary.failures.push_back(record);
  });
  summary.runs = keys.repeats.size();
  summary.failed = failedRepeats.size();
  for (const Column& values : failedValues)
    if (const Sample sample(values, failedRepeats); sample.size() > 0)
      summary.failedRanges.push_back({sample.least(), sample.percentile(0.5), sample.greatest()});
  return keys;
}

std::vector<Influence> influencesOn(const Column& answer, const SampledKeys& keys,
                                    const ChaosIndices& chaos) {
  const std::vector<double> first = bestFirstOrder(keys, answer, chaos);
  std::vector<Influence> influences;
  for (std::size_t key = 0; key < keys.values.size(); ++key) {
    Influence influence{swingOf(keys, key, answer), {}, {}};
    if (!first.empty())
      influence.firstOrder = first[key];
    if (!chaos.totals.empty())
      influence.total = chaos.totals[key];
    influences.push_back(influence);
  }
  return influences;
}

/// That a plume has an extent, which is 0 in the runs without one.
std::optional<Probability> plumeProbability(const Scalar& scalar, const Sample& extents) {
  if (!scalar.level || scalar.isMeshBand || extents.size() == 0)
    return {};
  const std::uint64_t plumes = extents.countAbove(0);
  return Probability{static_cast<double>(plumes) / static_cast<double>(extents.size()),
                     probabilityInterval(plumes, extents.size())};
}

QJsonValue jsonOf(const std::optional<double>& number) {
  return number && std::isfinite(*number) ? QJsonValue(*number) : QJsonValue();
}

QJsonArray jsonOf(const ConfidenceInterval& interval) {
  return {jsonOf(interval.low), jsonOf(interval.high)};
}

/// A figure with the interval of its sampling.
QJsonObject jsonOf(double value, const ConfidenceInterval& interval) {
  return {{"value", value}, {"interval", jsonOf(interval)}};
}

/// "P5" for a share of 0.05.
QString percentileName(double share) {
  return QStringLiteral("P%1").arg(std::lround(100 * share));
}

QJsonObject jsonOf(const Spread& spread) {
  if (spread.runs == 0)
    return {{"runs", 0}};
  QJsonObject percentiles;
  for (const Spread::Percentile& percentile : spread.percentiles)
    percentiles.insert(percentileName(percentile.share),
                       jsonOf(percentile.value, percentile.interval));
  return {{"runs", static_cast<qint64>(spread.runs)},
          {"mean", spread.mean},
          {"deviation", spread.deviation},
          {"least", spread.least},
          {"greatest", spread.greatest},
          {"percentiles", percentiles}};
}

QJsonObject jsonOf(const QuantitySummary& quantity, const ResultLayout& layout) {
  const Scalar& scalar = quantity.scalar;
  QJsonObject json = jsonOf(quantity.spread);
  json.insert("quantity", nameOf(scalar));
  json.insert("unit", unitOf(scalar));
  if (scalar.well)
    json.insert("well", layout.wells[static_cast<int>(*scalar.well)]);
  if (scalar.level)
    json.insert("level_K", layout.levels[*scalar.level]);
  if (scalar.time)
    json.insert("time_a", layout.times[*scalar.time]);
  if (quantity.plume)
    json.insert("plume_probability", jsonOf(quantity.plume->value, quantity.plume->interval));
  QJsonObject influences;
  for (std::size_t key = 0; key < quantity.influences.size(); ++key) {
    const Influence& influence = quantity.influences[key];
    QJsonValue swing;
    if (influence.swing)
      swing = QJsonArray{influence.swing->atLowest, influence.swing->atHighest};
    influences.insert(layout.keys[static_cast<int>(key)],
                      QJsonObject{{"swing", swing},
                                  {"first_order", jsonOf(influence.firstOrder)},
                                  {"total", jsonOf(influence.total)}});
  }
  json.insert("influences", influences);
  json.insert("explained", quantity.explained);
  json.insert("noise", firstOrderNoise(std::max<std::uint64_t>(1, quantity.spread.runs)));
  return json;
}

QJsonObject jsonOf(const Series& series, const std::vector<Spread>& spreads,
                   const ResultLayout& layout) {
  QJsonArray times;
  for (std::size_t i = 0; i < spreads.size(); ++i) {
    QJsonObject json = jsonOf(spreads[i]);
    json.insert("time_a", layout.seriesTimes[i]);
    times.append(json);
  }
  return {{"quantity", nameOf(series.quantity)},
          {"unit", unitOf(series.quantity)},
          {"well", layout.wells[static_cast<int>(series.well)]},
          {"times", times}};
}

QJsonObject valuesOf(const Record& record, const ResultLayout& layout) {
  QJsonObject values;
  for (std::size_t key = 0; key < record.values.size(); ++key)
    values.insert(layout.keys[static_cast<int>(key)], record.values[key]);
  return values;
}

QJsonObject failuresOf(const AnswerSummary& summary, const ResultLayout& layout) {
  QJsonObject ranges;
  for (std::size_t key = 0; key < summary.failedRanges.size(); ++key) {
    const FailedRange& range = summary.failedRanges[key];
    ranges.insert(layout.keys[static_cast<int>(key)], QJsonObject{{"least", range.least},
                                                                  {"median", range.median},
                                                                  {"greatest", range.greatest}});
  }
  QJsonArray runs;
  for (const Record& record : summary.failures)
    runs.append(QJsonObject{{"run", QString::fromLatin1(record.run)},
                            {"reason", record.failure},
                            {"values", valuesOf(record, layout)}});
  return {{"count", static_cast<qint64>(summary.failed)}, {"values", ranges}, {"runs", runs}};
}

} // namespace

AnswerSummary summaryOf(const Results& results, const StudySetup& setup, std::size_t mostNumbers) {
  const ResultLayout& layout = setup.layout;
  AnswerSummary summary;
  const SampledKeys keys = takeRuns(results, setup, summary);
  SharedEstimator estimator(keys);
  const ColumnReader reader(results, mostNumbers);
  const std::vector<Scalar> scalars = layout.scalars();
  reader.each(
      scalars.size(), [](const Record& record, std::size_t i) { return record.scalars[i]; },
      [&](std::size_t i, const Column& answer) {
        const ChaosIndices chaos = estimator.indices(answer);
        const Sample sample(answer, keys.repeats);
        summary.quantities.push_back({scalars[i], spreadOf(sample),
                                      plumeProbability(scalars[i], sample),
                                      influencesOn(answer, keys, chaos), chaos.explained});
      });
  const std::size_t times = layout.seriesTimes.size();
  summary.series.resize(layout.series().size());
  reader.each(
      summary.series.size() * times,
      [times](const Record& record, std::size_t i) { return record.series[i / times][i % times]; },
      [&](std::size_t i, const Column& numbers) {
        summary.series[i / times].push_back(spreadOf(Sample(numbers, keys.repeats)));
      });
  return summary;
}

QJsonObject toJson(const AnswerSummary& summary, const StudySetup& setup) {
  const ResultLayout& layout = setup.layout;
  QJsonArray keys;
  for (int key = 0; key < layout.keys.size(); ++key)
    keys.append(QJsonObject{{"key", layout.keys[key]}, {"unit", layout.keyUnits[key]}});
  QJsonArray quantities;
  for (const QuantitySummary& quantity : summary.quantities)
    quantities.append(jsonOf(quantity, layout));
  QJsonArray bands;
  const std::vector<Series> series = layout.series();
  for (std::size_t i = 0; i < series.size(); ++i)
    bands.append(jsonOf(series[i], summary.series[i], layout));
  return {{"schema", 1},
          {"version", TEVRANE_VERSION},
          {"planned_runs", static_cast<qint64>(setup.plan.runs.size())},
          {"runs", static_cast<qint64>(summary.runs)},
          {"repeats", static_cast<qint64>(summary.repeats)},
          {"confidence", confidence},
          {"keys", keys},
          {"quantities", quantities},
          {"series", bands},
          {"failed", failuresOf(summary, layout)}};
}

} // namespace TVR::Study
