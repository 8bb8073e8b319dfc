#pragma once

#include <QList>
#include <QObject>
#include <QString>

class QDockWidget;
class QMainWindow;
class QWidget;

/// The host application, as far as the plug-in needs it. All operations are called on the main
/// thread; the host owns every object that it hands out.
namespace BrenvikApp {

/// A window of the host's workspace.
class WorkspaceWindow {
public:
  virtual QWidget* widget() = 0;
  /// "GraphicsWindow" marks a window that shows a page.
  virtual QString windowType() const = 0;

protected:
  ~WorkspaceWindow() = default;
};

/// The host itself.
class ApplicationInterface {
public:
  /// The active window; null if there is none.
  virtual WorkspaceWindow* currentWorkspaceWindow() = 0;
  virtual void addWorkspaceWindow(WorkspaceWindow* window) = 0;
  virtual QList<QWidget*> workspaceWindows() = 0;
  /// Another plug-in by its name; null if it is not loaded.
  virtual QObject* pluginByName(const QString& name) = 0;
  /// Two letters.
  virtual void setHostLanguage(const QString& language) = 0;
  /// Title of message boxes.
  virtual QString applicationName() const = 0;
  /// Area 1 is the left side.
  virtual void addDockWindow(int area, QDockWidget* dock) = 0;
  virtual void showStatusMessage(const QString& text, int milliseconds) = 0;
  virtual void setProgress(int value, int maximum) = 0;
  virtual QMainWindow* mainWindow() = 0;
  /// Start directory of file dialogs.
  virtual QString workingPath() const = 0;
  virtual void setWorkingPath(const QString& path) = 0;
  /// Whether `setWorkingPath` is to be called at all.
  virtual bool keepsWorkingPath() const = 0;

protected:
  ~ApplicationInterface() = default;
};

} // namespace BrenvikApp

#define BRENVIK_WORKSPACE_WINDOW_IID "venlor.BrenvikApplication.WorkspaceWindow/1.0"
Q_DECLARE_INTERFACE(BrenvikApp::WorkspaceWindow, BRENVIK_WORKSPACE_WINDOW_IID)
