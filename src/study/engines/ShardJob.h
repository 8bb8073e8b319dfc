#pragma once

#include <QString>

#include <cstddef>
#include <vector>

namespace TVR::Study {

/// A study that is to be computed in shards, by processes that share nothing but its folder.
struct ShardJob {
  QString program; ///< how the computing machines call tevrane-study
  QString study;   ///< complete path
  QString folder;  ///< complete path
  std::size_t shards = 1;
  int workers = 1; ///< of each shard
  bool retriesFailed = false;

  /// Where job scripts, lists of commands and the output of engines go.
  QString engineFolder() const { return folder + "/engine"; }
  /// The shell command that computes the shard `number`: a number from 1, or a variable of the
  /// shell.
  QString command(const QString& number) const;
};

/// So many shards at most: more tasks than a job array has in Slurm as it is installed.
constexpr std::size_t mostShards = 1000;

/// How many shards suit a study of so many parts: a few parts for each shard, from 20 to 100
/// shards, and none without a part.
std::size_t usualShards(std::size_t parts);

/// A text as one word of a shell.
QString shellWord(const QString& text);

/// Numbers in ascending order as an engine takes them: "1-3,7".
QString rangesOf(const std::vector<std::size_t>& numbers);

} // namespace TVR::Study
