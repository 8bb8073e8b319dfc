#include "study/plan/StudyLines.h"

namespace TVR::Study {

QString StudyLine::place() const {
  return QStringLiteral("line %1, [%2] %3: ").arg(number).arg(section, key);
}

std::vector<StudyLine> studyLines(const QString& text, QStringList& errors) {
  std::vector<StudyLine> lines;
  QString section;
  int number = 0;
  for (const QString& whole : text.split('\n')) {
    const QString line = whole.trimmed();
    ++number;
    if (line.isEmpty() || line.startsWith(';') || line.startsWith('#'))
      continue;
    const int equals = line.indexOf('=');
    if (line.startsWith('[') && line.endsWith(']'))
      section = line.mid(1, line.size() - 2).trimmed();
    else if (equals > 0)
      lines.push_back(
          {number, section, line.left(equals).trimmed(), line.mid(equals + 1).trimmed()});
    else
      errors << QStringLiteral("line %1: expected a section in brackets or key=value, found \"%2\"")
                    .arg(number)
                    .arg(line.left(40));
  }
  return lines;
}

} // namespace TVR::Study
