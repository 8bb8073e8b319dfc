#include "study/work/TrialRuns.h"

#include "study/work/SiteRun.h"
#include "study/work/StudySetup.h"

#include <QElapsedTimer>

#include <algorithm>

namespace TVR::Study {

TrialRuns tryRuns(const StudySetup& study) {
  constexpr std::size_t most = 4;
  const std::vector<PlannedRun>& runs = study.plan.runs;
  const std::size_t count = std::min(runs.size(), most);
  SiteRun site(study.file.base, study.layout);
  site.compute(runs.front().name, runs.front().values); // the first one also warms up
  TrialRuns trial;
  double milliseconds = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const PlannedRun& run = runs[i * runs.size() / count];
    QElapsedTimer clock;
    clock.start();
    const Record record = site.compute(run.name, run.values);
    ++trial.runs;
    if (record.hasFailed()) {
      ++trial.failed;
      trial.reasons << record.failure;
    } else {
      milliseconds += static_cast<double>(clock.nsecsElapsed()) / 1e6;
    }
  }
  trial.reasons.removeDuplicates();
  if (trial.failed < trial.runs)
    trial.seconds = milliseconds / 1000 / (trial.runs - trial.failed);
  return trial;
}

} // namespace TVR::Study
