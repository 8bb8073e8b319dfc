#include "design/ParameterId.h"
#include "page/window/GraphicsLibrary.h"
#include "page/window/PageWindow.h"
#include "plugin/LivePlume.h"
#include "plugin/TVRPlugin.h"
#include "plugin/TestHost.h"
#include "store/Manager.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QSettings>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <memory>

namespace {

using namespace TVR;
using namespace TVR::Parameter;

/// What the calling thread has used of its processor [ms].
double threadTime() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return 1e3 * static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_nsec);
}

/// The plug-in with a page in a window of 1600 by 1100 pixels, which shows the results of a site.
class Shown {
public:
  Shown(const char* example, int cells) {
    const QString file = directory_.filePath("site.tbat");
    QFile::copy(QStringLiteral(TEVRANE_EXAMPLES_DIR "/%1").arg(example), file);
    QSettings site(file, QSettings::IniFormat);
    site.setValue("main/max_number_of_fv_elements", cells);
    site.setValue("main/cell_increase_factor", cells > 2500 ? 3 : 30);
    site.sync();
    QMap<QString, int> noItems;
    store().read(file, noItems);
    if (cells > 2500) // which no batch file says
      store().setValue(MaxElementLength, 45);
    host_.library = &pages_;
    plugin_->setAppInterface(&host_);
    plugin_->startSimulation();
    while (plugin_->simulationRun().simulation())
      QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    cells_ = plugin_->simulationRun().mesh()->nx * plugin_->simulationRun().mesh()->ny;
    window().resize(1600, 1100);
    window().show();
    QApplication::processEvents();
    QObject::connect(&plugin_->livePlume(), &LivePlume::shown, &window(), [this](bool isLast) {
      isShown_ = true;
      isSettled_ = isLast;
    });
  }
  ~Shown() {
    plugin_->livePlume().end();
    delete &window();
    plugin_.reset();
  }
  Shown(const Shown&) = delete;
  Shown& operator=(const Shown&) = delete;

  static Data::Manager& store() { return *Data::Manager::instance(); }
  int cells() const { return cells_; }
  Page::PageWindow& window() { return dynamic_cast<Page::PageWindow&>(*host_.active); }

  /// Edits the conductivity, and waits until its isotherms are on the screen.
  void edit(double factor) {
    const double conductivity = store().value(HydraulicConductivity).toDouble();
    isShown_ = isSettled_ = false;
    first = refined = longest = 0;
    clock_.start();
    handle([&] { plugin_->livePlume().preview({{HydraulicConductivity, factor * conductivity}}); });
    while (!isSettled_) {
      handle([] { QApplication::processEvents(QEventLoop::WaitForMoreEvents); });
      if (first == 0 && isShown_)
        first = shownAfter();
    }
    refined = shownAfter();
  }

  double first = 0;   ///< from the edit to the first new isotherms [ms]
  double refined = 0; ///< to those of the mesh of the run [ms]
  double longest = 0; ///< what the main thread computed at a stretch [ms]

private:
  double shownAfter() {
    handle([this] { window().repaint(); });
    return static_cast<double>(clock_.nsecsElapsed()) / 1e6;
  }
  template <typename Work>
  void handle(const Work& work) {
    const double start = threadTime();
    work();
    longest = std::max(longest, threadTime() - start);
  }

  const QTemporaryDir directory_;
  Host host_;
  Page::GraphicsLibrary pages_{host_};
  std::unique_ptr<TVRPlugin> plugin_ = std::make_unique<TVRPlugin>();
  QElapsedTimer clock_;
  int cells_ = 0;
  bool isShown_ = false;
  bool isSettled_ = false;
};

/// From an edit to the isotherms on the screen, the rest before the run included.
void liveEdit(benchmark::State& state, const char* example) {
  Shown shown(example, static_cast<int>(state.range(0)));
  double first = 0, refined = 0, longest = 0;
  int edits = 0;
  for ([[maybe_unused]] auto _ : state) {
    shown.edit(1 + 0.1 * (++edits % 5));
    state.SetIterationTime(shown.first / 1e3);
    first = std::max(first, shown.first);
    refined = std::max(refined, shown.refined);
    longest = std::max(longest, shown.longest);
  }
  state.counters["cells"] = shown.cells();
  state.counters["first_ms"] = first;
  state.counters["refined_ms"] = refined;
  state.counters["longest_ms"] = longest;
}

#define LIVE_BENCHMARK(name, example, cells)                                                       \
  BENCHMARK_CAPTURE(liveEdit, name, example)                                                       \
      ->Arg(cells)                                                                                 \
      ->Iterations(10)                                                                             \
      ->Unit(benchmark::kMillisecond)                                                              \
      ->UseManualTime()
LIVE_BENCHMARK(doublet, "doublet.tbat", 2500);
LIVE_BENCHMARK(doublet, "doublet.tbat", 10000);
LIVE_BENCHMARK(seasons, "school_four_seasons.tbat", 2500);
LIVE_BENCHMARK(seasons, "school_four_seasons.tbat", 10000);

} // namespace

/// Prints times of the clock, the longest of all edits, but for `longest_ms`, which is time of the
/// processor.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
