#pragma once

#include <QString>

namespace TVR {

class ProjectReader;

/// What the files that a run writes at its steps have in common.
namespace StepFiles {

/// A time [s] in months of 365.25 / 12 days, rounded to the nearest whole number; halves away from
/// zero.
qlonglong wholeMonths(double time);

/// The directory of the files: "./" if whoever asked for the run named a table, or the project
/// names a batch output file; else the directory that the project names for its tables; else
/// `workingDirectory`.
QString directory(const ProjectReader& project, const QString& namedTable,
                  const QString& workingDirectory);

} // namespace StepFiles
} // namespace TVR
