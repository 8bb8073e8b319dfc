#include "Parts.h"

#include "Doublet.h"
#include "simulator/solvers/ColouredQuotient.h"
#include "simulator/solvers/StructuredFactor.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr double exchangeOnBothSides = 2.0;

/// A site after its first month, whose heat model knows its flows.
std::unique_ptr<FVGeothermSite> siteOfMonth(const benchmark::State& state, double exchange) {
  const Doublet doublet{.cells = static_cast<int>(state.range(0)), .exchange = exchange};
  auto site = doublet.site();
  site->solveGroundwater(year / 12.0, 1e-6, 1e-6);
  site->solveHeat(year / 12.0, true, 1e-6, 1e-6);
  return site;
}

void count(benchmark::State& state, std::size_t cells, std::size_t links = 0) {
  state.counters["cells"] = static_cast<double>(cells);
  if (links > 0)
    state.counters["links"] = static_cast<double>(links);
}

void meshBuilding(benchmark::State& state) {
  const auto mesh = Doublet{.cells = static_cast<int>(state.range(0))}.mesh();
  for (auto _ : state) {
    const FVMesh copy(mesh->xLine, mesh->yLine, mesh->H);
    benchmark::DoNotOptimize(copy.elements.data());
  }
  count(state, mesh->elements.size());
}

void siteBuilding(benchmark::State& state) {
  const Doublet doublet{.cells = static_cast<int>(state.range(0)), .exchange = exchangeOnBothSides};
  std::size_t cells = 0;
  for (auto _ : state)
    cells = doublet.site()->mesh().elements.size();
  count(state, cells);
}

/// As the integrators evaluate: from flat arrays.
template <class Model>
void evaluateFlat(benchmark::State& state, Model& model, std::size_t cells) {
  std::vector<double> y;
  model.getState(y);
  std::vector<double> dydt(y.size());
  model.prepareAdvance();
  for (auto _ : state) {
    model.evaluateWithInflow(0.0, y.data(), dydt.data(), model.inflowValue(y.data()));
    benchmark::DoNotOptimize(dydt.data());
    benchmark::ClobberMemory();
  }
  count(state, cells, model.connections.size());
}

void groundwaterEvaluation(benchmark::State& state) {
  const auto site = siteOfMonth(state, 0.0);
  evaluateFlat(state, site->groundwater, site->mesh().elements.size());
}

void heatEvaluation(benchmark::State& state) {
  const auto site = siteOfMonth(state, 0.0);
  evaluateFlat(state, site->heat, site->mesh().elements.size());
}

void heatEvaluationWithExchange(benchmark::State& state) {
  const auto site = siteOfMonth(state, exchangeOnBothSides);
  evaluateFlat(state, site->heat, site->mesh().elements.size());
}

void heatEvaluationOverElements(benchmark::State& state) {
  const auto site = siteOfMonth(state, exchangeOnBothSides);
  std::vector<double> y;
  site->heat.getState(y);
  std::vector<double> dydt(y.size());
  for (auto _ : state) {
    site->heat.evaluate(0.0, y.data(), dydt.data());
    benchmark::DoNotOptimize(dydt.data());
    benchmark::ClobberMemory();
  }
  count(state, site->mesh().elements.size(), site->heat.connections.size());
}

/// A model of a site after its first month, and its Jacobian.
struct Jacobian {
  Jacobian(FVSystem& model, std::size_t cells)
      : system(model), meshCells(cells), structure(model.elementCount(), model.links()),
        quotient(structure), matrix(structure.count(), structure.pairs().size()),
        weights(structure.count(), 1e5) {
    system.getState(y);
    system.prepareAdvance();
    f.resize(y.size());
    state.resize(y.size());
    disturbed.resize(y.size());
    system.evaluateWithInflow(0.0, y.data(), f.data(), system.inflowValue(y.data()));
    compute();
  }
  void compute() {
    quotient.compute(system, {0.0, y.data(), f.data(), weights.data()}, state.data(),
                     disturbed.data(), matrix);
  }

  FVSystem& system;
  std::size_t meshCells;
  LinkStructure structure;
  ColouredQuotient quotient;
  StructuredMatrix matrix;
  std::vector<double> weights;
  std::vector<double> y;
  std::vector<double> f;
  std::vector<double> state;
  std::vector<double> disturbed;
};

enum class Work { Jacobian, Factorisation, Solution };

/// The Newton matrix is that of a step of thirty days.
void measureWork(benchmark::State& state, Jacobian jacobian, Work work) {
  count(state, jacobian.meshCells);
  StructuredFactor factor(jacobian.structure);
  const auto factorise = [&] { factor.factorise(-30.0 * 86400.0, 1.0); };
  factor.setMatrix(jacobian.matrix);
  factorise();
  std::vector<double> x(jacobian.structure.count());
  for (auto _ : state) {
    switch (work) {
    case Work::Jacobian:
      jacobian.compute();
      factor.setMatrix(jacobian.matrix);
      break;
    case Work::Factorisation:
      factorise();
      break;
    case Work::Solution:
      for (std::size_t i = 0; i < x.size(); ++i)
        x[i] = 1.0 + static_cast<double>(i % 7);
      factor.solve(x.data());
      benchmark::DoNotOptimize(x.data());
    }
  }
}

template <Work work>
void ofHeat(benchmark::State& state) {
  const auto site = siteOfMonth(state, exchangeOnBothSides);
  measureWork(state, Jacobian(site->heat, site->mesh().elements.size()), work);
}

template <Work work>
void ofGroundwater(benchmark::State& state) {
  const auto site = siteOfMonth(state, 0.0);
  measureWork(state, Jacobian(site->groundwater, site->mesh().elements.size()), work);
}

struct Part {
  const char* name;
  void (*measure)(benchmark::State&);
};

constexpr Part parts[]{
    {"mesh", meshBuilding},
    {"site with exchange, mesh sought", siteBuilding},
    {"groundwater: evaluation", groundwaterEvaluation},
    {"heat: evaluation", heatEvaluation},
    {"heat with exchange: evaluation", heatEvaluationWithExchange},
    {"heat with exchange: evaluation over the elements", heatEvaluationOverElements},
    {"groundwater: Jacobian", ofGroundwater<Work::Jacobian>},
    {"groundwater: factorisation", ofGroundwater<Work::Factorisation>},
    {"groundwater: solution", ofGroundwater<Work::Solution>},
    {"heat with exchange: Jacobian", ofHeat<Work::Jacobian>},
    {"heat with exchange: factorisation", ofHeat<Work::Factorisation>},
    {"heat with exchange: solution", ofHeat<Work::Solution>},
};

/// Keeps what is measured as rows instead of printing it.
class RowCollector final : public benchmark::BenchmarkReporter {
public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      Row row{.name = run.run_name.function_name,
              .cells = static_cast<std::size_t>(run.counters.at("cells").value),
              .seconds = run.cpu_accumulated_time / static_cast<double>(run.iterations)};
      if (const auto links = run.counters.find("links"); links != run.counters.end())
        row.perLink = row.seconds / links->second.value;
      rows.push_back(row);
    }
  }

  std::vector<Row> rows;
};

} // namespace

std::vector<Row> measureParts() {
  for (const Part& part : parts)
    benchmark::RegisterBenchmark(part.name, part.measure)->Arg(2500)->Arg(10000)->Arg(40000);
  RowCollector collector;
  benchmark::RunSpecifiedBenchmarks(&collector);
  return collector.rows;
}
