#include "store/DatabaseCheck.h"
#include "store/ReferenceDatabase.h"
#include "study/Commands.h"
#include "study/Options.h"
#include "terminal/Console.h"
#include "terminal/ExitCodes.h"
#include "terminal/StopSignals.h"

#include <QCoreApplication>

#include <algorithm>
#include <csignal>

using namespace TVR;

namespace {

int run(const Study::Options& options) {
  const QString fault =
      Data::databaseFault(Data::ReferenceDatabase::file(QCoreApplication::applicationDirPath()));
  if (!fault.isEmpty()) {
    printMessage({}, fault);
    return InputError;
  }
  return Study::runCommand(options);
}

} // namespace

int main(int argc, char** argv) {
  std::signal(SIGPIPE, SIG_IGN); // a reader that has gone is an error like any other
  StopSignals::watch();
  const QCoreApplication application(argc, argv);
  QCoreApplication::setApplicationName("tevrane-study");
  QCoreApplication::setApplicationVersion(TEVRANE_VERSION);
  int exitCode = Success;
  const auto options = Study::parseOptions(QCoreApplication::arguments(), exitCode);
  if (!options)
    return exitCode;
  routeMessages(options->talk);
  exitCode = run(*options);
  if (hasPrintedAll())
    return exitCode;
  printMessage({}, "the standard output could not be written");
  return std::max<int>(exitCode, RunFailed);
}
