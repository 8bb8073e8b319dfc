#include "Accuracy.h"
#include "ClosedLoops.h"
#include "Parts.h"
#include "Peer.h"
#include "WholeRuns.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <exception>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

/// Between the smallest and the largest mesh of the runs of one name.
void printGrowth(const std::vector<Row>& rows, const char* name) {
  std::vector<Row> ofName;
  std::copy_if(rows.begin(), rows.end(), std::back_inserter(ofName),
               [&](const Row& row) { return row.name == name; });
  if (ofName.size() > 1)
    std::printf("%s: CPU time grows with the cells to the power of %.2f\n", name,
                growthExponent(ofName.front(), ofName.back()));
}

} // namespace

// The whole runs come first: their processes inherit what this one has in memory.
int main(int argc, char** argv) {
  bool isQuick = false;
  const char* wanted = "";
  for (int k = 1; k < argc; ++k) {
    if (std::strcmp(argv[k], "--accuracy") == 0) {
      printAccuracy();
      return 0;
    }
    if (std::strcmp(argv[k], "--closed-loops") == 0) {
      printClosedLoops();
      return 0;
    }
    if (std::strcmp(argv[k], "--peer") == 0) {
      printPeer();
      return 0;
    }
    if (std::strcmp(argv[k], "--quick") == 0)
      isQuick = true;
    else
      wanted = argv[k];
  }
  try {
    std::vector<Row> runs;
    for (WholeRun run : wholeRuns()) {
      if (run.name.find(wanted) == std::string::npos)
        continue;
      run.comparesSolvers = run.comparesSolvers && !isQuick;
      std::fprintf(stderr, "%s, %d cells\n", run.name.c_str(), run.doublet.cells);
      runs.push_back(measure(run));
    }
    if (runs.empty())
      throw std::runtime_error(std::string("no run has a name with \"") + wanted + "\" in it");
    std::vector<Row> rows = *wanted ? std::vector<Row>() : measureParts();
    rows.insert(rows.end(), runs.begin(), runs.end());
    printTable(rows);
    std::printf("\n");
    for (const char* name : {"30 years", "30 years, exchange"})
      printGrowth(runs, name);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
