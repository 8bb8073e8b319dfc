#pragma once

#include "study/work/StudyFolder.h"

#include <QString>

namespace TVR::Study {

struct StudySetup;

/// Takes over what another folder holds of the same study: whole parts, and the records of its
/// journals. What is there already stays, but for a part that has fewer failed runs there. Ends
/// with an empty text, or with what went wrong.
QString collect(const StudyFolder& from, const StudyFolder& into, const StudySetup& setup);

} // namespace TVR::Study
