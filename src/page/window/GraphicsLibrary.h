#pragma once

#include "host/GraphicsInterface.h"

#include <QList>
#include <QObject>

class QWidget;

namespace TVR::Page {

class PageWindow;

/// The graphics library as a host offers it under the name "Sketra_lib".
class GraphicsLibrary : public QObject, public Sketra_lib::GraphicsInterface {
  Q_OBJECT
  Q_INTERFACES(Sketra_lib::GraphicsInterface)

public:
  /// `host` outlives the library and takes its windows.
  explicit GraphicsLibrary(BrenvikApp::ApplicationInterface& host, QObject* parent = nullptr);

  /// The window with this name, the active or else the youngest one if the name is empty; a new one
  /// if there is none and `create` says so. A window's name is its title, "Graphic 1" and so on if
  /// it was made without one.
  BrenvikApp::WorkspaceWindow* graphicsWindow(const QString& name, bool create) override;
  /// Repaints all windows.
  void refreshViews() override;
  /// The windows that there are, the oldest first.
  const QList<PageWindow*>& windows() const { return windows_; }

signals:
  /// Somebody was given the window: a new one, or one that there is, and wants it to be seen.
  void handedOut(QWidget* window);

private:
  PageWindow* existingWindow(const QString& name) const;
  PageWindow* newWindow(const QString& name);

  BrenvikApp::ApplicationInterface& host_;
  QList<PageWindow*> windows_;
  int counter_ = 0;
};

} // namespace TVR::Page
