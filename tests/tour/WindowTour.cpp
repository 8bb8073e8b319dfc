#include "tour/WindowTour.h"

#include "desktop/MainWindow.h"
#include "desktop/PluginLoading.h"
#include "host/RunState.h"
#include "support/EventWait.h"
#include "tour/WindowGuide.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>

#include <memory>
#include <stdexcept>

namespace TVR::Test {
namespace {

/// Whether a command has no name, as a project or window that a menu lists, opens nothing, or ends
/// the program, the window of the page or a run.
bool isLeftOut(const QAction& action) {
  static const QStringList names = {"", "quit", "close_window", "cancel_run", "run", "save"};
  return action.isCheckable() || !action.isEnabled() || names.contains(action.objectName());
}

void visitMenu(QMenu& menu, WindowGuide& guide, const Visit& visit) {
  if (!menu.isEmpty()) {
    menu.ensurePolished();
    menu.resize(menu.sizeHint());
    visit(menu.objectName(), menu);
  }
  // What a command opens may change the menus.
  QVector<QPointer<QAction>> actions;
  for (QAction* const action : menu.actions())
    actions.append(action);
  for (const QPointer<QAction>& action : actions) {
    if (action && action->menu())
      visitMenu(*action->menu(), guide, visit);
    else if (action && !isLeftOut(*action))
      guide.go(action->objectName(), [&action] { action->trigger(); });
  }
}

/// Calls a slot of the plug-in by its name.
void call(QObject& plugin, const char* slot, const QString& argument) {
  if (!QMetaObject::invokeMethod(&plugin, slot, Q_ARG(QString, argument)))
    throw std::logic_error(std::string("the plug-in has no slot ") + slot);
}

bool isRunning(const QObject& plugin) {
  for (QObject* const child : plugin.children()) {
    if (const auto* const state = qobject_cast<BrenvikApp::RunState*>(child))
      return state->isRunning();
  }
  return false;
}

} // namespace

void tourOfWindows(const QString& language, const QString& project, const Visit& visit) {
  QString fault;
  const std::unique_ptr<QObject> plugin(
      Desktop::PluginLoading::load(Desktop::PluginLoading::usualDirectory(), fault));
  if (!plugin)
    throw std::runtime_error(fault.toStdString());
  Desktop::MainWindow window(*plugin);
  WindowGuide guide(window, visit);
  window.start(language);
  window.resize(1280, 860); // as on a screen with room for it
  window.show();
  guide.go("first_start", [&] { window.openFirst({}); });
  visit("welcome", window);
  guide.go("loaded", [&] { call(*plugin, "load", project); });
  guide.go("run", [&] { QMetaObject::invokeMethod(plugin.get(), "startSimulation"); });
  guide.go("done", [&] { waitUntil([&] { return !isRunning(*plugin); }); });
  visit("page", window);
  for (QAction* const action : window.menuBar()->actions())
    visitMenu(*action->menu(), guide, visit);
}

} // namespace TVR::Test
