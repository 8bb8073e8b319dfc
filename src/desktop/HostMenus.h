#pragma once

#include "host/MainWindowPluginInterface.h"

#include <QList>
#include <QObject>
#include <QStringList>

#include <map>

class QMenu;
class QMenuBar;

namespace TVR::Desktop {

class HostActions;
enum class MenuId;
class RecentMenu;

/// The menus of the main window, with the host's own actions and room for those of the plug-in.
class HostMenus final : public QObject {
  Q_OBJECT

public:
  /// The numbers under which the plug-in finds the File menu's own actions. Behind the second it
  /// puts its shapefile; before what stands in front of the third, a separator, open, save, import.
  enum FileAction { NewProjects = 1, Exports = 2, RecentProjects = 3 };

  /// `bar` and `actions` outlive this object.
  HostMenus(QMenuBar& bar, const HostActions& actions);

  BrenvikApp::MainWindowMenuProvider provider() const;
  /// Puts the host's commands about runs behind what the plug-in has in its menu by now.
  void completePluginMenu();
  RecentMenu& recentProjects() const { return *recent_; }
  /// The titles of the workspace's windows at the end of the Window menu, one of them checked.
  void listWindows(const QStringList& titles, int current);
  void retranslate();

signals:
  /// The user chose a window from the list.
  void windowChosen(int index);

private:
  void addCommands(QMenu& menu, MenuId id);

  const HostActions& actions_;
  QMenu* const file_;
  QMenu* const new_;
  QMenu* const export_;
  RecentMenu* const recent_;
  QMenu* const edit_;
  QMenu* const view_;
  QMenu* const plugin_;
  QMenu* const settings_;
  QMenu* const window_;
  QMenu* const help_;
  QList<QAction*> windowList_;
};

} // namespace TVR::Desktop
