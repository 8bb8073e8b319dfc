#pragma once

#include "inspection/Findings.h"

#include <QString>

namespace TVR {

/// Looks at a project file before it is read: whether it is XML that can be read and holds anything
/// of a project at all, keeps to the limits of wells and demand periods, and whether each cell of
/// its tables has a place there. Parameters that stand twice are warnings. Adds to `result`.
void inspectProject(const QString& fileName, Findings& result);

} // namespace TVR
