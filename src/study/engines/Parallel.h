#pragma once

#include "study/engines/ShardJob.h"

#include <QByteArray>
#include <QStringList>

namespace TVR::Study {

/// The commands of these shards of a study, one a line.
QByteArray parallelCommands(const ShardJob& job, const std::vector<std::size_t>& numbers);

/// How GNU parallel is called: `hosts` are names with commas between them, or "@" and the name of a
/// file with one a line; empty for this machine. A name is what GNU parallel takes for one: "host",
/// "user@host", "8/host" for eight at a time, ":" for this machine.
QStringList parallelArguments(const ShardJob& job, const QString& hosts);

/// Writes the commands of these shards into the folder of the study and waits until GNU parallel
/// has carried them out, or a signal has ended it. Returns why it could not begin, or nothing: what
/// came of the shards is seen in the folder.
QString runInParallel(const ShardJob& job, const std::vector<std::size_t>& numbers,
                      const QString& hosts);

} // namespace TVR::Study
