#include "page/window/GraphicsLibrary.h"

#include "page/window/PageWindow.h"

namespace TVR::Page {

GraphicsLibrary::GraphicsLibrary(BrenvikApp::ApplicationInterface& host, QObject* parent)
    : QObject(parent), host_(host) {
  setObjectName("Sketra_lib");
}

BrenvikApp::WorkspaceWindow* GraphicsLibrary::graphicsWindow(const QString& name, bool create) {
  PageWindow* window = existingWindow(name);
  if (!window && create)
    window = newWindow(name);
  if (window)
    emit handedOut(window);
  return window;
}

PageWindow* GraphicsLibrary::existingWindow(const QString& name) const {
  if (name.isEmpty()) {
    const BrenvikApp::WorkspaceWindow* active = host_.currentWorkspaceWindow();
    for (PageWindow* window : windows_) {
      if (window == active)
        return window;
    }
    return windows_.isEmpty() ? nullptr : windows_.last();
  }
  for (PageWindow* window : windows_) {
    if (window->windowTitle() == name)
      return window;
  }
  return nullptr;
}

PageWindow* GraphicsLibrary::newWindow(const QString& name) {
  auto* window = new PageWindow;
  if (name.isEmpty())
    window->nameByNumber(++counter_);
  else
    window->setWindowTitle(name);
  windows_.append(window);
  connect(window, &QObject::destroyed, this, [this, window] { windows_.removeOne(window); });
  host_.addWorkspaceWindow(window);
  return window;
}

void GraphicsLibrary::refreshViews() {
  for (PageWindow* window : qAsConst(windows_))
    window->refresh();
}

} // namespace TVR::Page
