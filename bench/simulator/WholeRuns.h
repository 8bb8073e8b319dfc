#pragma once

#include "Doublet.h"
#include "Table.h"

#include <string>
#include <vector>

/// A whole run to be measured, and whether it is measured with the packaged solver too.
struct WholeRun {
  std::string name;
  Doublet doublet;
  bool comparesSolvers = false;
};

/// All of them, in the order of the table.
std::vector<WholeRun> wholeRuns();

/// Runs it in a process of its own, which makes its peak memory its own. CPU time is that of the
/// time loop, peak memory that of the whole. Throws std::runtime_error if the process fails.
Row measure(const WholeRun& run);

/// x of CPU time ~ cells^x between two rows.
double growthExponent(const Row& small, const Row& large);
