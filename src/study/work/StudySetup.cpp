#include "study/work/StudySetup.h"

#include "inspection/FileInspection.h"
#include "project/Units.h"
#include "simulation/OutputTimes.h"
#include "simulation/SiteInput.h"
#include "simulation/SiteSetup.h"
#include "store/Manager.h"
#include "study/work/RunInput.h"
#include "study/work/RunWatch.h"

#include <QFileInfo>
#include <QRectF>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace TVR::Study {

namespace {

/// So many times at most make a series.
constexpr std::size_t mostSeriesTimes = 400;
/// The raster around the wells of a study that says nothing of it: so wide as this share of how far
/// the model reaches beyond them, in cells of which so many make a side.
constexpr double rasterCells = 200;

/// The model of a base as it stands in the store, and what is looked for in it.
class LayoutMaker {
public:
  explicit LayoutMaker(const StudyFile& study)
      : study_(study), site_(readSite(*Data::Manager::instance())),
        times_(outputTimes(outputTimeInput(*Data::Manager::instance(), usualCycleLength))),
        plan_(planSite(site_, times_)) {}

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
    for (const double time : layout.times)
      nearestOutputTime(times_.times, time);
    layout.seriesTimes = seriesTimes();
    layout.raster = raster();
    return layout;
  }

private:
  std::vector<double> seriesTimes() const {
    const std::size_t every = (times_.times.size() + mostSeriesTimes - 1) / mostSeriesTimes;
    std::vector<double> result;
    for (std::size_t i = times_.times.size(); i > 0; i -= std::min(i, every))
      result.insert(result.begin(), inYears(times_.times[i - 1]));
    return result;
  }

  RasterBox box() const {
    if (study_.raster)
      return *study_.raster;
    QRectF wells(site_.wells.front().place, QSizeF(0, 0));
    for (const SiteWell& well : site_.wells)
      wells |= QRectF(well.place, QSizeF(1e-3, 1e-3));
    const double reach = std::max(plan_.extents.a, plan_.extents.b);
    return {wells.left() - reach, wells.top() - reach, wells.width() + 2 * reach,
            wells.height() + 2 * reach};
  }

  Raster raster() const {
    const RasterBox area = box();
    const double cell = study_.rasterCell.value_or(std::max(area.width, area.height) / rasterCells);
    return {area.left, area.bottom, cell, static_cast<int>(std::ceil(area.width / cell)),
            static_cast<int>(std::ceil(area.height / cell))};
  }

  const StudyFile& study_;
  const SiteInput site_;
  const OutputTimes times_;
  const SitePlan plan_;
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

} // namespace

StudySetup setUpStudy(const QString& studyFile, const QString& base, Findings& findings) {
  StudySetup setup;
  setup.file = readStudyFile(studyFile, findings);
  if (!base.isEmpty())
    setup.file.base = base;
  if (!findings.errors.isEmpty())
    return setup;
  RunInput input(setup.file.base, {});
  if (!takeBase(setup.file, input, findings))
    return setup;
  setup.plan = makePlan(setup.file, digestOf(input.content()), findings);
  try {
    setup.layout = LayoutMaker(setup.file).make(setup.plan.keys);
  } catch (const std::exception& error) {
    findings.errors << QStringLiteral("%1: %2").arg(QFileInfo(setup.file.base).fileName(),
                                                    QString(error.what()));
  }
  return setup;
}

} // namespace TVR::Study
