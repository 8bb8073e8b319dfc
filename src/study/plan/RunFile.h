#pragma once

#include "study/plan/StudyKey.h"

#include <QByteArray>

#include <vector>

namespace TVR::Study {

/// The batch file of a run: that of the base, and behind it the keys with the values of the run,
/// which count instead of what stands above.
QByteArray runFile(const QByteArray& baseContent, const std::vector<StudyKey>& keys,
                   const std::vector<double>& values);

} // namespace TVR::Study
