#include "desktop/RecentMenu.h"

#include "files/RecentProjects.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace TVR::Desktop {

RecentMenu::RecentMenu(QWidget* parent) : QMenu(parent) {
  setToolTipsVisible(true);
  connect(this, &QMenu::aboutToShow, this, &RecentMenu::fill);
}

void RecentMenu::fill() {
  clear();
  QList<RecentProject> projects = recentProjects();
  std::reverse(projects.begin(), projects.end());
  int number = 0;
  for (const RecentProject& project : projects) {
    const QFileInfo file(project.path);
    QString label = project.title.isEmpty()
                        ? file.fileName()
                        : tr("%1 - %2").arg(project.title.simplified(), file.fileName());
    QAction* const action =
        addAction(QStringLiteral("&%1 %2").arg(++number).arg(label.replace('&', "&&")));
    action->setToolTip(QDir::toNativeSeparators(project.path));
    action->setStatusTip(action->toolTip());
    action->setEnabled(file.exists());
    connect(action, &QAction::triggered, this, [this, path = project.path] { emit chosen(path); });
  }
  if (projects.isEmpty())
    addAction(tr("No projects yet"))->setEnabled(false);
}

} // namespace TVR::Desktop
