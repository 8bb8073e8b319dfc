#include "study/engines/ShardJob.h"

#include <QStringList>

#include <algorithm>

namespace TVR::Study {

QString ShardJob::command(const QString& number) const {
  return QStringLiteral("%1 run %2 --folder %3 --shard %4/%5 --workers %6 --quiet%7")
      .arg(shellWord(program), shellWord(study), shellWord(folder), number)
      .arg(shards)
      .arg(workers)
      .arg(retriesFailed ? QStringLiteral(" --retry-failed") : QString());
}

std::size_t usualShards(std::size_t parts) {
  constexpr std::size_t partsOfShard = 4;
  return std::min(parts, std::clamp<std::size_t>(parts / partsOfShard, 20, 100));
}

QString shellWord(const QString& text) {
  return '\'' + QString(text).replace('\'', "'\\''") + '\'';
}

QString rangesOf(const std::vector<std::size_t>& numbers) {
  QStringList ranges;
  for (std::size_t first = 0, last = 0; first < numbers.size(); first = ++last) {
    while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1)
      ++last;
    const QString from = QString::number(numbers[first]);
    ranges << (first == last ? from : QStringLiteral("%1-%2").arg(from).arg(numbers[last]));
  }
  return ranges.join(',');
}

} // namespace TVR::Study
