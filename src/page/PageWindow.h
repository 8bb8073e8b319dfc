#pragma once

#include "host/GraphicsInterface.h"
#include "page/Canvas.h"

#include <QWidget>

namespace TVR::Page {

/// A window of the workspace with a page: the face of a Canvas for the plug-in, and for the user a
/// view of it that follows the mouse.
class PageWindow : public QWidget, public Sketra_lib::GraphicsWorkspaceWindow {
  Q_OBJECT
  Q_INTERFACES(BrenvikApp::WorkspaceWindow)

public:
  explicit PageWindow(QWidget* parent = nullptr);
  ~PageWindow() override;

  Canvas& canvas() { return canvas_; }

  // to be filled by the implementation: WorkspaceWindow, GraphicsWorkspaceWindow, QWidget events

signals:
  /// The mouse is at this place of the map [map units].
  void currentCoordinates(double x, double y, QEvent::Type type, Qt::MouseButton button);

private:
  Canvas canvas_;
};

} // namespace TVR::Page
