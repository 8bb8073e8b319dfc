#pragma once

#include <QVariant>

namespace TVR {

class WellReader;

/// What a well does in the course of a year.
enum class WellUse { Idle, Withdrawal, Injection, Alternating };

/// What the rates of the first `periods` demand periods, one at least, say that a well does;
/// `Alternating` if it withdraws in one and injects in another.
WellUse wellUse(const WellReader& wells, int well, int periods);

/// What the map says of each well, as Sketra_lib::Property::PointMarks takes it: its name in
/// printable letters and its wellUse(). A well that does nothing has no sign of its own.
QVariantList wellMarks(const WellReader& wells, int periods);

} // namespace TVR
