#include "study/work/Journal.h"

#include "disk/FileReplacement.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace TVR::Study {

Journal::Journal(const QString& fileName) : file_(fileName) {}

Journal::~Journal() {
  if (lock_ >= 0)
    close(lock_);
}

Journal::Opening Journal::open() {
  const QByteArray lockName = QFile::encodeName(file_.fileName() + ".lock");
  lock_ = ::open(lockName.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
  if (lock_ < 0)
    return Opening::Failed;
  if (flock(lock_, LOCK_EX | LOCK_NB) != 0)
    return errno == EWOULDBLOCK ? Opening::InUse : Opening::Failed;
  return openFile() ? Opening::Done : Opening::Failed;
}

bool Journal::openFile() {
  if (!file_.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
    return false;
  const QByteArray content = file_.readAll();
  const int end = content.lastIndexOf('\n') + 1;
  return file_.resize(end) && file_.seek(end);
}

bool Journal::append(const QByteArray& line) {
  const QByteArray whole = line + '\n';
  return file_.write(whole) == whole.size();
}

bool Journal::replace(const QByteArrayList& lines) {
  file_.close();
  QByteArray content;
  for (const QByteArray& line : lines)
    content += line + '\n';
  return replaceFile(file_.fileName(), content) && openFile();
}

QByteArrayList Journal::linesOf(const QString& fileName) {
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly))
    return {};
  QByteArrayList lines = file.readAll().split('\n');
  lines.removeLast(); // empty, or half a line
  return lines;
}

} // namespace TVR::Study
