#pragma once

#include <QString>

namespace TVR::Study {

struct BaseSite;

/// How good the mesh of a base is, in one line in the language of the moment: the figures whose
/// bands are the widest for what is allowed of them, and how many the mesh is not good enough for.
QString meshLine(const BaseSite& base);

} // namespace TVR::Study
