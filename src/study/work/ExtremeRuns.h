#pragma once

#include "inspection/Findings.h"
#include "study/plan/Plan.h"
#include "study/plan/ResultLayout.h"
#include "study/plan/StudyFile.h"

namespace TVR::Study {

/// Looks at the base with each key of a study in turn at its least and at its greatest value of the
/// sample. Errors tell of cells that the base has not; warnings of values with which the site can't
/// be computed, or has not what all runs are to answer.
void checkExtremes(const StudyFile& study, const Plan& plan, const ResultLayout& layout,
                   Findings& findings);

} // namespace TVR::Study
