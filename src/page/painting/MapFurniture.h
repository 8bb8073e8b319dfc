#pragma once

#include <QString>

class QPainter;

namespace TVR::Page {

struct PlotItem;

/// The bar that shows lengths on a map.
struct ScaleBar {
  double length = 0;     ///< [m], of the whole bar; 0 for a scale that none suits
  int parts = 1;         ///< drawn in turns black and white
  QString unit;          ///< "m" or "km"
  double unitLength = 1; ///< [m]
};

/// The longest bar of a round length (1, 2 or 5 times a power of ten) that takes at most `room`
/// [mm], on a map on which a metre takes `metre` [mm].
ScaleBar scaleBar(double metre, double room);

/// Draws scale bar and north arrow above the area of a map, in its upper margin; nothing if that is
/// too narrow for them.
void paintMapFurniture(QPainter& painter, const PlotItem& map);

} // namespace TVR::Page
