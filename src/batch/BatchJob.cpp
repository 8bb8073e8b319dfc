#include "batch/BatchJob.h"

#include "batch/Console.h"
#include "batch/ExitCodes.h"
#include "batch/FileInspection.h"
#include "batch/PageRun.h"
#include "batch/ProgressDisplay.h"
#include "data/BatchFile.h"
#include "data/Manager.h"
#include "data/TimeUnits.h"
#include "plugin/TVRPlugin.h"
#include "simulation/OutputTimes.h"
#include "simulation/Simulation.h"
#include "simulation/SimulationRun.h"
#include "simulation/SiteCheck.h"
#include "simulation/SiteSetup.h"
#include "simulation/SolverMessages.h"
#include "simulator/SolverErrors.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <ctime>
#include <stdexcept>

namespace TVR::Batch {

namespace {

using Data::Manager;

/// Where a problem stands in a file; empty if it has no key in a batch file.
QString placeInFile(const QString& fileName, const SiteProblem& problem) {
  if (isProjectFile(fileName))
    return (problem.parameter ? Manager::instance()->key(*problem.parameter) : problem.table) +
           ": ";
  if (!problem.parameter)
    return QStringLiteral("[installation] %1: ").arg(problem.table);
  QString place;
  for (const Data::BatchFile::Key& key : Data::BatchFile::keys())
    if (key.id == *problem.parameter && *key.name != '\0') // the last key of a parameter wins
      place = QStringLiteral("[%1] %2: ").arg(key.section, key.name);
  return place;
}

/// A text made for a message box, as one line for a terminal.
QString asOneLine(QString text) {
  text.replace(QRegularExpression("<[^>]*>"), " ");
  return text.simplified();
}

/// The table of a file that names none.
QString defaultTable(const QString& fileName) {
  return isProjectFile(fileName) ? fileName.chopped(4) + ".out"
                                 : Data::BatchFile::defaultOutputName(fileName);
}

/// Takes what a run says of itself.
class RunRecord : public RunObserver {
public:
  RunRecord(const Options& options, const QString& fileName)
      : output_(options.output), fileName_(fileName) {}

  /// The store has been read: the name of the table is settled now.
  void initialising(bool) override {
    Manager& store = *Manager::instance();
    const QString inFile = store.value(Parameter::BatchOutputFile).toString();
    if (!output_.isEmpty())
      store.setValue(Parameter::BatchOutputFile, output_);
    else if (inFile.isEmpty())
      store.setValue(Parameter::BatchOutputFile, defaultTable(fileName_));
  }

  void stepReached(int, int, double time) override { reached = time; }
  void finished(const RunSummary& result) override { summary = result; }

  double reached = 0; ///< last output time that was reached [s]
  RunSummary summary;

private:
  const QString output_;
  const QString fileName_;
};

class BatchJob {
public:
  BatchJob(const QString& fileName, const Options& options)
      : fileName_(fileName), options_(options), record_(options, fileName) {}

  int run() {
    if (!passesInspection() || !passesSiteCheck())
      return InputError;
    if (options_.checkOnly) {
      if (options_.talk != Talk::Quiet)
        printLine(fileName_ + ": ok");
      return Success;
    }
    if (!canWriteFiles())
      return RunFailed;
    if (!simulate())
      return RunFailed;
    if (!record_.summary.tableWritten)
      return fail(
          QStringLiteral("the table %1 could not be written").arg(record_.summary.tableFile));
    if (options_.talk != Talk::Quiet)
      printSummary();
    return Success;
  }

private:
  int fail(const QString& text) const {
    printMessage(fileName_, text);
    return RunFailed;
  }

  bool passesInspection() const {
    const FileInspection inspection = inspectFile(fileName_);
    for (const QString& error : inspection.errors)
      printMessage(fileName_, error);
    if (options_.talk != Talk::Quiet)
      for (const QString& warning : inspection.warnings)
        printMessage(fileName_, "warning: " + warning);
    return inspection.errors.isEmpty();
  }

  bool passesSiteCheck() {
    Manager& store = *Manager::instance();
    if (!Manager::openDatabase()) {
      printMessage({}, "the reference database is missing: " +
                           Manager::databaseFile(QCoreApplication::applicationDirPath()));
      return false;
    }
    QMap<QString, int> fieldIds;
    if (!store.read(fileName_, fieldIds)) {
      printMessage(fileName_, "is no project file that can be read: expected well-formed XML");
      return false;
    }
    record_.initialising(true);
    tableFile_ = store.value(Parameter::BatchOutputFile).toString();
    const std::vector<SiteProblem> problems = checkSite(store);
    for (const SiteProblem& problem : problems)
      printMessage(fileName_, placeInFile(fileName_, problem) + problem.text);
    if (problems.empty() && options_.talk != Talk::Quiet)
      warnOfAnotherEnd(store);
    return problems.empty();
  }

