#include "study/CalibrationCommands.h"

#include "disk/FileContent.h"
#include "disk/FileNames.h"
#include "disk/FileReplacement.h"
#include "inspection/FileInspection.h"
#include "simulation/SiteSetup.h"
#include "store/Manager.h"
#include "study/pest/CalibrationFiles.h"
#include "study/work/PlannedSite.h"
#include "study/work/RunInput.h"
#include "study/work/SiteRun.h"
#include "study/work/StudySetup.h"
#include "terminal/ExitCodes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace TVR::Study {

namespace {

/// The number of a key in the project of the store, as batch files have it.
double numberInStore(const StudyKey& key) {
  const Data::Manager& store = *Data::Manager::instance();
  return key.cell ? cellOf(store, key.cell->table, key.cell->row, key.cell->column).toDouble()
                  : store.number(key.parameter) / key.inStore(1);
}

std::vector<double> numbersInStore(const std::vector<VariedKey>& keys) {
  std::vector<double> numbers;
  numbers.reserve(keys.size());
  for (const VariedKey& varied : keys)
    numbers.push_back(numberInStore(varied.key));
  return numbers;
}

/// Why a study can't be calibrated, a line each.
QStringList faultsOf(const StudyFile& study, const QByteArray& base) {
  if (isProjectFile(study.base))
    return {"[study] base: expected a batch file (.tbat), in which numbers can be marked"};
  return calibrationFaults(study, base);
}

int refuse(const QString& file, const QStringList& errors) {
  for (const QString& error : errors)
    printMessage(file, error);
  return InputError;
}

/// The files of a calibration, by their names in its folder, and what is to stand in them.
using CalibrationFiles = std::vector<std::pair<QString, QByteArray>>;

/// What is wrong with writing them to a folder, or nothing: they would take the place of an input
/// or of what somebody has edited.
QString faultOf(const CalibrationFiles& files, const QStringList& inputs, const QDir& folder) {
  if (const QFileInfo info(folder.path()); info.exists() && !info.isDir())
    return QStringLiteral("expected a folder, but %1 is a file").arg(folder.path());
  QStringList written{folder.filePath(CalibrationFile::simulated)};
  QStringList edited;
  for (const auto& [name, content] : files) {
    written << folder.filePath(name);
    if (QFile::exists(written.last()) && contentOf(written.last()) != content)
      edited << name;
  }
  QString clash = clashOf(inputs, written);
  if (!clash.isEmpty() || edited.isEmpty())
    return clash;
  return QStringLiteral("%1 in %2 would be replaced, but other text stands there by now; remove "
                        "what is not needed, or name another folder with --folder")
      .arg(edited.join(", "), folder.path());
}

bool writeFiles(const CalibrationFiles& files, const QDir& folder) {
  return QDir().mkpath(folder.path()) &&
         std::all_of(files.begin(), files.end(), [&](const auto& file) {
           return replaceFile(folder.filePath(file.first), file.second);
         });
}

/// What the run of a batch file answers to observations.
struct Answer {
  ResultLayout layout;
  Record record;
};

Answer answerOf(const QString& file, const std::vector<Observation>& observations,
                QStringList& errors) {
  Answer answer{layoutFor(observations), {}};
  errors << RunInput(file, {}).read({});
  if (!errors.isEmpty())
    return answer;
  try {
    answer.layout.wells = plannedSite().wellNames();
    if (knowsWells(observations, answer.layout.wells, errors))
      answer.record = SiteRun(file, answer.layout).compute({}, {});
  } catch (const SetupError& error) {
    errors << error.what();
  }
  return answer;
}

} // namespace

int writeCalibration(const Options& options) {
  Findings findings;
  const StudySetup setup = setUpStudy(options.file, findings);
  const QByteArray base = contentOf(setup.file.base);
  if (findings.errors.isEmpty())
    findings.errors = faultsOf(setup.file, base);
  if (!findings.errors.isEmpty())
    return refuse(options.file, findings.errors);
  const std::vector<Observation> observations =
      readObservations(options.more.first(), findings.errors);
  // The set-up has left another run in the store.
  findings.errors << RunInput(setup.file.base, {}).read({});
  if (findings.errors.isEmpty() && knowsWells(observations, setup.layout.wells, findings.errors))
    haveResults(observations, plannedSite().times.times, findings.errors);
  if (!findings.errors.isEmpty())
    return refuse(options.file, findings.errors);
  const std::vector<CalibratedKey> keys =
      calibratedKeys(setup.file.varied, numbersInStore(setup.file.varied));

  const QFileInfo study(options.file);
  const QDir folder(options.folder.isEmpty()
                        ? study.dir().filePath(study.completeBaseName() + ".pest")
                        : options.folder);
  const CalibrationFiles files{
      {CalibrationFile::base, base},
      {CalibrationFile::markedBase, calibrationTemplate(base, keys)},
      {CalibrationFile::instructions, calibrationInstructions(observations)},
      {CalibrationFile::observations, contentOf(options.more.first())},
      {CalibrationFile::control, calibrationControl(keys, observations)}};
  const QStringList inputs{options.file, setup.file.base, options.more.first()};
  if (const QString fault = faultOf(files, inputs, folder); !fault.isEmpty())
    return refuse(options.file, {fault});
  if (!writeFiles(files, folder)) {
    printMessage(options.file, QStringLiteral("%1 can't be written").arg(folder.path()));
    return RunFailed;
  }
  if (options.talk != Talk::Quiet)
    printLine("calibration: " + folder.filePath(CalibrationFile::control));
  return Success;
}

int observe(const Options& options) {
  const QString& result = options.more.last();
  QStringList errors;
  const std::vector<Observation> observations = readObservations(options.more.first(), errors);
  errors << inspectFile(options.file).errors;
  if (const QString clash = clashOf({options.file, options.more.first()}, {result});
      !clash.isEmpty())
    errors << clash;
  else if (const QString reason = obstacleTo(result); !reason.isEmpty())
    errors << QStringLiteral("%1 can't be written: %2").arg(result, reason);
  if (!errors.isEmpty())
    return refuse(options.file, errors);
  if (QFile::exists(result) && !QFile::remove(result)) {
    printMessage(options.file, QStringLiteral("%1 can't be replaced").arg(result));
    return RunFailed;
  }
  const Answer answer = answerOf(options.file, observations, errors);
  if (!errors.isEmpty())
    return refuse(options.file, errors);
  if (answer.record.hasFailed())
    printMessage(options.file, answer.record.failure);
  else if (!replaceFile(result, simulatedValues(observations, answer.layout, answer.record)))
    printMessage(options.file, QStringLiteral("%1 can't be written").arg(result));
  else
    return Success;
  return RunFailed;
}

} // namespace TVR::Study
