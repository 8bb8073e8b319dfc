#pragma once

namespace TVR {

/// What the program ends with.
enum ExitCode {
  Success = 0,
  RunFailed = 1,  ///< the simulation failed or its result could not be written
  InputError = 2, ///< the command line or a file is at fault; nothing was computed
};

} // namespace TVR
