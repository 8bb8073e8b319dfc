#include "study/work/StudySetup.h"

#include "inspection/FileInspection.h"
#include "project/Units.h"
#include "simulation/OutputTimes.h"
#include "simulation/SiteInput.h"
#include "simulation/SiteSetup.h"
#include "store/Manager.h"
#include "study/work/RunInput.h"
#include "study/work/RunWatch.h"
#include "study/work/StudyRaster.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace TVR::Study {

namespace {

/// So many times at most make a series.
constexpr std::size_t mostSeriesTimes = 400;

/// The model of a base as it stands in the store, and what is looked for in it.
class LayoutMaker {
public:
  explicit LayoutMaker(const StudyFile& study)
      : study_(study), site_(readSite(*Data::Manager::instance())),
        times_(outputTimes(outputTimeInput(*Data::Manager::instance(), usualCycleLength))),
        plan_(planSite(site_, times_)), box_(rasterBox(study, site_, times_, plan_)) {}

  ResultLayout make(const std::vector<StudyKey>& keys) const {
    ResultLayout layout;
    for (const StudyKey& key : keys) {
      layout.keys << key.name;
      layout.keyUnits << key.unit;
    }
    for (const auto& well : plan_.wells)
      layout.wells << site_.wells[static_cast<std::size_t>(well->id())].name;
    layout.quantities = study_.quantities.isEmpty() ? quantityNames() : study_.quantities;
    layout.levels = study_.levels;
    layout.times = study_.times;
    if (layout.times.empty())
      layout.times.push_back(inYears(times_.times.back()));
    layout.seriesTimes = seriesTimes();
    layout.raster = rasterOf(box_, study_);
    layout.meshBands = study_.meshBands;
    return layout;
  }

  /// What the study asks for that its base can't answer.
  QStringList faults(const ResultLayout& layout) const {
    constexpr double mostCells = 4e6;
    QStringList result;
    for (const double time : layout.times)
      if (!isNearOutputTime(times_.times, time))
        result << QStringLiteral(
                      "[answers] times: expected times at which the base has results, up "
                      "to %1 years, found \"%2\"")
                      .arg(inYears(times_.times.back()))
                      .arg(time);
    const double cell = layout.raster.cell;
    if (box_.width / cell * (box_.height / cell) > mostCells)
      result << QStringLiteral("[answers] raster_cell: expected a raster of at most %1 cells")
                    .arg(mostCells);
    return result;
  }

private:
  std::vector<double> seriesTimes() const {
    const std::size_t every = (times_.times.size() + mostSeriesTimes - 1) / mostSeriesTimes;
    std::vector<double> result;
    for (std::size_t i = times_.times.size(); i > 0; i -= std::min(i, every))
      result.insert(result.begin(), inYears(times_.times[i - 1]));
    return result;
  }

  const StudyFile& study_;
  const SiteInput site_;
  const OutputTimes times_;
  const SitePlan plan_;
  const RasterBox box_;
};

/// Reads the base alone. False if it is at fault.
bool takeBase(const StudyFile& study, RunInput& input, Findings& findings) {
  const QString name = QFileInfo(study.base).fileName();
  FileInspection inspection = inspectFile(study.base);
  if (inspection.errors.isEmpty())
    inspection.errors = input.read({});
  for (const QString& line : inspection.errors)
    findings.errors << name + ": " + line;
  for (const QString& line : inspection.warnings + input.warnings())
    findings.warnings << name + ": " + line;
  return inspection.errors.isEmpty();
}

/// Looks at the base with each key in turn at its least and at its greatest value of the sample.
void checkExtremes(const StudySetup& setup, Findings& findings) {
  for (std::size_t i = 0; i < setup.plan.keys.size(); ++i) {
    const StudyKey& key = setup.plan.keys[i];
    RunInput input(setup.file.base, {key});
    const auto [least, most] =
        std::minmax_element(setup.plan.runs.begin(), setup.plan.runs.end(),
                            [i](const PlannedRun& one, const PlannedRun& other) {
                              return one.values[i] < other.values[i];
                            });
    for (const double value : {least->values[i], most->values[i]})
      if (const QStringList faults = input.read({value}); !faults.isEmpty())
        findings.warnings << QStringLiteral("%1: with %2 the site can't be computed: %3")
                                 .arg(key.name)
                                 .arg(value)
                                 .arg(faults.first());
  }
}

} // namespace

StudySetup setUpStudy(const QString& studyFile, Findings& findings) {
  StudySetup setup;
  setup.file = readStudyFile(studyFile, findings);
  if (!findings.errors.isEmpty())
    return setup;
  RunInput input(setup.file.base, {});
  if (!takeBase(setup.file, input, findings))
    return setup;
  setup.plan = makePlan(setup.file, digestOf(input.content()), findings);
  try {
    const LayoutMaker maker(setup.file);
    setup.layout = maker.make(setup.plan.keys);
    findings.errors += maker.faults(setup.layout);
  } catch (const std::exception& error) {
    findings.errors << QStringLiteral("%1: %2").arg(QFileInfo(setup.file.base).fileName(),
                                                    QString(error.what()));
  }
  if (findings.errors.isEmpty())
    checkExtremes(setup, findings);
  return setup;
}

} // namespace TVR::Study
