#include "study/engines/ShardStates.h"

#include "study/work/Journal.h"
#include "study/work/PartFile.h"
#include "study/work/StudyFolder.h"
#include "study/work/StudySetup.h"

#include <QSet>

#include <algorithm>

namespace TVR::Study {

namespace {

/// What is there of a study in several folders.
class Inventory {
public:
  Inventory(const QStringList& folders, const StudySetup& setup, FailedRuns failed)
      : setup_(setup), layoutId_(idOf(setup.layout)),
        areRetried_(failed == FailedRuns::AreRetried) {
    for (const QString& path : folders)
      folders_.emplace_back(path);
    for (const StudyFolder& folder : folders_)
      for (const QString& journal : folder.journals(layoutId_))
        for (const QByteArray& line : Journal::linesOf(journal))
          if (const auto record = recordFromLine(line, setup.layout); record && counts(*record))
            inJournals_.insert(record->run);
  }

  std::size_t missingOf(std::size_t part) const {
    QSet<QByteArray> found = inJournals_;
    for (const StudyFolder& folder : folders_) {
      const QString file = folder.part(partName(setup_.plan, part, layoutId_));
      if (!areRetried_ && isWholePart(file))
        return 0;
      if (const auto whole = areRetried_ ? readPart(file, setup_.layout) : std::nullopt)
        for (const Record& record : whole->records)
          if (counts(record))
            found.insert(record.run);
    }
    const auto begin = setup_.plan.runs.begin();
    return static_cast<std::size_t>(
        std::count_if(begin + static_cast<std::ptrdiff_t>(setup_.plan.firstOf(part)),
                      begin + static_cast<std::ptrdiff_t>(setup_.plan.endOf(part)),
                      [&found](const PlannedRun& run) { return !found.contains(run.name); }));
  }

private:
  bool counts(const Record& record) const { return !areRetried_ || !record.hasFailed(); }

  const StudySetup& setup_;
  const QByteArray layoutId_;
  const bool areRetried_;
  std::vector<StudyFolder> folders_;
  QSet<QByteArray> inJournals_; ///< names of runs
};

} // namespace

std::vector<ShardState> shardStates(const QStringList& folders, const StudySetup& setup,
                                    std::size_t shards, FailedRuns failed) {
  const Inventory found(folders, setup, failed);
  const Plan& plan = setup.plan;
  std::vector<ShardState> states;
  for (std::size_t shard = 0; shard < shards; ++shard) {
    ShardState state{.number = shard + 1};
    for (std::size_t part = shard; part < plan.parts(); part += shards) {
      state.runs += plan.endOf(part) - plan.firstOf(part);
      state.missing += found.missingOf(part);
    }
    states.push_back(state);
  }
  return states;
}

std::vector<std::size_t> openShards(const std::vector<ShardState>& states) {
  std::vector<std::size_t> numbers;
  for (const ShardState& state : states)
    if (state.missing > 0)
      numbers.push_back(state.number);
  return numbers;
}

} // namespace TVR::Study
