#pragma once

#include "inspection/Findings.h"
#include "study/plan/Plan.h"
#include "study/plan/ResultLayout.h"
#include "study/plan/StudyFile.h"

#include <QString>

namespace TVR::Study {

/// A study that can be run: what it says, its runs, and what they answer.
struct StudySetup {
  StudyFile file;
  Plan plan;
  ResultLayout layout;
};

/// Reads a study and its base, samples its values and settles what its runs answer. With errors in
/// `findings`, each with what was expected, the study is not to be run; warnings tell of keys with
/// which runs fail at one end of their values. Then the store holds any project.
StudySetup setUpStudy(const QString& studyFile, Findings& findings);

} // namespace TVR::Study
