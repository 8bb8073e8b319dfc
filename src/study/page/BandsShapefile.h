#pragma once

#include <QString>

#include <vector>

namespace TVR::Study {

struct PlumeBand;

/// Writes plume bands to an ESRI shapefile, one polygon with all its rings a record, with the
/// columns "level_K", "time_a", "probabilit" (names of columns have ten letters) and "band" ("P10",
/// "P50" or "P90"). `fileName` may have the ending of one of its files. Without bands the files are
/// there and empty. False if they can't be written; older ones then stay.
bool writeBandsShapefile(const QString& fileName, const std::vector<PlumeBand>& bands);

} // namespace TVR::Study
