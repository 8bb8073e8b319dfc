#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace TVR::Study {

/// A line "key=value" of a study file, with its number (from 1) and the section around it.
struct StudyLine {
  int number;
  QString section;
  QString key;
  QString value;

  /// What stands before a message about it: "line 12, [vary] kf: ".
  QString place() const;
};

/// The lines of a text in sections, without empty ones and those that begin with ";" or "#". What
/// is no such line is told in `errors`.
std::vector<StudyLine> studyLines(const QString& text, QStringList& errors);

} // namespace TVR::Study
