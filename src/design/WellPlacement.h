#pragma once

#include "design/DesignFormulas.h"

#include <vector>

namespace TVR {

/// A field of wells that is to be laid out. Distances in metres.
struct WellField {
  int wells = 0;          ///< the first of them withdraw, the rest injects
  int withdrawing = -1;   ///< so many of them; below 0 half of them
  double betweenRows = 0; ///< from the withdrawal wells to the injection wells
  double withinRow = 0;   ///< from one well of a row to the next
  double angle = 0;       ///< from east, clockwise, to where the groundwater flows [degrees]
  PlanePoint centre{};    ///< of each row along the row, and halfway between the rows
};

/// Lays out wells in two rows across the regional flow: the withdrawal wells upstream, so that what
/// is injected drifts away from them. In the order of the table of wells, withdrawal first; along a
/// row from right to left, seen downstream. Where there is one row only, it runs through the
/// centre. Empty for a number of wells that is not above 0.
std::vector<PlanePoint> placeWells(const WellField& field);

} // namespace TVR
