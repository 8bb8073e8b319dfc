#pragma once

#include <QString>

namespace TVR::Batch {

/// Writes a complete, commented batch file of a well doublet. Tells the user if it can't, or if
/// there is such a file already; ends with an ExitCode.
int writeTemplate(const QString& fileName);

} // namespace TVR::Batch
