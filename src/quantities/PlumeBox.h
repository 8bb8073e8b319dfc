#pragma once

#include <QRectF>

namespace TVR {

struct OutputTimes;
struct SiteInput;

namespace Quantities {

/// The box on the map [m] around all wells and around the cells whose temperature has changed by
/// `level` [K] or more, in either direction, at the last output time; where that is more than half
/// of the greatest change, by half of it. The site is run on a mesh with cells twice as wide, which
/// takes a fraction of the time of a run. Throws what planSite, makeSite and solveSite throw.
QRectF plumeBox(const SiteInput& site, const OutputTimes& outputTimes, double level);

} // namespace Quantities
} // namespace TVR
