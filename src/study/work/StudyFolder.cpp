#include "study/work/StudyFolder.h"

#include <QDir>
#include <QFileInfo>

namespace TVR::Study {

namespace {

QStringList filesIn(const QString& directory, const QString& pattern) {
  QStringList files;
  for (const QString& name : QDir(directory).entryList({pattern}, QDir::Files, QDir::Name))
    files << directory + '/' + name;
  return files;
}

} // namespace

QString Shard::name() const {
  return QStringLiteral("%1-of-%2").arg(index + 1).arg(count);
}

QString StudyFolder::usualPath(const QString& studyFile) {
  const QFileInfo info(studyFile);
  return info.absolutePath() + '/' + info.completeBaseName() + ".study";
}

bool StudyFolder::make() const {
  return QDir().mkpath(path_ + "/parts") && QDir().mkpath(path_ + "/journals");
}

QString StudyFolder::base(const QString& base) const {
  return path_ + "/base." + QFileInfo(base).suffix();
}

QString StudyFolder::part(const QByteArray& name) const {
  return QStringLiteral("%1/parts/%2.part").arg(path_, QString::fromLatin1(name));
}

QString StudyFolder::journal(const QByteArray& layoutId, const QString& owner) const {
  return QStringLiteral("%1/journals/%2-%3.journal")
      .arg(path_, QString::fromLatin1(layoutId), owner);
}

QString StudyFolder::table() const {
  return path_ + "/runs.csv";
}

QString StudyFolder::mesh() const {
  return path_ + "/mesh.json";
}

QStringList StudyFolder::journals(const QByteArray& layoutId) const {
  return filesIn(path_ + "/journals", QString::fromLatin1(layoutId) + "-*.journal");
}

QStringList StudyFolder::parts() const {
  return filesIn(path_ + "/parts", "*.part");
}

} // namespace TVR::Study
