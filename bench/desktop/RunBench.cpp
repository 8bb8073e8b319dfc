#include "desktop/MainWindow.h"
#include "desktop/Plugin.h"
#include "desktop/PluginLoading.h"
#include "desktop/Workspace.h"
#include "page/window/PageWindow.h"

#include <QApplication>
#include <QMouseEvent>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <memory>

namespace {

using namespace TVR;

constexpr int frameTime = 16; // [ms]

/// What the calling thread has used of its processor [s].
double threadTime() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

/// The program with its window of 1600 by 1100 pixels and its plug-in, in this process.
class Program {
public:
  Program() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, directory_.path());
    QString fault;
    plugin_.reset(Desktop::PluginLoading::load(Desktop::PluginLoading::usualDirectory(), fault));
    if (!plugin_) {
      std::fprintf(stderr, "%s\n", qPrintable(fault));
      std::exit(1);
    }
    window_ = std::make_unique<Desktop::MainWindow>(*plugin_);
    window_->start();
    window_->resize(1600, 1100);
    window_->show();
    QApplication::processEvents();
  }

  /// The four wells of a school on about so many cells, with 144 output times.
  QString site(int cells) const {
    const QString file = directory_.filePath("site.tbat");
    QFile::remove(file);
    QFile::copy(TEVRANE_EXAMPLES_DIR "/school_four_seasons.tbat", file);
    QSettings(file, QSettings::IniFormat).setValue("main/max_number_of_fv_elements", cells);
    return file;
  }
  QString file(const QString& name) const { return directory_.filePath(name); }
  Desktop::Plugin plugin() const { return Desktop::Plugin(*plugin_); }
  Page::PageWindow* page() const {
    return window_->findChild<Desktop::Workspace*>()->currentPage();
  }
  void open(const QString& name) const { plugin().call("load", name); }
  void save(const QString& name) const { plugin().call("save", name); }
  /// Runs the open project to its end; `frame` is called 60 times a second meanwhile, if at all.
  void run(const std::function<void()>& frame) const {
    plugin().call("startSimulation");
    QTimer frames;
    frames.setTimerType(Qt::PreciseTimer);
    QObject::connect(
        &frames, &QTimer::timeout, frame ? frame : [] {});
    if (frame)
      frames.start(frameTime);
    while (plugin().isRunning())
      QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }

private:
  const QTemporaryDir directory_;
  std::unique_ptr<QObject> plugin_;
  std::unique_ptr<Desktop::MainWindow> window_;
};

Program* program = nullptr;

/// A step of a run, with what is shown of it and with its share of the end of the run.
void stepOfARun(benchmark::State& state) {
  constexpr int steps = 144;
  for ([[maybe_unused]] auto _ : state) {
    program->open(program->site(static_cast<int>(state.range(0))));
    const double start = threadTime();
    program->run({});
    state.SetIterationTime((threadTime() - start) / steps);
  }
}

/// A frame of the page whose map is dragged while a run goes on.
void frameBesideARun(benchmark::State& state) {
  for ([[maybe_unused]] auto _ : state) {
    program->open(program->site(static_cast<int>(state.range(0))));
    double sum = 0, longest = 0;
    int frames = 0;
    const auto mouse = [](QEvent::Type type, const QPointF& place, Qt::MouseButton button) {
      QMouseEvent event(type, place, button, Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(program->page(), &event);
    };
    const QPointF from(400, 300);
    program->run([&] {
      const double start = threadTime();
      if (frames == 0)
        mouse(QEvent::MouseButtonPress, from, Qt::LeftButton);
      const int there = frames % 200;
      mouse(QEvent::MouseMove, from + QPointF(there < 100 ? there : 200 - there, there % 7 + 5),
            Qt::NoButton);
      program->page()->repaint();
      const double time = threadTime() - start;
      sum += time;
      longest = std::max(longest, time);
      ++frames;
    });
    mouse(QEvent::MouseButtonRelease, from, Qt::LeftButton);
    state.SetIterationTime(frames > 0 ? sum / frames : 0);
    state.counters["frames"] = frames;
    state.counters["longest_ms"] = 1000 * longest;
  }
}

/// A project of about so many cells with its page, up to what the user sees of it.
void openWithPage(benchmark::State& state) {
  program->open(program->site(static_cast<int>(state.range(0))));
  program->run({});
  const QString saved = program->file("saved.tvr");
  program->save(saved);
  for ([[maybe_unused]] auto _ : state) {
    const double start = threadTime();
    program->open(saved);
    program->page()->repaint();
    state.SetIterationTime(threadTime() - start);
  }
}

#define DESKTOP_BENCHMARK(name)                                                                    \
  BENCHMARK(name)->Arg(3000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseManualTime()
DESKTOP_BENCHMARK(stepOfARun)->Iterations(1);
DESKTOP_BENCHMARK(frameBesideARun)->Iterations(1);
DESKTOP_BENCHMARK(openWithPage)->Iterations(5);

} // namespace

/// Prints times of processor, not of the clock.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  Program shown;
  program = &shown;
  benchmark::RunSpecifiedBenchmarks();
}
