#pragma once

#include <QString>

namespace TVR {

/// What a version of the program is called, "2.0.7" say. A second section that stands, as text,
/// behind "96" makes it a preview of the next major version: "2.97.3" is called "3.0.0 alpha 4".
QString versionLabel(const QString& version);

} // namespace TVR
