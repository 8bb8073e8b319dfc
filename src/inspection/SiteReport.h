#pragma once

#include <QStringList>

namespace TVR {
class ProjectReader;
}

namespace TVR {

/// What is to be said of the site in the store, each with its place in the file that it was read
/// from: section and key of a batch file, key of a project file.
struct SiteReport {
  QStringList errors; ///< such a site is not to be run
  QStringList warnings;
};

SiteReport siteReport(const QString& fileName, const ProjectReader& project);

/// What in the file is likely at fault if the solver or the mesh fails: what the report warns of,
/// and the values that decide how hard a site is to compute.
QString likelyCauses(const QString& fileName, const SiteReport& report,
                     const ProjectReader& project);

} // namespace TVR
