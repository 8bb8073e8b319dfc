#pragma once

namespace TVR::Study {

/// Computes runs that come in on the standard input, see WorkerLines.h, and answers each on the
/// standard output, until the input ends. Ends with an ExitCode.
int runWorker();

} // namespace TVR::Study
