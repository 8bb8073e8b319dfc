#pragma once

#include <QMutex>

#include <vector>

/// Notes how long [ms] each attempt to take a mutex would wait, while this object lives; one object
/// at a time. So a test knows the patience of a lock without spending it. The program has
/// LockPatience.cpp among its sources.
class LockPatience {
public:
  explicit LockPatience(const QRecursiveMutex& mutex);
  ~LockPatience();
  LockPatience(const LockPatience&) = delete;
  LockPatience& operator=(const LockPatience&) = delete;

  /// Of the attempts by QRecursiveMutex::tryLock, in order.
  const std::vector<int>& asked() const;
};
