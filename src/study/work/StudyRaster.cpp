#include "study/work/StudyRaster.h"

#include "quantities/PlumeBox.h"
#include "simulation/SiteSetup.h"
#include "study/plan/StudyFile.h"

#include <QRectF>

#include <algorithm>
#include <cmath>
#include <exception>
#include <optional>

namespace TVR::Study {

namespace {

/// The least of 1, 2, 5, 10, 20 ... that is not below a number above 0.
double roundAbove(double number) {
  const double power = std::pow(10, std::floor(std::log10(number)));
  for (const double step : {1., 2., 5.})
    if (step * power >= number)
      return step * power;
  return 10 * power;
}

/// In round numbers, so that machines that round differently agree about it.
RasterBox roundBox(const QRectF& box) {
  constexpr double stepsOfSide = 20;
  const double step = roundAbove(std::max(box.width(), box.height()) / stepsOfSide);
  const auto below = [step](double number) { return step * std::floor(number / step); };
  const auto above = [step](double number) { return step * std::ceil(number / step); };
  const double left = below(box.left());
  const double bottom = below(box.top());
  return {left, bottom, above(box.right()) - left, above(box.bottom()) - bottom};
}

QRectF withRoom(const QRectF& box, double room) {
  return box.adjusted(-room, -room, room, room);
}

std::optional<QRectF> plumeOf(const StudyFile& study, const SiteInput& base,
                              const OutputTimes& times) {
  double level = std::abs(study.levels.front());
  for (const double one : study.levels)
    level = std::min(level, std::abs(one));
  try {
    return Quantities::plumeBox(base, times, level);
  } catch (const std::exception&) {
    return {}; // its variants may be sounder
  }
}

QRectF modelOf(const SiteInput& base, const SitePlan& plan) {
  QRectF wells(base.wells.front().place, QSizeF(0, 0));
  for (const SiteWell& well : base.wells)
    wells |= QRectF(well.place, QSizeF(1e-3, 1e-3));
  return withRoom(wells, std::max(plan.extents.a, plan.extents.b));
}

double cellWidth(const RasterBox& box, const StudyFile& study) {
  return study.rasterCell.value_or(std::max(box.width, box.height) / cellsOfRaster);
}

} // namespace

RasterBox rasterBox(const StudyFile& study, const SiteInput& base, const OutputTimes& times,
                    const SitePlan& plan) {
  if (study.raster)
    return *study.raster;
  const std::optional<QRectF> plume = plumeOf(study, base, times);
  const double side = plume ? std::max(plume->width(), plume->height()) : 0;
  return roundBox(side > 0 ? withRoom(*plume, side / 2) : modelOf(base, plan));
}

double cellsOf(const RasterBox& box, const StudyFile& study) {
  const double cell = cellWidth(box, study);
  return std::ceil(box.width / cell) * std::ceil(box.height / cell);
}

Raster rasterOf(const RasterBox& box, const StudyFile& study) {
  const double cell = cellWidth(box, study);
  return {box.left, box.bottom, cell, static_cast<int>(std::ceil(box.width / cell)),
          static_cast<int>(std::ceil(box.height / cell))};
}

} // namespace TVR::Study
