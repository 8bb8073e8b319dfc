#pragma once

#include <QString>

namespace TVR::Study {

/// A text as a cell of a CSV file, in quotes where it must be.
QString csvCell(const QString& text);
/// A number with all its bits; empty if it is not finite.
QString csvCell(double number);

} // namespace TVR::Study
