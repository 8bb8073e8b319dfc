#pragma once

#include <QMutex>

#include <future>
#include <thread>

/// Another thread that holds a mutex while this object lives.
class LockedElsewhere {
public:
  explicit LockedElsewhere(QRecursiveMutex& mutex) {
    std::promise<void> held;
    thread_ = std::thread([this, &mutex, &held] {
      mutex.lock();
      held.set_value();
      release_.get_future().wait();
      mutex.unlock();
    });
    held.get_future().wait();
  }
  ~LockedElsewhere() { release(); }
  LockedElsewhere(const LockedElsewhere&) = delete;
  LockedElsewhere& operator=(const LockedElsewhere&) = delete;

  void release() {
    if (!thread_.joinable())
      return;
    release_.set_value();
    thread_.join();
  }

private:
  std::thread thread_;
  std::promise<void> release_;
};
