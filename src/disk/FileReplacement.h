#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace TVR {

/// Puts new files in the place of older ones: all of them, complete and on the disk, or none. They
/// are written into a hidden directory beside their places, which goes with the object; the one of
/// a run that was killed is removed once another one has written the same name: until then it may
/// hold the only copy.
class FileReplacement {
public:
  /// Files of one directory that belong together. Readers find the others by the last one: it
  /// leaves its place first and comes last, so that nobody ever reads a set of old and new files.
  /// A link stands for the file that it leads to.
  explicit FileReplacement(const QStringList& fileNames);
  ~FileReplacement();
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;

  /// Whether the files can be written: their directory takes new files, and what has their names
  /// already is a regular file without write protection.
  bool isPossible() const { return !directory_.isEmpty(); }

  /// Where the file `index` of the set is to be written. Valid as long as the object lives.
  QString aside(int index) const;

  /// Syncs the files and puts them in place, with the permissions of the older ones. False if one
  /// is missing or anything fails; the older files stand then as they did.
  bool commit();

private:
  void makeDirectory();
  bool prepare(int index) const;
  bool exchange() const;
  void restore() const;
  QString former(int index) const;

  QStringList names_;  ///< in the directory aside
  QStringList places_; ///< complete paths
  QString directory_;  ///< empty if nothing can be written
  int lock_ = -1;      ///< open file; held as long as the directory is in use
};

/// Writes one file as a whole, see FileReplacement. Into what is no regular file (a pipe, a device)
/// the content is written as it stands. False if it can't be written; an older file stays then.
bool replaceFile(const QString& fileName, const QByteArray& content);

} // namespace TVR
