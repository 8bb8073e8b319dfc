#include "plugin/LockPatience.h"

#include "plugin/LibraryFunction.h"

#include <atomic>

namespace {

std::atomic<const void*> watched = nullptr;
std::vector<int> patience;

} // namespace

/// Stands in front of the function of the library, for all of the test program.
bool QMutex::tryLock(int timeout) QT_MUTEX_LOCK_NOEXCEPT {
  if (watched == this)
    patience.push_back(timeout);
  static auto* const ofTheLibrary = libraryFunction<bool(QMutex*, int)>("_ZN6QMutex7tryLockEi");
  return ofTheLibrary(this, timeout);
}

LockPatience::LockPatience(const QRecursiveMutex& mutex) {
  patience.clear();
  watched = &mutex;
}

LockPatience::~LockPatience() {
  watched = nullptr;
}

const std::vector<int>& LockPatience::asked() const {
  return patience;
}
