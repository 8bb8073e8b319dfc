#pragma once

#include "host/GraphicsInterface.h"
#include "support/BareHost.h"

#include <QObject>
#include <QPair>
#include <QStringList>

/// A graphics library with one window at most, which counts how often its views are refreshed.
class Library final : public QObject, public Sketra_lib::GraphicsInterface {
  Q_OBJECT
  Q_INTERFACES(Sketra_lib::GraphicsInterface)

public:
  BrenvikApp::WorkspaceWindow* graphicsWindow(const QString& name, bool create) override {
    asked << QStringLiteral("'%1' %2").arg(name).arg(create);
    return window;
  }
  void refreshViews() override { ++refreshed; }

  BrenvikApp::WorkspaceWindow* window = nullptr;
  QStringList asked;
  int refreshed = 0;
};

/// A host that notes what it is told. It has the windows that a test gives it.
class Host final : public BareHost {
public:
  BrenvikApp::WorkspaceWindow* currentWorkspaceWindow() override { return active; }
  /// The new window becomes the active one.
  void addWorkspaceWindow(BrenvikApp::WorkspaceWindow* window) override {
    active = window;
    windows << window->widget();
  }
  QList<QWidget*> workspaceWindows() override { return windows; }
  QObject* pluginByName(const QString& name) override {
    asked << name;
    return library;
  }
  void setHostLanguage(const QString& language) override { languages << language; }
  void showStatusMessage(const QString& text, int milliseconds) override {
    status << QStringLiteral("%1 [%2]").arg(text).arg(milliseconds);
  }
  void setProgress(int value, int maximum) override { progress.append({value, maximum}); }
  QMainWindow* mainWindow() override { return main; }
  QString workingPath() const override { return path; }
  bool keepsWorkingPath() const override { return true; }

  QObject* library = nullptr;
  BrenvikApp::WorkspaceWindow* active = nullptr;
  QList<QWidget*> windows;
  QMainWindow* main = nullptr;
  QString path;
  QStringList languages; ///< that it was told, in order
  QStringList asked;
  QStringList status;
  QList<QPair<int, int>> progress;
};
