#include "batch/BatchJob.h"

#include "batch/ConvergenceText.h"
#include "batch/JobReport.h"
#include "batch/OutputNames.h"
#include "batch/PageRun.h"
#include "batch/ProgressDisplay.h"
#include "design/ParameterId.h"
#include "disk/FileNames.h"
#include "disk/PictureReading.h"
#include "inspection/FileInspection.h"
#include "inspection/SiteReport.h"
#include "plugin/TVRPlugin.h"
#include "project/DesignedWells.h"
#include "project/Units.h"
#include "quantities/MeshConvergence.h"
#include "results/PagePictures.h"
#include "simulation/OutputTimes.h"
#include "simulation/Simulation.h"
#include "simulation/SimulationRun.h"
#include "simulation/SiteInput.h"
#include "simulation/SiteWriteBack.h"
#include "simulation/SolverMessages.h"
#include "simulator/solvers/SolverErrors.h"
#include "store/Manager.h"
#include "store/ValueOrigins.h"
#include "terminal/Console.h"
#include "terminal/ExitCodes.h"
#include "terminal/StopSignals.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <stdexcept>

namespace TVR::Batch {

namespace {

using Data::Manager;

/// A text made for a message box, as one line for a terminal.
QString asOneLine(QString text) {
  text.replace(QRegularExpression("<[^>]*>"), " ");
  text.replace("&lt;", "<").replace("&gt;", ">").replace("&quot;", "\"").replace("&amp;", "&");
  return text.simplified();
}

/// What a file that names no wells is told of those that it gets.
QString textOf(const DesignedWells& wells) {
  const WellField& field = wells.field;
  QString text = QStringLiteral("names no wells: %1 of the design around (%2, %3)")
                     .arg(field.wells)
                     .arg(field.centre.x)
                     .arg(field.centre.y);
  if (field.wells > 1)
    text +=
        QStringLiteral(", withdrawal %1 m upstream of injection").arg(field.betweenRows, 0, 'f', 1);
  if (field.wells > 2)
    text += QStringLiteral(", %1 m from each other in their rows").arg(field.withinRow, 0, 'f', 1);
  return text + QStringLiteral("; what is injected is %1 K %2")
                    .arg(std::abs(wells.temperatureChange))
                    .arg(wells.temperatureChange < 0 ? "colder" : "warmer");
}

/// Keeps what a run says of itself.
class RunRecord : public RunObserver {
public:
  void stepReached(const RunStep& step) override { reached = step.time; }
  void finished(const RunSummary& result) override {
    summary = result;
    isOver = true;
  }

  bool isOver = false;
  double reached = 0; ///< last output time that was reached [s]
  RunSummary summary;
};

class BatchJob {
public:
  BatchJob(const QString& fileName, const Options& options)
      : fileName_(fileName), options_(options), report_(fileName) {}

  int run() {
    const QString& report = options_.report;
    if (report.isEmpty())
      return checkAndRun();
    if (const QString clash = clashOf({fileName_}, {report}); !clash.isEmpty()) {
      fail(clash);
      return InputError;
    }
    if (!canWrite("report", report))
      return RunFailed;
    const int code = checkAndRun();
    if (namesClash_ || report_.write(report, code))
      return code;
    printMessage(fileName_, QStringLiteral("the report %1 could not be written").arg(report));
    return std::max<int>(code, RunFailed);
  }

private:
  int checkAndRun() {
    if (!passesInspection() || !readFile() || !passesSiteCheck())
      return InputError;
    if (options_.checkOnly) {
      if (options_.talk != Talk::Quiet)
        printLine(fileName_ + ": ok");
      return Success;
    }
    if (!namesAreFit())
      return InputError;
    if (!canWriteFiles())
      return RunFailed;
    const SiteInput site = readSite(*Manager::instance()); // as it is before a run writes to it
    const QStringList errors = simulate();
    if (StopSignals::received() != 0)
      return stopped();
    for (const QString& error : errors)
      fail(error);
    if (!errors.isEmpty())
      return RunFailed;
    report_.addResults(record_.summary, cpuSeconds_, options_.pageFiles.names());
    if (options_.talk != Talk::Quiet)
      printSummary();
    return !options_.convergence || compareMeshes(site) ? Success : RunFailed;
  }

  void fail(const QString& text) {
    report_.addError(text);
    printMessage(fileName_, text);
  }

  void warn(const QString& text) {
    report_.addWarning(text);
    if (options_.talk != Talk::Quiet)
      printMessage(fileName_, "warning: " + text);
  }

