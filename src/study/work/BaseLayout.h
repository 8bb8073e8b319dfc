#pragma once

#include "inspection/Findings.h"
#include "study/plan/ResultLayout.h"
#include "study/plan/StudyFile.h"

#include <vector>

namespace TVR::Study {

/// What the runs of a study answer, whose base stands in the store and whose runs have these keys.
/// What the study asks for and the base can't answer is told in `findings`; with errors the layout
/// is not to be used. Throws SetupError for a base that can't be set up.
ResultLayout layoutOfBase(const StudyFile& study, const std::vector<StudyKey>& keys,
                          Findings& findings);

} // namespace TVR::Study
