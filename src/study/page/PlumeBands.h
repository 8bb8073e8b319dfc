#pragma once

#include "study/page/ProbabilityMap.h"

#include <QPolygonF>
#include <QString>

#include <array>
#include <vector>

namespace TVR::Study {

/// A line on the map of a study that is known by a probability.
struct BandProbability {
  const char* name;
  double probability; ///< that the plume reaches as far as that
};

/// The P10 isotherm lies where one run of ten reaches, the P90 isotherm where nine of ten do: P10
/// is the widest.
constexpr std::array<BandProbability, 3> bandProbabilities{
    {{"P10", 0.1}, {"P50", 0.5}, {"P90", 0.9}}};

/// The area that the plume of a level covers with a probability or a higher one.
struct PlumeBand {
  QString name;
  double probability;
  double level;                 ///< [K]
  double time;                  ///< [a]
  std::vector<QPolygonF> rings; ///< [m]; closed, what lies in an even number of them is outside
};

/// The lines of a map at a probability (above 0), which close around what is as likely or more:
/// where the plume goes on beyond the raster, along the edge of the raster.
std::vector<QPolygonF> ringsOf(const ProbabilityMap& map, double probability);

/// The bands of all maps, P10 to P90 of one after the other, without those that cover nothing.
std::vector<PlumeBand> plumeBands(const std::vector<ProbabilityMap>& maps);

} // namespace TVR::Study
