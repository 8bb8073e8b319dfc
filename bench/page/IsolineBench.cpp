#include "contour/CentreMesh.h"
#include "contour/GridMesh.h"
#include "contour/IsolineTracing.h"

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

using namespace TVR::Contour;

/// A square mesh of about `cells` cells that grow from its middle outwards, numbered row by row.
GridMesh gradedMesh(int cells) {
  const int columns = static_cast<int>(std::lround(std::sqrt(cells)));
  std::vector<double> axis{0};
  const double growth = std::pow(100.0, 2.0 / columns);
  for (int i = 0; i < columns; ++i)
    axis.push_back(axis.back() + 0.5 * std::pow(growth, std::abs(i - 0.5 * (columns - 1))));
  GridMesh mesh;
  for (double y : axis)
    for (double x : axis)
      mesh.nodes.push_back({x, y});
  for (int j = 0; j < columns; ++j)
    for (int i = 0; i < columns; ++i) {
      const int node = j * (columns + 1) + i;
      mesh.cells.push_back({node, node + 1, node + columns + 2, node + columns + 1});
      mesh.centres.push_back((mesh.nodes[node] + mesh.nodes[node + columns + 2]) / 2);
    }
  return mesh;
}

/// The temperature around two wells: a warm and a cold plume.
std::vector<double> plumes(const GridMesh& mesh) {
  const double middle = mesh.nodes.back().x() / 2;
  const double width = middle / 8;
  std::vector<double> values;
  for (const QPointF& centre : mesh.centres) {
    const double x = (centre.x() - middle) / width;
    const double y = (centre.y() - middle) / width;
    values.push_back(5 * std::exp(-std::hypot(x - 1, 2 * y)) -
                     5 * std::exp(-std::hypot(x + 1, 2 * y)));
  }
  return values;
}

const std::vector<double> tenLevels{-4, -3, -2, -1, -0.5, 0.5, 1, 2, 3, 4};

/// Ten levels on a mesh that is new.
void traceTenLevels(benchmark::State& state) {
  const GridMesh mesh = gradedMesh(static_cast<int>(state.range(0)));
  const std::vector<double> values = plumes(mesh);
  int points = 0;
  for (auto _ : state) {
    points = 0;
    for (const Isoline& line : traceIsolines(mesh, values, tenLevels))
      points += line.points.size();
  }
  state.counters["points"] = points;
  state.SetComplexityN(state.range(0));
}
BENCHMARK(traceTenLevels)
    ->Unit(benchmark::kMillisecond)
    ->Arg(2500)
    ->Arg(10000)
    ->Arg(100000)
    ->Complexity();

/// The same where the mesh is known and only the values are new.
void traceTenLevelsAgain(benchmark::State& state) {
  const GridMesh mesh = gradedMesh(static_cast<int>(state.range(0)));
  const std::vector<double> values = plumes(mesh);
  const CentreMesh prepared(mesh);
  for (auto _ : state)
    benchmark::DoNotOptimize(traceIsolines(prepared, values, tenLevels));
  state.SetComplexityN(state.range(0));
}
BENCHMARK(traceTenLevelsAgain)
    ->Unit(benchmark::kMillisecond)
    ->Arg(2500)
    ->Arg(10000)
    ->Arg(100000)
    ->Complexity();

} // namespace
