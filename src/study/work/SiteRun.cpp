#include "study/work/SiteRun.h"

#include "simulation/SimulationRun.h"
#include "simulation/SolverMessages.h"
#include "simulator/solvers/SolverErrors.h"
#include "store/Manager.h"
#include "study/work/RunWatch.h"

#include <exception>

namespace TVR::Study {

namespace {

std::vector<StudyKey> keysOf(const ResultLayout& layout) {
  std::vector<StudyKey> keys;
  for (const QString& name : layout.keys)
    if (const auto key = studyKey(name))
      keys.push_back(*key);
  return keys;
}

} // namespace

SiteRun::SiteRun(const QString& base, const ResultLayout& layout)
    : layout_(layout), input_(base, keysOf(layout)) {}

Record SiteRun::compute(const QByteArray& name, const std::vector<double>& values) {
  Record record;
  const QStringList faults = input_.read(values);
  if (faults.isEmpty())
    record = simulate();
  else
    record.failure = faults.first();
  record.run = name;
  record.values = values;
  return record;
}

Record SiteRun::simulate() {
  Data::Manager& store = *Data::Manager::instance();
  SimulationRun run(store, [] { return QString(); });
  RunWatch watch(layout_, run);
  run.addObserver(&watch);
  Record failed;
  try {
    run.run({.isInteractive = false, .wantsTable = false});
    return watch.record();
  } catch (const CvodeError& error) {
    const Simulation* simulation = run.simulation();
    failed.failure = solverMessage(error.what(), simulation && simulation->groundwaterDone());
  } catch (const std::exception& error) {
    failed.failure = error.what();
  } catch (const char* error) {
    failed.failure = error;
  }
  failed.failure = failed.failure.simplified();
  return failed;
}

} // namespace TVR::Study
