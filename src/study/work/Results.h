#pragma once

#include "study/plan/Plan.h"
#include "study/plan/ResultLayout.h"
#include "study/work/Exceedance.h"
#include "study/work/Record.h"
#include "study/work/StudyFolder.h"

#include <QHash>

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace TVR::Study {

/// What is there of a study: its finished parts, and what its journals hold of other runs and of
/// those that failed there. Keeps no more of a run in memory than where it stands.
class Results {
public:
  /// All outlive this.
  Results(const StudyFolder& folder, const Plan& plan, const ResultLayout& layout);

  /// How many runs of the plan are there, those that failed included.
  std::size_t size() const { return places_.size(); }
  std::size_t failed() const { return failed_; }
  /// Calls `visit` for the record of each run that is there, without its maps, sorted by name:
  /// whoever adds up gets the same sum, whoever computed the runs, and in whatever order.
  void eachRecord(const std::function<void(const Record&)>& visit) const;
  /// How often the cells of the raster lie in the plume, over all these runs.
  const ExceedanceCounts& counts() const { return counts_; }

private:
  /// Where a record stands.
  struct Place {
    QByteArray run;
    int repeats;
    QString file;
    qint64 offset; ///< of its line
  };

  /// A run that is not known to have results.
  struct OpenRun {
    int repeats;
    std::optional<Place> failedInPart;
    std::optional<Place> failedInJournal;
  };
  using OpenRuns = QHash<QByteArray, OpenRun>; ///< by name

  void takeParts(OpenRuns& open);
  void takeJournals(OpenRuns& open);
  void takeFailures(const OpenRuns& open);

  const StudyFolder& folder_;
  const Plan& plan_;
  const ResultLayout& layout_;
  std::vector<Place> places_; ///< sorted by name
  std::size_t failed_ = 0;
  ExceedanceCounts counts_;
};

} // namespace TVR::Study
