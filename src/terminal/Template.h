#pragma once

#include <QString>

namespace TVR {

/// Writes what a resource of the program holds to a file, as a beginning for a user. Tells the user
/// if it can't, or if there is such a file already; ends with an ExitCode.
int writeTemplate(const QString& fileName, const QString& resource);

} // namespace TVR
