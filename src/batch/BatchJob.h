#pragma once

#include "batch/Options.h"

#include <QString>

namespace TVR::Batch {

/// Checks one batch file and, unless only the check is wanted, runs it to its table. Tells the user
/// what is wrong, and ends with an ExitCode.
int runBatchFile(const QString& fileName, const Options& options);

} // namespace TVR::Batch
