#include "batch/OutputNames.h"

#include "files/BatchFile.h"
#include "inspection/FileInspection.h"

#include <QFile>
#include <QFileInfo>
#include <QMap>

#include <sys/stat.h>

namespace TVR::Batch {

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

QString tableNameOf(const QString& fileName) {
  return isProjectFile(fileName) ? fileName.chopped(4) + ".out"
                                 : Data::BatchFile::outputName(fileName);
}

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

} // namespace TVR::Batch
