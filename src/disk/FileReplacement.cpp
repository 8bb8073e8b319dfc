#include "disk/FileReplacement.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

namespace TVR {

namespace {

constexpr char asideMark[] = ".tevrane-";
constexpr char randomPart[] = "XXXXXX";
constexpr int longestStem = 200; // [bytes]; a file system takes names of 255
constexpr int mostAttempts = 3;

/// A descriptor that is closed with the object; -1 if the file can't be opened.
class OpenFile {
public:
  OpenFile(const QString& name, int flags)
      : handle(::open(QFile::encodeName(name).constData(), flags | O_CLOEXEC)) {}
  ~OpenFile() {
    if (handle >= 0)
      ::close(handle);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  const int handle;
};

bool rename(const QString& from, const QString& to) {
  return ::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

/// The file itself, where the name is that of a link to it.
QString placeOf(const QString& fileName) {
  const QFileInfo file(fileName);
  if (!file.isSymLink())
    return file.absoluteFilePath();
  return file.exists() ? file.canonicalFilePath() : file.symLinkTarget();
}

bool mayBeReplaced(const QString& place) {
  const QFileInfo file(place);
  return !file.exists() || (file.isFile() && file.isWritable());
}

/// What the names of directories beside this place begin with.
QString directoryStem(const QString& place) {
  const QFileInfo file(place);
  const QByteArray name = QFile::encodeName(file.fileName()).left(longestStem);
  return file.path() + "/." + QFile::decodeName(name) + asideMark;
}

/// Locks a directory for this process; -1 if another one holds the lock, or it is none of ours.
int lockedDirectory(const QString& name, int flags) {
  const int handle =
      ::open(QFile::encodeName(name).constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
  struct stat found {};
  if (handle < 0)
    return -1;
  if (::fstat(handle, &found) == 0 && found.st_uid == ::geteuid() && ::flock(handle, flags) == 0)
    return handle;
  ::close(handle);
  return -1;
}

/// Removes what runs that were killed have left beside this place. A run that goes on holds the
/// lock of its directory.
void removeStrays(const QString& place) {
  const QFileInfo stem(directoryStem(place));
  const auto filter = QDir::Dirs | QDir::Hidden | QDir::NoSymLinks;
  for (const QFileInfo& entry : QDir(stem.path()).entryInfoList(filter)) {
    const QString name = entry.fileName();
    if (!name.startsWith(stem.fileName()) ||
        name.size() != stem.fileName().size() + int(sizeof randomPart) - 1)
      continue;
    const int lock = lockedDirectory(entry.filePath(), LOCK_EX | LOCK_NB);
    if (lock < 0)
      continue;
    QDir(entry.filePath()).removeRecursively();
    ::close(lock);
  }
}

/// Whether the bytes of a file, or the names in a directory, are on the disk.
bool isSynced(const QString& name) {
  const OpenFile file(name, O_RDONLY);
  return file.handle >= 0 && (::fsync(file.handle) == 0 || errno == EINVAL); // some can't be synced
}

} // namespace

FileReplacement::FileReplacement(const QStringList& fileNames) {
  for (const QString& name : fileNames) {
    names_ << QFileInfo(name).fileName();
    places_ << placeOf(name);
  }
  if (!std::all_of(places_.begin(), places_.end(), mayBeReplaced))
    return;
  // Before it is locked, another process may take the new directory for one of a killed run.
  for (int attempt = 0; attempt < mostAttempts && !isPossible(); ++attempt)
    makeDirectory();
}

void FileReplacement::makeDirectory() {
  QByteArray name = QFile::encodeName(directoryStem(places_.last()) + randomPart);
  if (!::mkdtemp(name.data()))
    return;
  const QString made = QFile::decodeName(name);
  lock_ = lockedDirectory(made, LOCK_EX); // none where directories can't be locked
  if (QFileInfo::exists(made)) {
    directory_ = made;
  } else if (lock_ >= 0) {
    ::close(lock_);
    lock_ = -1;
  }
}

FileReplacement::~FileReplacement() {
  if (isPossible())
    QDir(directory_).removeRecursively();
  if (lock_ >= 0)
    ::close(lock_);
}

QString FileReplacement::aside(int index) const {
  return directory_ + '/' + names_[index];
}

QString FileReplacement::former(int index) const {
  return QStringLiteral("%1/former.%2").arg(directory_).arg(index);
}

bool FileReplacement::commit() {
  if (!isPossible())
    return false;
  for (int index = 0; index < places_.size(); ++index)
    if (!prepare(index))
      return false;
  // One set after the other, or those of two processes could be mixed.
  const QString parent = QFileInfo(directory_).path();
  const OpenFile order(parent, O_RDONLY | O_DIRECTORY);
  ::flock(order.handle, LOCK_EX);
  if (!exchange()) {
    restore();
    return false;
  }
  isSynced(parent);
  removeStrays(places_.last());
  return true;
}

/// Brings a new file to the disk, with the permissions of the older one.
bool FileReplacement::prepare(int index) const {
  if (!mayBeReplaced(places_[index]) || !isSynced(aside(index)))
    return false;
  struct stat older {};
  if (::stat(QFile::encodeName(places_[index]).constData(), &older) == 0)
    ::chmod(QFile::encodeName(aside(index)).constData(), older.st_mode & 07777);
  return true;
}

bool FileReplacement::exchange() const {
  const int count = places_.size();
  if (count > 1) // one file is replaced in one step
    for (int index = count - 1; index >= 0; --index)
      if (QFileInfo::exists(places_[index]) && !rename(places_[index], former(index)))
        return false;
  for (int index = 0; index < count; ++index)
    if (!rename(aside(index), places_[index]))
      return false;
  return true;
}

/// Takes back what an exchange has done.
void FileReplacement::restore() const {
  for (int index = 0; index < places_.size(); ++index) {
    const bool isNew = !QFileInfo::exists(aside(index));
    if (QFileInfo::exists(former(index)))
      rename(former(index), places_[index]);
    else if (isNew)
      QFile::remove(places_[index]);
  }
}

bool replaceFile(const QString& fileName, const QByteArray& content) {
  const auto write = [&content](const QString& name) {
    QFile file(name);
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
           file.write(content) == content.size();
  };
  const QFileInfo present(fileName);
  if (present.exists() && !present.isFile())
    return !present.isDir() && write(fileName);
  FileReplacement replacement({fileName});
  return replacement.isPossible() && write(replacement.aside(0)) && replacement.commit();
}

} // namespace TVR
