#include "batch/BatchJob.h"
#include "batch/JobQueue.h"
#include "batch/Options.h"
#include "batch/ParameterListing.h"
#include "store/DatabaseCheck.h"
#include "store/Manager.h"
#include "terminal/Console.h"
#include "terminal/ExitCodes.h"
#include "terminal/StopSignals.h"
#include "terminal/Template.h"

#include <QApplication>

#include <algorithm>
#include <csignal>
#include <memory>

using namespace TVR;
using namespace TVR::Batch;

namespace {

int printParameters(const Options& options) {
  Data::Manager& store = *Data::Manager::instance();
  if (!options.files.isEmpty()) {
    Options check = options;
    check.checkOnly = true;
    check.talk = Talk::Quiet;
    if (const int code = runBatchFile(options.files.first(), check))
      return code;
  }
  printText(options.asJson ? parameterJson(store) : parameterTableText(store));
  return Success;
}

std::optional<Options> optionsOf(int& argc, char** argv, int& exitCode) {
  const QCoreApplication application(argc, argv);
  QCoreApplication::setApplicationName("tevrane-batch");
  QCoreApplication::setApplicationVersion(TEVRANE_VERSION);
  return parseOptions(QCoreApplication::arguments(), exitCode);
}

/// A page needs fonts and pixels, though no screen; all else needs neither.
std::unique_ptr<QCoreApplication> applicationFor(const Options& options, int& argc, char** argv) {
  if (options.pageFiles.names().isEmpty())
    return std::make_unique<QCoreApplication>(argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  return std::make_unique<QApplication>(argc, argv);
}

/// Without the defaults of the reference database every site would be at fault.
bool databaseIsSound() {
  const QString fault =
      Data::databaseFault(Data::ReferenceDatabase::file(QCoreApplication::applicationDirPath()));
  if (!fault.isEmpty())
    printMessage({}, fault);
  return fault.isEmpty();
}

int run(const Options& options) {
  if (!options.templateFile.isEmpty())
    if (const int code = writeTemplate(options.templateFile, ":/batch/doublet_template.tbat"))
      return code;
  const bool needsDatabase = options.printParameters || !options.files.isEmpty();
  if (needsDatabase && !databaseIsSound())
    return InputError;
  if (options.printParameters)
    return printParameters(options);
  if (options.files.size() == 1)
    return runBatchFile(options.files.first(), options);
  return runJobs(options);
}

} // namespace

int main(int argc, char** argv) {
  std::signal(SIGPIPE, SIG_IGN); // a reader that has gone is an error like any other
  StopSignals::watch();
  int exitCode = Success;
  const std::optional<Options> options = optionsOf(argc, argv, exitCode);
  if (!options)
    return exitCode;
  routeMessages(options->talk);
  const auto application = applicationFor(*options, argc, argv);
  exitCode = run(*options);
  if (hasPrintedAll())
    return exitCode;
  printMessage({}, "the standard output could not be written");
  return std::max<int>(exitCode, RunFailed);
}
