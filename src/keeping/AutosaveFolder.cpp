#include "keeping/AutosaveFolder.h"

#include "disk/FileReplacement.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>

namespace TVR {

namespace {

constexpr char lockName[] = "lock";
constexpr char noteName[] = "autosave.json";
constexpr char projectPrefix[] = "project-";
constexpr char projectEnding[] = ".tvr";
constexpr int mostAttempts = 3;

// Keys of the note.
constexpr char numberKey[] = "project";
constexpr char fileKey[] = "file";
constexpr char titleKey[] = "title";
constexpr char timeKey[] = "time";

/// The lock of a folder, held by this process; null if another one holds it. A lock does not grow
/// old: it is held until its process is gone.
std::unique_ptr<QLockFile> lockOf(const QString& folder) {
  auto lock = std::make_unique<QLockFile>(folder + '/' + lockName);
  lock->setStaleLockTime(0);
  return lock->tryLock() ? std::move(lock) : nullptr;
}

QStringList projectsIn(const QString& folder) {
  return QDir(folder).entryList({QString(projectPrefix) + '*' + projectEnding}, QDir::Files,
                                QDir::Time);
}

/// Leaves the lock alone.
void removeContents(const QString& folder) {
  const auto filter = QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System;
  for (const QFileInfo& entry : QDir(folder).entryInfoList(filter)) {
    if (entry.isDir() && !entry.isSymLink())
      QDir(entry.filePath()).removeRecursively();
    else if (entry.fileName() != lockName)
      QFile::remove(entry.filePath());
  }
}

} // namespace

AutosaveFolder::AutosaveFolder(QString path, std::unique_ptr<QLockFile> lock)
    : path_(std::move(path)), lock_(std::move(lock)) {
  readNote();
}

AutosaveFolder::~AutosaveFolder() {
  const bool isLeft = !isEmpty();
  if (!isLeft)
    removeContents(path_);
  lock_->unlock();
  if (!isLeft)
    QDir().rmdir(path_); // not where another program has just taken it for a leftover
}

QString AutosaveFolder::usualPlace() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
         "/Norvalt/Tevrane/autosave";
}

std::unique_ptr<AutosaveFolder> AutosaveFolder::lock(const QString& path) {
  std::unique_ptr<QLockFile> lock = lockOf(path);
  return lock ? std::unique_ptr<AutosaveFolder>(new AutosaveFolder(path, std::move(lock)))
              : nullptr;
}

std::unique_ptr<AutosaveFolder> AutosaveFolder::make(const QString& place) {
  if (!QDir().mkpath(place))
    return nullptr;
  // Before it is locked, another program may take the new folder for an empty one that was left.
  for (int attempt = 0; attempt < mostAttempts; ++attempt) {
    QTemporaryDir directory(place + "/XXXXXX");
    if (!directory.isValid())
      return nullptr;
    directory.setAutoRemove(false);
    if (auto folder = lock(directory.path()))
      return folder;
  }
  return nullptr;
}

std::vector<std::unique_ptr<AutosaveFolder>> AutosaveFolder::leftovers(const QString& place) {
  std::vector<std::unique_ptr<AutosaveFolder>> found;
  const auto filter = QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks;
  for (const QFileInfo& entry : QDir(place).entryInfoList(filter, QDir::Time))
    if (auto folder = lock(entry.filePath()); folder && !folder->isEmpty())
      found.push_back(std::move(folder));
  return found;
}

QString AutosaveFolder::projectName(int number) const {
  return path_ + '/' + projectPrefix + QString::number(number) + projectEnding;
}

bool AutosaveFolder::isEmpty() const {
  return projectsIn(path_).isEmpty();
}

QString AutosaveFolder::projectFile() const {
  if (number_ > 0)
    return projectName(number_);
  const QStringList projects = projectsIn(path_);
  return projects.isEmpty() ? QString() : path_ + '/' + projects.first();
}

void AutosaveFolder::readNote() {
  QFile file(path_ + '/' + noteName);
  if (!file.open(QIODevice::ReadOnly))
    return;
  const QJsonObject stored = QJsonDocument::fromJson(file.readAll()).object();
  const int number = stored[numberKey].toInt();
  if (number < 1 || !QFileInfo::exists(projectName(number)))
    return;
  number_ = number;
  note_ = AutosaveNote{stored[fileKey].toString(), stored[titleKey].toString(),
                       QDateTime::fromString(stored[timeKey].toString(), Qt::ISODateWithMs)};
}

bool AutosaveFolder::keep(const AutosaveNote& note, const WriteProject& write) {
  const int number = number_ + 1;
  const QJsonObject stored{{numberKey, number},
                           {fileKey, note.file},
                           {titleKey, note.title},
                           {timeKey, note.time.toString(Qt::ISODateWithMs)}};
  if (!write(projectName(number)) ||
      !replaceFile(path_ + '/' + noteName, QJsonDocument(stored).toJson())) {
    QFile::remove(projectName(number));
    return false;
  }
  if (number_ > 0)
    QFile::remove(projectName(number_));
  number_ = number;
  note_ = note;
  return true;
}

void AutosaveFolder::clear() {
  // A folder without a project file holds nothing, whatever else is in it.
  for (const QString& project : projectsIn(path_))
    QFile::remove(path_ + '/' + project);
  QFile::remove(path_ + '/' + noteName);
  number_ = 0;
  note_.reset();
}

} // namespace TVR
