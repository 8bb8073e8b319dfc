#pragma once

#include <QString>

namespace TVR::Batch {

/// The table of a batch file or project file that is run without a name for it: what the file says,
/// else the file's own name with ".out" for its ending.
QString tableNameOf(const QString& fileName);

} // namespace TVR::Batch
