#pragma once

namespace TVR::Page {

/// Resolutions are told in dots per inch, all else on a page in [mm].
constexpr double millimetresPerInch = 25.4;

} // namespace TVR::Page
