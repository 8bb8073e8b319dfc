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
  Inventory(const QStringList& folders, const StudySetup& setup)
      : setup_(setup), layoutId_(idOf(setup.layout)) {
    for (const QString& path : folders)
      folders_.emplace_back(path);
    for (const StudyFolder& folder : folders_)
      for (const QString& journal : folder.journals(layoutId_))
        for (const QByteArray& line : Journal::linesOf(journal))
          if (const auto record = recordFromLine(line, setup.layout))
            inJournals_.insert(record->run);
  }

  std::size_t missingOf(std::size_t part) const {
    const QByteArray name = partName(setup_.plan, part, layoutId_);
    if (std::any_of(folders_.begin(), folders_.end(),
                    [&name](const StudyFolder& folder) { return isWholePart(folder.part(name)); }))
      return 0;
    const auto begin = setup_.plan.runs.begin();
    return static_cast<std::size_t>(
        std::count_if(begin + static_cast<std::ptrdiff_t>(setup_.plan.firstOf(part)),
                      begin + static_cast<std::ptrdiff_t>(setup_.plan.endOf(part)),
                      [this](const PlannedRun& run) { return !inJournals_.contains(run.name); }));
  }

private:
  const StudySetup& setup_;
  const QByteArray layoutId_;
  std::vector<StudyFolder> folders_;
  QSet<QByteArray> inJournals_; ///< names of runs
};

} // namespace

std::vector<ShardState> shardStates(const QStringList& folders, const StudySetup& setup,
                                    std::size_t shards) {
  const Inventory found(folders, setup);
  const Plan& plan = setup.plan;
  std::vector<ShardState> states(shards);
  for (std::size_t i = 0; i < shards; ++i)
    states[i].number = i + 1;
  for (std::size_t part = 0; part < plan.parts(); ++part) {
    ShardState& state = states[part % shards];
    state.runs += plan.endOf(part) - plan.firstOf(part);
    state.missing += found.missingOf(part);
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
