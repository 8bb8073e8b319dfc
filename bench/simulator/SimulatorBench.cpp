#include "simulator/FVGeothermSite.h"
#include "simulator/MeshGeneration.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>
#include <vector>

namespace {

const FVMaterial gravel("gravel", 0.2, 2650.0, 840.0, 2.4, 1e-10, 1e-8);

FVGridLine uniformLine(int cells) {
  FVGridLine line;
  for (int i = 0; i < cells; ++i)
    line.append(2.0 * i, 2.0);
  return line;
}

/// A doublet on a square mesh of about `cells` cells, with exchange chains where `exchange` is 1.
std::unique_ptr<FVGeothermSite> squareSite(int cells, double exchange) {
  const int side = static_cast<int>(std::lround(std::sqrt(cells)));
  auto mesh = std::make_unique<FVMesh>(uniformLine(side), uniformLine(side), 10.0);
  Well production(0, 0.5 * side, side, -0.002);
  Well injection(1, 1.5 * side, side, 0.002, 5.0);
  return std::make_unique<FVGeothermSite>(std::move(mesh), gravel, -20.0,
                                          std::vector<Well*>{&production, &injection}, 10.0, 1000.0,
                                          4187.0, 1.3e-3, 5.0, 0.0, exchange, gravel, 10.0, true);
}

void setRates(benchmark::State& state, std::size_t links) {
  const auto count = static_cast<double>(links);
  state.counters["s/link"] = benchmark::Counter(
      count, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

template <class Model>
void evaluateModel(benchmark::State& state, Model& model) {
  std::vector<double> y;
  model.getState(y);
  for (std::size_t i = 0; i < y.size(); ++i)
    y[i] += 0.01 * static_cast<double>(i % 7);
  std::vector<double> dydt(y.size());
  for (auto _ : state) {
    std::fill(dydt.begin(), dydt.end(), 0.0);
    model.evaluate(0.0, y.data(), dydt.data());
    benchmark::DoNotOptimize(dydt.data());
    benchmark::ClobberMemory();
  }
  setRates(state, model.connections.size());
}

/// The same from flat arrays, as the integrators do it.
template <class Model>
void evaluateFlat(benchmark::State& state, Model& model) {
  std::vector<double> y;
  model.getState(y);
  for (std::size_t i = 0; i < y.size(); ++i)
    y[i] += 0.01 * static_cast<double>(i % 7);
  std::vector<double> dydt(y.size());
  model.prepareAdvance();
  for (auto _ : state) {
    model.evaluateWithInflow(0.0, y.data(), dydt.data(), model.inflowValue(y.data()));
    benchmark::DoNotOptimize(dydt.data());
    benchmark::ClobberMemory();
  }
  setRates(state, model.connections.size());
}

void heatEvaluateFlat(benchmark::State& state) {
  const auto site = squareSite(static_cast<int>(state.range(0)), 0.0);
  site->solveGroundwater(86400.0, 1e-6, 1e-6);
  site->updateHeatFlows();
  evaluateFlat(state, site->heat);
}

void heatEvaluateFlatWithChains(benchmark::State& state) {
  const auto site = squareSite(static_cast<int>(state.range(0)), 1.0);
  site->solveGroundwater(86400.0, 1e-6, 1e-6);
  site->updateHeatFlows();
  evaluateFlat(state, site->heat);
}

void groundwaterEvaluate(benchmark::State& state) {
  const auto site = squareSite(static_cast<int>(state.range(0)), 0.0);
  evaluateModel(state, site->groundwater);
}

void heatEvaluate(benchmark::State& state) {
  const auto site = squareSite(static_cast<int>(state.range(0)), 0.0);
  site->updateHeatFlows();
  evaluateModel(state, site->heat);
}

void heatEvaluateWithChains(benchmark::State& state) {
  const auto site = squareSite(static_cast<int>(state.range(0)), 1.0);
  site->updateHeatFlows();
  evaluateModel(state, site->heat);
}

void meshBuilding(benchmark::State& state) {
  const int side = static_cast<int>(std::lround(std::sqrt(static_cast<double>(state.range(0)))));
  const FVGridLine line = uniformLine(side);
  for (auto _ : state) {
    const FVMesh mesh(line, line, 10.0);
    benchmark::DoNotOptimize(mesh.elements.data());
  }
}

void wellDiscretisation(benchmark::State& state) {
  Well first(0, 0.0, 0.0);
  Well second(1, 80.0, 15.0);
  const std::vector<Well*> wells{&first, &second};
  double cells = 0.0;
  for (auto _ : state) {
    const auto mesh = makeWellDiscretisation(10.0, 1000.0, 100.0, wells, 0.5, 20.0, 1.01,
                                             static_cast<int>(state.range(0)), true);
    cells = static_cast<double>(mesh->elements.size());
  }
  state.counters["cells"] = cells;
}

void siteBuilding(benchmark::State& state) {
  for (auto _ : state)
    benchmark::DoNotOptimize(squareSite(static_cast<int>(state.range(0)), 1.0));
}

/// One month of a doublet, both models, from the first step of the integrators on.
void firstMonth(benchmark::State& state) {
  constexpr double month = 30.0 * 86400.0;
  long steps = 0;
  for (auto _ : state) {
    const auto site = squareSite(static_cast<int>(state.range(0)), 0.0);
    site->solveGroundwater(month, 1e-6, 1e-6);
    site->solveHeat(month, true, 1e-6, 1e-6);
    steps = site->groundwaterSteps() + site->heatSteps();
  }
  state.counters["steps"] = static_cast<double>(steps);
}

} // namespace

BENCHMARK(groundwaterEvaluate)->Arg(2500)->Arg(10000)->Arg(40000)->Unit(benchmark::kMicrosecond);
BENCHMARK(heatEvaluate)->Arg(2500)->Arg(10000)->Arg(40000)->Unit(benchmark::kMicrosecond);
BENCHMARK(heatEvaluateWithChains)->Arg(2500)->Arg(10000)->Arg(40000)->Unit(benchmark::kMicrosecond);
BENCHMARK(heatEvaluateFlat)->Arg(2500)->Arg(10000)->Arg(40000)->Unit(benchmark::kMicrosecond);
BENCHMARK(heatEvaluateFlatWithChains)
    ->Arg(2500)
    ->Arg(10000)
    ->Arg(40000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(meshBuilding)->Arg(2500)->Arg(10000)->Arg(40000)->Unit(benchmark::kMicrosecond);
BENCHMARK(wellDiscretisation)->Arg(2500)->Arg(10000)->Arg(40000)->Unit(benchmark::kMicrosecond);
BENCHMARK(siteBuilding)->Arg(2500)->Arg(10000)->Arg(40000)->Unit(benchmark::kMillisecond);
BENCHMARK(firstMonth)->Arg(2500)->Unit(benchmark::kMillisecond);
