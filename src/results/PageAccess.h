#pragma once

#include "host/GraphicsInterface.h"
#include "host/PageProperty.h"
#include "results/PageItems.h"

#include <QMutex>

namespace TVR {

class ProjectTarget;

/// The type of the windows that show a page.
inline constexpr char pageWindowType[] = "GraphicsWindow";

/// What the classes of the result page work on. The plug-in makes one for each call, since the user
/// may change the active window in between.
struct PageAccess {
  /// The active window, null if it shows no page.
  Sketra_lib::GraphicsWorkspaceWindow* window;
  /// Null without a graphics library.
  Sketra_lib::GraphicsInterface* graphics;
  ProjectTarget& project;
  PageItems& items;
  /// Guards every sequence of changes of the page; recursive.
  QRecursiveMutex& mutex;
  /// The file that the project was read from; empty for none.
  QString projectFile = {};

  /// Whether the active window is one that shows the page of a project.
  bool showsPage() const { return window && window->windowType() == pageWindowType; }
};

/// Holds the lock of the page for the life of the object, if it could be had in time.
class PageLock {
public:
  /// Waits at most `patience` [ms]; by default as long as most changes of the page may wait. 0 is
  /// one attempt, a negative patience has no end.
  explicit PageLock(QRecursiveMutex& mutex, int patience = 1000)
      : mutex_(mutex), held_(mutex.tryLock(patience)) {}
  ~PageLock() {
    if (held_)
      mutex_.unlock();
  }
  PageLock(const PageLock&) = delete;
  PageLock& operator=(const PageLock&) = delete;

  explicit operator bool() const { return held_; }

private:
  QRecursiveMutex& mutex_;
  const bool held_;
};

/// Brackets a batch of changes, so that the page is drawn once.
class PageUpdate {
public:
  explicit PageUpdate(Sketra_lib::GraphicsWorkspaceWindow& window) : window_(window) {
    window_.beginUpdate();
  }
  ~PageUpdate() { window_.endUpdate(); }
  PageUpdate(const PageUpdate&) = delete;
  PageUpdate& operator=(const PageUpdate&) = delete;

private:
  Sketra_lib::GraphicsWorkspaceWindow& window_;
};

} // namespace TVR
