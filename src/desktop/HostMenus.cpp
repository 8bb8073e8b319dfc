#include "desktop/HostMenus.h"

#include "desktop/HostActions.h"
#include "desktop/RecentMenu.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace TVR::Desktop {

namespace {

QMenu* addMenu(QMenuBar& bar, const char* name) {
  QMenu* const menu = bar.addMenu(QString());
  menu->setObjectName(name);
  return menu;
}

} // namespace

HostMenus::HostMenus(QMenuBar& bar, const HostActions& actions)
    : QObject(&bar), actions_(actions), file_(addMenu(bar, "menu_file")), new_(new QMenu(&bar)),
      export_(new QMenu(&bar)), recent_(new RecentMenu(&bar)), edit_(addMenu(bar, "menu_edit")),
      view_(addMenu(bar, "menu_view")), plugin_(addMenu(bar, "menu_plugin")),
      settings_(addMenu(bar, "menu_settings")), window_(addMenu(bar, "menu_window")),
      help_(addMenu(bar, "menu_help")) {
  new_->setObjectName("menu_new");
  export_->setObjectName("menu_export");
  recent_->setObjectName("menu_recent");
  file_->addMenu(new_);
  for (QAction* action : actions_.of(MenuId::File)) {
    if (!action) {
      file_->addSeparator();
      continue;
    }
    file_->addAction(action);
    if (action == actions_[Command::Save]) {
      file_->addMenu(recent_);
      file_->addSeparator();
      file_->addMenu(export_);
    }
  }
  addCommands(*export_, MenuId::Export);
  addCommands(*edit_, MenuId::Edit);
  addCommands(*view_, MenuId::View);
  addCommands(*window_, MenuId::Window);
  window_->addSeparator();
  addCommands(*help_, MenuId::Help);
  retranslate();
}

void HostMenus::addCommands(QMenu& menu, MenuId id) {
  for (QAction* action : actions_.of(id)) {
    if (action)
      menu.addAction(action);
    else
      menu.addSeparator();
  }
}

BrenvikApp::MainWindowMenuProvider HostMenus::provider() const {
  BrenvikApp::MainWindowMenuProvider provider;
  provider.fileMenu = file_;
  provider.newMenu = new_;
  provider.fileActions = {{NewProjects, new_->menuAction()},
                          {Exports, export_->menuAction()},
                          {RecentProjects, recent_->menuAction()}};
  provider.settingsMenu = settings_;
  provider.helpMenu = help_;
  provider.pluginMenu = plugin_;
  return provider;
}

void HostMenus::completePluginMenu() {
  addCommands(*plugin_, MenuId::Plugin);
}

void HostMenus::listWindows(const QStringList& titles, int current) {
  for (QAction* former : windowList_) {
    window_->removeAction(former);
    former->deleteLater(); // this may be what it sets off
  }
  windowList_.clear();
  for (int i = 0; i < titles.size(); ++i) {
    QString title = titles[i];
    QAction* const action =
        window_->addAction(QStringLiteral("&%1 %2").arg(i + 1).arg(title.replace('&', "&&")));
    action->setCheckable(true);
    action->setChecked(i == current);
    connect(action, &QAction::triggered, this, [this, i] { emit windowChosen(i); });
    windowList_.append(action);
  }
}

void HostMenus::retranslate() {
  file_->setTitle(tr("&File"));
  new_->setTitle(tr("&New"));
  export_->setTitle(tr("E&xport"));
  recent_->setTitle(tr("&Recent Projects"));
  edit_->setTitle(tr("&Edit"));
  view_->setTitle(tr("&View"));
  plugin_->setTitle(tr("Tev&rane"));
  // Alt+S and Alt+O are taken: they save and open projects.
  settings_->setTitle(tr("Se&ttings"));
  window_->setTitle(tr("&Window"));
  help_->setTitle(tr("&Help"));
}

} // namespace TVR::Desktop
