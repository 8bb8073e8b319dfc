#include "page/window/BusyPage.h"
#include "page/window/PageWindow.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWheelEvent>

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

using namespace TVR::Page;

constexpr int map = 3;

/// A window of 1600 by 1100 pixels with a page whose map has `cells` cells.
struct BusyWindow {
  explicit BusyWindow(int64_t cells) {
    const int rows = static_cast<int>(std::lround(std::sqrt(static_cast<double>(cells))));
    window.resize(1600, 1100);
    showBusyPage(window, rows, rows);
    window.show();
    QApplication::processEvents();
  }
  void mouse(QEvent::Type type, const QPointF& pixel, Qt::MouseButton button) {
    const Qt::MouseButtons held = type == QEvent::MouseMove ? Qt::LeftButton : button;
    QMouseEvent event(type, pixel, button, held, Qt::NoModifier);
    QApplication::sendEvent(&window, &event);
  }
  /// Drags from a place to and fro, and draws a frame at each step.
  void drag(benchmark::State& state, const QPointF& from) {
    mouse(QEvent::MouseButtonPress, from, Qt::LeftButton);
    int step = 0;
    for ([[maybe_unused]] auto _ : state) {
      const int there = step++ % 200;
      mouse(QEvent::MouseMove, from + QPointF(there < 100 ? there : 200 - there, there % 7 + 5),
            Qt::NoButton);
      window.repaint();
    }
    mouse(QEvent::MouseButtonRelease, from, Qt::LeftButton);
  }

  PageWindow window;
};

void drawFromScratch(benchmark::State& state) {
  BusyWindow busy(state.range(0));
  for ([[maybe_unused]] auto _ : state) {
    busy.window.refresh();
    busy.window.repaint();
  }
}

void panMap(benchmark::State& state) {
  BusyWindow busy(state.range(0));
  busy.drag(state, {400, 300});
}

void zoomMap(benchmark::State& state) {
  BusyWindow busy(state.range(0));
  int step = 0;
  for ([[maybe_unused]] auto _ : state) {
    const int turn = step++ % 40 < 20 ? 24 : -24;
    QWheelEvent event({400, 300}, {400, 300}, {}, {0, turn}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&busy.window, &event);
    busy.window.repaint();
  }
}

void dragWell(benchmark::State& state) {
  BusyWindow busy(state.range(0));
  const PlotItem& plot = *busy.window.canvas().item<PlotItem>(map);
  for (const auto& child : plot.children) {
    if (const auto* curve = dynamic_cast<const CurveItem*>(child.get())) {
      busy.window.setCurrentItem(curve->id);
      busy.drag(state, busy.window.view().toWindow(plot.toPage(curve->points[0])));
    }
  }
}

#define WINDOW_BENCHMARK(name)                                                                     \
  BENCHMARK(name)->Arg(2500)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)
WINDOW_BENCHMARK(drawFromScratch);
WINDOW_BENCHMARK(panMap);
WINDOW_BENCHMARK(zoomMap);
WINDOW_BENCHMARK(dragWell);

} // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