  int stopped() {
    fail(QStringLiteral("%1 after %2 years")
             .arg(StopSignals::name())
             .arg(inYears(record_.reached), 0, 'f', 2));
    return StopSignals::exitCode();
  }

  bool passesInspection() {
    const FileInspection found = inspectFile(fileName_);
    namesWells_ = found.namesWells;
    tellAll(found.errors, found.warnings);
    return found.errors.isEmpty();
  }

  /// Reads the file into the store, from which it is checked and run.
  bool readFile() {
    Manager& store = *Manager::instance();
    const auto pageCame =
        QObject::connect(&store, &Manager::graphicsWindowContents,
                         [this](const QByteArray& document) { page_.document = document; });
    const bool isRead = store.read(fileName_, page_.itemIds);
    QObject::disconnect(pageCame);
    if (!isRead)
      fail("is no project file that can be read: expected well-formed XML");
    return isRead;
  }

  /// What the user says counts, then what the file says.
  QString nameOfTable(const ProjectReader& project) const {
    if (!options_.output.isEmpty())
      return options_.output;
    const QString inFile = project.text(Parameter::BatchOutputFile);
    return inFile.isEmpty() ? tableNameOf(fileName_) : inFile;
  }

  bool passesSiteCheck() {
    Manager& store = *Manager::instance();
    makeTables(store); // a check sees what a run would
    tableFile_ = nameOfTable(store);
    if (options_.talk != Talk::Quiet && !isProjectFile(fileName_) && !namesWells_)
      printMessage(fileName_, textOf(designedWells(store, store.count(Parameter::NumberOfWells))));
    site_ = siteReport(fileName_, store);
    report_.addParameters(store, origins_);
    tellAll(site_.errors, site_.warnings);
    if (site_.errors.isEmpty())
      warnOfAnotherEnd(store);
    return site_.errors.isEmpty();
  }

  /// The report has all errors and warnings, the terminal the first of each.
  void tellAll(const QStringList& errors, const QStringList& warnings) {
    for (const QString& error : errors)
      report_.addError(error);
    for (const QString& warning : warnings)
      report_.addWarning(warning);
    printFirst(errors, {});
    if (options_.talk != Talk::Quiet)
      printFirst(warnings, "warning: ");
  }

  /// A table of thousands of wells can be wrong in thousands of places.
  void printFirst(const QStringList& lines, const QString& prefix) const {
    constexpr int most = 20;
    for (const QString& line : lines.mid(0, most))
      printMessage(fileName_, prefix + line);
    if (lines.size() > most)
      printMessage(fileName_,
                   QStringLiteral("%1%2 more of this kind").arg(prefix).arg(lines.size() - most));
  }

  bool namesAreFit() {
    QStringList files = QStringList{tableFile_} + options_.pageFiles.names();
    if (!options_.report.isEmpty())
      files << options_.report;
    QString fault = clashOf({fileName_}, files);
    namesClash_ = !fault.isEmpty();
    if (const QString refusal = refusalOfTable(tableFile_);
        fault.isEmpty() && options_.output.isEmpty() && !refusal.isEmpty())
      fault = QStringLiteral("the table %1 is not written: %2; --output takes any name")
                  .arg(tableFile_, refusal);
    if (!fault.isEmpty())
      fail(fault);
    return fault.isEmpty();
  }

  void warnOfAnotherEnd(const ProjectReader& project) {
    // A list of times that fills the memory is not made for a warning.
    constexpr double mostYears = 10000;
    const OutputTimeInput input = outputTimeInput(project, usualCycleLength);
    if (inYears(input.simulationTime) > mostYears)
      return;
    const OutputTimes result = outputTimes(input);
    if (!result.times.empty() && areApart(result.times.back(), input.simulationTime))
      warn(
          QStringLiteral("the run ends after %1 years instead of %2, at its last output time; only "
                         "whole years, filled by their demand periods, end as asked for")
              .arg(inYears(result.times.back()), 0, 'f', 2)
              .arg(inYears(input.simulationTime), 0, 'f', 2));
  }

  /// A run of minutes should not end at a name that could have been seen to be wrong before.
  bool canWriteFiles() {
    if (!canWrite("table", tableFile_))
      return false;
    const QStringList files = options_.pageFiles.names();
    return std::all_of(files.begin(), files.end(),
                       [this](const QString& file) { return canWrite("file", file); });
  }

