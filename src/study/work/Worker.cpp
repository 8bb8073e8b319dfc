#include "study/work/Worker.h"

#include "study/work/SiteRun.h"
#include "study/work/WorkerLines.h"
#include "terminal/Console.h"
#include "terminal/ExitCodes.h"

#include <QFile>

#include <cstdio>

namespace TVR::Study {

namespace {

bool say(const QByteArray& line) {
  const QByteArray whole = line + '\n';
  const auto size = static_cast<std::size_t>(whole.size());
  return std::fwrite(whole.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0;
}

} // namespace

int runWorker() {
  QFile input;
  if (!input.open(stdin, QIODevice::ReadOnly))
    return InputError;
  const std::optional<WorkerTask> task = taskFromLine(input.readLine().trimmed());
  if (!task) {
    printMessage({}, "worker: expected a task on the standard input");
    return InputError;
  }
  SiteRun site(task->base, task->layout);
  if (!say(readyLine()))
    return RunFailed;
  while (true) {
    const QByteArray line = input.readLine();
    if (line.isEmpty())
      return Success;
    const std::optional<WorkerRun> run = runFromLine(line.trimmed());
    if (!run) {
      printMessage({}, "worker: expected a run on the standard input");
      return InputError;
    }
    const Record record = site.compute(run->name, run->values);
    if (site.isMachineAtFault())
      say(faultLine(record.failure));
    if (site.isMachineAtFault() || !say(toLine(record, true)))
      return RunFailed;
  }
}

} // namespace TVR::Study
