#include "terminal/Template.h"

#include "disk/FileReplacement.h"
#include "terminal/Console.h"
#include "terminal/ExitCodes.h"

#include <QFile>

namespace TVR {

int writeTemplate(const QString& fileName, const QString& resource) {
  if (QFile::exists(fileName)) {
    printMessage(fileName, "exists already and is left as it is");
    return InputError;
  }
  QFile source(resource);
  source.open(QIODevice::ReadOnly);
  if (replaceFile(fileName, source.readAll()))
    return Success;
  printMessage(fileName, "can't be written");
  return RunFailed;
}

} // namespace TVR
