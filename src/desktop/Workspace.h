#pragma once

#include "host/ApplicationInterface.h"

#include <QTabWidget>

#include <functional>
#include <map>

namespace TVR::Page {
class PageWindow;
}

namespace TVR::Desktop {

/// The windows of the plug-in and its pages, as tabs that can be moved and closed. It owns what it
/// is given; a window that closes is deleted.
class Workspace final : public QTabWidget {
  Q_OBJECT

public:
  using Guard = std::function<bool(QWidget&)>;

  explicit Workspace(QWidget* parent = nullptr);
  ~Workspace() override;

  /// Makes the window the active one; it need not be new.
  void add(BrenvikApp::WorkspaceWindow* window);
  /// Null if there is no window.
  BrenvikApp::WorkspaceWindow* currentWindow() const;
  /// The active window if it shows a page, else null.
  Page::PageWindow* currentPage() const;
  QList<QWidget*> widgets() const;

  /// Is asked before the user closes a window, which stays if the answer is false.
  void setGuard(Guard guard) { guard_ = std::move(guard); }
  void closeCurrent() { closeTab(currentIndex()); }
  /// The window `steps` further, around the ends.
  void goOn(int steps);

signals:
  /// A new window is about to be shown; one is about to be closed.
  void adding(QWidget* widget);
  void closing(QWidget* widget);
  /// Another window is the active one; null if none is left.
  void activated(QWidget* widget);
  /// A window was added, closed, moved or renamed.
  void windowsChanged();

protected:
  void paintEvent(QPaintEvent* event) override;
  void tabInserted(int index) override;
  void tabRemoved(int index) override;

private:
  void closeTab(int index);
  void showTitle(QWidget& widget);

  std::map<QWidget*, BrenvikApp::WorkspaceWindow*> windows_; ///< by their widgets
  Guard guard_;
};

} // namespace TVR::Desktop
