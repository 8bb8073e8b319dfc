#pragma once

#include "keeping/AutosaveFolder.h"

#include <QObject>
#include <QTimer>

#include <chrono>

namespace TVR {

/// Keeps a changed project in an AutosaveFolder of this program: an interval after it was first
/// changed, and whenever it is asked to. A program in which nothing changes makes no folder and
/// runs no timer.
class Autosave : public QObject {
  Q_OBJECT

public:
  static constexpr std::chrono::milliseconds usualInterval = std::chrono::minutes(2);

  /// What is kept, asked for when it is: a note without the time, and who writes the project file.
  struct Source {
    std::function<AutosaveNote()> note;
    AutosaveFolder::WriteProject write;
  };

  explicit Autosave(Source source, QObject* parent = nullptr);
  ~Autosave() override;

  /// How long a change may wait; from the next change on.
  void setInterval(std::chrono::milliseconds interval) { timer_.setInterval(interval); }

  /// The project has changed.
  void noteChange();
  /// Keeps the project if it has changed since it was last kept; what fails is told by `failed` and
  /// tried again after an interval. Whether what is kept is up to date.
  bool keepNow();
  /// The changes are saved or given up: what is kept goes.
  void forget();
  /// Gives the folder away: what is kept in it is for the next program.
  void letGo();

signals:
  /// The project can't be kept in this directory.
  void failed(const QString& directory);

private:
  const Source source_;
  QTimer timer_;
  std::unique_ptr<AutosaveFolder> folder_; ///< null until something is to be kept
  bool isBehind_ = false;                  ///< the project has changed since it was kept
};

} // namespace TVR
