#include "study/work/BaseLayout.h"

#include "project/Units.h"
#include "study/work/PlannedSite.h"
#include "study/work/RunWatch.h"
#include "study/work/StudyRaster.h"

#include <QRectF>

#include <algorithm>
#include <cmath>

namespace TVR::Study {

namespace {

/// So many times at most make a series.
constexpr std::size_t mostSeriesTimes = 400;
/// Each process counts the cells of the raster for each level and time, some of them twice.
constexpr double mostCells = 4e6;
constexpr double mostCounts = 2e7;

class LayoutMaker {
public:
  LayoutMaker(const StudyFile& study, Findings& findings)
      : study_(study), findings_(findings), base_(plannedSite()),
        box_(rasterBox(study, base_.site, base_.times, base_.plan)) {}

  ResultLayout make(const std::vector<StudyKey>& keys) const {
    ResultLayout layout;
    for (const StudyKey& key : keys) {
      layout.keys << key.name;
      layout.keyUnits << key.unit;
    }
    layout.wells = base_.wellNames();
    layout.quantities = study_.quantities.isEmpty() ? quantityNames() : study_.quantities;
    layout.levels = study_.levels;
    layout.times = study_.times;
    if (layout.times.empty())
      layout.times.push_back(lastTime());
    layout.seriesTimes = seriesTimes();
    layout.raster = raster(layout);
    layout.meshBands = study_.meshBands;
    checkTimes(layout);
    checkRaster();
    return layout;
  }

private:
  double lastTime() const { return inYears(base_.times.times.back()); }

  std::vector<double> seriesTimes() const {
    const std::vector<double>& times = base_.times.times;
    const std::size_t every = (times.size() + mostSeriesTimes - 1) / mostSeriesTimes;
    std::vector<double> result;
    for (std::size_t i = times.size(); i > 0; i -= std::min(i, every))
      result.insert(result.begin(), inYears(times[i - 1]));
    return result;
  }

  /// An empty one if it had too many cells.
  Raster raster(const ResultLayout& layout) const {
    const double cells = cellsOf(box_, study_);
    const double most =
        std::min(mostCells, std::floor(mostCounts / static_cast<double>(layout.maps())));
    if (cells <= most)
      return rasterOf(box_, study_);
    findings_.errors << QStringLiteral("[answers] raster_cell: expected a raster of at most %1 "
                                       "cells for %2 levels and %3 times, found %4 cells")
                            .arg(QString::number(most, 'g', 12))
                            .arg(layout.levels.size())
                            .arg(layout.times.size())
                            .arg(QString::number(cells, 'g', 12));
    return {};
  }

  void checkTimes(const ResultLayout& layout) const {
    for (const double time : layout.times)
      if (!isNearOutputTime(base_.times.times, time))
        findings_.errors << QStringLiteral("[answers] times: expected times at which the base has "
                                           "results, up to %1 years, found \"%2\"")
                                .arg(lastTime())
                                .arg(time);
  }

  void checkRaster() const {
    const QRectF place(box_.left, box_.bottom, box_.width, box_.height);
    const std::vector<SiteWell> wells = base_.wells();
    if (std::none_of(wells.begin(), wells.end(),
                     [&](const SiteWell& well) { return place.contains(well.place); }))
      findings_.warnings << QStringLiteral("[answers] raster: no well of the base lies in it");
  }

  const StudyFile& study_;
  Findings& findings_;
  const PlannedSite base_;
  const RasterBox box_;
};

} // namespace

ResultLayout layoutOfBase(const StudyFile& study, const std::vector<StudyKey>& keys,
                          Findings& findings) {
  return LayoutMaker(study, findings).make(keys);
}

} // namespace TVR::Study
