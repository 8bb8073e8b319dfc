#include "simulator/ColouredQuotient.h"
#include "simulator/FVGeothermSite.h"
#include "simulator/MeshGeneration.h"
#include "simulator/StructuredFactor.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <ctime>
#include <memory>
#include <utility>
#include <vector>

namespace {

constexpr double year = 365.25 * 86400.0; // [s]
constexpr double pi = 3.14159265358979323846;

/// A doublet on a mesh of about `cells` cells, refined at the wells, and how it is driven.
struct Run {
  int cells;
  double exchange; ///< 0: none; 2: with the rock on both sides
  int years = 30;
  int periods = 1;
  bool closedLoop = false;
};

/// The growth of the cells is sought that gives the count.
std::unique_ptr<FVMesh> meshOf(const Run& run, const std::vector<Well*>& wells) {
  const double largest = 700.0 / std::sqrt(run.cells); // [m]
  std::unique_ptr<FVMesh> mesh;
  for (double growth = 3.0; growth > 1.0; growth = 1.0 + 0.95 * (growth - 1.0) - 1e-4) {
    mesh = makeWellDiscretisation(12.0, 600.0, 200.0, wells, 0.5, largest, growth, 10 * run.cells,
                                  false);
    if (static_cast<int>(mesh->elements.size()) >= run.cells)
      break;
  }
  return mesh;
}

std::unique_ptr<FVGeothermSite> siteOf(const Run& run, LinearSolver solver) {
  const FVMaterial aquifer("aquifer", 0.2, 2650.0, 840.0, 2.0, 3.3e-10, 1e-7);
  const FVMaterial rock("rock", 0.2, 2650.0, 840.0, 2.2, 1e-12, 1e-7);
  Well production(0, 0.0, 0.0, -0.0035);
  Well injection(1, 55.0, 35.0, 0.0035, -4.0);
  for (int period = 0; run.periods > 1 && period < run.periods; ++period) {
    const double rate = 0.0035 * std::cos(2.0 * pi * period / run.periods);
    production.setRate(period, -rate);
    injection.setRate(period, rate);
    production.setTemperatureChange(period, 4.0);
    injection.setTemperatureChange(period, -4.0);
  }
  const std::vector<Well*> wells{&production, &injection};
  return std::make_unique<FVGeothermSite>(
      meshOf(run, wells), aquifer, -25.0, wells, 11.0, 1000.0, 4187.0, 1.3e-3, 0.0, 0.0,
      run.exchange, rock, std::sqrt(run.years * year / 2650.0), run.closedLoop, solver);
}

/// CPU time of the time loop [s].
double secondsOf(const Run& run, LinearSolver solver, benchmark::State& state) {
  const auto site = siteOf(run, solver);
  const std::clock_t before = std::clock();
  for (int step = 0; step < run.years * run.periods; ++step) {
    const double t = (step + 1) * year / run.periods;
    site->setDemandStep(step % run.periods);
    site->solveGroundwater(t, 1e-6, 1e-6);
    site->solveHeat(t, true, 1e-6, 1e-6);
  }
  const double seconds = static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
  state.counters["cells"] = static_cast<double>(site->mesh().elements.size());
  state.counters["waterSteps"] = static_cast<double>(site->groundwaterSteps());
  state.counters["heatSteps"] = static_cast<double>(site->heatSteps());
  return seconds;
}

Run runOf(const benchmark::State& state) {
  return {.cells = static_cast<int>(state.range(0)),
          .exchange = static_cast<double>(state.range(1)),
          .years = static_cast<int>(state.range(2)),
          .periods = static_cast<int>(state.range(3)),
          .closedLoop = state.range(4) != 0};
}

void wholeRun(benchmark::State& state) {
  for (auto _ : state)
    state.SetIterationTime(secondsOf(runOf(state), LinearSolver::Structured, state));
}

/// Time of the structured solver; `ratio` is what the reference takes over it.
void againstReference(benchmark::State& state) {
  for (auto _ : state) {
    const double reference = secondsOf(runOf(state), LinearSolver::Reference, state);
    const double structured = secondsOf(runOf(state), LinearSolver::Structured, state);
    state.counters["reference_s"] = reference;
    state.counters["ratio"] = reference / structured;
    state.SetIterationTime(structured);
  }
}

/// A heat model with chains after its first month, and its Jacobian.
struct JacobianOfHeat {
  explicit JacobianOfHeat(int cells)
      : site(siteOf({.cells = cells, .exchange = 2.0}, LinearSolver::Structured)),
        structure(site->heat.elementCount(), site->heat.links()), quotient(structure),
        matrix(structure.count(), structure.pairs().size()), weights(structure.count(), 1e5) {
    site->solveGroundwater(year / 12.0, 1e-6, 1e-6);
    site->solveHeat(year / 12.0, true, 1e-6, 1e-6);
    site->heat.getState(state);
    compute();
  }
  void compute() { quotient.compute(site->heat, 0.0, state.data(), weights.data(), matrix); }

  std::unique_ptr<FVGeothermSite> site;
  LinkStructure structure;
  ColouredQuotient quotient;
  StructuredMatrix matrix;
  std::vector<double> weights;
  std::vector<double> state;
};

void jacobian(benchmark::State& state) {
  JacobianOfHeat heat(static_cast<int>(state.range(0)));
  for (auto _ : state)
    heat.compute();
  state.counters["evaluations"] = static_cast<double>(heat.quotient.evaluations());
}

/// Factors and solves the Newton matrix of a step of `range(1)` days.
template <StructuredFactor::Core core, bool solves>
void newtonMatrix(benchmark::State& state) {
  JacobianOfHeat heat(static_cast<int>(state.range(0)));
  heat.matrix.scaleAndAddIdentity(-86400.0 * static_cast<double>(state.range(1)));
  StructuredFactor factor(heat.structure, core);
  factor.factorise(heat.matrix);
  std::vector<double> x(heat.structure.count());
  for (auto _ : state) {
    if (solves) {
      for (std::size_t i = 0; i < x.size(); ++i)
        x[i] = std::sin(static_cast<double>(i));
      factor.solve(x.data());
      benchmark::DoNotOptimize(x.data());
    } else {
      factor.factorise(heat.matrix);
    }
  }
}

} // namespace

using Core = StructuredFactor::Core;

BENCHMARK(jacobian)->Arg(2500)->Arg(10000)->Arg(40000)->Unit(benchmark::kMillisecond);
BENCHMARK(newtonMatrix<Core::Band, false>)->Args({2500, 30})->Args({10000, 30});
BENCHMARK(newtonMatrix<Core::Band, true>)->Args({2500, 30})->Args({10000, 30});
BENCHMARK(newtonMatrix<Core::Iteration, false>)->Args({2500, 30})->Args({10000, 30});
BENCHMARK(newtonMatrix<Core::Iteration, true>)
    ->ArgsProduct({{2500, 10000, 40000}, {1, 30, 365}})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(wholeRun)
    ->ArgNames({"cells", "exchange", "years", "periods", "loop"})
    ->ArgsProduct({{2500, 10000, 40000, 100000}, {0, 2}, {30}, {1}, {0}})
    ->Args({2500, 0, 10, 12, 0})
    ->Args({2500, 2, 10, 12, 1})
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kSecond);
BENCHMARK(againstReference)
    ->ArgNames({"cells", "exchange", "years", "periods", "loop"})
    ->Args({2500, 0, 30, 1, 0})
    ->Args({2500, 2, 30, 1, 0})
    ->Args({10000, 2, 30, 1, 0})
    ->Args({2500, 2, 10, 12, 0})
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kSecond);
