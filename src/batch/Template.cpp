#include "batch/Template.h"

#include "batch/Console.h"
#include "batch/ExitCodes.h"

#include <QFile>
#include <QSaveFile>

namespace TVR::Batch {

int writeTemplate(const QString& fileName) {
  if (QFile::exists(fileName)) {
    printMessage(fileName, "exists already and is left as it is");
    return InputError;
  }
  QFile source(":/batch/doublet_template.tbat");
  source.open(QIODevice::ReadOnly);
  QSaveFile file(fileName);
  if (!file.open(QIODevice::WriteOnly) || file.write(source.readAll()) < 0 || !file.commit()) {
    printMessage(fileName, "can't be written: " + file.errorString());
    return RunFailed;
  }
  return Success;
}

} // namespace TVR::Batch
