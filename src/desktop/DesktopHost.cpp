#include "desktop/DesktopHost.h"

#include "desktop/RunStatus.h"
#include "desktop/Workspace.h"
#include "messages/UserMessages.h"
#include "project/UserSettings.h"

#include <QDir>
#include <QDockWidget>
#include <QMainWindow>
#include <QStandardPaths>
#include <QStatusBar>

namespace TVR::Desktop {

namespace {

/// The plug-in reads the same entry where it has no host.
constexpr char workingPathKey[] = "working_path";

} // namespace

DesktopHost::DesktopHost(QMainWindow& window, Workspace& workspace, RunStatus& status)
    : window_(window), workspace_(workspace), status_(status), library_(*this) {
  connect(&library_, &Page::GraphicsLibrary::handedOut, &workspace_, &QTabWidget::setCurrentWidget);
}

BrenvikApp::WorkspaceWindow* DesktopHost::currentWorkspaceWindow() {
  return workspace_.currentWindow();
}

void DesktopHost::addWorkspaceWindow(BrenvikApp::WorkspaceWindow* window) {
  workspace_.add(window);
}

QList<QWidget*> DesktopHost::workspaceWindows() {
  return workspace_.widgets();
}

QObject* DesktopHost::pluginByName(const QString& name) {
  return name == library_.objectName() ? &library_ : nullptr;
}

void DesktopHost::setHostLanguage(const QString& language) {
  language_ = language;
  emit languageTold();
}

QString DesktopHost::applicationName() const {
  return programTitle;
}

void DesktopHost::addDockWindow(int area, QDockWidget* dock) {
  window_.addDockWidget(static_cast<Qt::DockWidgetArea>(area), dock);
}

void DesktopHost::showStatusMessage(const QString& text, int milliseconds) {
  window_.statusBar()->showMessage(text, milliseconds);
}

void DesktopHost::setProgress(int value, int maximum) {
  status_.setProgress(value, maximum);
}

QString DesktopHost::workingPath() const {
  const QString path = userSettings().value(workingPathKey).toString();
  if (!path.isEmpty() && QDir(path).exists())
    return path;
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return QDir(documents).exists() ? documents : QDir::homePath();
}

void DesktopHost::setWorkingPath(const QString& path) {
  userSettings().setValue(workingPathKey, path);
}

} // namespace TVR::Desktop
