#pragma once

#include "inspection/Findings.h"

namespace TVR {

struct FileInspection : Findings {
  bool namesWells = false; ///< a batch file that does not gets the wells of the design
};

bool isProjectFile(const QString& fileName);

/// Looks at a batch file before it is read, since the reader itself takes whatever it finds:
/// whether the file is there and readable, is INI text with one of the known sections, and holds
/// values of the right kind and within their ranges. Keys that are unknown or stand twice and rows
/// that count for nothing are warnings. Of a project file see `inspectProject`.
FileInspection inspectFile(const QString& fileName);

} // namespace TVR
