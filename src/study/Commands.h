#pragma once

#include "study/Options.h"

namespace TVR::Study {

/// Does what the options ask for, tells the user what is wrong, and ends with an ExitCode.
int runCommand(const Options& options);

} // namespace TVR::Study
