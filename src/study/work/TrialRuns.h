#pragma once

#include <QStringList>

namespace TVR::Study {

struct StudySetup;

/// What a few runs of a study tell of all of them.
struct TrialRuns {
  int runs = 0;
  int failed = 0;
  QStringList reasons; ///< of those that failed, each once
  double seconds = 0;  ///< that one with results takes; 0 if none has
};

/// Computes some runs, spread over the sample, in this process.
TrialRuns tryRuns(const StudySetup& study);

} // namespace TVR::Study
