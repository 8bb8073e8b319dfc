#pragma once

#include <QString>

namespace TVR::Data {

/// Whether the reference database in a file is the one that was built. The build leaves a check sum
/// in the field of the file's header that is free for users of the format; a file without one, of
/// somebody's own making, passes, and so does one that can't be read: opening it will tell.
bool keepsCheckSum(const QString& file);

/// Why the reference database in a file can't be used, as a sentence that names the file; empty if
/// it can.
QString databaseFault(const QString& file);

} // namespace TVR::Data
