#include "page/document/PageDocument.h"
#include "page/model/Canvas.h"

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

using namespace Sketra_lib::Property;
using TVR::Page::Canvas;

const QByteArray emptyMap =
    "<CanvasEx><Items><Item id=\"1\" Type=\"GraphicsPlotItem\"/></Items></CanvasEx>";

/// Writes a square mesh of `side` by `side` cells the way the result page does it.
void fillMesh(Canvas& canvas, int grid, int side) {
  canvas.beginUpdate();
  canvas.setProperty(grid, NodeCount, (side + 1) * (side + 1));
  canvas.setProperty(grid, CellShape, QSize(side * side, 4));
  canvas.setProperty(grid, CellCount, side * side);
  canvas.setProperty(grid, ValueCount, side * side);
  for (int row = 0; row <= side; ++row)
    for (int column = 0; column <= side; ++column)
      canvas.setProperty(grid, Node,
                         QVariantList{row * (side + 1) + column, 1.0 * column, 1.0 * row});
  for (int row = 0; row < side; ++row)
    for (int column = 0; column < side; ++column) {
      const int cell = row * side + column;
      const int node = row * (side + 1) + column;
      canvas.setProperty(grid, Cell,
                         QVariantList{cell, node, node + 1, node + side + 2, node + side + 1});
      for (const int set : {StartValues, Drawdowns, Temperature}) {
        canvas.setProperty(grid, SelectedSet, set);
        canvas.setProperty(grid, Value, QVariantList{cell, column + 0.5, row + 0.5, 0.0});
      }
    }
  canvas.endUpdate();
  canvas.redraw(grid);
}

/// A cone around the middle, as a step of a run hands it over.
QVariantList cone(int side) {
  QVariantList values;
  values.reserve(side * side);
  for (int row = 0; row < side; ++row)
    for (int column = 0; column < side; ++column)
      values.append(12 * std::exp(-std::hypot(row - 0.5 * side, column - 0.5 * side) / side * 4));
  return values;
}

void meshFilling(benchmark::State& state) {
  const int side = static_cast<int>(std::lround(std::sqrt(state.range(0))));
  for (auto _ : state) {
    Canvas canvas;
    readPage(canvas, emptyMap);
    fillMesh(canvas, canvas.addGridData(1), side);
  }
  state.SetComplexityN(state.range(0));
}

/// A page with a filled mesh, and a step of a run for it.
struct Filled {
  explicit Filled(int64_t cells) : side(static_cast<int>(std::lround(std::sqrt(cells)))) {
    readPage(canvas, emptyMap);
    grid = canvas.addGridData(1);
    fillMesh(canvas, grid, side);
    canvas.setProperty(grid, SelectedSet, Temperature);
  }
  int side;
  Canvas canvas;
  int grid = 0;
};

void valuesOfAStep(benchmark::State& state) {
  Filled page(state.range(0));
  const QVariantList values = cone(page.side);
  for (auto _ : state)
    page.canvas.setProperty(page.grid, Values, values);
  state.SetComplexityN(state.range(0));
}

void valuesOfAStepWithThreeLines(benchmark::State& state) {
  Filled page(state.range(0));
  const QVariantList values = cone(page.side);
  page.canvas.setProperty(page.grid, Levels, QVariantList{1.0, 2.0, 3.0});
  for (auto _ : state)
    page.canvas.setProperty(page.grid, Values, values);
  state.SetComplexityN(state.range(0));
}

void saving(benchmark::State& state) {
  Filled page(state.range(0));
  page.canvas.setProperty(page.grid, Values, cone(page.side));
  for (auto _ : state)
    benchmark::DoNotOptimize(writePage(page.canvas));
  state.SetComplexityN(state.range(0));
}

void loading(benchmark::State& state) {
  Filled page(state.range(0));
  page.canvas.setProperty(page.grid, Values, cone(page.side));
  const QByteArray document = writePage(page.canvas);
  for (auto _ : state) {
    Canvas canvas;
    benchmark::DoNotOptimize(readPage(canvas, document));
  }
  state.SetComplexityN(state.range(0));
  state.counters["bytes"] = document.size();
}

void sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(2500)->Arg(10000)->Arg(99856)->Unit(benchmark::kMillisecond)->Complexity();
}

BENCHMARK(meshFilling)->Apply(sizes);
BENCHMARK(valuesOfAStep)->Apply(sizes);
BENCHMARK(valuesOfAStepWithThreeLines)->Apply(sizes);
BENCHMARK(saving)->Apply(sizes);
BENCHMARK(loading)->Apply(sizes);

} // namespace
