#pragma once

#include <QList>
#include <QString>

namespace TVR {

/// A project that was opened, as the user's settings remember it.
struct RecentProject {
  QString title;
  QString path;

  bool operator==(const RecentProject& other) const = default;
};

/// Most projects that are remembered.
inline constexpr int mostRecentProjects = 5;

/// The list with one more project behind it, of which the youngest remain. A project whose path is
/// there already, in whatever case, changes nothing.
QList<RecentProject> withProject(QList<RecentProject> projects, const RecentProject& project);

/// The projects of the settings, the oldest first.
QList<RecentProject> recentProjects();

/// Remembers a project in the settings.
void addRecentProject(const RecentProject& project);

} // namespace TVR
