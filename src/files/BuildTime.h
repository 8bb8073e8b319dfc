#pragma once

#include <QString>

namespace TVR {

/// When this program was built, in the form "Jun 22 2025 19:07:02" (a day below 10 has a second
/// blank in front). The compiler takes it from SOURCE_DATE_EPOCH if that is set, so that builds can
/// be repeated byte by byte.
QString buildTime();

} // namespace TVR
