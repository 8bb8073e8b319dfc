#include "study/page/StudyFindings.h"

#include "study/answers/Sensitivity.h"
#include "study/answers/Statistics.h"
#include "study/page/MeshLine.h"
#include "study/page/PageNames.h"
#include "study/page/StudyPageText.h"
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
    return StudyPageText::tr("Latin hypercube");
  case Sampler::Sobol:
    return StudyPageText::tr("Sobol' sequence");
  case Sampler::Grid:
    return StudyPageText::tr("grid");
  case Sampler::Table:
    break;
  }
  return StudyPageText::tr("table of values");
}

std::vector<VariedRow> variedRows(const StudySetup& study, const BaseSite& base) {
  std::vector<VariedRow> rows;
  if (study.file.varied.empty())
    for (const StudyKey& key : study.plan.keys)
      rows.push_back({titleOf(key, base), key.name, nameOf(Sampler::Table), unitText(key.unit)});
  for (const auto& [key, distribution] : study.file.varied)
    rows.push_back({titleOf(key, base), key.name, toText(distribution), unitText(key.unit)});
  for (const CorrelatedPair& pair : study.file.correlations)
    rows.push_back({StudyPageText::tr("Rank correlation"),
                    QStringLiteral("%1, %2").arg(study.file.varied[pair.one].key.name,
                                                 study.file.varied[pair.other].key.name),
                    QString::number(pair.correlation), "-"});
  return rows;
}

QString runsText(const StudySetup& study, const Results& results) {
  return StudyPageText::tr("%1 of %2 runs (%3), of which %4 failed")
      .arg(results.size())
      .arg(study.plan.runs.size())
      .arg(nameOf(study.file.sampler))
      .arg(results.failed());
}

/// The series of a quantity, by their places in ResultLayout::series.
std::vector<std::size_t> seriesOf(const ResultLayout& layout, Quantity quantity) {
  std::vector<std::size_t> found;
  const std::vector<Series> all = layout.series();
  for (std::size_t i = 0; i < all.size(); ++i)
    if (all[i].quantity == quantity)
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

Tornado tornadoOf(const StudySetup& study, const Results& results, const BaseSite& base,
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
  Tornado tornado{
      titleOf(study.layout.scalars()[*place], study.layout, base), sample.percentile(0.5), {}};
  for (std::size_t key = 0; key < keys.values.size(); ++key)
    if (const auto swing = swingOf(keys, key, answer))
      tornado.bars.push_back(
          {titleOf(study.plan.keys[key], base), swing->atLowest, swing->atHighest});
  std::stable_sort(
      tornado.bars.begin(), tornado.bars.end(), [](const TornadoBar& one, const TornadoBar& other) {
        return std::abs(one.atHighest - one.atLowest) > std::abs(other.atHighest - other.atLowest);
      });
  return tornado;
}

QString nameOfWell(const StudySetup& study, const BaseSite& base, std::size_t series) {
  const BaseWell* const well = base.resultWell(study.layout.series()[series].well);
  return well ? well->name : QString();
}

/// What the diagram of a temperature is called whose well is one of `wells`.
QString temperatureTitle(const QString& well, std::size_t wells, bool draws, bool isColdest) {
  if (wells == 1)
    return StudyPageText::tr("Temperature of %1").arg(well);
  if (draws)
    return (isColdest ? StudyPageText::tr("Temperature of %1, the coldest well that withdraws")
                      : StudyPageText::tr("Temperature of %1, the warmest well that withdraws"))
        .arg(well);
  return (isColdest ? StudyPageText::tr("Temperature of %1, the coldest well")
                    : StudyPageText::tr("Temperature of %1, the warmest well"))
      .arg(well);
}

/// The temperature of the coldest or warmest of the wells that withdraw, or of all if none does.
void findTemperature(const StudySetup& study, const Results& results, StudyFindings& findings) {
  const bool isColdest = !findings.map || findings.map->level < 0;
  std::vector<std::size_t> wells = seriesOf(study.layout, Quantity::Temperature);
  std::vector<std::size_t> drawing;
  for (const std::size_t series : wells) {
    const BaseWell* const well = findings.base.resultWell(study.layout.series()[series].well);
    if (well && well->draws)
      drawing.push_back(series);
  }
  if (!drawing.empty())
    wells = drawing;
  const auto found = extremeSeries(results, wells, isColdest ? Extreme::Least : Extreme::Greatest);
  if (!found)
    return;
  findings.temperature = seriesBand(study.layout, results, *found);
  findings.temperatureTitle = temperatureTitle(nameOfWell(study, findings.base, *found),
                                               wells.size(), !drawing.empty(), isColdest);
}

void findDrawdown(const StudySetup& study, const Results& results, StudyFindings& findings) {
  const std::vector<std::size_t> wells = seriesOf(study.layout, Quantity::Drawdown);
  const auto found = extremeSeries(results, wells, Extreme::Greatest);
  if (!found)
    return;
  findings.drawdown = seriesBand(study.layout, results, *found);
  findings.drawdownTitle =
      (wells.size() == 1 ? StudyPageText::tr("Drawdown at %1")
                         : StudyPageText::tr("Drawdown at %1, the greatest of the wells"))
          .arg(nameOfWell(study, findings.base, *found));
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
  findings.title = StudyPageText::tr("%1: variants of %2")
                       .arg(QFileInfo(study.file.fileName).completeBaseName(),
                            QFileInfo(study.file.base).fileName());
  findings.runs = runsText(study, results);
  findings.base = baseSite(study, folder);
  findings.mesh = meshLine(findings.base);
  findings.varied = variedRows(study, findings.base);
  findings.map = shownMap(maps);
  findTemperature(study, results, findings);
  findDrawdown(study, results, findings);
  findings.tornado = tornadoOf(study, results, findings.base, findings.map);
  return findings;
}

} // namespace TVR::Study
