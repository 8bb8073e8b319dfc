#pragma once

#include "study/Options.h"

namespace TVR::Study {

/// `pest STUDY OBSERVATIONS`: writes the files by which the varied keys of a study are calibrated
/// into the folder NAME.pest beside it, or the one that is named. Ends with an ExitCode.
int writeCalibration(const Options& options);

/// `observe FILE OBSERVATIONS RESULT`: runs a batch file and writes what it answers to the
/// observations. Ends with an ExitCode; an older result goes before the run.
int observe(const Options& options);

} // namespace TVR::Study
