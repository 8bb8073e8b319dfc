#include "batch/HeadlessHost.h"

#include "messages/UserMessages.h"
#include "page/window/PageWindow.h"

#include <QDir>

namespace TVR::Batch {

HeadlessHost::HeadlessHost() : library_(*this) {}

HeadlessHost::~HeadlessHost() {
  for (BrenvikApp::WorkspaceWindow* window : windows_)
    delete window->widget();
}

Page::PageWindow* HeadlessHost::page() {
  return dynamic_cast<Page::PageWindow*>(currentWorkspaceWindow());
}

BrenvikApp::WorkspaceWindow* HeadlessHost::currentWorkspaceWindow() {
  return windows_.empty() ? nullptr : windows_.back();
}

void HeadlessHost::addWorkspaceWindow(BrenvikApp::WorkspaceWindow* window) {
  windows_.push_back(window);
}

QList<QWidget*> HeadlessHost::workspaceWindows() {
  QList<QWidget*> widgets;
  for (BrenvikApp::WorkspaceWindow* window : windows_)
    widgets.append(window->widget());
  return widgets;
}

QObject* HeadlessHost::pluginByName(const QString& name) {
  return name == "Sketra_lib" ? &library_ : nullptr;
}

QString HeadlessHost::applicationName() const {
  return programTitle;
}

QString HeadlessHost::workingPath() const {
  return QDir::currentPath();
}

} // namespace TVR::Batch
