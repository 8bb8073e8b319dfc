#pragma once

#include "host/ApplicationInterface.h"
#include "page/window/GraphicsLibrary.h"

#include <memory>
#include <vector>

namespace TVR::Page {
class PageWindow;
}

namespace TVR::Batch {

/// A host without a main window, for a plug-in whose page nobody watches: it has the graphics
/// library, and keeps the windows that are opened without showing them. Needs a QApplication.
class HeadlessHost final : public BrenvikApp::ApplicationInterface {
public:
  HeadlessHost();
  ~HeadlessHost();

  /// The page that was opened last; null if there is none.
  Page::PageWindow* page();

  BrenvikApp::WorkspaceWindow* currentWorkspaceWindow() override;
  void addWorkspaceWindow(BrenvikApp::WorkspaceWindow* window) override;
  QList<QWidget*> workspaceWindows() override;
  QObject* pluginByName(const QString& name) override;
  void setHostLanguage(const QString&) override {}
  QString applicationName() const override;
  void addDockWindow(int, QDockWidget*) override {}
  void showStatusMessage(const QString&, int) override {}
  void setProgress(int, int) override {}
  QMainWindow* mainWindow() override { return nullptr; }
  QString workingPath() const override;
  void setWorkingPath(const QString&) override {}
  bool keepsWorkingPath() const override { return false; }

private:
  std::vector<BrenvikApp::WorkspaceWindow*> windows_; ///< owned; the last one is active
  Page::GraphicsLibrary library_;
};

} // namespace TVR::Batch
