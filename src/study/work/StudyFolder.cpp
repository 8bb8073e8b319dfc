#include "study/work/StudyFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

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

bool StudyFolder::isThere() const {
  return QDir(path_ + "/parts").exists();
}

QString StudyFolder::make() const {
  std::error_code error;
  for (const char* name : {"/parts", "/journals"}) {
    std::filesystem::create_directories(QFile::encodeName(path_ + name).constData(), error);
    if (error)
      break;
  }
  return error ? QString::fromLocal8Bit(error.message().c_str()) : QString();
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

QStringList StudyFolder::answers() const {
  return {path_ + "/answers.csv", path_ + "/results.sqlite", path_ + "/summary.json"};
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
