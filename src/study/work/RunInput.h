#pragma once

#include "project/Project.h"
#include "study/plan/StudyKey.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace TVR::Study {

/// The input of the runs of a study: a base, of which each run replaces values by key. It is read
/// into the store of this process.
///
/// A batch file is read anew for each run, as the batch program would read it with these values. In
/// a project file values that follow from others stand as they are; there the values are set as if
/// they were typed, so that the rules run.
class RunInput {
public:
  /// `base`: complete path of a batch file or project file.
  RunInput(const QString& base, std::vector<StudyKey> keys);

  /// What stands in the base.
  const QByteArray& content() const { return content_; }

  /// Puts a run into the store, with a value for each key. What is wrong with it, one line each.
  QStringList read(const std::vector<double>& values);
  /// Whether the machine is to blame for what was wrong with the last run, and not the run.
  bool isMachineAtFault() const { return isMachineAtFault_; }
  /// The warnings about the last run that was read.
  const QStringList& warnings() const { return warnings_; }

private:
  QString readBatchFile(const std::vector<double>& values);
  QString readFileOfRun(const QByteArray& content);
  QString readProject(const std::vector<double>& values);

  const QString base_;
  const std::vector<StudyKey> keys_;
  QByteArray content_;
  std::optional<Project> project_; ///< of a base that is a project file, once it is read
  int files_ = 0;                  ///< of runs, so far
  bool isMachineAtFault_ = false;
  QStringList warnings_;
};

} // namespace TVR::Study
