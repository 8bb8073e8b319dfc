#include "store/DatabaseCheck.h"
#include "store/ReferenceDatabase.h"
#include "study/Commands.h"
#include "study/Options.h"
#include "terminal/Console.h"
#include "terminal/ExitCodes.h"
#include "terminal/StopSignals.h"

#include <QCoreApplication>
#include <QGuiApplication>

#include <algorithm>
#include <csignal>
#include <memory>
#include <new>
#include <optional>

using namespace TVR;

namespace {

int run(const Study::Options& options) {
  const QString fault =
      Data::databaseFault(Data::ReferenceDatabase::file(QCoreApplication::applicationDirPath()));
  if (!fault.isEmpty()) {
    printMessage({}, fault);
    return InputError;
  }
  try {
    return Study::runCommand(options);
  } catch (const std::bad_alloc&) {
    printMessage(options.file,
                 "the memory of this machine is too small: fewer runs, fewer cells of "
                 "the raster, fewer levels and times take less");
    return RunFailed;
  }
}

std::optional<Study::Options> optionsOf(int& argc, char** argv, int& exitCode) {
  const QCoreApplication application(argc, argv);
  QCoreApplication::setApplicationName("tevrane-study");
  QCoreApplication::setApplicationVersion(TEVRANE_VERSION);
  return Study::parseOptions(QCoreApplication::arguments(), exitCode);
}

/// A page needs fonts and pixels, though no screen; all else needs neither.
std::unique_ptr<QCoreApplication> applicationFor(const Study::Options& options, int& argc,
                                                 char** argv) {
  if (options.pages.isEmpty())
    return std::make_unique<QCoreApplication>(argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  return std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace

int main(int argc, char** argv) {
  std::signal(SIGPIPE, SIG_IGN); // a reader that has gone is an error like any other
  StopSignals::watch();
  int exitCode = Success;
  const auto options = optionsOf(argc, argv, exitCode);
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
