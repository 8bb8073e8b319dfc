#include "desktop/LogKeeper.h"

#include <QMutexLocker>
#include <QTime>

namespace TVR::Desktop {

namespace {

constexpr int mostLines = 500;

} // namespace

LogKeeper* LogKeeper::keeper_ = nullptr;

LogKeeper::LogKeeper() {
  keeper_ = this;
  former_ = qInstallMessageHandler(keep);
}

LogKeeper::~LogKeeper() {
  qInstallMessageHandler(former_);
  keeper_ = nullptr;
}

void LogKeeper::keep(QtMsgType type, const QMessageLogContext& place, const QString& text) {
  LogKeeper* const keeper = keeper_;
  if (!keeper)
    return;
  {
    const QMutexLocker lock(&keeper->mutex_);
    keeper->lines_.append(QTime::currentTime().toString("HH:mm:ss.zzz ") + text);
    while (keeper->lines_.size() > mostLines)
      keeper->lines_.removeFirst();
  }
  if (keeper->former_)
    keeper->former_(type, place, text);
}

QStringList LogKeeper::lines() {
  if (!keeper_)
    return {};
  const QMutexLocker lock(&keeper_->mutex_);
  return keeper_->lines_;
}

} // namespace TVR::Desktop
