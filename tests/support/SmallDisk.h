#pragma once

#include <QByteArray>
#include <QFile>

#include <fcntl.h>
#include <sys/mount.h>
#include <unistd.h>

/// A file system of two megabytes in a directory, as long as the object lives. Only the
/// administrator can have one.
class SmallDisk {
public:
  explicit SmallDisk(const QString& directory)
      : place_(QFile::encodeName(directory)),
        isMounted(mount("tmpfs", place_.constData(), "tmpfs", 0, "size=2000k") == 0) {}
  ~SmallDisk() {
    if (isMounted)
      umount2(place_.constData(), MNT_DETACH);
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

  /// Leaves room for so many bytes, down to whole blocks.
  void fillBut(qint64 room) const {
    const QByteArray name = place_ + "/filling";
    const int file = open(name.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    const QByteArray block(4096, 'x');
    off_t size = 0;
    for (ssize_t written = 0; (written = write(file, block.constData(), block.size())) > 0;)
      size += written;
    if (ftruncate(file, size - room / block.size() * block.size()) != 0)
      qFatal("the filling can't be made smaller");
    close(file);
  }

private:
  const QByteArray place_;

public:
  const bool isMounted;
};
