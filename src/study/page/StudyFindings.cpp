#include "study/page/StudyFindings.h"

#include "study/answers/Sensitivity.h"
#include "study/answers/Statistics.h"
#include "study/work/Results.h"
#include "study/work/StudySetup.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <tuple>

namespace TVR::Study {

namespace {

QString nameOf(Sampler sampler) {
  switch (sampler) {
  case Sampler::LatinHypercube:
    return QStringLiteral("Latin hypercube");
  case Sampler::Sobol:
    return QStringLiteral("Sobol' sequence");
  case Sampler::Grid:
    return QStringLiteral("grid");
  case Sampler::Table:
    break;
  }
  return QStringLiteral("table of values");
}

std::vector<VariedRow> variedRows(const StudySetup& study) {
  std::vector<VariedRow> rows;
  if (study.file.varied.empty())
    for (int i = 0; i < study.layout.keys.size(); ++i)
      rows.push_back({study.layout.keys[i], nameOf(Sampler::Table), study.layout.keyUnits[i]});
  for (const VariedKey& varied : study.file.varied)
    rows.push_back({varied.key.name, toText(varied.distribution), varied.key.unit});
  for (const CorrelatedPair& pair : study.file.correlations)
    rows.push_back({QStringLiteral("%1, %2").arg(study.file.varied[pair.one].key.name,
                                                 study.file.varied[pair.other].key.name),
                    QStringLiteral("rank correlation %1").arg(pair.correlation), "-"});
  return rows;
}

QString runsText(const StudySetup& study, const Results& results) {
  return QStringLiteral("%1 of %2 runs (%3), of which %4 failed")
      .arg(results.size())
      .arg(study.plan.runs.size())
      .arg(nameOf(study.file.sampler))
      .arg(results.failed());
}

/// The series of a quantity, of all wells or only of those that withdraw water.
std::vector<std::size_t> seriesOf(const ResultLayout& layout, Quantity quantity,
                                  const std::vector<BaseWell>& wells, bool onlyDrawing) {
  const auto draws = [&](const QString& name) {
    return std::any_of(wells.begin(), wells.end(),
                       [&](const BaseWell& well) { return well.draws && well.name == name; });
  };
  std::vector<std::size_t> found;
  const std::vector<Series> all = layout.series();
  for (std::size_t i = 0; i < all.size(); ++i)
    if (all[i].quantity == quantity &&
        (!onlyDrawing || draws(layout.wells[static_cast<int>(all[i].well)])))
      found.push_back(i);
  return found;
}

/// The place of the answer that a tornado is drawn of: the length of the plume that the map shows,
/// or else the first answer of all.
std::optional<std::size_t> tornadoAnswer(const ResultLayout& layout,
                                         const std::optional<ProbabilityMap>& map) {
  const std::vector<Scalar> scalars = layout.scalars();
  for (std::size_t i = 0; map && i < scalars.size(); ++i)
    if (scalars[i].quantity == Quantity::PlumeLength &&
        layout.levels[*scalars[i].level] == map->level &&
        layout.times[*scalars[i].time] == map->time)
      return i;
  return scalars.empty() ? std::nullopt : std::optional<std::size_t>(0);
}

std::optional<Tornado> tornadoOf(const StudySetup& study, const Results& results,
                                 const std::optional<ProbabilityMap>& map) {
  const auto place = tornadoAnswer(study.layout, map);
  if (!place)
    return {};
  SampledKeys keys;
  keys.values.resize(static_cast<std::size_t>(study.layout.keys.size()));
  keys.areIndependent = study.file.correlations.empty();
  std::vector<double> answer;
  results.eachRecord([&](const Record& record) {
    if (record.hasFailed())
      return;
    for (std::size_t key = 0; key < keys.values.size(); ++key)
      keys.values[key].push_back(record.values[key]);
    keys.repeats.push_back(record.repeats);
    answer.push_back(record.scalars[*place]);
  });
  const Sample sample(answer, keys.repeats);
  if (sample.size() == 0)
    return {};
  Tornado tornado{study.layout.title(study.layout.scalars()[*place]), sample.percentile(0.5), {}};
  for (std::size_t key = 0; key < keys.values.size(); ++key)
    if (const auto swing = swingOf(keys, key, answer))
      tornado.bars.push_back(
          {study.layout.keys[static_cast<int>(key)], swing->atLowest, swing->atHighest});
  std::stable_sort(
      tornado.bars.begin(), tornado.bars.end(), [](const TornadoBar& one, const TornadoBar& other) {
        return std::abs(one.atHighest - one.atLowest) > std::abs(other.atHighest - other.atLowest);
      });
  return tornado;
}

std::optional<SeriesBand> bandOf(const StudySetup& study, const Results& results,
                                 const std::vector<std::size_t>& series, Extreme extreme) {
  const auto found = extremeSeries(results, series, extreme);
  return found ? std::optional(seriesBand(study.layout, results, *found)) : std::nullopt;
}

} // namespace

std::optional<ProbabilityMap> shownMap(const std::vector<ProbabilityMap>& maps) {
  const ProbabilityMap* shown = nullptr;
  const auto rank = [](const ProbabilityMap& map) {
    const double all = std::accumulate(map.values.begin(), map.values.end(), 0.);
    return std::tuple(map.time, -std::abs(map.level), all);
  };
  for (const ProbabilityMap& map : maps)
    if (map.greatest() > 0 && (!shown || rank(map) > rank(*shown)))
      shown = &map;
  return shown ? std::optional(*shown) : std::nullopt;
}

StudyFindings studyFindings(const StudySetup& study, const StudyFolder& folder,
                            const Results& results, const std::vector<ProbabilityMap>& maps) {
  StudyFindings findings;
  findings.title = QStringLiteral("%1: variants of %2")
                       .arg(QFileInfo(study.file.fileName).completeBaseName(),
                            QFileInfo(study.file.base).fileName());
  findings.runs = runsText(study, results);
  findings.varied = variedRows(study);
  findings.base = baseSite(study, folder);
  findings.map = shownMap(maps);
  const bool cools = !findings.map || findings.map->level < 0;
  const auto drawing = seriesOf(study.layout, Quantity::Temperature, findings.base.wells, true);
  const auto all = seriesOf(study.layout, Quantity::Temperature, findings.base.wells, false);
  findings.temperature = bandOf(study, results, drawing.empty() ? all : drawing,
                                cools ? Extreme::Least : Extreme::Greatest);
  if (findings.temperature)
    findings.temperatureTitle =
        QStringLiteral("Temperature of %1, the %2 well%3")
            .arg(findings.temperature->well, cools ? "coldest" : "warmest",
                 drawing.empty() ? QString() : QStringLiteral(" that withdraws"));
  findings.drawdown = bandOf(study, results, seriesOf(study.layout, Quantity::Drawdown, {}, false),
                             Extreme::Greatest);
  findings.tornado = tornadoOf(study, results, findings.map);
  return findings;
}

} // namespace TVR::Study
