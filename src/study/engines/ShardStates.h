#pragma once

#include "study/work/RecordKeeper.h"

#include <QStringList>

#include <cstddef>
#include <vector>

namespace TVR::Study {

struct StudySetup;

/// How far a shard has come, wherever its runs were computed.
struct ShardState {
  std::size_t number = 1; ///< from 1
  std::size_t runs = 0;
  std::size_t missing = 0; ///< of them
};

/// Looks for the runs of each of `shards` shares of a study in its folder and in others. Failed
/// runs that are to be retried are missing.
std::vector<ShardState> shardStates(const QStringList& folders, const StudySetup& setup,
                                    std::size_t shards, FailedRuns failed = FailedRuns::Stay);

/// The numbers of those that miss runs.
std::vector<std::size_t> openShards(const std::vector<ShardState>& states);

} // namespace TVR::Study
