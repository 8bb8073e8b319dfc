#include "disk/FileNames.h"

#include <QFile>
#include <QFileInfo>
#include <QMap>

#include <sys/stat.h>

namespace TVR {

namespace {

/// The same for all names of one file, which may not be there yet.
QString identityOf(const QString& name) {
  struct stat state {};
  if (stat(QFile::encodeName(name).constData(), &state) == 0)
    return QStringLiteral("%1:%2").arg(state.st_dev).arg(state.st_ino);
  QFileInfo file(name);
  if (file.isSymLink())
    file.setFile(file.symLinkTarget());
  return QFileInfo(file.absolutePath()).canonicalFilePath() + '/' + file.fileName();
}

} // namespace

QString clashOf(const QStringList& inputs, const QStringList& outputs) {
  QMap<QString, QString> read;
  for (const QString& input : inputs)
    read.insert(identityOf(input), input);
  QMap<QString, QString> written;
  for (const QString& output : outputs) {
    const QString identity = identityOf(output);
    if (read.contains(identity))
      return QStringLiteral("%1 would take the place of the input %2").arg(output, read[identity]);
    if (written.contains(identity))
      return QStringLiteral("two results would be written to %1").arg(output);
    written.insert(identity, output);
  }
  return {};
}

QString obstacleTo(const QString& fileName) {
  const QFileInfo file(fileName);
  const QFileInfo directory(file.absolutePath());
  const bool isReplaced = !file.exists() || file.isFile(); // a pipe is written to
  if (file.isDir())
    return QStringLiteral("it is a directory");
  if (isReplaced && (!directory.isDir() || !directory.isWritable()))
    return QStringLiteral("no directory that can be written to");
  if (file.exists() && !file.isWritable())
    return QStringLiteral("it is write-protected");
  return {};
}

} // namespace TVR
