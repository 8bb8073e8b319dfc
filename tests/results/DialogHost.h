#pragma once

#include "host/ApplicationInterface.h"

#include <QStringList>

/// A host with a window or none that has a working path and notes which one it is told.
class DialogHost final : public BrenvikApp::ApplicationInterface {
public:
  virtual ~DialogHost() = default;
  BrenvikApp::WorkspaceWindow* currentWorkspaceWindow() override { return window; }
  void addWorkspaceWindow(BrenvikApp::WorkspaceWindow*) override {}
  QList<QWidget*> workspaceWindows() override { return {}; }
  QObject* pluginByName(const QString&) override { return nullptr; }
  void setHostLanguage(const QString&) override {}
  QString applicationName() const override { return "Host"; }
  void addDockWindow(int, QDockWidget*) override {}
  void showStatusMessage(const QString&, int) override {}
  void setProgress(int, int) override {}
  QMainWindow* mainWindow() override { return nullptr; }
  QString workingPath() const override { return path; }
  void setWorkingPath(const QString& used) override { told << used; }
  bool keepsWorkingPath() const override { return keeps; }

  BrenvikApp::WorkspaceWindow* window = nullptr;
  QString path;
  QStringList told;
  bool keeps = true;
};
