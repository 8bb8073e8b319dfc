#pragma once

#include <QEventLoop>
#include <QTimer>

#include <functional>

/// The longest that a test waits for something that has to come [ms].
inline constexpr int patience = 20000;

/// Handles events until `isOver`, or until patience ends. Whether it is over.
inline bool waitUntil(const std::function<bool()>& isOver) {
  QEventLoop loop;
  QTimer poll;
  QTimer::singleShot(patience, &loop, &QEventLoop::quit);
  QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
    if (isOver())
      loop.quit();
  });
  poll.start(1);
  loop.exec();
  return isOver();
}
