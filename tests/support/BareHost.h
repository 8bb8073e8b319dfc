#pragma once

#include "host/ApplicationInterface.h"

/// A host that has nothing and does nothing; the hosts of tests override what they are about.
class BareHost : public BrenvikApp::ApplicationInterface {
public:
  virtual ~BareHost() = default;
  BrenvikApp::WorkspaceWindow* currentWorkspaceWindow() override { return nullptr; }
  void addWorkspaceWindow(BrenvikApp::WorkspaceWindow*) override {}
  QList<QWidget*> workspaceWindows() override { return {}; }
  QObject* pluginByName(const QString&) override { return nullptr; }
  void setHostLanguage(const QString&) override {}
  QString applicationName() const override { return "Host"; }
  void addDockWindow(int, QDockWidget*) override {}
  void showStatusMessage(const QString&, int) override {}
  void setProgress(int, int) override {}
  QMainWindow* mainWindow() override { return nullptr; }
  QString workingPath() const override { return {}; }
  void setWorkingPath(const QString&) override {}
  bool keepsWorkingPath() const override { return false; }
};
