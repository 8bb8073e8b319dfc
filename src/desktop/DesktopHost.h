#pragma once

#include "host/ApplicationInterface.h"
#include "page/window/GraphicsLibrary.h"

#include <QObject>
#include <QString>

class QMainWindow;

namespace TVR::Desktop {

class RunStatus;
class Workspace;

/// The program as the plug-in sees it.
class DesktopHost final : public QObject, public BrenvikApp::ApplicationInterface {
  Q_OBJECT

public:
  /// All of them outlive this object.
  DesktopHost(QMainWindow& window, Workspace& workspace, RunStatus& status);

  /// The language of use that the plug-in told last; empty before.
  QString language() const { return language_; }

  BrenvikApp::WorkspaceWindow* currentWorkspaceWindow() override;
  void addWorkspaceWindow(BrenvikApp::WorkspaceWindow* window) override;
  QList<QWidget*> workspaceWindows() override;
  QObject* pluginByName(const QString& name) override;
  void setHostLanguage(const QString& language) override;
  QString applicationName() const override;
  void addDockWindow(int area, QDockWidget* dock) override;
  void showStatusMessage(const QString& text, int milliseconds) override;
  void setProgress(int value, int maximum) override;
  QMainWindow* mainWindow() override { return &window_; }
  /// That of the user's last file; at first the user's documents.
  QString workingPath() const override;
  void setWorkingPath(const QString& path) override;
  bool keepsWorkingPath() const override { return true; }

signals:
  /// The plug-in told the language of use. Its translations may not be in place yet.
  void languageTold();

private:
  QMainWindow& window_;
  Workspace& workspace_;
  RunStatus& status_;
  Page::GraphicsLibrary library_;
  QString language_;
};

} // namespace TVR::Desktop
