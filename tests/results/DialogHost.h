#pragma once

#include "support/BareHost.h"

#include <QStringList>

/// A host with a window or none that has a working path and notes which one it is told.
class DialogHost final : public BareHost {
public:
  BrenvikApp::WorkspaceWindow* currentWorkspaceWindow() override { return window; }
  QString workingPath() const override { return path; }
  void setWorkingPath(const QString& used) override { told << used; }
  bool keepsWorkingPath() const override { return keeps; }

  BrenvikApp::WorkspaceWindow* window = nullptr;
  QString path;
  QStringList told;
  bool keeps = true;
};
