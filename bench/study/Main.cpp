#include "simulation/SimulationRun.h"
#include "store/Manager.h"
#include "study/work/RunInput.h"
#include "study/work/SiteRun.h"
#include "study/work/StudySetup.h"
#include "terminal/Console.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <sys/resource.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <memory>
#include <utility>
#include <vector>

// What a study costs over the simulations themselves: time of a run in a worker, memory of a worker
// over many runs, memory of a process that plans many runs, and the throughput of a whole study.

using namespace TVR;
using namespace TVR::Study;

namespace {

double cpuSeconds() {
  return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

/// CPU time of all children that have ended [s].
double childSeconds() {
  rusage usage{};
  getrusage(RUSAGE_CHILDREN, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// A line of /proc/self/status [MB].
double memory(const QByteArray& name) {
  QFile status("/proc/self/status");
  if (!status.open(QIODevice::ReadOnly))
    return 0;
  for (const QByteArray& line : status.readAll().split('\n'))
    if (line.startsWith(name + ':'))
      return line.simplified().split(' ')[1].toDouble() / 1024;
  return 0;
}

/// A study of one of the examples.
class Bench {
public:
  explicit Bench(QString example) : example_(std::move(example)) {}

  StudySetup setUp(const QByteArray& sampling, const QByteArray& site = {}) const {
    QFile base(QStringLiteral(TEVRANE_EXAMPLES_DIR "/%1.tbat").arg(example_));
    base.open(QIODevice::ReadOnly);
    write("base.tbat", base.readAll() + site);
    write("a.tstudy", "[study]\nbase=base.tbat\n" + sampling +
                          "[vary]\nkf=log-uniform(0.001, 0.005)\n"
                          "groundwater_gradient=uniform(0.15, 0.35)\n"
                          "groundwater_flow_direction=uniform(45, 85)\n"
                          "aquifer_porosity=uniform(0.1, 0.3)\n");
    Findings findings;
    StudySetup setup = setUpStudy(path("a.tstudy"), findings);
    for (const QString& error : findings.errors)
      std::fprintf(stderr, "%s\n", qPrintable(error));
    return setup;
  }
  QString path(const char* name) const { return directory_.filePath(name); }

private:
  void write(const char* name, const QByteArray& content) const {
    QFile file(path(name));
    file.open(QIODevice::WriteOnly);
    file.write(content);
  }

  const QString example_;
  const QTemporaryDir directory_;
};

/// CPU time of the run that the store holds, with nobody who looks at it [s].
double secondsAlone() {
  const double before = cpuSeconds();
  SimulationRun run(*Data::Manager::instance(), [] { return QString(); });
  run.run({.isInteractive = false, .wantsTable = false});
  return cpuSeconds() - before;
}

/// Each run lies between two that are alone, so that what is warm by then helps neither.
void benchOverhead(const Bench& bench) {
  constexpr int runs = 60;
  const StudySetup setup = bench.setUp("runs=60\n");
  SiteRun site(setup.file.base, setup.layout);
  double withStudy = 0;
  double alone = 0;
  for (const PlannedRun& planned : setup.plan.runs) {
    site.compute(planned.name, planned.values);
    alone += secondsAlone() / 2;
    const double before = cpuSeconds();
    const QByteArray line = toLine(site.compute(planned.name, planned.values), true);
    withStudy += cpuSeconds() - before;
    alone += secondsAlone() / 2;
  }
  std::printf("a run alone %.2f ms, in a worker %.2f ms, overhead %.2f ms\n", 1000 * alone / runs,
              1000 * withStudy / runs, 1000 * (withStudy - alone) / runs);
}

void benchWorkerMemory(const Bench& bench, int runs) {
  const StudySetup setup = bench.setUp("runs=" + QByteArray::number(runs) + "\n",
                                       "\n[main]\nmax_number_of_fv_elements=100\n"
                                       "simulation_time=2\n");
  SiteRun site(setup.file.base, setup.layout);
  for (int i = 0; i < runs; ++i) {
    const PlannedRun& planned = setup.plan.runs[static_cast<std::size_t>(i)];
    site.compute(planned.name, planned.values);
    if (i + 1 == 100 || (i + 1) % (runs / 5) == 0)
      std::printf("worker after %d runs: %.1f MB\n", i + 1, memory("VmRSS"));
  }
}

void benchPlan(const Bench& bench) {
  QElapsedTimer clock;
  clock.start();
  const StudySetup setup = bench.setUp("runs=100000\n");
  std::printf("%zu planned runs: %.0f MB at most, %.1f s\n", setup.plan.runs.size(),
              memory("VmHWM"), static_cast<double>(clock.elapsed()) / 1000);
}

/// Up to 200 runs of a study as they are without one, in this process.
void benchAlone(const Bench& bench, int runs) {
  const StudySetup setup = bench.setUp("runs=" + QByteArray::number(runs) + "\n");
  RunInput input(setup.file.base, setup.plan.keys);
  const std::size_t count = std::min<std::size_t>(setup.plan.runs.size(), 200);
  double seconds = 0;
  for (std::size_t i = 0; i < count; ++i) {
    input.read(setup.plan.runs[i * setup.plan.runs.size() / count].values);
    seconds += secondsAlone();
  }
  std::printf("%.6f\n", seconds / static_cast<double>(count));
}

/// CPU time of a run of a study alone, while every core has one, as in the study [s].
double secondsAloneOnAllCores(const QString& example, int runs, int cores) {
  std::vector<std::unique_ptr<QProcess>> processes;
  for (int core = 0; core < cores; ++core) {
    processes.push_back(std::make_unique<QProcess>());
    processes.back()->start(QCoreApplication::applicationFilePath(),
                            {"alone", QString::number(runs), example});
  }
  double seconds = 0;
  for (const auto& process : processes) {
    process->waitForFinished(-1);
    seconds += process->readAllStandardOutput().trimmed().toDouble();
  }
  return seconds / cores;
}

/// Runs alone before and after the study, so that a machine that is slower by then favours neither.
void benchStudy(const Bench& bench, const QString& example, int runs) {
  const int cores = QThread::idealThreadCount();
  bench.setUp("runs=" + QByteArray::number(runs) + "\n");
  double alone = secondsAloneOnAllCores(example, runs, cores) / 2;
  const double before = childSeconds();
  QElapsedTimer clock;
  clock.start();
  QProcess::execute(
      QStringLiteral(TEVRANE_STUDY_PROGRAM),
      {"run", bench.path("a.tstudy"), "--quiet", "--workers", QString::number(cores)});
  const double seconds = static_cast<double>(clock.elapsed()) / 1000;
  const double cpu = childSeconds() - before;
  alone += secondsAloneOnAllCores(example, runs, cores) / 2;
  std::printf("%s, %d runs with %d workers: %.1f s, %.1f ms CPU a run; alone %.1f ms; "
              "throughput %.1f %% of cores times runs per CPU second\n",
              qPrintable(example), runs, cores, seconds, 1000 * cpu / runs, 1000 * alone,
              100 * alone * runs / (cores * seconds));
}

} // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  routeMessages(Talk::Quiet);
  const QString part = application.arguments().value(1);
  const int runs = application.arguments().value(2).toInt();
  const QString example =
      application.arguments().value(3, part == "study" ? "defaults" : "doublet");
  const Bench bench(example);
  if (part == "plan")
    benchPlan(bench);
  else if (part == "overhead")
    benchOverhead(bench);
  else if (part == "memory")
    benchWorkerMemory(bench, runs > 0 ? runs : 10000);
  else if (part == "alone")
    benchAlone(bench, runs > 0 ? runs : 100);
  else if (part == "study")
    benchStudy(bench, example, runs > 0 ? runs : 1000);
  else
    std::printf("expected plan, overhead, or memory, alone or study [RUNS [EXAMPLE]]\n");
}
