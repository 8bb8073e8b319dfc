#include "batch/BatchJob.h"
#include "batch/Console.h"
#include "batch/ExitCodes.h"
#include "batch/JobQueue.h"
#include "batch/Options.h"
#include "batch/ParameterListing.h"
#include "batch/Template.h"
#include "data/Manager.h"

#include <QCoreApplication>

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
  printLine(options.asJson ? parameterJson(store) : parameterTableText(store));
  return Success;
}

} // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  QCoreApplication::setApplicationName("tevrane-batch");
  QCoreApplication::setApplicationVersion(TEVRANE_VERSION);

  int exitCode = Success;
  const std::optional<Options> options = parseOptions(application.arguments(), exitCode);
  if (!options)
    return exitCode;
  routeMessages(options->talk);

  if (!options->templateFile.isEmpty())
    if (const int code = writeTemplate(options->templateFile))
      return code;
  if (options->printParameters)
    return printParameters(*options);
  if (options->files.size() == 1)
    return runBatchFile(options->files.first(), *options);
  return runJobs(*options);
}
