#pragma once

#include <QStringList>
#include <QtGlobal>

namespace TVR {

/// Collects what is logged while it lives, one entry per message, instead of showing it.
class MessageLog {
public:
  MessageLog() : previous_(qInstallMessageHandler(collect)) { lines_.clear(); }
  ~MessageLog() { qInstallMessageHandler(previous_); }
  MessageLog(const MessageLog&) = delete;
  MessageLog& operator=(const MessageLog&) = delete;

  const QStringList& lines() const { return lines_; }

private:
  static void collect(QtMsgType, const QMessageLogContext&, const QString& text) {
    lines_.append(text);
  }

  static inline QStringList lines_;
  QtMessageHandler previous_;
};

} // namespace TVR
