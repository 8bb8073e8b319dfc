#include "plugin/PluginMenus.h"

#include "host/MainWindowPluginInterface.h"
#include "plugin/PluginActions.h"

namespace TVR {

namespace {

/// The entry of a menu that stands `distance` behind `action`; null if there is none.
QAction* neighbour(const QMenu& menu, QAction* action, int distance) {
  const QList<QAction*> entries = menu.actions();
  const int index = entries.indexOf(action);
  return index < 0 ? nullptr : entries.value(index + distance);
}

void addToPluginMenu(QMenu& menu, const PluginActions& actions) {
  menu.addAction(actions[Command::Welcome]);
  menu.addSeparator();
  for (const Command command :
       {Command::General, Command::Energy, Command::Wells, Command::Mapping, Command::Simulation})
    menu.addAction(actions[command]);
}

void addToSettingsMenu(QMenu& menu, const PluginActions& actions) {
  menu.addAction(actions[Command::ClearRegistry]);
  menu.addSeparator();
  if (QMenu* const languages = actions.languageMenu()) {
    languages->setParent(&menu, languages->windowFlags());
    menu.addMenu(languages);
  }
}

/// An entry that the host does not have leaves what stands beside it at the end of the menu.
void addToFileMenu(QMenu& menu, const QMap<int, QAction*>& hosts, const PluginActions& actions) {
  menu.insertAction(neighbour(menu, hosts.value(HostFileAction::beforeShapefile), 1),
                    actions[Command::ExportShapefile]);
  QAction* const next = hosts.value(HostFileAction::afterProjectFiles);
  QAction* const inFront = neighbour(menu, next, -1);
  QAction* const before = inFront ? inFront : neighbour(menu, next, 0);
  menu.insertSeparator(before);
  for (const Command command : {Command::Open, Command::Save, Command::ImportResults})
    menu.insertAction(before, actions[command]);
}

} // namespace

void addToMenus(const BrenvikApp::MainWindowMenuProvider& provider, const PluginActions& actions) {
  if (provider.pluginMenu)
    addToPluginMenu(*provider.pluginMenu, actions);
  if (provider.settingsMenu)
    addToSettingsMenu(*provider.settingsMenu, actions);
  if (provider.newMenu)
    provider.newMenu->addAction(actions[Command::New]);
  if (provider.fileMenu)
    addToFileMenu(*provider.fileMenu, provider.fileActions, actions);
}

} // namespace TVR
