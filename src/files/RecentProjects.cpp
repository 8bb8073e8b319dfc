#include "files/RecentProjects.h"

#include "project/UserSettings.h"

#include <algorithm>

namespace TVR {

namespace {

constexpr char arrayName[] = "last_projects";
constexpr char titleKey[] = "title";
constexpr char pathKey[] = "path";

QList<RecentProject> read(QSettings& settings) {
  QList<RecentProject> projects;
  const int count = settings.beginReadArray(arrayName);
  for (int i = 0; i < count; ++i) {
    settings.setArrayIndex(i);
    projects.append({settings.value(titleKey).toString(), settings.value(pathKey).toString()});
  }
  settings.endArray();
  return projects;
}

} // namespace

QList<RecentProject> withProject(QList<RecentProject> projects, const RecentProject& project) {
  const bool isKnown =
      std::any_of(projects.begin(), projects.end(), [&](const RecentProject& known) {
        return known.path.compare(project.path, Qt::CaseInsensitive) == 0;
      });
  if (!isKnown)
    projects.append(project);
  return projects.mid(std::max(0, projects.size() - mostRecentProjects));
}

QList<RecentProject> recentProjects() {
  QSettings settings = userSettings();
  return read(settings);
}

void addRecentProject(const RecentProject& project) {
  QSettings settings = userSettings();
  const QList<RecentProject> projects = withProject(read(settings), project);
  settings.remove(arrayName); // an entry that a longer list had would stay
  settings.beginWriteArray(arrayName, projects.size());
  for (int i = 0; i < projects.size(); ++i) {
    settings.setArrayIndex(i);
    settings.setValue(titleKey, projects[i].title);
    settings.setValue(pathKey, projects[i].path);
  }
  settings.endArray();
}

} // namespace TVR
