#pragma once

#include "study/plan/Raster.h"

#include <vector>

namespace TVR {

struct OutputTimes;
struct SitePlan;
struct SiteInput;

namespace Study {

struct StudyFile;

/// Where the runs of a study are looked at on the map: what the study says, or else around the
/// plume of its base to the level next to 0, with half of its longer side around it, in round
/// numbers; around the model where the base can't be run.
RasterBox rasterBox(const StudyFile& study, const SiteInput& base, const OutputTimes& times,
                    const SitePlan& plan);

/// How many cells are in it, as wide as the study says, or else so that `cellsOfRaster` make the
/// longer side; there may be more of them than a raster can have.
double cellsOf(const RasterBox& box, const StudyFile& study);
/// The raster of these cells, which are no more than an int holds.
Raster rasterOf(const RasterBox& box, const StudyFile& study);
constexpr double cellsOfRaster = 300;

} // namespace Study
} // namespace TVR
