#pragma once

#include <QDateTime>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QLockFile;

namespace TVR {

/// What an autosave is of.
struct AutosaveNote {
  QString file;  ///< of the user; empty for a project that was never saved
  QString title; ///< the name that the user gave to the project
  QDateTime time;
};

/// The folder of one running program below the user's data, locked for as long as the object lives:
/// nobody takes what lies in it for what a crash has left. It holds one project file at most and a
/// note that names it; the note is replaced as a whole once a new project file is complete, so that
/// whoever ends in between leaves the older pair.
class AutosaveFolder {
public:
  /// Where the folders of all programs of this user lie.
  static QString usualPlace();
  /// A new folder in this directory; null if none can be made there.
  static std::unique_ptr<AutosaveFolder> make(const QString& place);
  /// The folders with an autosave whose programs have ended without notice, the youngest first.
  /// Empty ones are removed.
  static std::vector<std::unique_ptr<AutosaveFolder>> leftovers(const QString& place);

  /// Unlocks the folder. It goes if it holds no autosave.
  ~AutosaveFolder();
  AutosaveFolder(const AutosaveFolder&) = delete;
  AutosaveFolder& operator=(const AutosaveFolder&) = delete;

  using WriteProject = std::function<bool(const QString& fileName)>;
  /// Puts a project in the place of the one before, with a note of it. False, and the older one
  /// stays, if it can't be written.
  bool keep(const AutosaveNote& note, const WriteProject& write);
  /// Removes the autosave.
  void clear();

  bool isEmpty() const;
  /// What the autosave is of; none if its note can't be read.
  const std::optional<AutosaveNote>& note() const { return note_; }
  /// The project file of the autosave; empty if there is none.
  QString projectFile() const;
  const QString& path() const { return path_; }

private:
  AutosaveFolder(QString path, std::unique_ptr<QLockFile> lock);

  static std::unique_ptr<AutosaveFolder> lock(const QString& path);
  QString projectName(int number) const;
  void readNote();

  const QString path_;
  std::unique_ptr<QLockFile> lock_;
  int number_ = 0; ///< of the present project file, from 1; 0 for none
  std::optional<AutosaveNote> note_;
};

} // namespace TVR
