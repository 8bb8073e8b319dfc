#pragma once

#include <QStringList>

namespace TVR::Batch {

/// What a look at a batch file found. Each line names section and key and says what was expected;
/// a file with errors is not to be run.
struct FileInspection {
  QStringList errors;
  QStringList warnings;
};

/// Looks at a file before it is read, since the reader itself takes whatever it finds: whether the
/// file is there and readable, is INI text with one of the known sections, and holds values of the
/// right kind. Unknown sections and keys are warnings.
FileInspection inspectBatchFile(const QString& fileName);

} // namespace TVR::Batch
