#pragma once

#include <QMutex>
#include <QStringList>
#include <QtGlobal>

namespace TVR::Desktop {

/// Keeps the last lines of the program's log, of all threads, while it lives, and lets them through
/// to where they went before. One at a time.
class LogKeeper {
public:
  LogKeeper();
  ~LogKeeper();
  LogKeeper(const LogKeeper&) = delete;
  LogKeeper& operator=(const LogKeeper&) = delete;

  /// Those that are kept, the oldest first; none if nobody keeps them.
  static QStringList lines();

private:
  static void keep(QtMsgType type, const QMessageLogContext& place, const QString& text);

  static LogKeeper* keeper_;

  QtMessageHandler former_;
  mutable QMutex mutex_;
  QStringList lines_;
};

} // namespace TVR::Desktop
