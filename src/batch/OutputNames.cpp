#include "batch/OutputNames.h"

#include "files/BatchFile.h"
#include "inspection/FileInspection.h"

namespace TVR::Batch {

QString tableNameOf(const QString& fileName) {
  return isProjectFile(fileName) ? fileName.chopped(4) + ".out"
                                 : Data::BatchFile::outputName(fileName);
}

} // namespace TVR::Batch
