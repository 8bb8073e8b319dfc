#pragma once

#include "batch/Options.h"

namespace TVR::Batch {

/// Runs each file in a process of its own, up to `options.jobs` at a time, and passes on what they
/// say in the order of the files. A file that fails stops none of the others. Ends with the highest
/// ExitCode of all.
int runJobs(const Options& options);

} // namespace TVR::Batch
