#include "tour/WindowTour.h"

#include "desktop/MainWindow.h"
#include "desktop/PluginLoading.h"
#include "host/RunState.h"
#include "support/EventWait.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTimer>
#include <QWizard>

#include <memory>
#include <stdexcept>

namespace TVR::Test {
namespace {

/// Visits each window beside the main one as soon as it has been shown, and closes it.
class Guide final : public QObject {
public:
  /// `home` is the main window.
  Guide(const QWidget& home, const Visit& visit) : home_(home), visit_(visit) {
    qApp->installEventFilter(this);
  }

  /// Does what opens windows, and returns when all of them have been visited and closed. They are
  /// named after the way.
  void go(const QString& way, const std::function<void()>& open) {
    way_ = way;
    count_ = 0;
    open();
    waitUntil([this] { return pending_ == 0; });
  }

protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    auto* const window = qobject_cast<QWidget*>(object);
    if (event->type() == QEvent::Show && window && window != &home_ && isWindow(*window)) {
      ++pending_;
      QTimer::singleShot(0, this, [this, shown = QPointer<QWidget>(window)] {
        if (shown && shown->isVisible())
          visit(*shown);
        --pending_;
      });
    }
    return false;
  }

private:
  static bool isWindow(const QWidget& widget) {
    const Qt::WindowType type = widget.windowType();
    return type == Qt::Window || type == Qt::Dialog || type == Qt::Sheet;
  }

  QString nextName() {
    ++count_;
    return count_ == 1 ? way_ : QString("%1_%2").arg(way_).arg(count_);
  }

  void visit(QWidget& window) {
    if (auto* const wizard = qobject_cast<QWizard*>(&window))
      visitPages(*wizard);
    else
      visit_(nextName(), window);
    if (auto* const dialog = qobject_cast<QDialog*>(&window))
      dialog->reject();
    window.close();
  }

  void visitPages(QWizard& wizard) {
    for (int last = -1; wizard.currentId() != last;) {
      last = wizard.currentId();
      visit_(nextName(), wizard);
      wizard.next();
    }
  }

  const QWidget& home_;
  const Visit& visit_;
  QString way_;
  int count_ = 0;
  int pending_ = 0; ///< windows that have been shown and not been visited yet
};

/// Whether a command has no name, as a project or window that a menu lists, opens nothing, or ends
/// the program, the window of the page or a run.
bool isLeftOut(const QAction& action) {
  static const QStringList names = {"", "quit", "close_window", "cancel_run", "run", "save"};
  return action.isCheckable() || !action.isEnabled() || names.contains(action.objectName());
}

void visitMenu(QMenu& menu, Guide& guide, const Visit& visit) {
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
  Guide guide(window, visit);
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