  bool canWrite(const QString& what, const QString& name) {
    const QString reason = obstacleTo(name);
    if (!reason.isEmpty())
      fail(QStringLiteral("the %1 %2 can't be written: %3").arg(what, name, reason));
    return reason.isEmpty();
  }

  RunRequest request() const {
    return {.tableFile = tableFile_,
            .tableNamedBy = options_.output.isEmpty() ? NamedBy::File : NamedBy::User,
            .linearSolver = options_.solver};
  }

  /// What went wrong, one text each.
  QStringList simulate() {
    TVRPlugin plugin;
    // Results shall not depend on the settings and the locale of whoever runs the file.
    QMetaObject::invokeMethod(&plugin, "setLanguage", Q_ARG(QString, options_.language),
                              Q_ARG(bool, true));
    SimulationRun& run = plugin.simulationRun();
    const StopSignals::Handler onSignal([&run] { run.abandon(); });
    ProgressDisplay display(fileName_, isTerminal());
    run.addObserver(&record_);
    if (options_.talk != Talk::Quiet)
      run.addObserver(&display);

    QStringList errors;
    const std::clock_t before = std::clock();
    if (options_.pageFiles.names().isEmpty()) {
      errors = simulateOnly(plugin);
    } else {
      leaveOutPictures();
      errors = runToPage(plugin, fileName_, page_, request(), options_.pageFiles);
    }
    if (!errors.isEmpty() && !record_.isOver)
      errors = QStringList{failure(errors.first())};
    cpuSeconds_ = double(std::clock() - before) / CLOCKS_PER_SEC;
    const RunSummary& summary = record_.summary;
    if (!summary.tableFile.isEmpty() && !summary.tableWritten)
      errors.prepend(QStringLiteral("the table %1 could not be written").arg(summary.tableFile));
    for (const QString& file : plugin.unwrittenFiles())
      errors << QStringLiteral("%1 could not be written").arg(file);
    return errors;
  }

  /// A project of anybody could name another user's pictures.
  void leaveOutPictures() const {
    if (!options_.pictures)
      takePicturesFrom(QFileInfo(fileName_).absolutePath());
    for (const QString& picture : namedPictures(*Manager::instance()))
      if (QFileInfo::exists(picture) && !liesWherePicturesAreTaken(picture))
        printMessage(fileName_, QStringLiteral("the picture %1 is left out: it does not lie beside "
                                               "the file; --pictures takes it")
                                    .arg(picture));
  }

  QStringList simulateOnly(TVRPlugin& plugin) const {
    QString error;
    try {
      plugin.runWithoutPage(request());
    } catch (const CvodeError& solverError) {
      error =
          solverMessage(solverError.what(), plugin.simulationRun().simulation()->groundwaterDone());
    } catch (const std::exception& otherError) {
      error = otherError.what();
    } catch (const char* meshError) {
      error = meshError;
    }
    return error.isNull() ? QStringList() : QStringList{error};
  }

  QString failure(const QString& error) const {
    return QStringLiteral("the simulation failed after %1 years: %2; %3")
        .arg(QString::number(inYears(record_.reached), 'f', 2), asOneLine(error),
             likelyCauses(fileName_, site_, *Manager::instance()));
  }

  /// Says how good the mesh of a run is that went well. False if another mesh fails.
  bool compareMeshes(const SiteInput& site) {
    const ProjectReader& project = *Manager::instance();
    const WellReader wells = project.wells();
    QStringList names;
    for (int row = 0; row < wells.count(); ++row)
      names << wells.name(row);
    try {
      const auto convergence = Quantities::meshConvergence(
          site, outputTimes(outputTimeInput(project, usualCycleLength)), names);
      report_.addConvergence(convergenceJson(convergence));
      if (options_.talk != Talk::Quiet)
        printText(convergenceLines(convergence).join('\n'));
      for (const QString& warning : convergenceWarnings(convergence))
        warn(warning);
      return true;
    } catch (const std::exception& error) {
      fail(QStringLiteral("the run on another mesh failed: %1").arg(asOneLine(error.what())));
      return false;
    }
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
  const Data::ValueOrigins origins_{*Manager::instance()};
  JobReport report_;
  bool namesClash_ = false; ///< of what is written: nothing is
  RunRecord record_;
  StoredPage page_; ///< that came with the file
  bool namesWells_ = false;
  SiteReport site_;
  QString tableFile_;
  double cpuSeconds_ = 0;
};

} // namespace

int runBatchFile(const QString& fileName, const Options& options) {
  return BatchJob(fileName, options).run();
}

} // namespace TVR::Batch
