#pragma once

#include "study/work/RecordKeeper.h"
#include "study/work/StudyFolder.h"

#include <QString>

#include <functional>

namespace TVR::Study {

class Results;
struct StudySetup;

/// How a study is to be run.
struct RunSettings {
  QString folder; ///< where its results go
  Shard shard;
  int workers = 1;
  FailedRuns failed = FailedRuns::Stay;
};

/// How far a study has come, in runs.
struct RunProgress {
  std::size_t runs = 0;   ///< of the shard
  std::size_t done = 0;   ///< the failed ones included
  std::size_t failed = 0; ///< of those that were computed now
};

/// Computes the runs of a shard that are not there yet, or have failed and are retried. Ends with
/// an empty text, or with the reason why it ended before all were done; what was computed stays. A
/// signal ends it too.
QString runStudy(const StudySetup& setup, const RunSettings& settings,
                 const std::function<void(const RunProgress&)>& progress);

/// Writes the table of all runs that are there. False if it can't be written.
bool writeRunTable(const StudyFolder& folder, const StudySetup& setup, const Results& results);

} // namespace TVR::Study
