#pragma once

#include "study/engines/ShardJob.h"

#include <QByteArray>

namespace TVR::Study {

/// The script of a job array with a task for each of these shards of a study. Its paths of output
/// are within the folder of the study, from which it is to be submitted. Tasks are not started
/// again by Slurm: what is missing is submitted again.
QByteArray slurmScript(const ShardJob& job, const std::vector<std::size_t>& numbers);

/// What came of a submission.
struct SlurmAnswer {
  QString fault; ///< for the user; empty if there is none
  QString job;   ///< as Slurm names it
};

/// Writes the script of these shards into the folder of the study and hands it to sbatch.
SlurmAnswer submitToSlurm(const ShardJob& job, const std::vector<std::size_t>& numbers);

} // namespace TVR::Study
