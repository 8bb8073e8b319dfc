#include "batch/Template.h"

#include "disk/FileReplacement.h"
#include "terminal/Console.h"
#include "terminal/ExitCodes.h"

#include <QFile>

namespace TVR::Batch {

int writeTemplate(const QString& fileName) {
  if (QFile::exists(fileName)) {
    printMessage(fileName, "exists already and is left as it is");
    return InputError;
  }
  QFile source(":/batch/doublet_template.tbat");
  source.open(QIODevice::ReadOnly);
  if (replaceFile(fileName, source.readAll()))
    return Success;
  printMessage(fileName, "can't be written");
  return RunFailed;
}

} // namespace TVR::Batch
