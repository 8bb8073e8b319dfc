#pragma once

#include <QSaveFile>

namespace TVR {

/// Puts a written file in its place if every byte of it has reached the disk; otherwise the older
/// file stays. False then. QSaveFile alone overlooks a failure of the last buffer.
inline bool commitIfComplete(QSaveFile& file) {
  if (!file.flush())
    file.cancelWriting();
  return file.commit();
}

} // namespace TVR
