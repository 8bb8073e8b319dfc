#pragma once

#include "project/Wells.h"
#include "support/MapParameters.h"

namespace TVR {

inline constexpr double meanFlowRate = 0.004;         // [m3/s]
inline constexpr double usedTemperatureChange = -5.0; // [K]

/// The parameters that the tables of the wells derive their rates and changes from.
inline MapParameters wellParameters(int wells) {
  MapParameters made;
  made.values = {{Parameter::NumberOfWells, wells},
                 {Parameter::MeanFlowRate, meanFlowRate},
                 {Parameter::UsedTemperatureChange, usedTemperatureChange}};
  return made;
}

/// Wells at these places [m], of which nothing else was set.
inline Wells wellsAt(const QVector<QPointF>& positions) {
  Wells wells;
  wells.positions = positions;
  return wells;
}

} // namespace TVR
