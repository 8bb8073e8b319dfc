#include "keeping/Autosave.h"

namespace TVR {

Autosave::Autosave(Source source, QObject* parent) : QObject(parent), source_(std::move(source)) {
  timer_.setSingleShot(true);
  timer_.setInterval(usualInterval);
  connect(&timer_, &QTimer::timeout, this, &Autosave::keepNow);
}

Autosave::~Autosave() = default;

void Autosave::noteChange() {
  isBehind_ = true;
  if (!timer_.isActive())
    timer_.start();
}

bool Autosave::keepNow() {
  if (!isBehind_)
    return true;
  timer_.stop();
  const QString place = AutosaveFolder::usualPlace();
  if (!folder_)
    folder_ = AutosaveFolder::make(place);
  AutosaveNote note = source_.note();
  note.time = QDateTime::currentDateTime();
  isBehind_ = !folder_ || !folder_->keep(note, source_.write);
  if (isBehind_) {
    timer_.start();
    emit failed(place);
  }
  return !isBehind_;
}

void Autosave::forget() {
  isBehind_ = false;
  timer_.stop();
  if (folder_)
    folder_->clear();
}

void Autosave::letGo() {
  isBehind_ = false;
  timer_.stop();
  folder_.reset();
}

} // namespace TVR