  void warnOfAnotherEnd(Manager& store) const {
    // A list of times that fills the memory is not made for a warning.
    constexpr double mostYears = 10000;
    const OutputTimeInput input = outputTimeInput(store, usualCycleLength);
    if (inYears(input.simulationTime) > mostYears)
      return;
    const OutputTimes result = outputTimes(input);
    if (!result.times.empty() && areApart(result.times.back(), input.simulationTime))
      printMessage(fileName_, QStringLiteral("warning: the run ends after %1 years instead of %2, "
                                             "at its last output time; only whole years, filled by "
                                             "their demand periods, end as asked for")
                                  .arg(inYears(result.times.back()), 0, 'f', 2)
                                  .arg(inYears(input.simulationTime), 0, 'f', 2));
  }

  /// A run of minutes should not end at a name that could have been seen to be wrong before.
  bool canWriteFiles() const {
    if (!canWrite("table", tableFile_))
      return false;
    const QStringList pageFiles = options_.pageFiles.names();
    return std::all_of(pageFiles.begin(), pageFiles.end(),
                       [this](const QString& file) { return canWrite("file", file); });
  }

  bool canWrite(const QString& what, const QString& name) const {
    const QFileInfo file(name);
    const QFileInfo directory(file.absolutePath());
    QString reason;
    if (file.isDir())
      reason = "it is a directory";
    else if (!directory.isDir() || !directory.isWritable())
      reason = "no directory that can be written to";
    else if (file.exists() && !file.isWritable())
      reason = "it is write-protected";
    if (!reason.isEmpty())
      fail(QStringLiteral("the %1 %2 can't be written: %3").arg(what, name, reason));
    return reason.isEmpty();
  }

  bool simulate() {
    TVRPlugin plugin;
    SimulationRun& run = plugin.simulationRun();
    ProgressDisplay display(fileName_, isTerminal());
    run.addObserver(&record_);
    run.setLinearSolver(options_.solver);
    if (options_.talk != Talk::Quiet)
      run.addObserver(&display);

    QStringList errors;
    const std::clock_t before = std::clock();
    if (options_.pageFiles.names().isEmpty())
      errors = simulateOnly(plugin);
    else
      errors = runToPage(plugin, fileName_, tableFile_, options_.pageFiles);
    cpuSeconds_ = double(std::clock() - before) / CLOCKS_PER_SEC;
    for (const QString& error : errors)
      fail(error);
    return errors.isEmpty();
  }

  QStringList simulateOnly(TVRPlugin& plugin) const {
    QString error;
    try {
      static_cast<TVRInterface&>(plugin).computeInput(fileName_, true);
    } catch (const CvodeError& solverError) {
      error =
          solverMessage(solverError.what(), plugin.simulationRun().simulation()->groundwaterDone());
    } catch (const std::exception& otherError) {
      error = otherError.what();
    } catch (const char* meshError) {
      error = meshError;
    }
    return error.isNull() ? QStringList() : QStringList{failure(error)};
  }

  QString failure(const QString& error) const {
    return QStringLiteral("the simulation failed after %1 years: %2")
        .arg(inYears(record_.reached), 0, 'f', 2)
        .arg(asOneLine(error));
  }

  void printSummary() const {
    const RunSummary& summary = record_.summary;
    printLine(QStringLiteral("%1: %2 cells, %3 output times, %4 groundwater steps, %5 heat steps, "
                             "%6 s CPU")
                  .arg(fileName_)
                  .arg(summary.cells)
                  .arg(summary.outputTimes)
                  .arg(summary.groundwaterSteps)
                  .arg(summary.heatSteps)
                  .arg(cpuSeconds_, 0, 'f', 1));
    for (const WellRange& well : summary.wells)
      printLine(QStringLiteral("  %1: %2 to %3 °C")
                    .arg(well.name)
                    .arg(well.lowest, 0, 'f', 2)
                    .arg(well.highest, 0, 'f', 2));
    printLine("  table: " + summary.tableFile);
    for (const QString& file : options_.pageFiles.names())
      printLine("  file: " + file);
  }

  const QString fileName_;
  const Options& options_;
  RunRecord record_;
  QString tableFile_;
  double cpuSeconds_ = 0;
};

} // namespace

int runBatchFile(const QString& fileName, const Options& options) {
  return BatchJob(fileName, options).run();
}

} // namespace TVR::Batch
