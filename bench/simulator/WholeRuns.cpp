#include "WholeRuns.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>
#include <cstdio>
#include <ctime>
#include <exception>
#include <stdexcept>
#include <type_traits>

namespace {

struct Outcome {
  std::size_t cells;
  double seconds;
  long waterSteps;
  long heatSteps;
};
static_assert(std::is_trivially_copyable_v<Outcome>); // it goes through a pipe

Outcome run(const Doublet& doublet, LinearSolver solver) {
  const auto site = doublet.site(solver);
  const std::clock_t before = std::clock();
  for (int step = 0; step < doublet.outputTimes(); ++step)
    doublet.advance(*site, step);
  return {site->mesh().elements.size(), static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC,
          site->groundwaterSteps(), site->heatSteps()};
}

[[noreturn]] void runAndTell(const Doublet& doublet, LinearSolver solver, int pipe) {
  int status = 1;
  try {
    const Outcome outcome = run(doublet, solver);
    status = write(pipe, &outcome, sizeof outcome) == sizeof outcome ? 0 : 1;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
  }
  _exit(status);
}

Outcome runInChild(const Doublet& doublet, LinearSolver solver, double* megabytes = nullptr) {
  int ends[2];
  if (pipe(ends) != 0)
    throw std::runtime_error("pipe failed");
  const pid_t child = fork();
  if (child < 0)
    throw std::runtime_error("fork failed");
  if (child == 0)
    runAndTell(doublet, solver, ends[1]);
  close(ends[1]);
  Outcome outcome{};
  const bool isRead = read(ends[0], &outcome, sizeof outcome) == sizeof outcome;
  close(ends[0]);
  int status = 0;
  rusage usage{};
  wait4(child, &status, 0, &usage);
  if (!isRead || status != 0)
    throw std::runtime_error("a run failed");
  if (megabytes)
    *megabytes = static_cast<double>(usage.ru_maxrss) / 1024.0; // counted in KiB
  return outcome;
}

} // namespace

std::vector<WholeRun> wholeRuns() {
  const auto seasons = [](double exchange, int years, bool closedLoop) {
    return Doublet{.cells = 2500,
                   .exchange = exchange,
                   .years = years,
                   .periods = 12,
                   .closedLoop = closedLoop};
  };
  std::vector<WholeRun> runs;
  for (const double exchange : {0.0, 2.0})
    for (const int cells : {2500, 10000, 40000, 100000})
      runs.push_back({exchange > 0.0 ? "30 years, exchange" : "30 years",
                      {.cells = cells, .exchange = exchange},
                      cells == 2500 || (exchange > 0.0 && cells == 10000)});
  runs.push_back({"10 years of 12 periods", seasons(0.0, 10, false)});
  runs.push_back({"10 years of 12 periods, exchange", seasons(2.0, 10, false)});
  runs.push_back({"10 years of 12 periods, exchange, closed loop", seasons(2.0, 10, true)});
  runs.push_back({"1 year of 12 periods, exchange", seasons(2.0, 1, false), true});
  runs.push_back({"1 year of 12 periods, exchange, closed loop", seasons(2.0, 1, true), true});
  return runs;
}

Row measure(const WholeRun& whole) {
  double megabytes = 0.0;
  const Outcome own = runInChild(whole.doublet, LinearSolver::Structured, &megabytes);
  Row row{.name = whole.name,
          .cells = own.cells,
          .seconds = own.seconds,
          .waterSteps = own.waterSteps,
          .heatSteps = own.heatSteps,
          .megabytes = megabytes};
  if (whole.comparesSolvers) {
    const Outcome packaged = runInChild(whole.doublet, LinearSolver::Reference);
    row.reference = packaged.seconds;
    row.referenceWaterSteps = packaged.waterSteps;
    row.referenceHeatSteps = packaged.heatSteps;
  }
  return row;
}

double growthExponent(const Row& small, const Row& large) {
  return std::log(large.seconds / small.seconds) /
         std::log(static_cast<double>(large.cells) / static_cast<double>(small.cells));
}
