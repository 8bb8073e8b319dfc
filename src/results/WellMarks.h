#pragma once

#include <QVariant>

namespace TVR {

class WellModel;

/// What the map says of each well, as Sketra_lib::Property::PointMarks takes it: its name, and
/// whether it withdraws, injects or does both in turns in the first `periods` demand periods. A
/// well that does nothing has no sign of its own.
QVariantList wellMarks(const WellModel& wells, int periods);

} // namespace TVR
