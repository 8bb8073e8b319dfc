#include "page/SamplePage.h"
#include "page/painting/PagePainter.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

using namespace TVR::Page;

/// One frame of a window of 1600 by 1100 pixels that the map fills.
void mapFrame(benchmark::State& state) {
  const int columns = static_cast<int>(std::lround(std::sqrt(state.range(0))));
  const bool hasPicture = state.range(1) != 0;
  std::vector<std::unique_ptr<Item>> items;
  items.push_back(Sample::mapView(columns, columns, 1500, hasPicture));
  auto& map = static_cast<PlotItem&>(*items[0]);
  map.position = {0, 0};
  map.size = {290.9, 200};
  map.x.maximum = map.x.minimum + 1.5 * map.area().width();
  map.y.maximum = map.y.minimum + 1.5 * map.area().height();
  QImage image(1600, 1100, QImage::Format_ARGB32_Premultiplied);
  for (auto _ : state) {
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(5.5, 5.5);
    paintItems(painter, items, {297, 210});
  }
}

/// One frame of the whole A4 page in such a window.
void pageFrame(benchmark::State& state) {
  const int columns = static_cast<int>(std::lround(std::sqrt(state.range(0))));
  const auto items = Sample::page(columns, columns, 1000, true);
  QImage image(1556, 1100, QImage::Format_ARGB32_Premultiplied);
  for (auto _ : state) {
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(1100 / 210., 1100 / 210.);
    paintItems(painter, items, {297, 210});
  }
}

BENCHMARK(mapFrame)
    ->ArgNames({"cells", "picture"})
    ->ArgsProduct({{2500, 10000, 100000}, {0, 1}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(pageFrame)->ArgName("cells")->Arg(2500)->Arg(10000)->Arg(100000)->Unit(
    benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
